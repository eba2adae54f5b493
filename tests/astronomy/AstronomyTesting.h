#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include <tests/support/NotFinite.h>
#include <tests/support/PlainNumbers.h>
#include <tests/support/Tables.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/time/Calendar.h>

namespace velmora::testing {

constexpr double pi = 3.14159265358979323846;
constexpr double degree = pi / 180;

/// Julian centuries since 2000 January 1, 12h.
inline double centuries(double mjd) { return (mjd - 51544.5) / 36525; }

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

}  // namespace velmora::testing
