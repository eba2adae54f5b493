#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <vector>

#include <velmora/almanac/Eclipses.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::testing {

using almanac::Body, almanac::ContactName, almanac::Eclipse, almanac::EclipseKind, almanac::EclipseMoment,
    almanac::LocalEclipse, almanac::Place;

inline Instant utc(int year, unsigned month, unsigned day, int hour = 0, int minute = 0, double second = 0) {
  const std::chrono::sys_days date =
      std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
  return date + std::chrono::hours(hour) + std::chrono::minutes(minute) + Seconds(second);
}

/// Seconds of Terrestrial Time since 1970-01-01T00:00 TT.
inline double terrestrialSeconds(Instant instant) {
  return unixSeconds(instant) + ephemeris::terrestrialMinusUniversal(instant);
}

inline EclipseKind kindOf(const std::string& name) {
  constexpr std::array names{"total", "annular", "hybrid", "partial", "penumbral"};
  const auto found = std::find(names.begin(), names.end(), name);
  EXPECT_NE(found, names.end()) << name;
  return static_cast<EclipseKind>(found - names.begin());
}

/// The eclipse of the body on that day of UTC.
inline Eclipse eclipseOn(int year, unsigned month, unsigned day, Body body) {
  for (const Eclipse& eclipse : almanac::eclipses(utc(year, month, day), utc(year, month, day + 1))) {
    if (eclipse.body == body) return eclipse;
  }
  ADD_FAILURE() << "no eclipse on " << year << '-' << month << '-' << day;
  return {};
}

inline LocalEclipse localEclipse(const Eclipse& eclipse, const Place& place) {
  const auto local = seenFrom(eclipse, place);
  EXPECT_TRUE(local) << place.latitude << ' ' << place.longitude;
  return local.value_or(LocalEclipse{});
}

/// The moment of the contact; its instant is 1970 where there is none.
inline EclipseMoment momentOf(const LocalEclipse& local, ContactName name) {
  const auto found = std::find_if(local.contacts.begin(), local.contacts.end(),
                                  [&](const almanac::Contact& contact) { return contact.name == name; });
  return found == local.contacts.end() ? EclipseMoment{} : found->moment;
}

}  // namespace velmora::testing
