#include <velmora/platform/time/Calendar.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include <tests/support/Instants.h>

namespace velmora {
namespace {

using testing::utc;

Calendar calendarIn(const char* zone) { return Calendar(*TimeZone::named(zone)); }

TEST(Calendar, ReadsDateTimeAndWeekdayInItsZone) {
  const DateComponents read = calendarIn("Asia/Kathmandu").components(utc(2024, 2, 28, 18, 20));
  EXPECT_EQ(read,
            (DateComponents{.year = 2024, .month = 2, .day = 29, .hour = 0, .minute = 5, .weekday = 5}));
}

TEST(Calendar, IsGregorianBeforeTheGregorianReform) {
  EXPECT_EQ(calendarIn("UTC").components(utc(1582, 10, 10)).day, 10);
  EXPECT_EQ(calendarIn("UTC").components(instantFromUnixSeconds(-0.25)),
            (DateComponents{
                .year = 1969, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59, .weekday = 4}));
}

TEST(Calendar, AnInstantJustBeforeMidnightBelongsToTheDayThatEnds) {
  for (const double seconds : {-1e-3, -1e-12, -1e-310}) {
    EXPECT_EQ(
        calendarIn("UTC").components(instantFromUnixSeconds(seconds)),
        (DateComponents{
            .year = 1969, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59, .weekday = 4}))
        << seconds;
  }
}

TEST(Calendar, ComponentsOutOfTheirRangeCarryOver) {
  EXPECT_EQ(utc(2024, 3, 0), utc(2024, 2, 29));
  EXPECT_EQ(utc(2024, 1, 32), utc(2024, 2, 1));
  EXPECT_EQ(utc(2024, 13, 1), utc(2025, 1, 1));
  EXPECT_EQ(utc(2024, 0, 1), utc(2023, 12, 1));
  EXPECT_EQ(utc(2024, 12, 31, 24), utc(2025, 1, 1));
}

TEST(Calendar, ASkippedTimeIsReadWithTheOffsetBeforeTheChange) {
  const Instant read =
      calendarIn("Europe/Helsinki").date({.year = 2024, .month = 3, .day = 31, .hour = 3, .minute = 30});
  EXPECT_EQ(read, utc(2024, 3, 31, 1, 30));
}

TEST(Calendar, ARepeatedTimeIsTheFirst) {
  const Instant read =
      calendarIn("Europe/Helsinki").date({.year = 2024, .month = 10, .day = 27, .hour = 3, .minute = 30});
  EXPECT_EQ(read, utc(2024, 10, 27, 0, 30));
}

TEST(Calendar, ADayWithoutMidnightStartsAtTheFirstTimeThatExists) {
  const Calendar cairo = calendarIn("Africa/Cairo");
  const Instant start = cairo.startOfDay(utc(2024, 4, 26, 12));
  EXPECT_EQ(start, utc(2024, 4, 25, 22));
  EXPECT_EQ(cairo.components(start).hour, 1);
}

TEST(Calendar, StartOfDayIsTheFirstMidnight) {
  EXPECT_EQ(calendarIn("America/Los_Angeles").startOfDay(utc(2024, 6, 21, 6)), utc(2024, 6, 20, 7));
  EXPECT_EQ(calendarIn("America/Havana").startOfDay(utc(2024, 11, 3, 12)), utc(2024, 11, 3, 4));
}

TEST(Calendar, SettingATimeTakesTheFirstInstantThatExists) {
  const Calendar helsinki = calendarIn("Europe/Helsinki");
  EXPECT_EQ(helsinki.dateBySettingTime(3, 30, 0, utc(2024, 3, 31)), utc(2024, 3, 31, 1));
  EXPECT_EQ(helsinki.dateBySettingTime(3, 30, 0, utc(2024, 3, 31), TimeMatching::strict), std::nullopt);
  EXPECT_EQ(helsinki.dateBySettingTime(9, 0, 0, utc(2024, 3, 31), TimeMatching::strict), utc(2024, 3, 31, 6));
  EXPECT_EQ(helsinki.dateBySettingTime(3, 30, 0, utc(2024, 10, 27)), utc(2024, 10, 27, 0, 30));
}

TEST(Calendar, SettingATimeOutsideTheDayIsNone) {
  const Calendar utcCalendar = calendarIn("UTC");
  for (const auto& [hour, minute, second] : {std::array{24, 0, 0}, {-1, 0, 0}, {0, 60, 0}, {0, 0, -1}}) {
    EXPECT_EQ(utcCalendar.dateBySettingTime(hour, minute, second, utc(2024, 1, 1)), std::nullopt);
  }
}

TEST(Calendar, AddingDaysKeepsTheTimeOnTheClock) {
  const Calendar helsinki = calendarIn("Europe/Helsinki");
  EXPECT_EQ(helsinki.dateByAddingDays(1, utc(2024, 3, 30, 10)), utc(2024, 3, 31, 9));
  EXPECT_EQ(helsinki.dateByAddingDays(-1, utc(2024, 3, 31, 9)), utc(2024, 3, 30, 10));
}

TEST(Calendar, AddingMonthsEndsOnTheLastDayOfAShorterMonth) {
  const Calendar calendar = calendarIn("UTC");
  EXPECT_EQ(calendar.dateByAddingMonths(1, utc(2024, 1, 31, 5)), utc(2024, 2, 29, 5));
  EXPECT_EQ(calendar.dateByAddingMonths(-2, utc(2024, 1, 31)), utc(2023, 11, 30));
  EXPECT_EQ(calendar.dateByAddingMonths(12, utc(2024, 2, 29)), utc(2025, 2, 28));
}

TEST(Calendar, AddingNothingStaysInTheSecondOfTwoHours) {
  const Calendar helsinki = calendarIn("Europe/Helsinki");
  const Instant second = utc(2024, 10, 27, 1, 30);  // 03:30 for the second time
  ASSERT_EQ(helsinki.components(second).hour, 3);
  EXPECT_EQ(helsinki.dateByAddingDays(0, second), second);
  EXPECT_EQ(helsinki.dateByAddingMonths(0, second), second);
}

TEST(Calendar, PacificApiaSkippedADay) {
  const Calendar apia = calendarIn("Pacific/Apia");
  const Instant before = apia.date({.year = 2011, .month = 12, .day = 29, .hour = 12});
  EXPECT_EQ(apia.components(before + std::chrono::hours(24)).day, 31);
  EXPECT_FALSE(apia.isSameDay(before, before + std::chrono::hours(24)));
}

TEST(Calendar, LordHoweHalfHourShift) {
  const Calendar lordHowe = calendarIn("Australia/Lord_Howe");
  EXPECT_EQ(lordHowe.startOfDay(utc(2024, 4, 7, 2)), utc(2024, 4, 6, 13));
  EXPECT_EQ(lordHowe.startOfDay(utc(2024, 4, 8, 2)), utc(2024, 4, 7, 13, 30));
}

TEST(Calendar, SameDayIsDecidedInTheZone) {
  EXPECT_TRUE(calendarIn("America/Los_Angeles").isSameDay(utc(2024, 1, 1, 8), utc(2024, 1, 2, 7)));
  EXPECT_FALSE(calendarIn("UTC").isSameDay(utc(2024, 1, 1, 8), utc(2024, 1, 2, 7)));
}

TEST(Calendar, NumbersBeyondEveryCalendarStayWithoutHarm) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double seconds : {infinity, -infinity, std::nan(""), 1e300, -1e300}) {
    const DateComponents read = calendarIn("Europe/Helsinki").components(instantFromUnixSeconds(seconds));
    EXPECT_GE(read.month, 1);
    EXPECT_LE(read.month, 12);
  }
  const std::int64_t most = std::numeric_limits<std::int64_t>::max(),
                     least = std::numeric_limits<std::int64_t>::min();
  for (const std::int64_t extreme : {most, least}) {
    const Instant made = calendarIn("UTC").date({extreme, extreme, extreme, extreme, extreme, extreme});
    EXPECT_TRUE(std::isfinite(unixSeconds(made)));
    EXPECT_TRUE(std::isfinite(unixSeconds(calendarIn("UTC").dateByAddingDays(extreme, utc(2024, 1, 1)))));
    EXPECT_TRUE(std::isfinite(unixSeconds(calendarIn("UTC").dateByAddingMonths(extreme, utc(2024, 1, 1)))));
  }
}

TEST(Calendar, EveryDayFrom2000To2040GoesThereAndBack) {
  for (const char* zone :
       {"UTC", "Pacific/Apia", "Australia/Lord_Howe", "Africa/Cairo", "America/St_Johns"}) {
    const Calendar calendar = calendarIn(zone);
    const Instant end = calendar.date({.year = 2041});
    for (Instant day = calendar.date({.year = 2000}); day < end; day = calendar.dateByAddingDays(1, day)) {
      const DateComponents read = calendar.components(day);
      const Instant again = calendar.date({.year = read.year, .month = read.month, .day = read.day});
      EXPECT_TRUE(calendar.isSameDay(again, day)) << zone << ' ' << unixSeconds(day);
      EXPECT_EQ(calendar.startOfDay(day), calendar.startOfDay(again)) << zone << ' ' << unixSeconds(day);
    }
  }
}

}  // namespace
}  // namespace velmora
