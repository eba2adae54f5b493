#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include <velmora/ephemeris/Sines.h>

namespace velmora::ephemeris {
namespace {

constexpr double pi = std::numbers::pi;

TEST(Sines, AgreeWithTheMathematicsLibrary) {
  for (double turns = -3; turns <= 3; turns += 0.00097) {
    const auto found = cosineAndSine(turns);
    EXPECT_NEAR(found.re, std::cos(2 * pi * turns), 4e-15) << turns;
    EXPECT_NEAR(found.im, std::sin(2 * pi * turns), 4e-15) << turns;
  }
}

TEST(Sines, OfSinglePrecisionLoseFourBitsByTwoDoublings) {
  constexpr double limit = 32 * 0x1p-24;
  for (float turns = -0.5F; turns <= 0.5F; turns += 0.00097F) {
    const auto found = cosineAndSineOfPart<float>(turns);
    EXPECT_NEAR(found.re, std::cos(2 * pi * static_cast<double>(turns)), limit) << turns;
    EXPECT_NEAR(found.im, std::sin(2 * pi * static_cast<double>(turns)), limit) << turns;
  }
}

TEST(Sines, OfALargeAngleAreThoseOfItsPartOfATurn) {
  EXPECT_EQ(cosineAndSine(1234567.25).im, cosineAndSine(0.25).im);
  EXPECT_EQ(cosineAndSine(-1234567.125).re, cosineAndSine(-0.125).re);
}

TEST(AngleOf, AgreesWithTheMathematicsLibraryAllAround) {
  for (double angle = -3.1415; angle < pi; angle += 0.00093) {
    for (const double length : {1e-3, 1.0, 4e5}) {
      EXPECT_NEAR(angleOf(length * std::sin(angle), length * std::cos(angle)), angle, 1e-15) << angle;
    }
  }
}

TEST(AngleOf, IsExactOnTheAxes) {
  EXPECT_EQ(angleOf(0.0, 1.0), 0);
  EXPECT_EQ(angleOf(0.0, 0.0), 0);
  EXPECT_DOUBLE_EQ(angleOf(1.0, 0.0), pi / 2);
  EXPECT_DOUBLE_EQ(angleOf(-1.0, 0.0), -pi / 2);
  EXPECT_DOUBLE_EQ(angleOf(0.0, -1.0), pi);
  EXPECT_DOUBLE_EQ(angleOf(1.0, 1.0), pi / 4);
  EXPECT_DOUBLE_EQ(angleOf(-1.0, -1.0), -3 * pi / 4);
}

TEST(Sines, HaveTheSameBitsSideBySide) {
  for (double first = -1; first < 1; first += 0.0831) {
    std::array<double, laneCount> numbers;
    for (std::size_t i = 0; i < laneCount; ++i) numbers[i] = first + 0.01 * static_cast<double>(i * i);
    const auto together = cosineAndSine(doublesOf(numbers));
    const auto angles = angleOf(together.im, together.re);
    for (std::size_t i = 0; i < laneCount; ++i) {
      const auto alone = cosineAndSine(numbers[i]);
      EXPECT_EQ(lane(together.re, i), alone.re);
      EXPECT_EQ(lane(together.im, i), alone.im);
      EXPECT_EQ(lane(angles, i), angleOf(alone.im, alone.re));
    }
  }
}

}  // namespace
}  // namespace velmora::ephemeris
