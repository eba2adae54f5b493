#include <chrono>
#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "tests/ephemeris/EphemerisTesting.h"

namespace velmora::ephemeris {
namespace {

using namespace std::chrono;

constexpr double hourAngle = std::numbers::pi / 12;
constexpr double secondAngle = hourAngle / 3600;

TEST(MeanSiderealTime, IsThatOfTheExamplesOfMeeus) {
  // Astronomical Algorithms, examples 12.a and 12.b, in UT1. The book's formula is that of 1982, which is
  // 0.0023 seconds behind.
  const auto at = [](Instant rotation) {
    return meanSiderealTime(rotation - Seconds(universalMinusCoordinated(rotation)));
  };
  const Instant midnight = sys_days(1987y / April / 10);
  EXPECT_NEAR(at(midnight) / secondAngle, 13 * 3600 + 10 * 60 + 46.3668, 0.005);
  EXPECT_NEAR(at(midnight + 19h + 21min) / secondAngle, 8 * 3600 + 34 * 60 + 57.0896, 0.005);
}

TEST(MeanSiderealTime, GainsThreeMinutesAndFiftySixSecondsADay) {
  for (const Instant instant : anyInstants(2000, 9)) {
    if (!covers(instant + days(1))) continue;
    const double gained =
        std::remainder(meanSiderealTime(instant + days(1)) - meanSiderealTime(instant), 24 * hourAngle);
    EXPECT_NEAR(gained / secondAngle, 236.555, 1.01)
        << unixSeconds(instant);  // a leap second may lie between
  }
}

TEST(MeanSiderealTime, LiesWithinATurn) {
  for (const Instant instant : anyInstants(20000, 10)) {
    EXPECT_TRUE(0 <= meanSiderealTime(instant) && meanSiderealTime(instant) < 24 * hourAngle);
  }
}

TEST(Nutation, IsThatOfTheExampleOfMeeus) {
  // Astronomical Algorithms, example 22.a: 1987 April 10, 0h of Terrestrial Time, by the theory of 1980.
  const Instant instant = instantFromUnixSeconds(unixSeconds(sys_days(1987y / April / 10)) - 55.184);
  const Nutation found = nutation(instant);
  EXPECT_NEAR(found.longitude * arcsecondsOfRadian, -3.788, 0.05);
  EXPECT_NEAR(found.obliquity * arcsecondsOfRadian, 9.443, 0.03);
  EXPECT_NEAR(found.trueObliquity * arcsecondsOfRadian, 23 * 3600 + 26 * 60 + 36.850, 0.08);
}

TEST(Nutation, TiltsTheEclipticTwentyThreeDegrees) {
  for (const Instant instant : anyInstants(2000, 11)) {
    const Nutation found = nutation(instant);
    EXPECT_LT(std::abs(found.longitude) * arcsecondsOfRadian, 20);
    EXPECT_LT(std::abs(found.obliquity) * arcsecondsOfRadian, 11);
    EXPECT_NEAR(found.trueObliquity * arcsecondsOfRadian, 84381.4, 60);
  }
}

}  // namespace
}  // namespace velmora::ephemeris
