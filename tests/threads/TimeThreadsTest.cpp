#include <sstream>

#include <tests/threads/ManyThreads.h>
#include <velmora/platform/time/AlternateCalendar.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/platform/time/NumberText.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {
namespace {

using Kind = AlternateCalendar::Kind;
using Style = DateFormatter::Style;

const Instant summerNoon = std::chrono::sys_days(std::chrono::year(2024) / 6 / 20) + std::chrono::hours(12);

const std::vector<std::string> zones = {
    "Africa/Cairo",
    "Africa/Casablanca",
    "Africa/Monrovia",
    "America/Argentina/Ushuaia",
    "America/Caracas",
    "America/Los_Angeles",
    "America/Mexico_City",
    "America/New_York",
    "America/Nuuk",
    "America/Sao_Paulo",
    "America/St_Johns",
    "Antarctica/Troll",
    "Asia/Gaza",
    "Asia/Kathmandu",
    "Asia/Kolkata",
    "Asia/Pyongyang",
    "Asia/Tehran",
    "Asia/Tokyo",
    "Atlantic/Azores",
    "Australia/Adelaide",
    "Australia/Lord_Howe",
    "Europe/Amsterdam",
    "Europe/Dublin",
    "Europe/Istanbul",
    "Europe/Kyiv",
    "Europe/Volgograd",
    "GMT",
    "GMT+05:45",
    "Pacific/Apia",
    "Pacific/Chatham",
    "Pacific/Kiritimati",
    "UTC",
};

const std::vector<std::string> locales = {
    "en_US", "en_GB", "de_DE", "fr_CA", "ar_EG", "he_IL",   "fa_IR",   "hi_IN",
    "ja_JP", "th_TH", "ru_RU", "tr_TR", "ko_KR", "zh_Hant", "sr_Latn", "xx_YY",
};

std::string zoneReadings(const std::string& name) {
  const auto zone = TimeZone::named(name);
  if (!zone) return "no zone " + name;
  const Calendar calendar(*zone);
  std::ostringstream text;
  for (int year = 1900; year <= 2040; year += 5) {
    for (int month = 1; month <= 12; ++month) {
      const Instant date = calendar.date({.year = year, .month = month, .day = 15, .hour = 2, .minute = 30});
      text << unixSeconds(date) << ' ' << zone->secondsFromGMT(date) << ' '
           << unixSeconds(calendar.startOfDay(date)) << ' ' << calendar.components(date).weekday << '\n';
    }
  }
  return text.str();
}

std::string dateTexts(const std::string& identifier) {
  const Locale locale(identifier);
  std::ostringstream text;
  text << locale.languageCode() << locale.isRightToLeft() << locale.uses24HourClock();
  for (const char* const letters : {"j", "jmm", "yMMMd", "EEEE"}) {
    text << DateFormatter::dateFormatFromTemplate(letters, locale) << '\n';
  }
  for (const std::string& name : DateFormatter::shortMonthSymbols(locale)) text << name << '\n';
  for (const std::string& name : DateFormatter::shortWeekdaySymbols(locale)) text << name << '\n';
  for (const char* const pattern : {"EEE MMMM d, yyyy HH:mm", "dd-MM-yyyy hh:mm a", ""}) {
    for (const std::string& zone : zones) {
      DateFormatter formatter;
      formatter.setLocale(locale);
      formatter.setTimeZone(*TimeZone::named(zone));
      formatter.setDateStyle(Style::mediumStyle);
      formatter.setTimeStyle(Style::shortStyle);
      formatter.setDateFormat(pattern);
      const std::string written = formatter.stringFromDate(summerNoon);
      const auto read = formatter.dateFromString(written);
      text << written << ' ' << (read ? unixSeconds(*read) : -1) << '\n';
    }
  }
  return text.str();
}

std::string numberTexts(const std::string& identifier) {
  NumberFormatter formatter;
  formatter.setLocale(Locale(identifier));
  std::ostringstream text;
  for (int number = -3; number < 30; ++number) {
    formatter.setStyle(NumberFormatter::Style::none);
    text << formatter.stringFromNumber(std::int64_t{number}) << ' ';
    formatter.setStyle(NumberFormatter::Style::decimal);
    formatter.setMaximumFractionDigits(2);
    text << formatter.stringFromNumber(number * 1234.5678) << ' ' << decimalText(number / 7.0, 4) << '\n';
  }
  return text.str();
}

std::string alternateDays(const std::string& zone) {
  const TimeZone where = *TimeZone::named(zone);
  std::ostringstream text;
  for (const Kind kind :
       {Kind::hebrew, Kind::islamicUmmAlQura, Kind::buddhist, Kind::japanese, Kind::chinese, Kind::indian}) {
    const AlternateCalendar calendar(kind, where);
    for (int day = 0; day < 40; ++day) text << calendar.day(summerNoon + std::chrono::days(day)) << ' ';
  }
  return text.str();
}

TEST(ManyThreads, ReadTheClocksOfZonesAsOneDoes) {
  test::expectAnswersOfOneThread(zones, &zoneReadings);
  EXPECT_EQ(zoneReadings("Asia/Nowhere"), "no zone Asia/Nowhere");
}

TEST(ManyThreads, WriteAndReadDatesAsOneDoes) { test::expectAnswersOfOneThread(locales, &dateTexts); }

TEST(ManyThreads, WriteNumbersAsOneDoes) { test::expectAnswersOfOneThread(locales, &numberTexts); }

TEST(ManyThreads, CountTheDaysOfOtherCalendarsAsOneDoes) {
  test::expectAnswersOfOneThread(zones, &alternateDays);
}

}  // namespace
}  // namespace velmora
