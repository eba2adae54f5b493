#include <velmora/almanac/Refraction.h>

#include <cmath>

#include <gtest/gtest.h>

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Positions.h>

namespace velmora::almanac {
namespace {

constexpr double minute = 1.0 / 60;

/// Bennett's formula, of the apparent altitude: Meeus, "Astronomical Algorithms", 16.3.
double byBennett(double apparent) { return 1 / std::tan((apparent + 7.31 / (apparent + 4.4)) * degree) / 60; }

TEST(Refraction, AgreesWithBennettsFormula) {
  for (double apparent = 0; apparent <= 90; apparent += 0.1) {
    EXPECT_NEAR(refraction(trueAltitude(apparent)), byBennett(apparent), 0.1 * minute) << apparent;
  }
}

TEST(Refraction, OfMeeusExample) {  // 16.a: the Sun's lower limb at an apparent half degree
  EXPECT_NEAR(refraction(0.5 - 28.75 * minute), 28.75 * minute, 0.2 * minute);
}

TEST(Refraction, EndsInTheZenithAndBelowTheHorizon) {
  EXPECT_EQ(refraction(90), 0);
  EXPECT_EQ(refraction(-1), 0);
  EXPECT_EQ(refraction(-50), 0);
  EXPECT_GT(refraction(-0.999), 38 * minute);
}

TEST(Refraction, GrowsTowardsTheHorizonAndKeepsTheOrderOfAltitudes) {
  for (double altitude = -0.99; altitude < 89.9; altitude += 0.01) {
    EXPECT_LE(refraction(altitude + 0.01), refraction(altitude)) << altitude;
    EXPECT_GT(apparentAltitude(altitude + 0.01), apparentAltitude(altitude)) << altitude;
  }
}

TEST(Refraction, IsTakenAwayAgain) {
  for (double altitude = -0.35; altitude <= 90; altitude += 0.35) {
    EXPECT_NEAR(apparentAltitude(trueAltitude(altitude)), altitude, 1e-12);
  }
  EXPECT_EQ(trueAltitude(-1), -1);
  EXPECT_EQ(trueAltitude(-18), -18);
}

TEST(Refraction, JumpsAtOneDegreeBelowTheHorizon) {
  EXPECT_NEAR(trueAltitude(-0.99), -1, 1e-12);
  EXPECT_NEAR(trueAltitude(-0.36), -1, 1e-12);
  EXPECT_GT(trueAltitude(-0.35), -0.999);
}

}  // namespace
}  // namespace velmora::almanac
