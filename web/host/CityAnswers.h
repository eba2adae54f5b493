#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace velmora::web {

/// The table of cities, which the page fetches when it is first needed.
void takeCities(std::string bytes);

/// As JSON: those whose name begins so, most populous first; empty before the table is there.
std::string citiesNamed(const std::string& prefix, std::size_t limit);

/// The nearest to the coordinates, at most 50 km away.
std::optional<std::string> cityNear(double latitude, double longitude);

}  // namespace velmora::web
