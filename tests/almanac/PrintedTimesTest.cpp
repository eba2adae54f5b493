#include <chrono>
#include <cmath>

#include <gtest/gtest.h>

#include <velmora/almanac/Events.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;

/// The Sun's rise and set as an almanac office prints them, rounded to the minute of local clocks.
struct Printed {
  const char* office;
  const char* zone;
  Place place;
  year_month_day date;
  minutes rise, set;
};

constexpr minutes at(int hour, int minute) { return hours(hour) + minutes(minute); }

constexpr const char *navalObservatory = "U.S. Naval Observatory",
                     *tokyo = "National Astronomical Observatory of Japan",
                     *nauticalAlmanac = "HM Nautical Almanac Office", *geoscience = "Geoscience Australia";
constexpr Printed printed[] = {
    {navalObservatory, "America/New_York", {40.7167, -74.0167}, 2024y / 1 / 1, at(7, 20), at(16, 39)},
    {navalObservatory, "America/New_York", {40.7167, -74.0167}, 2024y / 12 / 21, at(7, 17), at(16, 32)},
    {navalObservatory, "America/New_York", {38.9, -77.0333}, 2024y / 6 / 21, at(5, 43), at(20, 37)},
    {navalObservatory, "America/Los_Angeles", {34.05, -118.25}, 2024y / 12 / 21, at(6, 55), at(16, 48)},
    {tokyo, "Asia/Tokyo", {35.6581, 139.7414}, 2024y / 1 / 1, at(6, 51), at(16, 38)},
    {nauticalAlmanac, "Europe/London", {51.5, -0.1167}, 2024y / 1 / 1, at(8, 6), at(16, 2)},
    {geoscience, "Australia/Sydney", {-33.8688, 151.2093}, 2024y / 6 / 21, at(7, 0), at(16, 54)},
};

TEST(PrintedTimes, AreThoseOfNationalAlmanacOffices) {
  for (const Printed& row : printed) {
    const TimeZone zone = *TimeZone::named(row.zone);
    const auto day = almanac::day(row.place, zone, row.date);
    ASSERT_TRUE(day);
    for (const Event& event : day->events) {
      if (event.body != Body::sun || (event.kind != EventKind::rise && event.kind != EventKind::set))
        continue;
      const Seconds clock = zone.localTime(event.at) - LocalTime(local_days(row.date));
      const minutes expected = event.kind == EventKind::rise ? row.rise : row.set;
      EXPECT_LE(std::abs((clock - expected).count()), 30)
          << row.office << ", " << row.zone << ' ' << expected.count();
    }
  }
}

}  // namespace
}  // namespace velmora::almanac
