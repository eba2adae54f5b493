#include <velmora/almanac/MoonAxis.h>

#include <gtest/gtest.h>

#include <cmath>

#include <velmora/almanac/Phases.h>
#include <velmora/almanac/Positions.h>

namespace velmora::almanac {
namespace {

using std::chrono::year;

/// Of an angle, to −180..180.
double fromZero(double degrees) { return std::remainder(degrees, 360); }

// Meeus, "Astronomical Algorithms", example 53.a: the position angle of the axis at 1992 April 12, 0h TD is
// 15.08°. At the pole the zenith is the north of the sky.
TEST(MoonAxis, IsThatOfThePrintedExample) {
  const Instant at = std::chrono::sys_days(year(1992) / 4 / 12) - Seconds(59);
  EXPECT_NEAR(moonAxisTilt({90, 0, 0}, at).value(), 15.08, 0.05);
}

// At a quarter the light comes at a right angle to the axis but for the Sun's latitude on the Moon, 1.6° at
// most.
TEST(MoonAxis, LiesAlongTheShadowAtTheQuarters) {
  int compared = 0;
  double farthest = 0;
  for (const auto& phase :
       phases(std::chrono::sys_days(year(2000) / 1 / 1), std::chrono::sys_days(year(2040) / 1 / 1))) {
    if (phase.phase != PrincipalPhase::firstQuarter && phase.phase != PrincipalPhase::lastQuarter) continue;
    const double side = phase.phase == PrincipalPhase::firstQuarter ? -90 : 90;
    for (const Place& place : {Place{60.17, 24.94, 0}, Place{-33.87, 151.21, 0}, Place{-0.18, -78.47, 0}}) {
      const double lit = illumination(place, phase.at).value().tilt;
      farthest = std::max(farthest, std::abs(fromZero(lit - moonAxisTilt(place, phase.at).value() - side)));
      ++compared;
    }
  }
  EXPECT_GT(compared, 2900);
  EXPECT_LT(farthest, 2.0);
  EXPECT_GT(farthest, 1.0);
}

TEST(MoonAxis, IsUnknownWhereTheMoonIs) {
  EXPECT_EQ(moonAxisTilt({91, 0, 0}, Instant()), std::nullopt);
  EXPECT_EQ(moonAxisTilt({60, 25, 0}, instantFromUnixSeconds(1e11)), std::nullopt);
}

}  // namespace
}  // namespace velmora::almanac
