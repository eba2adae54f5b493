#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <random>

#include <tests/astronomy/reference/Reference.h>
#include <velmora/astronomy/HourlyAltitudes.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

constexpr int instants = 100000;
constexpr double firstMjd = 15020, lastMjd = 88069;  // 1900 January 1 to 2100 January 1
constexpr double radiansPerDegree = pi / 180;

/// Moments and places drawn evenly, the same in every run.
class Draw {
 public:
  double between(double low, double high) {
    return low + (high - low) * static_cast<double>(_generator() >> 11) * 0x1p-53;
  }
  double mjd() { return between(firstMjd, lastMjd); }
  double latitude() { return between(-90, 90); }
  double longitude() { return between(-180, 180); }

 private:
  std::mt19937_64 _generator{2025};
};

double angleBetween(double degrees, double others) {
  return std::abs(std::remainder(degrees - others, 360)) * radiansPerDegree;
}

/// How far two directions are apart, in radians: the larger of both coordinates' shares.
double separation(double latitude, double longitude, double otherLatitude, double otherLongitude) {
  return std::max(angleBetween(latitude, otherLatitude),
                  angleBetween(longitude, otherLongitude) * std::cos(latitude * radiansPerDegree));
}

/// The printed half-angle formula for the right ascension magnifies the last bit toward 12 hours, where
/// numerator and denominator vanish: what this share of the difference leaves out.
double conditionOf(const EquatorialCoordinates& body) {
  return std::abs(std::cos(15 * body.rightAscension / 2 * radiansPerDegree));
}

double separation(const EquatorialCoordinates& a, const EquatorialCoordinates& b) {
  return separation(a.declination, 15 * a.rightAscension, b.declination, 15 * b.rightAscension) *
         conditionOf(b);
}

TEST(ReferenceAgreement, SeriesOfSunAndMoonWithinOnePartInATrillionOfARadian) {
  Draw draw;
  double sun = 0, moon = 0;
  for (int i = 0; i < instants; ++i) {
    const double T = centuries(draw.mjd());
    sun = std::max(sun, separation(Calc::_minisun(T), reference::minisun(T)));
    moon = std::max(moon, separation(Calc::_minimoon(T), reference::minimoon(T)));
  }
  std::cout << "largest difference: Sun " << sun << ", Moon " << moon << " radians\n";
  EXPECT_LT(sun, 1e-12);
  EXPECT_LT(moon, 1e-12);
}

TEST(ReferenceAgreement, SineOfAltitudeWithinOnePartInATrillion) {
  Draw draw;
  double largest = 0;
  for (int i = 0; i < instants; ++i) {
    const double mjd0 = std::floor(draw.mjd()), hour = draw.between(-12, 60);
    const double phi = draw.latitude() * radiansPerDegree, longitude = draw.longitude();
    const double object = 1 + i % 2, T = centuries(mjd0 + hour / 24);
    const double sine = Calc::_sin_alt(object, mjd0, hour, longitude, std::cos(phi), std::sin(phi));
    const double expected = reference::sinAlt(object, mjd0, hour, longitude, std::cos(phi), std::sin(phi));
    const double condition = conditionOf(object == 1 ? reference::minimoon(T) : reference::minisun(T));
    largest = std::max(largest, std::abs(sine - expected) * condition);
  }
  std::cout << "largest difference: " << largest << '\n';
  EXPECT_LT(largest, 1e-12);
}

/// Near the zenith, the poles and the meridian arcsine and arccosine magnify the last bit of their argument.
double conditionOf(const reference::Horizontal& position, double cosLatitude) {
  return std::cos(position.altitude * radiansPerDegree) * cosLatitude *
         std::abs(std::sin(position.azimuth * radiansPerDegree));
}

TEST(ReferenceAgreement, PositionsWithinOnePartInATrillionOfARadian) {
  using namespace std::chrono;
  Draw draw;
  double sun = 0, moon = 0;
  for (int i = 0; i < instants; ++i) {
    const double mjd0 = std::floor(draw.between(15385, lastMjd));  // the Sun's day count begins in 1901
    const double hour = draw.between(0, 24), d = mjd0 - 51544.5 + hour / 24;
    const double phi = draw.latitude() * radiansPerDegree, lambda = draw.longitude() * radiansPerDegree;
    const year_month_day date(sys_days(days(static_cast<int>(mjd0) - 40587)));
    const int year = static_cast<int>(date.year()), month = static_cast<int>(unsigned(date.month())),
              day = static_cast<int>(unsigned(date.day()));

    const PositionData sunNow = Calc::CalculateSunPosition(lambda, phi, year, month, day, hour, 0);
    const auto sunThen = reference::sunPosition(d, lambda, phi);
    sun = std::max(sun, separation(sunNow.altitude, sunNow.azimuth, sunThen.altitude, sunThen.azimuth) *
                            conditionOf(sunThen, std::cos(phi)));

    const PositionData moonNow = Calc::CalculateMoonPosition(lambda, phi, year, month, day, hour, 0);
    const auto moonThen =
        reference::moonPosition(mjd0 + hour / 24, lambda * 57.29577951308232, std::cos(phi), std::sin(phi));
    moon = std::max(moon, separation(moonNow.altitude, moonNow.azimuth, moonThen.altitude, moonThen.azimuth) *
                              conditionOf(moonThen, std::cos(phi)) *
                              conditionOf(reference::minimoon(centuries(mjd0 + hour / 24))));

    ASSERT_EQ(sunNow.altitudeText, reference::degreesText(sunThen.altitude));
    ASSERT_EQ(sunNow.azimuthText, reference::degreesText(sunThen.azimuth));
    ASSERT_EQ(moonNow.altitudeText, reference::degreesText(moonThen.altitude));
    ASSERT_EQ(moonNow.azimuthText, reference::degreesText(moonThen.azimuth));
  }
  std::cout << "largest difference: Sun " << sun << ", Moon " << moon << " radians\n";
  EXPECT_LT(sun, 1e-12);
  EXPECT_LT(moon, 1e-12);
}

template <class HourlyBody>
double largestDifferenceOfAnHour(double object) {
  Draw draw;
  double largest = 0;
  for (int i = 0; i < instants / 50; ++i) {
    const double midnight = std::floor(draw.mjd()) - std::round(draw.between(-56, 48)) / 96;
    const double latitude = draw.latitude(), longitude = draw.longitude();
    const double phi = latitude * 0.0174532925;
    HourlyAltitudes<HourlyBody> altitudes(midnight, longitude, latitude);
    for (int hour = 0; hour <= altitudes.lastHour; ++hour) {
      const double expected =
          reference::sinAlt(object, midnight, hour, longitude, std::cos(phi), std::sin(phi));
      largest = std::max(largest, std::abs(altitudes.at(hour) - expected));
    }
  }
  std::cout << "largest difference: " << largest << '\n';
  return largest;
}

// The sidereal time of 13 million degrees is rounded to 6e-11 radians, at the hour and at the midnight from
// which the hours are stepped; the date of the hour to 2e-11.
TEST(ReferenceAgreement, SteppedHoursWithinTheRoundingOfTheTimesOfSingleHours) {
  EXPECT_LT(largestDifferenceOfAnHour<HourlyMoon>(1), 2e-10);
  EXPECT_LT(largestDifferenceOfAnHour<HourlySun>(2), 2e-10);
}

struct PlaceAtOffset {
  const char* name;
  double latitude, longitude;
  std::int64_t offset;

  friend std::ostream& operator<<(std::ostream& stream, const PlaceAtOffset& place) {
    return stream << place.name;
  }
};

class EveryDayByReference : public ::testing::TestWithParam<PlaceAtOffset> {};

TEST_P(EveryDayByReference, HasTheSameTextsAndMinutes) {
  const ScopedTimeFormat format(clock24);
  const auto& [name, latitude, longitude, offset] = GetParam();
  const GeoLocationData place = placeAt(latitude, longitude);
  const double offsetHours = static_cast<double>(offset) / 3600;
  constexpr int days = 14976;
  for (int n = 0; n < days; ++n) {
    const Instant noon = utc(2000, 1, 1, 12) + Seconds(86400.0 * n - static_cast<double>(offset));
    const RiseSetData day = Calc::Compute(noon, place, offset, n % 3);
    const RiseSetData expected = reference::compute(51544 + n, offsetHours, longitude, latitude, n % 3);
    ASSERT_EQ(day.sunRiseText, expected.sunRiseText) << n;
    ASSERT_EQ(day.sunSetText, expected.sunSetText) << n;
    ASSERT_EQ(day.twilightBeginText, expected.twilightBeginText) << n;
    ASSERT_EQ(day.twilightEndText, expected.twilightEndText) << n;
    ASSERT_EQ(day.moonRiseText, expected.moonRiseText) << n;
    ASSERT_EQ(day.moonSetText, expected.moonSetText) << n;
    ASSERT_EQ(day.sunRiseMinutesFromMidnight, expected.sunRiseMinutesFromMidnight) << n;
    ASSERT_EQ(day.sunSetMinutesFromMidnight, expected.sunSetMinutesFromMidnight) << n;
    ASSERT_EQ(day.moonRiseMinutesFromMidnight, expected.moonRiseMinutesFromMidnight) << n;
    ASSERT_EQ(day.moonSetMinutesFromMidnight, expected.moonSetMinutesFromMidnight) << n;
    ASSERT_EQ(day.dayLengthMinutes, expected.dayLengthMinutes) << n;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Places, EveryDayByReference,
    ::testing::Values(
        PlaceAtOffset{"NorthPole", 90, 0, 0}, PlaceAtOffset{"Alert", 82.5018, -62.3481, -18000},
        PlaceAtOffset{"Longyearbyen", 78.2232, 15.6267, 3600},
        PlaceAtOffset{"Utqiagvik", 71.2906, -156.7886, -32400},
        PlaceAtOffset{"Tromso", 69.6492, 18.9553, 3600}, PlaceAtOffset{"Rovaniemi", 66.5039, 25.7294, 7200},
        PlaceAtOffset{"Reykjavik", 64.1466, -21.9426, 0}, PlaceAtOffset{"Helsinki", 60.1699, 24.9384, 7200},
        PlaceAtOffset{"London", 51.5074, -0.1278, 0},
        PlaceAtOffset{"SanFrancisco", 37.78549082, -122.39184303, -28800},
        PlaceAtOffset{"Kathmandu", 27.7172, 85.324, 20700},
        PlaceAtOffset{"Honolulu", 21.3069, -157.8583, -36000},
        PlaceAtOffset{"Singapore", 1.3521, 103.8198, 28800},
        PlaceAtOffset{"Quito", -0.1807, -78.4678, -18000}, PlaceAtOffset{"Apia", -13.8333, -171.75, 46800},
        PlaceAtOffset{"Sydney", -33.8688, 151.2093, 36000},
        PlaceAtOffset{"LordHowe", -31.5556, 159.0779, 37800},
        PlaceAtOffset{"Chatham", -43.95, -176.56, 45900}, PlaceAtOffset{"Ushuaia", -54.8019, -68.303, -10800},
        PlaceAtOffset{"Rothera", -67.5681, -68.1258, -10800}, PlaceAtOffset{"Troll", -72.0114, 2.535, 0},
        PlaceAtOffset{"SouthPole", -90, 0, 43200}),
    [](const auto& instance) { return std::string(instance.param.name); });

}  // namespace
}  // namespace velmora
