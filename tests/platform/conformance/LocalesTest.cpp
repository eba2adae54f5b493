#include <gtest/gtest.h>

#include <velmora/platform/time/AlternateCalendar.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/NumberFormatter.h>

namespace velmora {
namespace {

TEST(ConformanceOfLocales, ClocksAreReadByTheHabitOfEachCountry) {
  for (const char* identifier :
       {"de_DE", "en_GB", "fi_FI", "fr_FR", "it_IT", "ja_JP", "pl_PL", "ru_RU", "zh_CN"}) {
    EXPECT_TRUE(Locale(identifier).uses24HourClock()) << identifier;
  }
  for (const char* identifier : {"en_US", "ar_EG", "hi_IN", "ko_KR", "zh_TW"}) {
    EXPECT_FALSE(Locale(identifier).uses24HourClock()) << identifier;
  }
}

TEST(ConformanceOfLocales, WhatNobodyKnowsIsWrittenOneWayEverywhere) {
  const ScopedLocale current("ar_EG");
  for (const char* identifier : {"", "xx_YY", "not a locale", "\xff\xfe", "en-", "zh_CN@"}) {
    const Locale locale{std::string(identifier)};
    NumberFormatter number;
    number.setLocale(locale);
    EXPECT_EQ(number.stringFromNumber(std::int64_t{1234}), "1234") << identifier;
    DateFormatter date;
    date.setLocale(locale);
    date.setTimeZone(TimeZone::fixed(0));
    date.setDateFormat("yyyy-MM-dd");
    EXPECT_EQ(date.stringFromDate(Instant()), "1970-01-01") << identifier;
  }
}

TEST(ConformanceOfLocales, TemplatesOfHoursFollowTheHabitAndItsOverride) {
  const auto countsTo24 = [](const Locale& locale) {
    return DateFormatter::dateFormatFromTemplate("j", locale).find('a') == std::string::npos;
  };
  EXPECT_FALSE(countsTo24(Locale("en_US")));
  EXPECT_TRUE(countsTo24(Locale("de_DE")));
  EXPECT_TRUE(countsTo24(Locale("en_US").withHourCycle(Locale::HourCycle::h24)));
  EXPECT_FALSE(countsTo24(Locale("de_DE").withHourCycle(Locale::HourCycle::h12)));
}

}  // namespace
}  // namespace velmora
