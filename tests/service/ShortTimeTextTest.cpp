#include <velmora/service/ShortTimeText.h>

#include <gtest/gtest.h>

#include <tests/phases/Places.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

TEST(ShortTimeText, IsInTheUsersStyle) {
  const ScopedLocale locale("en_US");
  EXPECT_EQ(shortTimeText(0), "12:00\u202fAM");
  EXPECT_EQ(shortTimeText(348), "5:48\u202fAM");
  EXPECT_EQ(shortTimeText(720), "12:00\u202fPM");
  EXPECT_EQ(shortTimeText(1439), "11:59\u202fPM");
}

TEST(ShortTimeText, FollowsEveryChangeOfTheLocale) {
  const ScopedLocale american("en_US");
  EXPECT_EQ(shortTimeText(1065), "5:45\u202fPM");
  {
    const ScopedLocale german("de_DE");
    EXPECT_EQ(shortTimeText(1065), "17:45");
  }
  EXPECT_EQ(shortTimeText(1065), "5:45\u202fPM");
  const ScopedLocale by24Hours(Locale("en_US").withHourCycle(Locale::HourCycle::h24));
  EXPECT_EQ(shortTimeText(1065), "17:45");
}

TEST(ShortTimeText, OfAnInstantIsThatOfTheCalendarsClocks) {
  const ScopedLocale locale("en_US");
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  const Instant instant = utc(2024, 3, 31, 0, 59);
  EXPECT_EQ(shortTimeText(instant, Calendar()), "9:59\u202fAM");
  const Calendar helsinki(*TimeZone::named("Europe/Helsinki"));
  EXPECT_EQ(shortTimeText(instant, helsinki), "2:59\u202fAM");
  EXPECT_EQ(shortTimeText(instant + std::chrono::minutes(1), helsinki), "4:00\u202fAM");
}

TEST(ShortTimeText, OfAnInstantWithinAMinuteIsCut) {
  const ScopedLocale locale("en_US");
  EXPECT_EQ(shortTimeText(utc(2024, 3, 31, 0, 58) + Seconds(59.9), Calendar(TimeZone::fixed(0))),
            "12:58\u202fAM");
}

TEST(ShortTimeText, IsTheLocalesShortStyleEverywhere) {
  for (const char* identifier :
       {"en_US", "en_GB", "de", "fr", "es", "it",      "pt",      "nl",    "pl",    "tr",   "ru",
        "ar_EG", "he",    "hi", "ja", "ko", "zh_Hans", "zh_Hant", "fa_IR", "th_TH", "bg_BG"}) {
    const ScopedLocale locale(identifier);
    for (std::int64_t minute = 0; minute < 1440; minute += 97) {
      const Instant instant = utc(2024, 6, 1, 0, minute);
      const ScopedDefaultTimeZone zone("UTC");
      EXPECT_EQ(shortTimeText(minute),
                DateFormatter::localizedStringFromDate(instant, DateFormatter::Style::none,
                                                       DateFormatter::Style::shortStyle))
          << identifier;
    }
  }
}

}  // namespace
}  // namespace velmora
