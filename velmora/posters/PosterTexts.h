#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/TimeZone.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Dates, times and numbers as a poster's language writes them, in the zone of its place.
class PosterTexts {
 public:
  explicit PosterTexts(TimeZone zone);

  /// The time of day, to the nearest minute.
  std::string time(Instant instant) const;
  /// The date and time fields of a template, "yMMMMd", in the locale's order.
  std::string date(Instant instant, std::string_view fields) const;
  /// An hour of the day, 0 to 24, by its number alone or with its half of the day.
  std::string hour(int hour) const;
  std::string number(std::int64_t number) const;
  /// A share of 1, in whole hundredths.
  std::string percent(double share) const;
  /// Hours and minutes.
  std::string duration(Seconds length) const;
  /// A distance above the horizon, whole degrees.
  std::string degrees(double angle) const;

 private:
  TimeZone _zone;
  Locale _locale;
};

}  // namespace velmora
