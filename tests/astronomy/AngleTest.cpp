#include <velmora/astronomy/Angle.h>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include <velmora/astronomy/FourNumbers.h>

namespace velmora {
namespace {

void expectAngle(const Angle<double>& angle, double radians, double tolerance) {
  EXPECT_NEAR(cos(angle), std::cos(radians), tolerance) << radians;
  EXPECT_NEAR(sin(angle), std::sin(radians), tolerance) << radians;
}

TEST(Angle, SumsAndDifferencesAreThoseOfTheRadians) {
  for (double a = -7; a < 7; a += 0.37) {
    for (double b = -7; b < 7; b += 0.41) {
      expectAngle(angleOfRadians(a) + angleOfRadians(b), a + b, 1e-15);
      expectAngle(angleOfRadians(a) - angleOfRadians(b), a - b, 1e-15);
    }
  }
}

TEST(Angle, OfAPerturbationByTaylorsSeriesIsRightToTheLastDigit) {
  for (double radians = -0.17; radians <= 0.17; radians += 0.00013) {
    expectAngle(smallAngle(radians), radians, 2e-16);
  }
  EXPECT_EQ(sin(smallAngle(0.0)), 0);
  EXPECT_EQ(cos(smallAngle(0.0)), 1);
}

TEST(Angle, WithinATurnByDoublingsIsRightToFourteenDigits) {
  constexpr int steps = 10000;
  for (int i = 0; i <= steps; ++i) {
    const double radians = 6.283185307179586 * i / steps;
    expectAngle(angleWithinTurn(radians), radians, 1e-14);
  }
}

FourNumbers hours(const std::vector<double>& numbers) {
  FourNumbers all;
  for (std::size_t i = 0; i < FourNumbers::count; ++i) all.set(i, numbers[i]);
  return all;
}

TEST(FourNumbers, AreReckonedEachAsADoubleByItself) {
  const FourNumbers a = hours({0.1, -2, 3e8, 1.5}), b = hours({0.3, 7, 1.0 / 3, 1.5});
  const FourNumbers sum = a + b, difference = a - b, product = a * b, quotient = a / b, root = sqrt(b);
  const FourNumbers less = selectLess(a, b, 1, b), doubled = 2 * a;
  for (std::size_t i = 0; i < FourNumbers::count; ++i) {
    EXPECT_EQ(sum[i], a[i] + b[i]);
    EXPECT_EQ(difference[i], a[i] - b[i]);
    EXPECT_EQ(product[i], a[i] * b[i]);
    EXPECT_EQ(quotient[i], a[i] / b[i]);
    EXPECT_EQ(root[i], std::sqrt(b[i]));
    EXPECT_EQ(less[i], selectLess(a[i], b[i], 1, b[i]));
    EXPECT_EQ(doubled[i], 2 * a[i]);
  }
}

TEST(FourNumbers, FollowOneAnother) {
  const FourNumbers evening = FourNumbers::from(21.5);
  for (std::size_t i = 0; i < FourNumbers::count; ++i) EXPECT_EQ(evening[i], 21.5 + static_cast<double>(i));
}

}  // namespace
}  // namespace velmora
