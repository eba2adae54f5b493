#include <velmora/platform/time/DateFormatter.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

#include <tests/support/Instants.h>
#include <velmora/platform/time/Calendar.h>

namespace velmora {
namespace {

using testing::utc;
using Style = DateFormatter::Style;

DateFormatter formatter(const std::string& pattern, const char* locale = "en_US", const char* zone = "GMT") {
  DateFormatter result;
  result.setDateFormat(pattern);
  result.setLocale(Locale(locale));
  result.setTimeZone(*TimeZone::named(zone));
  return result;
}

DateFormatter styled(Style dateStyle, Style timeStyle, const Locale& locale) {
  DateFormatter result = formatter("");
  result.setLocale(locale);
  result.setDateStyle(dateStyle);
  result.setTimeStyle(timeStyle);
  return result;
}

const Instant juneEvening = utc(2024, 6, 20, 17, 5);

TEST(DateFormatter, StartsInTheCurrentLocaleAndTheDefaultZoneWithoutAText) {
  const ScopedLocale german("de_DE");
  const ScopedDefaultTimeZone tokyo("Asia/Tokyo");
  const DateFormatter fresh;
  EXPECT_EQ(fresh.locale(), Locale("de_DE"));
  EXPECT_EQ(fresh.timeZone().name(), "Asia/Tokyo");
  EXPECT_EQ(fresh.dateFormat(), "");
  EXPECT_EQ(fresh.stringFromDate(juneEvening), "");
  EXPECT_EQ(fresh.dateFromString(""), std::nullopt);
}

TEST(DateFormatter, WritesByThePattern) {
  const std::pair<const char*, const char*> cases[] = {
      {"EEE MMMM d',' yyyy", "Thu June 20, 2024"},
      {"EEE MMM d',' yyyy  HH:mm", "Thu Jun 20, 2024  17:05"},
      {"EEE MMM d',' yyyy  hh:mm a", "Thu Jun 20, 2024  05:05 PM"},
      {"yyyy-MM-dd HH:mm", "2024-06-20 17:05"},
      {"h a", "5 PM"},
  };
  for (const auto& [pattern, text] : cases) EXPECT_EQ(formatter(pattern).stringFromDate(juneEvening), text);
}

TEST(DateFormatter, WritesNamesAndDigitsOfTheLocale) {
  EXPECT_EQ(formatter("EEE MMMM d',' yyyy", "de_DE").stringFromDate(juneEvening), "Do. Juni 20, 2024");
  EXPECT_EQ(formatter("EEE MMM d yyyy hh:mm a", "fr_FR").stringFromDate(juneEvening),
            "jeu. juin 20 2024 05:05 PM");
  EXPECT_EQ(formatter("d MMMM yyyy HH:mm", "ar_EG").stringFromDate(juneEvening), "٢٠ يونيو ٢٠٢٤ ١٧:٠٥");
  EXPECT_EQ(formatter("a hh:mm", "ja_JP").stringFromDate(juneEvening), "午後 05:05");
}

TEST(DateFormatter, IsGregorianWhateverTheLocalesOwnCalendarIs) {
  EXPECT_EQ(formatter("d MMM yyyy", "th_TH").stringFromDate(juneEvening), "20 มิ.ย. 2024");
  EXPECT_EQ(formatter("yyyy-MM-dd", "fa_IR").stringFromDate(juneEvening), "۲۰۲۴-۰۶-۲۰");
  EXPECT_EQ(formatter("yyyy-MM-dd", "en_US@calendar=japanese").stringFromDate(juneEvening), "2024-06-20");
  EXPECT_EQ(styled(Style::mediumStyle, Style::none, Locale("th_TH")).stringFromDate(juneEvening),
            "20 มิ.ย. 2024");
}

TEST(DateFormatter, IsGregorianBeforeTheGregorianReform) {
  EXPECT_EQ(formatter("yyyy-MM-dd").stringFromDate(utc(1582, 10, 10)), "1582-10-10");
  EXPECT_EQ(formatter("yyyy-MM-dd").dateFromString("1582-10-10"), utc(1582, 10, 10));
  EXPECT_EQ(formatter("yyyy-MM-dd").dateFromString("1500-02-29"), std::nullopt);
}

TEST(DateFormatter, AnInstantJustBeforeMidnightBelongsToTheDayThatEnds) {
  const DateFormatter toTheSecond = formatter("yyyy-MM-dd HH:mm:ss");
  for (const double seconds : {-1e-3, -1e-12, -1e-310, -5e-324}) {
    EXPECT_EQ(toTheSecond.stringFromDate(instantFromUnixSeconds(seconds)), "1969-12-31 23:59:59") << seconds;
  }
}

TEST(DateFormatter, FollowsDaylightSavingOfTheZoneDatabase) {
  const DateFormatter cairo = formatter("HH:mm", "en_US", "Africa/Cairo");
  EXPECT_EQ(cairo.stringFromDate(utc(2024, 1, 10, 12)), "14:00");
  EXPECT_EQ(cairo.stringFromDate(utc(2024, 7, 10, 12)), "15:00");
  EXPECT_EQ(formatter("HH:mm", "en_US", "America/Mexico_City").stringFromDate(utc(2024, 7, 10, 12)), "06:00");
  EXPECT_EQ(formatter("HH:mm zzz XXX", "en_US", "Asia/Kathmandu").stringFromDate(utc(2024, 7, 10, 12)),
            "17:45 GMT+5:45 +05:45");
}

TEST(DateFormatter, OfOnePatternEachZoneHasItsOwnClock) {
  EXPECT_EQ(formatter("HH:mm", "en_US", "Asia/Tokyo").stringFromDate(juneEvening), "02:05");
  EXPECT_EQ(formatter("HH:mm", "en_US", "GMT").stringFromDate(juneEvening), "17:05");
  EXPECT_EQ(formatter("HH:mm", "en_US", "Asia/Kathmandu").stringFromDate(juneEvening), "22:50");
}

TEST(DateFormatter, ShortTimesFollowTheHabitOfTheLocale) {
  const std::pair<const char*, const char*> cases[] = {
      {"en_US", "5:05\u202fPM"}, {"de_DE", "17:05"}, {"fi_FI", "17.05"},  {"en_GB", "17:05"},
      {"ja_JP", "17:05"},        {"he", "17:05"},    {"ar_EG", "٥:٠٥ م"},
  };
  for (const auto& [locale, text] : cases) {
    EXPECT_EQ(styled(Style::none, Style::shortStyle, Locale(locale)).stringFromDate(juneEvening), text);
  }
}

TEST(DateFormatter, ShortTimesFollowAnOverrideOfTheHabit) {
  using Cycle = Locale::HourCycle;
  const auto text = [](const char* identifier, Cycle cycle) {
    const Locale locale = Locale(identifier).withHourCycle(cycle);
    return styled(Style::none, Style::shortStyle, locale).stringFromDate(juneEvening);
  };
  EXPECT_EQ(text("en_US", Cycle::h24), "17:05");
  EXPECT_EQ(text("en_US", Cycle::h12), "5:05\u202fPM");
  EXPECT_EQ(text("de_DE", Cycle::h12), "5:05\u202fPM");
  EXPECT_EQ(text("de_DE", Cycle::h24), "17:05");
  EXPECT_EQ(text("ja_JP", Cycle::h12), "午後5:05");
  EXPECT_EQ(text("ar_EG", Cycle::h24), "١٧:٠٥");
}

TEST(DateFormatter, APatternIsNeverTakenForAnOverrideOfTheHabit) {
  DateFormatter us24 = formatter("HH:mm");
  us24.setLocale(Locale("en_US").withHourCycle(Locale::HourCycle::h24));
  EXPECT_EQ(us24.stringFromDate(juneEvening), "17:05");
  EXPECT_EQ(formatter("24|HH:mm").stringFromDate(juneEvening), "24|17:05");
}

TEST(DateFormatter, APatternIsNeverTakenForTheEndOfAnIdentifier) {
  EXPECT_EQ(formatter("|HH:mm", "en_US").stringFromDate(juneEvening), "|17:05");
  EXPECT_EQ(formatter("HH:mm", "en_US|").stringFromDate(juneEvening), "17:05");
}

TEST(DateFormatter, MidnightAndNoonReadAsClocksDo) {
  const DateFormatter time = styled(Style::none, Style::shortStyle, Locale("en_US"));
  EXPECT_EQ(time.stringFromDate(utc(2024, 1, 1)),
            "12:00\u202f"
            "AM");
  EXPECT_EQ(time.stringFromDate(utc(2024, 1, 1, 12)), "12:00\u202fPM");
  const Locale german12 = Locale("de_DE").withHourCycle(Locale::HourCycle::h12);
  EXPECT_EQ(styled(Style::none, Style::shortStyle, german12).stringFromDate(utc(2024, 1, 1)),
            "12:00\u202f"
            "AM");
}

TEST(DateFormatter, StylesOfDateAndTimeJoin) {
  EXPECT_EQ(styled(Style::mediumStyle, Style::none, Locale("en_US")).stringFromDate(juneEvening),
            "Jun 20, 2024");
  EXPECT_EQ(styled(Style::shortStyle, Style::none, Locale("de_DE")).stringFromDate(juneEvening), "20.06.24");
  EXPECT_EQ(styled(Style::mediumStyle, Style::mediumStyle, Locale("en_US")).stringFromDate(juneEvening),
            "Jun 20, 2024, 5:05:00\u202fPM");
  const Locale us24 = Locale("en_US").withHourCycle(Locale::HourCycle::h24);
  EXPECT_EQ(styled(Style::mediumStyle, Style::mediumStyle, us24).stringFromDate(juneEvening),
            "Jun 20, 2024, 17:05:00");
  EXPECT_EQ(styled(Style::mediumStyle, Style::none, us24).stringFromDate(juneEvening), "Jun 20, 2024");
}

TEST(DateFormatter, APatternStandsBeforeTheStyles) {
  DateFormatter both = styled(Style::mediumStyle, Style::shortStyle, Locale("en_US"));
  both.setDateFormat("yyyy");
  EXPECT_EQ(both.stringFromDate(juneEvening), "2024");
}

TEST(DateFormatter, LocalizedTextsAreInTheCurrentLocaleAndTheDefaultZone) {
  const ScopedLocale german("de_DE");
  const ScopedDefaultTimeZone tokyo("Asia/Tokyo");
  EXPECT_EQ(DateFormatter::localizedStringFromDate(juneEvening, Style::mediumStyle, Style::shortStyle),
            "21.06.2024, 02:05");
  EXPECT_EQ(DateFormatter::localizedStringFromDate(juneEvening, Style::none, Style::none), "");
}

TEST(DateFormatter, ReadsWhatItWrites) {
  for (const char* locale : {"en_US", "de_DE", "ar_EG", "fa_IR", "th_TH", "ja_JP", "hi_IN"}) {
    for (const char* zone : {"GMT", "Asia/Kathmandu", "America/St_Johns"}) {
      const DateFormatter both = formatter("EEE d MMMM yyyy hh:mm a", locale, zone);
      EXPECT_EQ(both.dateFromString(both.stringFromDate(juneEvening)), juneEvening) << locale << ' ' << zone;
    }
  }
}

TEST(DateFormatter, ReadsFieldsOfOneDigit) {
  EXPECT_EQ(formatter("yyyy-MM-dd HH:mm").dateFromString("2024-3-25 07:00"), utc(2024, 3, 25, 7));
  EXPECT_EQ(formatter("yyyy-MM-dd HH:mm").dateFromString("2024-3-5 7:5"), utc(2024, 3, 5, 7, 5));
  EXPECT_EQ(formatter("MM/dd/yyyy HH:mm").dateFromString("04/08/2024 18:17"), utc(2024, 4, 8, 18, 17));
  EXPECT_EQ(formatter("dd-MM-yyyy").dateFromString("5-3-2024"), utc(2024, 3, 5));
}

TEST(DateFormatter, ReadsFieldsThatTouchByTheirWidth) {
  EXPECT_EQ(formatter("yyyyMMdd'T'HHmm").dateFromString("20240305T0705"), utc(2024, 3, 5, 7, 5));
}

TEST(DateFormatter, ReadsTwelveHourTimesOnTheFirstDayOf1970) {
  const DateFormatter time = formatter("hh:mm a");
  EXPECT_EQ(time.dateFromString("12:15 AM"), utc(1970, 1, 1, 0, 15));
  EXPECT_EQ(time.dateFromString("00:15 AM"), utc(1970, 1, 1, 0, 15));
  EXPECT_EQ(time.dateFromString("12:30 PM"), utc(1970, 1, 1, 12, 30));
  EXPECT_EQ(time.dateFromString("11:58 PM"), utc(1970, 1, 1, 23, 58));
  EXPECT_EQ(time.dateFromString("5:05 pm"), utc(1970, 1, 1, 17, 5));
}

TEST(DateFormatter, BlanksAroundTheTextAndInFrontOfNumbersDoNotCount) {
  EXPECT_EQ(formatter("hh:mm a").dateFromString("11:58 PM "), utc(1970, 1, 1, 23, 58));
  EXPECT_EQ(formatter("yyyy-MM-dd HH:mm").dateFromString(" 2024-03-25  07:00"), utc(2024, 3, 25, 7));
  EXPECT_EQ(formatter("hh:mm a").dateFromString("  "), std::nullopt);
}

TEST(DateFormatter, ReadsNothingThatDoesNotFollowThePattern) {
  const std::pair<const char*, const char*> cases[] = {
      {"yyyy-MM-dd HH:mm", ""},
      {"yyyy-MM-dd HH:mm", "2024-03-25"},
      {"yyyy-MM-dd HH:mm", "2024-03-25 07:"},
      {"yyyy-MM-dd HH:mm", "2024-03-25 07:00:30"},
      {"yyyy-MM-dd HH:mm", "2024/03/25 07:00"},
      {"yyyy-MM-dd HH:mm", "2024-03-25 07.00"},
      {"yyyy-MM-dd HH:mm", "2024-Mar-25 07:00"},
      {"yyyy-MM-dd HH:mm", "2024--3-25 07:00"},
      {"yyyy-MM-dd HH:mm", "2024-3-25 +7:00"},
      {"yyyy-MM-dd", "2024-3.5-01"},
      {"hh:mm a", "--"},
      {"hh:mm a", "--:--"},
      {"hh:mm a", "17:05"},
      {"hh:mm a", "11:58 PM **"},
      {"hh:mm a", "05:05PM"},
      {"EEE MMMM d',' yyyy", "Thu June 20 2024"},
      {"EEE MMMM d',' yyyy", "Thu Jun 20, 2024"},
  };
  for (const auto& [pattern, text] : cases) {
    EXPECT_EQ(formatter(pattern).dateFromString(text), std::nullopt) << pattern << " <- " << text;
  }
}

TEST(DateFormatter, ReadsNoDateThatDoesNotExist) {
  const std::pair<const char*, const char*> cases[] = {
      {"yyyy-MM-dd", "2023-02-29"},
      {"yyyy-MM-dd", "2024-02-30"},
      {"yyyy-MM-dd", "2024-13-01"},
      {"yyyy-MM-dd", "2024-00-01"},
      {"yyyy-MM-dd", "2024-01-00"},
      {"yyyy-MM-dd", "2024-04-31"},
      {"yyyy-MM-dd HH:mm", "2024-01-01 24:00"},
      {"yyyy-MM-dd HH:mm", "2024-01-01 23:60"},
      {"hh:mm a", "13:15 PM"},
      {"hh:mm a", "24:37 PM"},
      {"yyyy-MM-dd", "99999999999-01-01"},
  };
  for (const auto& [pattern, text] : cases) {
    EXPECT_EQ(formatter(pattern).dateFromString(text), std::nullopt) << pattern << " <- " << text;
  }
}

TEST(DateFormatter, InvalidTextDoesNoHarm) {
  EXPECT_EQ(formatter("yyyy-MM-dd").dateFromString("\xff\xfe\x80"), std::nullopt);
  EXPECT_EQ(formatter("yyyy-MM-dd").dateFromString(std::string(100'000, '2')), std::nullopt);
}

TEST(DateFormatter, ReadsAClockTimeThatOccursTwiceAsTheFirst) {
  const DateFormatter helsinki = formatter("yyyy-MM-dd HH:mm", "en_US", "Europe/Helsinki");
  EXPECT_EQ(helsinki.dateFromString("2024-10-27 03:30"), utc(2024, 10, 27, 0, 30));
}

TEST(DateFormatter, ReadsAClockTimeThatIsSkippedWithTheOffsetBefore) {
  const DateFormatter helsinki = formatter("yyyy-MM-dd HH:mm", "en_US", "Europe/Helsinki");
  EXPECT_EQ(helsinki.dateFromString("2024-03-31 03:30"), utc(2024, 3, 31, 1, 30));
  EXPECT_EQ(formatter("yyyy-MM-dd", "en_US", "Africa/Cairo").dateFromString("2024-04-26"),
            utc(2024, 4, 25, 22));
}

TEST(DateFormatter, ExpandsTemplatesByTheHabitOfTheLocale) {
  const auto expand = [](const char* letters, const Locale& locale) {
    return DateFormatter::dateFormatFromTemplate(letters, locale);
  };
  EXPECT_EQ(expand("j", Locale("en_US")),
            "h\u202f"
            "a");
  EXPECT_EQ(expand("j", Locale("fi_FI")), "H");
  EXPECT_EQ(expand("H", Locale("en_US")), "HH");
  EXPECT_EQ(expand("h a", Locale("en_US")),
            "h\u202f"
            "a");
  EXPECT_EQ(expand("MMMd", Locale("en_US")), "MMM d");
  EXPECT_EQ(expand("MMMd", Locale("de_DE")), "d. MMM");
  EXPECT_EQ(expand("j", Locale("en_US").withHourCycle(Locale::HourCycle::h24)), "HH");
  EXPECT_EQ(expand("j", Locale("fi_FI").withHourCycle(Locale::HourCycle::h12)),
            "h\u202f"
            "a");
}

TEST(DateFormatter, NamesWeekdaysFromSundayAndMonthsFromJanuary) {
  using Names = std::vector<std::string>;
  EXPECT_EQ(DateFormatter::shortWeekdaySymbols(Locale("en_US")),
            (Names{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}));
  EXPECT_EQ(DateFormatter::shortWeekdaySymbols(Locale("de_DE")),
            (Names{"So.", "Mo.", "Di.", "Mi.", "Do.", "Fr.", "Sa."}));
  EXPECT_EQ(DateFormatter::shortMonthSymbols(Locale("en_US")),
            (Names{"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"}));
  EXPECT_EQ(DateFormatter::shortMonthSymbols(Locale("fa_IR")).front(), "ژانویه");
  EXPECT_EQ(DateFormatter::shortMonthSymbols(Locale("th_TH")).size(), 12u);
}

TEST(DateFormatter, AnUnknownLocaleIsTheRootLocale) {
  EXPECT_EQ(formatter("EEE MMM d yyyy", "xx_YY").stringFromDate(juneEvening),
            formatter("EEE MMM d yyyy", "").stringFromDate(juneEvening));
  EXPECT_EQ(formatter("yyyy-MM-dd", std::string(5000, 'a').c_str()).stringFromDate(juneEvening),
            "2024-06-20");
}

TEST(DateFormatter, AnInstantThatIsNoNumberHasNoText) {
  for (const double seconds : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(formatter("yyyy").stringFromDate(instantFromUnixSeconds(seconds)), "");
  }
  EXPECT_NE(formatter("yyyy").stringFromDate(instantFromUnixSeconds(1e300)), "");
}

TEST(DateFormatter, StaysRightWhenMorePatternsAreUsedThanAreKept) {
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 200; ++i) {
      const std::string mark = std::to_string(i);
      EXPECT_EQ(formatter("yyyy '" + mark + "'").stringFromDate(juneEvening), "2024 " + mark);
    }
  }
}

TEST(DateFormatter, WorksInEveryThread) {
  std::vector<std::string> texts(4);
  std::vector<std::thread> threads;
  for (auto& text : texts) {
    threads.emplace_back([&text] { text = formatter("MMMM", "de_DE").stringFromDate(juneEvening); });
  }
  for (auto& thread : threads) thread.join();
  for (const auto& text : texts) EXPECT_EQ(text, "Juni");
}

}  // namespace
}  // namespace velmora
