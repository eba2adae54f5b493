#include <velmora/foundation/DateHelper.h>

#include <gtest/gtest.h>

#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

/// The texts are those of a process in the United States' English whose default zone is Los Angeles, unless
/// a test says otherwise.
class DateHelperTest : public ::testing::Test {
 protected:
  static Instant local(std::int64_t year, std::int64_t month, std::int64_t day, std::int64_t hour = 0,
                       std::int64_t minute = 0, std::int64_t second = 0) {
    return Calendar().date(
        {.year = year, .month = month, .day = day, .hour = hour, .minute = minute, .second = second});
  }

 private:
  ScopedDefaultTimeZone _zone{"America/Los_Angeles"};
  ScopedLocale _locale{std::string("en_US")};
};

constexpr std::optional<Instant> noDate;

TEST_F(DateHelperTest, DatesAreValidFrom2000To2040InTheDefaultZone) {
  EXPECT_FALSE(DateHelper::IsDateValid(local(1999, 12, 31, 23, 59, 59)));
  EXPECT_TRUE(DateHelper::IsDateValid(local(2000, 1, 1)));
  EXPECT_TRUE(DateHelper::IsDateValid(local(2040, 12, 31, 23, 59, 59)));
  EXPECT_FALSE(DateHelper::IsDateValid(local(2041, 1, 1)));
  const Instant newYearInUtc = Calendar(TimeZone::fixed(0)).date({.year = 2000});
  EXPECT_FALSE(DateHelper::IsDateValid(newYearInUtc));  // still 1999 in Los Angeles
  EXPECT_FALSE(DateHelper::IsDateValid(noDate));
}

TEST_F(DateHelperTest, DatesAreEqualByDayAndMonthWhateverTheYear) {
  EXPECT_TRUE(DateHelper::AreEqual(local(2020, 3, 5), local(2020, 3, 5, 23, 59)));
  EXPECT_TRUE(DateHelper::AreEqual(local(2020, 3, 5), local(2021, 3, 5)));
  EXPECT_FALSE(DateHelper::AreEqual(local(2020, 3, 5), local(2020, 3, 6)));
  EXPECT_FALSE(DateHelper::AreEqual(local(2020, 3, 5), local(2020, 4, 5)));
}

TEST_F(DateHelperTest, NoDateEqualsNothing) {
  EXPECT_FALSE(DateHelper::AreEqual(noDate, local(2020, 3, 5)));
  EXPECT_FALSE(DateHelper::AreEqual(local(2020, 3, 5), noDate));
  EXPECT_FALSE(DateHelper::AreEqual(noDate, noDate));
}

TEST_F(DateHelperTest, SecondsAreCountedFromTheMidnightOfTheDatesOwnDay) {
  const Instant evening = local(2024, 6, 20, 21, 30);
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(evening, 0), local(2024, 6, 20));
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(evening, 3661), local(2024, 6, 20, 1, 1, 1));
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(evening, -1), local(2024, 6, 19, 23, 59, 59));
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(noDate, 0), noDate);
}

TEST_F(DateHelperTest, SecondsAreElapsedOnesOnADayOfAClockChange) {
  const Instant springNoon = local(2024, 3, 10, 12);
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(springNoon, 0), local(2024, 3, 10));
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(springNoon, 4 * 3600), local(2024, 3, 10, 5));
  const Instant autumnNoon = local(2024, 11, 3, 12);
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(autumnNoon, 0), local(2024, 11, 3));
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(autumnNoon, 4 * 3600), local(2024, 11, 3, 3));
}

TEST_F(DateHelperTest, CairosDayWithoutMidnightStartsAtOne) {
  const ScopedDefaultTimeZone cairo("Africa/Cairo");
  EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(local(2024, 4, 26, 12), 0), local(2024, 4, 26, 1));
}

TEST_F(DateHelperTest, DaysKeepTheTimeOnTheClock) {
  EXPECT_EQ(DateHelper::AdjustDaysToDate(local(2024, 3, 9, 12), 1), local(2024, 3, 10, 12));
  EXPECT_EQ(*DateHelper::AdjustDaysToDate(local(2024, 3, 9, 12), 1) - local(2024, 3, 9, 12),
            std::chrono::hours(23));
  EXPECT_EQ(DateHelper::AdjustDaysToDate(local(2024, 3, 1, 8), -1), local(2024, 2, 29, 8));
  EXPECT_EQ(DateHelper::AdjustDaysToDate(local(2024, 12, 31, 8), 1), local(2025, 1, 1, 8));
  EXPECT_EQ(DateHelper::AdjustDaysToDate(noDate, 1), noDate);
}

TEST_F(DateHelperTest, MovedByNoDaysADateIsItself) {
  const Instant secondHalfPastOne = local(2024, 11, 3) + std::chrono::minutes(150);  // clocks went back at 2
  ASSERT_EQ(DateHelper::GetTimeFormattedString(secondHalfPastOne, true), "01:30");
  EXPECT_EQ(DateHelper::AdjustDaysToDate(secondHalfPastOne, 0), secondHalfPastOne);
}

TEST_F(DateHelperTest, DayLengthsHaveTwoDigitsAtLeast) {
  const std::pair<std::int64_t, const char*> cases[] = {
      {0, "00 hrs 00 mins"},
      {59, "00 hrs 59 mins"},
      {605, "10 hrs 05 mins"},
      {1440, "24 hrs 00 mins"},
      {6000, "100 hrs 00 mins"},
      {-5, "00 hrs -05 mins"},
      {-65, "-01 hrs -05 mins"},
      {-660, "-11 hrs 00 mins"},
      {((std::int64_t{1} << 32) + 10) * 60 + 5, "10 hrs 05 mins"},  // hours in 32 bits
  };
  for (const auto& [minutes, text] : cases) EXPECT_EQ(DateHelper::GetDayLengthString(minutes), text);
}

TEST_F(DateHelperTest, WritesDatesAndTimes) {
  const Instant evening = local(2024, 6, 20, 17, 5);
  EXPECT_EQ(DateHelper::GetDateFormattedString(evening), "Thu June 20, 2024");
  EXPECT_EQ(DateHelper::GetTimeFormattedStringWithFormat(evening, "yyyy/MM/dd HH"), "2024/06/20 17");
  EXPECT_EQ(DateHelper::GetTimeFormattedStringWithFormat(evening, ""), "");
  EXPECT_EQ(DateHelper::GetTimeFormattedString(evening, true), "17:05");
  EXPECT_EQ(DateHelper::GetTimeFormattedString(evening, false), "05:05 PM");
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedString(evening, true), "Thu Jun 20, 2024  17:05");
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedString(evening, false), "Thu Jun 20, 2024  05:05 PM");
}

TEST_F(DateHelperTest, TheShortTextIsInTheTwelveHourFormWhateverTheFlagSays) {
  const Instant evening = local(2024, 6, 20, 17, 5);
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedShortString(evening, true), "Jun 20, 2024  05:05 PM");
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedShortString(evening, false), "Jun 20, 2024  05:05 PM");
}

TEST_F(DateHelperTest, MidnightAndNoonInBothForms) {
  EXPECT_EQ(DateHelper::GetTimeFormattedString(local(2024, 1, 1), false), "12:00 AM");
  EXPECT_EQ(DateHelper::GetTimeFormattedString(local(2024, 1, 1), true), "00:00");
  EXPECT_EQ(DateHelper::GetTimeFormattedString(local(2024, 1, 1, 12), false), "12:00 PM");
}

TEST_F(DateHelperTest, WritesInTheCurrentLocale) {
  const Instant evening = local(2024, 6, 20, 17, 5);
  const ScopedLocale arabic("ar_EG");
  EXPECT_EQ(DateHelper::GetDateFormattedString(evening), "الخميس يونيو ٢٠, ٢٠٢٤");
  EXPECT_EQ(DateHelper::GetTimeFormattedString(evening, true), "١٧:٠٥");
  EXPECT_EQ(DateHelper::GetTimeFormattedString(evening, false), "٠٥:٠٥ م");
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedString(evening, true), "الخميس يونيو ٢٠, ٢٠٢٤  ١٧:٠٥");
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedString(evening, false), "الخميس يونيو ٢٠, ٢٠٢٤  ٠٥:٠٥ م");
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedShortString(evening, true), "يونيو ٢٠, ٢٠٢٤  ٠٥:٠٥ م");
  EXPECT_EQ(DateHelper::GetDayLengthString(605), "10 hrs 05 mins");
}

TEST_F(DateHelperTest, DayArithmeticDoesNotDependOnTheLocale) {
  for (const char* identifier : {"th_TH", "fa_IR", "ar_EG"}) {
    const ScopedLocale locale{std::string(identifier)};
    EXPECT_TRUE(DateHelper::IsDateValid(local(2024, 6, 20)));
    EXPECT_EQ(DateHelper::AddSecondsToDateFromMidnight(local(2024, 6, 20, 9), 60), local(2024, 6, 20, 0, 1));
  }
}

TEST_F(DateHelperTest, NoDateHasNoText) {
  EXPECT_EQ(DateHelper::GetDateFormattedString(noDate), std::nullopt);
  EXPECT_EQ(DateHelper::GetTimeFormattedStringWithFormat(noDate, "HH:mm"), std::nullopt);
  EXPECT_EQ(DateHelper::GetTimeFormattedString(noDate, true), std::nullopt);
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedString(noDate, true), std::nullopt);
  EXPECT_EQ(DateHelper::GetDateAndTimeFormattedShortString(noDate, true), std::nullopt);
}

}  // namespace
}  // namespace velmora
