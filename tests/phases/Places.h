#pragma once

#include <cstdint>
#include <string>

#include <tests/support/Instants.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/phases/MoonPhaseCalc.h>

/// Places, tables and instants as the tests of the phase calendar give them.
namespace velmora {

using testing::utc;

inline GeoLocationData placeInZone(const std::string& zone) {
  GeoLocationData place;
  place.SetLocation(0, 0, zone, zone, 0, false);
  return place;
}

inline GeoLocationData placeAtOffset(std::int64_t secondsFromGMT) {
  GeoLocationData place;
  place.SetLocation(0, 0, "fixed", std::nullopt, secondsFromGMT, true);
  return place;
}

/// The library's own table of the year.
inline YearTable shippedTable(std::int64_t year) { return *tableOfYear(year); }

/// The events of a month (0 = January) of the library's own tables, as seen from the place.
inline MoonPhaseCalc::MonthEvents eventsOf(std::int64_t year, std::int64_t month,
                                           const GeoLocationData& place) {
  Calendar calendar;
  return MoonPhaseCalc::GetMoonPhaseDataForMonth(shippedTable(year), year, month, calendar, 0, year, month,
                                                 place, true);
}

/// A yearly table as the library reads it from a file, with the given lines under the given months.
inline std::string propertyListOf(const YearTable& table) {
  std::string text = "<plist version=\"1.0\">\n<dict>\n";
  for (const auto& [month, lines] : table) {
    text += "<key>" + month + "</key>\n<array>\n";
    for (const std::string& line : lines) text += "<string>" + line + "</string>\n";
    text += "</array>\n";
  }
  return text + "</dict>\n</plist>\n";
}

}  // namespace velmora
