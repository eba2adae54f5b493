#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmora::testing {

/// A city of a table made by hand: named by one key of small letters, in the one region and zone there is.
struct RowOfCity {
  std::string name;
  std::string key;
  double latitude = 0, longitude = 0;
  std::uint32_t people = 0;
};

/// The bytes of a table with the letters a to z, the region ME of US, the zone "Area/Town" of the first city
/// ("Area/Old" stands for it), and those cities: most populous first, their keys in alphabetical order.
std::string bytesOfCityTable(const std::vector<RowOfCity>& cities);

}  // namespace velmora::testing
