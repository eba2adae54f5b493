#include <chrono>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::ephemeris {
namespace {

using namespace std::chrono;

constexpr Instant at(year_month_day day, Seconds time = Seconds(0)) { return Instant(sys_days(day)) + time; }

TEST(TimeScales, TerrestrialTimeIsAheadByTheLeapSecondsInForce) {
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(1972y / January / 1)), 42.184);
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(1972y / June / 30, 86399.9s)), 42.184);
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(1972y / July / 1)), 43.184);
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(1999y / December / 31)), 64.184);
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(2016y / December / 31, 86399.9s)), 68.184);
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(2017y / January / 1)), 69.184);
}

TEST(TimeScales, NoLeapSecondIsForeseen) {
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(2100y / December / 31)), 69.184);
}

TEST(TimeScales, BeforeLeapSecondsTheEarthKeepsTheTime) {
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(1900y / January / 1)), -2.72);
  EXPECT_DOUBLE_EQ(terrestrialMinusUniversal(at(1950y / January / 1)), 29.15);
  EXPECT_NEAR(terrestrialMinusUniversal(at(1950y / July / 2, 12h)), 29.36, 1e-9);
  EXPECT_EQ(universalMinusCoordinated(at(1971y / December / 31, 86399s)), 0);
}

TEST(TimeScales, TheTableJoinsAtomicTimeWithinATwentiethOfASecond) {
  const Instant before = at(1971y / December / 31, 86399s);
  EXPECT_NEAR(terrestrialMinusUniversal(before), 42.184, 0.05);
  EXPECT_NEAR(universalMinusCoordinated(at(1972y / January / 1)), -0.046, 1e-9);
}

TEST(TimeScales, TheEarthIsNeverASecondFromUtc) {
  double largest = 0;
  for (Instant day = at(1972y / January / 1); day < at(2030y / January / 1); day += days(1)) {
    largest = std::max(largest, std::abs(universalMinusCoordinated(day)));
  }
  EXPECT_LT(largest, 0.9);
  EXPECT_GT(largest, 0.7);
}

TEST(TimeScales, ALeapSecondDoesNotJoltTheEarth) {
  const Instant leap = at(2017y / January / 1);
  EXPECT_NEAR(universalMinusCoordinated(leap) - universalMinusCoordinated(leap - 1s), 1, 1e-6);
  EXPECT_NEAR(universalMinusCoordinated(leap), 0.59, 0.01);
}

TEST(TimeScales, TheEarthIsTakenToKeepUtcFromTheTablesEndOn) {
  EXPECT_EQ(universalMinusCoordinated(at(2026y / January / 1)), 0);
  EXPECT_EQ(universalMinusCoordinated(at(2100y / January / 1)), 0);
}

TEST(TimeScales, AnswerForWhatIsNoInstantToo) {
  for (const double number :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity()}) {
    EXPECT_TRUE(std::isfinite(terrestrialMinusUniversal(instantFromUnixSeconds(number))));
    EXPECT_EQ(universalMinusCoordinated(instantFromUnixSeconds(number)), 0);
  }
}

}  // namespace
}  // namespace velmora::ephemeris
