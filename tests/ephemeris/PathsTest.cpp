#include <algorithm>
#include <iostream>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include <velmora/ephemeris/PathData.h>

#include "tests/ephemeris/EphemerisTesting.h"

namespace velmora::ephemeris {
namespace {

constexpr Seconds oneDay(86400), year(365.25 * 86400);

Instant inJune2024() { return instantFromUnixSeconds(1718452800); }

/// The series' answer in the frame of the paths.
Vector pointOfSeries(Body body, Instant instant) {
  const Nutation nutated = nutation(instant);
  const Apparent place = *apparent(body, instant);
  return pointAt(place.rightAscension - nutated.longitude * std::cos(nutated.trueObliquity),
                 place.declination, place.distance);
}

TEST(Paths, FollowTheSeriesWithinFiveThousandthsOfASecondOfArc) {
  const Paths paths = *Paths::over(firstInstant(), endInstant() - Seconds(1));
  for (const Body body : bodies) {
    double largest = 0;
    for (const Instant instant : anyInstants(20000, 1)) {
      largest = std::max(largest, separation(paths.vector(body, instant), pointOfSeries(body, instant)));
    }
    std::cout << (body == Body::sun ? "Sun" : "Moon") << ": largest " << largest << "″ of 20000\n";
    EXPECT_LE(largest, 0.005);
  }
}

TEST(Paths, NeverDependOnWhatWasAsked) {
  const Paths decades = *Paths::over(inJune2024() - 20 * year, inJune2024() + 20 * year);
  for (int hour = 0; hour < 400; ++hour) {
    const Instant instant = inJune2024() + hour * Seconds(3600);
    const Paths moment = *Paths::over(instant, instant);
    const Paths days = *Paths::over(instant - oneDay / 3, instant + oneDay / 5);
    for (const Body body : bodies) {
      EXPECT_EQ(moment.vector(body, instant), decades.vector(body, instant));
      EXPECT_EQ(days.vector(body, instant), decades.vector(body, instant));
    }
  }
}

TEST(Paths, JoinWithoutAGap) {
  const Paths paths = *Paths::over(inJune2024(), inJune2024() + 40 * oneDay);
  const Seconds moment(0.001);
  for (const Body body : bodies) {
    const double first = std::ceil(segmentsAt(body, terrestrialSeconds(paths.from())));
    for (double number = first; number < first + 2; ++number) {
      const Instant joint = instantFromUnixSeconds(secondsAtJ2000 - 69.184 + number * segmentSeconds(body));
      ASSERT_LT(joint, paths.to());
      EXPECT_LT(separation(paths.vector(body, joint - moment), paths.vector(body, joint + moment)), 0.01);
    }
  }
}

TEST(Paths, KnowWhichIntervalTheyAreOf) {
  const Paths paths = *Paths::over(inJune2024(), inJune2024() + oneDay);
  EXPECT_EQ(paths.from(), inJune2024());
  EXPECT_EQ(paths.to(), inJune2024() + oneDay);
}

TEST(Paths, AreNoneOutsideTheYearsCovered) {
  const Instant nowhere = instantFromUnixSeconds(std::numeric_limits<double>::quiet_NaN());
  EXPECT_FALSE(Paths::over(firstInstant() - Seconds(1), inJune2024()));
  EXPECT_FALSE(Paths::over(inJune2024(), endInstant() + Seconds(1)));
  EXPECT_FALSE(Paths::over(inJune2024(), inJune2024() - Seconds(1)));
  EXPECT_FALSE(Paths::over(nowhere, inJune2024()));
  EXPECT_FALSE(Paths::over(inJune2024(), nowhere));
  EXPECT_TRUE(Paths::over(firstInstant(), firstInstant()));
  EXPECT_TRUE(Paths::over(endInstant() - Seconds(1), endInstant()));
}

TEST(Paths, CarryTheTimeScalesOfTheirInstants) {
  const Paths paths = *Paths::over(firstInstant(), endInstant() - Seconds(1));
  for (const Instant instant : anyInstants(20000, 2)) {
    const Stretch& stretch = stretchAt(paths.data(), instant);
    EXPECT_NEAR(terrestrialAt(stretch, instant), terrestrialSeconds(instant), 1e-5);
    const double radians = siderealAt(stretch, instant) * 2 * std::numbers::pi;
    const double apart = std::remainder(radians - meanSiderealTime(instant), 2 * std::numbers::pi);
    EXPECT_LT(std::abs(apart) * arcsecondsOfRadian, 0.0001);
  }
}

}  // namespace
}  // namespace velmora::ephemeris
