#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

constexpr double positionTolerance = 1e-7;  // degrees

/// Date and hour of a Modified Julian Date of universal time.
struct UniversalTime {
  DateComponents day;
  double hour;
};

UniversalTime universalTime(double mjd) {
  const double unixDay = std::floor(mjd) - 40587;
  const Instant midnight = instantFromUnixSeconds(unixDay * 86400);
  return {Calendar(TimeZone::fixed(0)).components(midnight), (mjd - std::floor(mjd)) * 24};
}

PositionData sunAt(double mjd, double longitude, double latitude) {
  const auto [day, hour] = universalTime(mjd);
  return Calc::CalculateSunPosition(longitude * degree, latitude * degree, day.year, day.month, day.day, hour,
                                    0);
}

PositionData moonAt(double mjd, double longitude, double latitude) {
  const auto [day, hour] = universalTime(mjd);
  return Calc::CalculateMoonPosition(
      longitude * degree, latitude * degree, static_cast<std::int32_t>(day.year),
      static_cast<std::int32_t>(day.month), static_cast<std::int32_t>(day.day), hour, 0);
}

TEST(HorizontalPosition, AgreesWithItsValuesIn50Digits) {
  int compared = 0;
  for (TableRow& row : tableRows("series_values.txt")) {
    if (row.kind != "sun_position" && row.kind != "moon_position") continue;
    double mjd = 0, longitude = 0, latitude = 0, altitude = 0, azimuth = 0;
    ASSERT_TRUE(row.fields >> mjd >> longitude >> latitude >> altitude >> azimuth) << row.where;
    const PositionData position =
        row.kind == "sun_position" ? sunAt(mjd, longitude, latitude) : moonAt(mjd, longitude, latitude);
    EXPECT_NEAR(position.altitude, altitude, positionTolerance) << row.where;
    EXPECT_NEAR(position.azimuth, azimuth, positionTolerance) << row.where;
    ++compared;
  }
  EXPECT_EQ(compared, 80);
}

TEST(SunsLongitude, AtTheEpochAndAtTheEquinox) {
  EXPECT_NEAR(Calc::FNsun(0) / degree, 280.461 - 0.0826 - 0.0017, 0.0001);
  const double equinox = Calc::_mjd(20, 3, 2024, 3) + 6.0 / 1440 - 51544.5;  // 2024 March 20, 03:06
  EXPECT_NEAR(std::sin(Calc::FNsun(equinox)), 0, 0.01 * degree);
}

TEST(SunsLongitude, IsReducedFrom2000OnAndBeforeMayBeNegative) {
  for (double day = 0; day < 36525; day += 0.9) {
    ASSERT_GE(Calc::FNsun(day), 0) << day;
    ASSERT_LT(Calc::FNsun(day), 2 * pi) << day;
  }
  EXPECT_NEAR(Calc::FNsun(-1000), -12.2744, 0.0001);
}

/// The least and the greatest azimuth of the Sun in a year at the latitude, sampled hourly.
std::pair<double, double> azimuthsOfAYear(double latitude) {
  double least = infinity, greatest = -infinity;
  for (double hour = 0; hour < 366 * 24; ++hour) {
    const double azimuth = Calc::CalculateSunPosition(0, latitude * degree, 2024, 1, 1, hour, 0).azimuth;
    least = std::min(least, azimuth);
    greatest = std::max(greatest, azimuth);
  }
  return {least, greatest};
}

TEST(SunPosition, TheAzimuthLiesInOneTurnAndAtAPoleDownToMinus90) {
  for (const double latitude : {-89.9, -33.9, 0.0, 60.2, 89.9}) {
    const auto [least, greatest] = azimuthsOfAYear(latitude);
    EXPECT_GE(least, 0) << latitude;
    EXPECT_LT(greatest, 360) << latitude;
  }
  for (const double pole : {-90.0, 90.0}) {
    const auto [least, greatest] = azimuthsOfAYear(pole);
    EXPECT_EQ(least, -90) << pole;
    EXPECT_LT(greatest, 360) << pole;
  }
}

TEST(SunPosition, IsDueSouthAtNorthernNoonAndDueNorthAtSouthernNoon) {
  const PositionData helsinki = Calc::CalculateSunPosition(24.9384 * degree, 60.1699 * degree, 2024, 6, 21,
                                                           12 - 24.9384 / 15 + 0.03, 3);
  EXPECT_NEAR(helsinki.azimuth, 180, 0.5);
  EXPECT_NEAR(helsinki.altitude, 90 - 60.1699 + 23.44, 0.05);
  const PositionData sydney =
      Calc::CalculateSunPosition(151.2 * degree, -33.87 * degree, 2024, 6, 21, 12 - 151.2 / 15 + 0.03, 10);
  EXPECT_NEAR(std::cos(sydney.azimuth * degree), 1, 1e-4);
  EXPECT_NEAR(sydney.altitude, 90 - 33.87 - 23.44, 0.05);
}

TEST(SunPosition, HourIsMovedByTheZoneValueAndByOneDayOnceIfNegative) {
  const auto hourOf = [](double hour, std::int64_t zone) {
    return Calc::CalculateSunPosition(0, 1, 2024, 6, 21, hour, zone).hour;
  };
  EXPECT_EQ(hourOf(7.5, 3), 10.5);
  EXPECT_EQ(hourOf(3, -7), 20);
  EXPECT_EQ(hourOf(7, -7), 0);
  EXPECT_EQ(hourOf(3, -30), -3);
  EXPECT_EQ(hourOf(23, 3), 26);
  EXPECT_EQ(hourOf(3, -25200), 3 - 25200 + 24);
}

TEST(SunPosition, HoursBeyondTheDayRunOn) {
  const PositionData beyond = Calc::CalculateSunPosition(0.4, 1, 2024, 2, 28, 30, 0);
  const PositionData next = Calc::CalculateSunPosition(0.4, 1, 2024, 2, 29, 6, 0);
  EXPECT_NEAR(beyond.altitude, next.altitude, 1e-9);
  EXPECT_NEAR(beyond.azimuth, next.azimuth, 1e-9);
}

TEST(SunPosition, CountsDaysAsTheModifiedJulianDateDoesFrom1901To2099) {
  const Calendar calendar(TimeZone::fixed(0));
  for (Instant day = utc(1901, 1, 1); day < utc(2100, 1, 1); day += Seconds(86400.0 * 37)) {
    const DateComponents c = calendar.components(day);
    const PositionData byDate = Calc::CalculateSunPosition(0.3, 0.9, c.year, c.month, c.day, 6, 0);
    const double mjd = Calc::_mjd(c.day, c.month, c.year, 6);
    const double sinDeclination = std::sin(Calc::FNsun(mjd - 51544.5)) *
                                  std::sin(0.4090877233749509 - 6.981317007977318e-09 * (mjd - 51544.5));
    const double fromPosition =
        std::sin(byDate.altitude * degree) * std::sin(0.9) +
        std::cos(byDate.altitude * degree) * std::cos(0.9) * std::cos(byDate.azimuth * degree);
    ASSERT_NEAR(fromPosition, sinDeclination, 1e-9) << c.year << "-" << c.month << "-" << c.day;
  }
}

TEST(SunPosition, OfAnInstantIsReadToTheMinuteWithTheWholeUniversalHour) {
  const GeoLocationData place = placeAt(60.1699, 24.9384, "Europe/Helsinki");
  const Instant instant = utc(2024, 6, 21, 7, 25) + Seconds(40);
  const PositionData position = Calc::ComputeSunPosition(instant, place, 10800);
  const PositionData expected = Calc::CalculateSunPosition(
      24.9384 * 0.017453292519943295, 60.1699 * 0.017453292519943295, 2024, 6, 21, 7 + 25.0 / 60, 0);
  EXPECT_EQ(position.altitude, expected.altitude);
  EXPECT_EQ(position.azimuth, expected.azimuth);
  EXPECT_EQ(position.altitudeText, expected.altitudeText);
  EXPECT_EQ(position.azimuthText, expected.azimuthText);
  EXPECT_EQ(position.hour, 7);
}

TEST(SunPosition, IsAnHourOffWithinTheOffsetOfAClockChange) {
  const GeoLocationData place = placeAt(60.1699, 24.9384, "Europe/Helsinki");
  const Instant change = utc(2024, 3, 31, 1);  // clocks go from +2 to +3 hours
  const Instant after = change + Seconds(3600);
  EXPECT_EQ(Calc::ComputeSunPosition(after, place, 10800).hour, 1);  // the universal hour is 2
  EXPECT_EQ(Calc::ComputeSunPosition(after + Seconds(3 * 3600), place, 10800).hour, 5);
}

TEST(MoonPosition, HourIsTheLocalOne) {
  EXPECT_EQ(Calc::CalculateMoonPosition(-2.1, 0.65, 2024, 6, 21, 7, -7).hour, 0);
  EXPECT_EQ(Calc::CalculateMoonPosition(1.35, 0.5, 2024, 6, 21, -5.5, 5.5).hour, 0);
  EXPECT_EQ(Calc::CalculateMoonPosition(0.4, 1.05, 2024, 6, 21, 23, 3).hour, 26);
}

TEST(MoonPosition, ANegativeHourStepsBackIntoTheDayBefore) {
  const PositionData stepped = Calc::CalculateMoonPosition(1.35, 0.5, 2024, 3, 1, -5.5, 5.5);
  const PositionData direct = Calc::CalculateMoonPosition(1.35, 0.5, 2024, 2, 29, 18.5, 5.5);
  EXPECT_NEAR(stepped.altitude, direct.altitude, 1e-9);
  EXPECT_NEAR(stepped.azimuth, direct.azimuth, 1e-9);
}

TEST(MoonPosition, EastOfTheMeridianWhileItClimbs) {
  for (int hour = 0; hour < 24 * 28; ++hour) {
    const double h = hour;
    const PositionData now = Calc::CalculateMoonPosition(0.4, 1.05, 2024, 3, 1, h, 0);
    const PositionData later = Calc::CalculateMoonPosition(0.4, 1.05, 2024, 3, 1, h + 0.1, 0);
    if (std::abs(later.altitude - now.altitude) < 0.05) continue;  // near the meridian
    EXPECT_EQ(now.azimuth<180, later.altitude> now.altitude) << hour;
  }
}

TEST(MoonPosition, OfAnInstantIsReadOnThePlacesClock) {
  const GeoLocationData place = placeAt(28.6139, 77.209, "Asia/Kolkata");
  const Instant instant = utc(2024, 2, 29, 20, 45);  // 02:15 of March 1 there
  const PositionData position = Calc::ComputeMoonPosition(instant, place, 19800);
  EXPECT_EQ(position.hour, 2.25);
  const PositionData expected = Calc::CalculateMoonPosition(77.209 * 0.0174532925, 28.6139 * 0.0174532925,
                                                            2024, 3, 1, 15.0 / 60 + 2 - 5.5, 5.5);
  EXPECT_EQ(position.altitude, expected.altitude);
  EXPECT_EQ(position.azimuth, expected.azimuth);
  EXPECT_EQ(position.azimuthText, expected.azimuthText);
}

TEST(MoonPosition, LordHoweHalfHourShift) {
  const GeoLocationData lordHowe = placeAt(-31.55, 159.0833, "Australia/Lord_Howe");
  const Instant first = utc(2024, 4, 6, 14, 45), second = utc(2024, 4, 6, 15, 15);  // both 01:45 there
  const PositionData before = Calc::ComputeMoonPosition(first, lordHowe, 39600);
  const PositionData after = Calc::ComputeMoonPosition(second, lordHowe, 37800);
  EXPECT_EQ(before.hour, 1.75);
  EXPECT_EQ(after.hour, 1.75);
  const auto byHour = [](double hour) {
    return Calc::CalculateMoonPosition(159.0833 * degree, -31.55 * degree, 2024, 4, 6, hour, 0);
  };
  EXPECT_NEAR(before.altitude, byHour(14.75).altitude, 1e-5);
  EXPECT_NEAR(after.altitude, byHour(15.25).altitude, 1e-5);
}

TEST(SunPosition, TrollTwoHourShift) {
  const GeoLocationData troll = placeAt(-72.01, 2.53, "Antarctica/Troll");
  const Instant change = utc(2024, 3, 31, 1);  // clocks go from 01:00 to 03:00
  EXPECT_EQ(Calc::ComputeSunPosition(change - Seconds(60), troll, 0).hour, 0);
  EXPECT_EQ(Calc::ComputeSunPosition(change + Seconds(3600), troll, 7200).hour, 0);  // two hours early
  EXPECT_EQ(Calc::ComputeSunPosition(change + Seconds(7200), troll, 7200).hour, 3);
}

TEST(MoonPosition, OfAModifiedJulianDateIsTheSameInDegrees) {
  const double phi = 60.1699 * degree;
  const PositionData found = Calc::_find_moon_position(60369, 30.5, 24.9384, std::cos(phi), std::sin(phi));
  const PositionData calculated = Calc::CalculateMoonPosition(24.9384 * degree, phi, 2024, 2, 29, 30.5, 3);
  EXPECT_EQ(found.hour, 30.5);
  EXPECT_NEAR(found.altitude, calculated.altitude, 1e-9);
  EXPECT_NEAR(found.azimuth, calculated.azimuth, 1e-9);
  EXPECT_EQ(found.altitudeText, calculated.altitudeText);
}

TEST(MoonPosition, AtThePolesHasAnAltitudeAndNoAzimuth) {
  for (const double sinLatitude : {1.0, -1.0}) {
    const PositionData pole = Calc::_find_moon_position(60369, 6, 24.9384, 0, sinLatitude);
    const double declination = Calc::_minimoon((60369.25 - 51544.5) / 36525).declination;
    EXPECT_NEAR(pole.altitude, sinLatitude * declination, 1e-6);
    EXPECT_TRUE(std::isnan(pole.azimuth));
    EXPECT_EQ(pole.azimuthText, "nan°");
  }
}

TEST(MoonPosition, OfALongitudeOfManyTurnsEnds) {
  EXPECT_TRUE(std::isfinite(Calc::CalculateMoonPosition(-1e6, 1, 2024, 1, 1, 0, 0).altitude));
  EXPECT_TRUE(std::isfinite(Calc::CalculateMoonPosition(-1e30, 1, 2024, 1, 1, 0, 0).altitude));
  EXPECT_TRUE(std::isnan(Calc::CalculateMoonPosition(-infinity, 1, 2024, 1, 1, 0, 0).altitude));
}

TEST(PositionTexts, HaveOneDecimalAndKeepTheSignOfZero) {
  int justBelow = 0;
  for (int second = 0; second < 86400; second += 5) {
    const PositionData position = Calc::CalculateSunPosition(0, 0, 2024, 3, 20, second / 3600.0, 0);
    if (position.altitude >= 0 || position.altitude <= -0.05) continue;
    EXPECT_EQ(position.altitudeText, "-0.0°") << position.altitude;
    ++justBelow;
  }
  EXPECT_GE(justBelow, 4);
}

TEST(PositionTexts, AreRoundedAsPrintedNumbersAre) {
  for (int minute = 0; minute < 1440; minute += 7) {
    const PositionData position = Calc::CalculateSunPosition(0.4, 1.05, 2024, 3, 20, minute / 60.0, 0);
    EXPECT_NEAR(leadingNumber(position.altitudeText), position.altitude, 0.05 + 1e-9);
    EXPECT_NEAR(leadingNumber(position.azimuthText), position.azimuth, 0.05 + 1e-9);
    EXPECT_EQ(position.azimuthText.substr(position.azimuthText.size() - 2), "°");
    EXPECT_EQ(position.azimuthText[position.azimuthText.size() - 4], '.');
  }
}

TEST(HorizontalPosition, WithoutAZoneReadsTheClockWithTheOffsetInForce) {
  const ScopedDefaultTimeZone elsewhere("Pacific/Kiritimati");
  const GeoLocationData without = placeAt(37.8, -122.4);
  const GeoLocationData with = placeAt(37.8, -122.4, "America/Los_Angeles");
  const Instant instant = utc(2024, 6, 21, 5, 20);
  const PositionData sun = Calc::ComputeSunPosition(instant, without, -25200);
  EXPECT_EQ(sun.altitude, Calc::ComputeSunPosition(instant, with, -25200).altitude);
  EXPECT_EQ(sun.hour, 5);
  const PositionData moon = Calc::ComputeMoonPosition(instant, without, -25200);
  EXPECT_EQ(moon.altitude, Calc::ComputeMoonPosition(instant, with, -25200).altitude);
  EXPECT_NEAR(moon.hour, 22 + 20.0 / 60, 1e-12);
}

TEST(HorizontalPosition, OfNumbersOfNoPlaceOrTimeIsDefined) {
  constexpr auto farthest64 = std::numeric_limits<std::int64_t>::max();
  constexpr auto farthest32 = std::numeric_limits<std::int32_t>::max();
  Calc::CalculateSunPosition(0, 0, farthest64, farthest64, farthest64, infinity, farthest64);
  Calc::CalculateSunPosition(0, 0, -farthest64 - 1, -farthest64 - 1, -farthest64 - 1, -infinity, -farthest64);
  Calc::CalculateMoonPosition(0, 0, farthest32, -farthest32, farthest32, 1e300, -1e300);
  for (const double number : {nan, infinity, -infinity, 1e300}) {
    const GeoLocationData place = placeAt(number, number);
    for (const std::int64_t offset : {farthest64, -farthest64 - 1}) {
      EXPECT_FALSE(
          Calc::ComputeSunPosition(instantFromUnixSeconds(number), place, offset).azimuthText.empty());
      EXPECT_FALSE(
          Calc::ComputeMoonPosition(instantFromUnixSeconds(number), place, offset).azimuthText.empty());
    }
  }
  EXPECT_EQ(Calc::CalculateSunPosition(nan, 0, 2024, 1, 1, 0, 0).altitudeText, "nan°");
}

}  // namespace
}  // namespace velmora
