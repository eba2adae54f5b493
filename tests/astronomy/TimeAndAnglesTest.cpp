#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <ostream>

#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

constexpr auto farthest64 = std::numeric_limits<std::int64_t>::max();

TEST(ModifiedJulianDate, OfKnownDates) {
  EXPECT_EQ(Calc::_mjd(17, 11, 1858, 0), 0.0);
  EXPECT_EQ(Calc::_mjd(1, 1, 2000, 12), 51544.5);
  EXPECT_EQ(Calc::_mjd(29, 2, 2024, 0), 60369.0);
  EXPECT_EQ(Calc::_mjd(31, 12, 2040, 18), 66519.75);
  EXPECT_EQ(Calc::_mjd(1, 1, 1900, 6), 15020.25);
}

TEST(ModifiedJulianDate, SwitchesFromTheMultiplyingBranchAfter4October1582) {
  EXPECT_EQ(Calc::_mjd(15, 10, 1582, 0), -100840.0);
  EXPECT_EQ(Calc::_mjd(5, 10, 1582, 0), -100850.0);
  EXPECT_EQ(Calc::_mjd(4, 10, 1582, 0), -105561.0);
}

TEST(ModifiedJulianDate, GrowsByOneADayOverTheYearsOfTheTables) {
  Instant day = utc(2000, 1, 1);
  const Calendar calendar(TimeZone::fixed(0));
  for (double expected = 51544; day < utc(2041, 1, 1); ++expected, day += Seconds(86400)) {
    const DateComponents c = calendar.components(day);
    ASSERT_EQ(Calc::_mjd(c.day, c.month, c.year, 0), expected) << c.year << "-" << c.month << "-" << c.day;
  }
}

TEST(ModifiedJulianDate, AcceptsAnyIntegers) {
  EXPECT_TRUE(std::isfinite(Calc::_mjd(-farthest64 - 1, -farthest64 - 1, -farthest64 - 1, -farthest64 - 1)));
  EXPECT_TRUE(std::isfinite(Calc::_mjd(farthest64, farthest64, farthest64, farthest64)));
  EXPECT_EQ(Calc::_mjd(1, 1, 2000, 36), 51545.5);
}

TEST(TimeOfDayOfAModifiedJulianDate, IsAClockText) {
  const ScopedTimeFormat format(clock24);
  EXPECT_EQ(Calc::_caldat(51544.5), "12:00");
  EXPECT_EQ(Calc::_caldat(60369.0), "00:00");
  EXPECT_EQ(Calc::_caldat(60369.96875), "23:15");
  EXPECT_EQ(Calc::_caldat(-0.25), "18:00");
  const ScopedTimeFormat twelve(clock12);
  EXPECT_EQ(Calc::_caldat(60369.96875), "11:15 PM");
}

TEST(SiderealTime, AddsTheLongitudeAfterTheReduction) {
  EXPECT_NEAR(Calc::_lmst(51544.5, 0), 280.46061837 / 15, 1e-12);
  EXPECT_NEAR(Calc::_lmst(51544.5, 180), 280.46061837 / 15 + 12, 1e-12);
  EXPECT_NEAR(Calc::_lmst(51545.5, -180), 281.44626573629 / 15 - 12, 1e-9);
  EXPECT_LT(Calc::_lmst(51544.5 - 0.7, -180), 0);
  EXPECT_GT(Calc::_lmst(51544.5, 180), 24);
}

TEST(SiderealTime, OfMeeusExample12a) {  // 1987 April 10, 0h: 13h 10m 46.3668s
  EXPECT_NEAR(Calc::_lmst(Calc::_mjd(10, 4, 1987, 0), 0), 13 + 10.0 / 60 + 46.3668 / 3600, 1e-8);
}

TEST(Fraction, IsCountedFromTheWholeNumberBelow) {
  EXPECT_EQ(Calc::_frac(2.75), 0.75);
  EXPECT_EQ(Calc::_frac(-2.75), 0.25);
  EXPECT_EQ(Calc::_frac(-3.0), 0.0);
  EXPECT_EQ(Calc::_frac(-1e-17), 1.0);
}

TEST(IntegerPart, IsCutTowardZero) {
  EXPECT_EQ(Calc::_iPart(2.9), 2);
  EXPECT_EQ(Calc::_iPart(-2.9), -2);
  EXPECT_EQ(Calc::_iPart(0.0), 0);
  EXPECT_EQ(Calc::_iPart(1e300), farthest64);
  EXPECT_EQ(Calc::_iPart(-infinity), -farthest64 - 1);
  EXPECT_EQ(Calc::_iPart(nan), 0);
}

TEST(AngleInDegrees, IsReducedToOneTurn) {
  EXPECT_NEAR(Calc::_range(-30), 330, 1e-12);
  EXPECT_EQ(Calc::_range(720), 0);
  EXPECT_EQ(Calc::_range(359.5), 359.5);
  EXPECT_NEAR(Calc::_range(-725.25), 354.75, 1e-9);
  EXPECT_EQ(Calc::_range(-1e-17), 360.0);
  EXPECT_EQ(Calc::_range(1e300), 0);
  EXPECT_TRUE(std::isnan(Calc::_range(infinity)));
  for (double degrees = -2000; degrees < 2000; degrees += 0.37) {
    ASSERT_GE(Calc::_range(degrees), 0) << degrees;
    ASSERT_LT(Calc::_range(degrees), 360) << degrees;
  }
}

TEST(Rounding, IsToDecimalsWithHalvesAwayFromZero) {
  EXPECT_EQ(Calc::_round(2.125, 2), 2.13);
  EXPECT_EQ(Calc::_round(-2.125, 2), -2.13);
  EXPECT_EQ(Calc::_round(2.5, 0), 3);
  EXPECT_EQ(Calc::_round(1250, -2), 1300);
  EXPECT_EQ(Calc::_round(1.004, 2), 1.0);
}

struct ClockCase {
  double hours;
  const char* text24;
  const char* text12;
};

void PrintTo(const ClockCase& clock, std::ostream* out) { *out << clock.hours; }

class ClockTextOfHours : public ::testing::TestWithParam<ClockCase> {};

TEST_P(ClockTextOfHours, FollowsTheTimeFormatOfTheSettings) {
  const auto& [hours, text24, text12] = GetParam();
  {
    const ScopedTimeFormat format(clock24);
    EXPECT_EQ(Calc::_hrsmin(hours), text24);
  }
  for (const std::int64_t other : {std::int64_t{0}, std::int64_t{2}, std::int64_t{-1}}) {
    const ScopedTimeFormat format(other);
    EXPECT_EQ(Calc::_hrsmin(hours), text12);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Hours, ClockTextOfHours,
    ::testing::Values(ClockCase{0.0, "00:00", "00:00 AM"}, ClockCase{0.0083, "00:00", "00:00 AM"},
                      ClockCase{0.00834, "00:01", "00:01 AM"}, ClockCase{7.0 + 5.0 / 60, "07:05", "07:05 AM"},
                      ClockCase{11.9999, "12:00", "12:00 PM"}, ClockCase{12.5, "12:30", "12:30 PM"},
                      ClockCase{13.0, "13:00", "01:00 PM"}, ClockCase{13.999, "14:00", "02:00 PM"},
                      ClockCase{23.75, "23:45", "11:45 PM"}, ClockCase{23.9999, "24:00", "12:00 PM"},
                      ClockCase{24.61, "24:37", "12:37 PM"}, ClockCase{-0.5, "-1:30", "-1:30 AM"},
                      ClockCase{nan, "00:00", "00:00 AM"}));

TEST(ClockText, OfAnyNumberIsDefined) {
  const ScopedTimeFormat format(clock24);
  EXPECT_EQ(Calc::_hrsmin(1e300), "2147483647:00");
  EXPECT_EQ(Calc::_hrsmin(-1e300), "-2147483648:00");
  EXPECT_EQ(Calc::_hrsmin(infinity), "2147483647:00");
}

TEST(DayCountForMonth, IsThatOfACommonYear) {
  constexpr std::array expected = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  for (std::size_t month = 1; month <= expected.size(); ++month) {
    EXPECT_EQ(Calc::GetDayCountForMonth(static_cast<std::int64_t>(month)), expected[month - 1]) << month;
  }
  for (const std::int64_t outside : {std::int64_t{0}, std::int64_t{13}, std::int64_t{-1}, farthest64}) {
    EXPECT_EQ(Calc::GetDayCountForMonth(outside), 0) << outside;
  }
}

TEST(AngleInRadians, IsReducedToOneTurn) {
  EXPECT_NEAR(Calc::FNRange(-1), 2 * pi - 1, 1e-14);
  EXPECT_NEAR(Calc::FNRange(7), 7 - 2 * pi, 1e-14);
  EXPECT_NEAR(Calc::FNRange(1000), 1000 - 159 * 2 * pi, 1e-12);
  EXPECT_EQ(Calc::FNRange(0), 0);
  EXPECT_EQ(Calc::FNRange(-1e-17), 2 * pi);
}

TEST(AngleInRadians, OfOneNegativeTurnToTwoStaysAndBelowMovesAwayFromZero) {
  EXPECT_EQ(Calc::FNRange(-2 * pi), -2 * pi);
  EXPECT_NEAR(Calc::FNRange(-7), -7, 1e-13);
  EXPECT_NEAR(Calc::FNRange(-12.5), -12.5, 1e-13);
  EXPECT_NEAR(Calc::FNRange(-4 * pi), -6 * pi, 1e-12);
  EXPECT_NEAR(Calc::FNRange(-13), -13 - 2 * pi, 1e-12);
}

TEST(AngleInRadians, CountsItsTurnsIn32Bits) {
  const double mostTurns = 4294967295.0;
  EXPECT_NEAR(Calc::FNRange((mostTurns + 0.5) * 2 * pi), pi, 1e-5);
  EXPECT_NEAR(Calc::FNRange((mostTurns + 2.5) * 2 * pi), 5 * pi, 1e-5);
  EXPECT_EQ(Calc::FNRange(infinity), infinity);
  EXPECT_TRUE(std::isnan(Calc::FNRange(nan)));
}

TEST(FourQuadrantArctangent, LiesInZeroToTwoPi) {
  EXPECT_NEAR(Calc::FNatn2(1, 1), pi / 4, 1e-15);
  EXPECT_NEAR(Calc::FNatn2(1, -1), 3 * pi / 4, 1e-15);
  EXPECT_NEAR(Calc::FNatn2(-1, -1), 5 * pi / 4, 1e-15);
  EXPECT_NEAR(Calc::FNatn2(-1, 1), 7 * pi / 4, 1e-15);
  EXPECT_EQ(Calc::FNatn2(-1e-20, 1), 6.283185307179586);
}

TEST(FourQuadrantArctangent, OfZeroAbscissaKeepsTheSign) {
  EXPECT_EQ(Calc::FNatn2(2, 0), std::atan(infinity));
  EXPECT_EQ(Calc::FNatn2(-2, 0), -std::atan(infinity));
  EXPECT_TRUE(std::isnan(Calc::FNatn2(0, 0)));
}

TEST(Arcsine, IsNaNOutsideItsRange) {
  EXPECT_NEAR(Calc::FNasin(0.5), pi / 6, 1e-15);
  EXPECT_NEAR(Calc::FNasin(-0.5), -pi / 6, 1e-15);
  EXPECT_EQ(Calc::FNasin(1), std::atan(infinity));
  EXPECT_EQ(Calc::FNasin(-1), -std::atan(infinity));
  EXPECT_TRUE(std::isnan(Calc::FNasin(1.0000001)));
  EXPECT_TRUE(std::isnan(Calc::FNasin(-infinity)));
}

}  // namespace
}  // namespace velmora
