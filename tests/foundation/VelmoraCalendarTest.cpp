#include <velmora/foundation/VelmoraCalendar.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using Names = std::vector<std::string>;

class VelmoraCalendarNames : public ::testing::Test {
 protected:
  VelmoraCalendarNames() { VelmoraCalendar::resetSymbols(); }
  ~VelmoraCalendarNames() override { VelmoraCalendar::resetSymbols(); }
};

TEST(VelmoraCalendar, TheApplicationCalendarIsInTheDefaultZone) {
  const ScopedDefaultTimeZone kathmandu("Asia/Kathmandu");
  EXPECT_EQ(VelmoraCalendar::applicationCalendar().timeZone().name(), "Asia/Kathmandu");
}

TEST(VelmoraCalendar, TheApplicationCalendarIsGregorianInEveryLocale) {
  const ScopedDefaultTimeZone gmt("GMT");
  const Instant date = instantFromUnixSeconds(1718841600);  // 2024-06-20
  for (const char* locale : {"th_TH", "fa_IR", "ar_SA", "en_US"}) {
    const ScopedLocale current{std::string(locale)};
    EXPECT_EQ(VelmoraCalendar::applicationCalendar().components(date),
              (DateComponents{.year = 2024, .month = 6, .day = 20, .weekday = 5}));
  }
}

TEST(VelmoraCalendar, EveryCalendarAndFormatterIsNew) {
  const ScopedDefaultTimeZone gmt("GMT");
  Calendar calendar = VelmoraCalendar::applicationCalendar();
  calendar.setTimeZone(TimeZone::fixed(3600));
  EXPECT_EQ(VelmoraCalendar::applicationCalendar().timeZone().name(), "GMT");
  DateFormatter formatter = VelmoraCalendar::calendarDateFormatter();
  formatter.setDateFormat("yyyy");
  EXPECT_EQ(VelmoraCalendar::calendarDateFormatter().dateFormat(), "");
}

TEST(VelmoraCalendar, TheFormatterHasTheCurrentLocaleAndTheDefaultZone) {
  const ScopedLocale german("de_DE");
  const ScopedDefaultTimeZone tokyo("Asia/Tokyo");
  const DateFormatter formatter = VelmoraCalendar::calendarDateFormatter();
  EXPECT_EQ(formatter.locale(), Locale("de_DE"));
  EXPECT_EQ(formatter.timeZone().name(), "Asia/Tokyo");
}

TEST_F(VelmoraCalendarNames, WeekdaysStartWithSundayAndMonthsWithJanuary) {
  const ScopedLocale us("en_US");
  EXPECT_EQ(VelmoraCalendar::shortWeekdayStrings(), (Names{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}));
  EXPECT_EQ(VelmoraCalendar::shortMonthStrings(),
            (Names{"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"}));
}

TEST_F(VelmoraCalendarNames, AreInTheCurrentLocale) {
  const ScopedLocale finnish("fi_FI");
  EXPECT_EQ(VelmoraCalendar::shortWeekdayStrings(), (Names{"su", "ma", "ti", "ke", "to", "pe", "la"}));
  EXPECT_EQ(VelmoraCalendar::shortMonthStrings().front(), "tammik.");
}

TEST_F(VelmoraCalendarNames, StayThoseOfTheFirstCallUntilTheyAreReset) {
  const ScopedLocale us("en_US");
  const Names* const weekdays = &VelmoraCalendar::shortWeekdayStrings();
  const Names* const months = &VelmoraCalendar::shortMonthStrings();
  const ScopedLocale finnish("fi_FI");
  EXPECT_EQ(&VelmoraCalendar::shortWeekdayStrings(), weekdays);
  EXPECT_EQ(&VelmoraCalendar::shortMonthStrings(), months);
  EXPECT_EQ(weekdays->front(), "Sun");
  EXPECT_EQ(months->front(), "Jan");

  VelmoraCalendar::resetSymbols();
  EXPECT_EQ(VelmoraCalendar::shortWeekdayStrings().front(), "su");
  EXPECT_EQ(VelmoraCalendar::shortMonthStrings().front(), "tammik.");
}

}  // namespace
}  // namespace velmora
