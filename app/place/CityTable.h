#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velmora::app {

/// One row of the system's zone table: the principal city of a time zone.
struct City {
  std::string name;  ///< "New York"
  std::string zone;  ///< "America/New_York"
  double latitude;   ///< degrees, north positive
  double longitude;  ///< degrees, east positive
};

/// The cities of the time zone database's table of zones (zone.tab).
class CityTable {
 public:
  /// The system's table, in the folder that TZDIR names, else /usr/share/zoneinfo; read once. Throws as
  /// below.
  static const CityTable& system();

  /// The table in a file. Throws Failure if it cannot be read or has no cities.
  static CityTable fromFile(const std::string& path);

  /// Reads a table: country code, coordinates as ±DDMM[SS]±DDDMM[SS] and zone identifier, separated by tabs;
  /// "#" begins a comment line. Rows that do not have this form are left out.
  explicit CityTable(std::istream& table);

  const std::vector<City>& cities() const { return _cities; }

  /// The city of that name or zone identifier, whatever the case, blanks, accents and punctuation; none if
  /// the table has no such city.
  const City* find(std::string_view spelling) const;

  /// The names that come nearest to a misspelt city, for a message.
  std::string nearestCities(std::string_view spelling) const;

  /// The zone identifiers that come nearest to a misspelt one, for a message.
  std::string nearestZones(std::string_view spelling) const;

 private:
  std::vector<City> _cities;
  std::unordered_map<std::string, std::size_t> _indexBySearchForm;
};

}  // namespace velmora::app
