#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

#include <tests/support/ErrorSummary.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

constexpr double noTime = -1;

/// A time of a table in minutes after local midnight; "-" is none.
double readMinutes(TableRow& row) {
  std::string text;
  EXPECT_TRUE(row.fields >> text) << row.where;
  return text == "-" ? noTime : leadingNumber(text);
}

/// Compares a record's minutes with the table's, which are missing on the same days.
void compare(ErrorSummary& errors, std::int64_t minutes, double expected, const std::string& where) {
  const auto computed = static_cast<double>(minutes);
  ASSERT_EQ(computed == noTime, expected == noTime) << where << " " << computed << " and " << expected;
  if (computed != noTime) errors.add(computed - expected, where);
}

TEST(Accuracy, OfRiseAndSetOnEveryDayOf2024) {
  ErrorSummary sun("Sun's rise and set", " min", 1.2), moon("Moon's rise and set", " min", 2.0);
  GeoLocationData place;
  int days = 0, places = 0;
  for (TableRow& row : tableRows("rise_set_2024.txt")) {
    if (row.kind == "place") {
      std::string name, zone;
      double latitude = 0, longitude = 0;
      ASSERT_TRUE(row.fields >> name >> latitude >> longitude >> zone) << row.where;
      place.SetLocation(latitude, longitude, name, zone, 0, false);
      ++places;
      continue;
    }
    std::int64_t offset = 0;
    ASSERT_TRUE(row.fields >> offset) << row.where;
    const Instant noon = utc(2024, 1, 1 + days++ % 366, 12) - Seconds(static_cast<double>(offset));
    ASSERT_EQ(offset, place.gmtIntervalForDate(noon, Calendar(*place.timezone))) << row.where;
    const RiseSetData record = Calc::Compute(noon, place, offset, 0);
    const std::string where = row.where + " " + *place.name + " " + row.kind;
    compare(sun, record.sunRiseMinutesFromMidnight, readMinutes(row), where + " sunrise");
    compare(sun, record.sunSetMinutesFromMidnight, readMinutes(row), where + " sunset");
    compare(moon, record.moonRiseMinutesFromMidnight, readMinutes(row), where + " moonrise");
    compare(moon, record.moonSetMinutesFromMidnight, readMinutes(row), where + " moonset");
  }
  sun.print();
  moon.print();
  EXPECT_EQ(days, places * 366);
  EXPECT_GE(places, 12);
  EXPECT_EQ(sun.count(), 2 * days);
  EXPECT_LE(sun.rms(), 0.4);
  EXPECT_LE(moon.rms(), 0.6);
}

using UnitVector = std::array<double, 3>;

UnitVector directionOf(double altitude, double azimuth) {
  const double h = altitude * pi / 180, a = azimuth * pi / 180;
  return {std::cos(h) * std::cos(a), std::cos(h) * std::sin(a), std::sin(h)};
}

/// The angle between two directions in degrees, precise for small ones.
double separation(const UnitVector& a, const UnitVector& b) {
  const double chord = std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
  return 2 * std::asin(chord / 2) * 180 / pi;
}

TEST(Accuracy, OfPositionsFrom2000To2040) {
  ErrorSummary sun("Sun's position", "°", 0.015), moon("Moon's position", "°", 0.1);
  const Calendar calendar(TimeZone::fixed(0));
  for (TableRow& row : tableRows("positions_2000_2040.txt")) {
    const double mjd = leadingNumber(row.kind);
    double latitude = 0, longitude = 0, sunAltitude = 0, sunAzimuth = 0, moonAltitude = 0, moonAzimuth = 0;
    ASSERT_TRUE(row.fields >> latitude >> longitude >> sunAltitude >> sunAzimuth >> moonAltitude >>
                moonAzimuth)
        << row.where;
    const double hour = (mjd - std::floor(mjd)) * 24, lambda = longitude * pi / 180,
                 phi = latitude * pi / 180;
    const DateComponents c = calendar.components(instantFromUnixSeconds((std::floor(mjd) - 40587) * 86400));
    const PositionData atSun = Calc::CalculateSunPosition(lambda, phi, c.year, c.month, c.day, hour, 0);
    const PositionData atMoon = Calc::CalculateMoonPosition(lambda, phi, static_cast<std::int32_t>(c.year),
                                                            static_cast<std::int32_t>(c.month),
                                                            static_cast<std::int32_t>(c.day), hour, 0);
    sun.add(separation(directionOf(atSun.altitude, atSun.azimuth), directionOf(sunAltitude, sunAzimuth)),
            row.where);
    moon.add(separation(directionOf(atMoon.altitude, atMoon.azimuth), directionOf(moonAltitude, moonAzimuth)),
             row.where);
  }
  sun.print();
  moon.print();
  EXPECT_GT(sun.count(), 1400);
}

}  // namespace
}  // namespace velmora
