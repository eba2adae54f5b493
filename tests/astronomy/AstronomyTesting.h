#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <tests/support/PlainNumbers.h>
#include <tests/support/SourceDirectory.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/time/Calendar.h>

namespace velmora::testing {

constexpr double pi = 3.14159265358979323846;

/// Sets the clock form of texts for as long as it lives, then puts the former one back.
class ScopedTimeFormat {
 public:
  explicit ScopedTimeFormat(std::int64_t format) : _former(SettingsModel::sharedInstance().timeFormat()) {
    SettingsModel::sharedInstance().setTimeFormat(format);
  }
  ~ScopedTimeFormat() { SettingsModel::sharedInstance().setTimeFormat(_former); }
  ScopedTimeFormat(const ScopedTimeFormat&) = delete;
  ScopedTimeFormat& operator=(const ScopedTimeFormat&) = delete;

 private:
  std::int64_t _former;
};

inline constexpr std::int64_t clock24 = 1, clock12 = 0;

inline Instant inZone(const char* zone, std::int64_t year, std::int64_t month, std::int64_t day,
                      std::int64_t hour = 0, std::int64_t minute = 0) {
  return Calendar(*TimeZone::named(zone))
      .date({.year = year, .month = month, .day = day, .hour = hour, .minute = minute});
}

inline Instant utc(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour = 0,
                   std::int64_t minute = 0) {
  return inZone("UTC", year, month, day, hour, minute);
}

/// A place without a zone: calendars take the offset that is passed with it.
inline GeoLocationData placeAt(double latitude, double longitude) {
  GeoLocationData place;
  place.UpdateLocation(latitude, longitude);
  return place;
}

inline GeoLocationData placeAt(double latitude, double longitude, const std::string& zone) {
  GeoLocationData place;
  place.SetLocation(latitude, longitude, zone, zone, 0, false);
  return place;
}

/// One row of a table under tests/data: its place in the file, for messages, and its fields.
struct TableRow {
  std::string where;
  std::string kind;  ///< the first field
  std::istringstream fields;
};

/// The rows of a table, without blank lines and those that start with '#'.
inline std::vector<TableRow> tableRows(const std::string& name) {
  std::ifstream file(sourceDirectory() + "/tests/data/" + name);
  EXPECT_TRUE(file) << name << " cannot be read";
  std::vector<TableRow> rows;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.front() == '#') continue;
    std::istringstream fields(line);
    fields.imbue(std::locale::classic());
    std::string kind;
    fields >> kind;
    rows.push_back({name + ":" + std::to_string(number), kind, std::move(fields)});
  }
  EXPECT_FALSE(rows.empty()) << name << " has no rows";
  return rows;
}

}  // namespace velmora::testing
