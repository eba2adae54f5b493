#include <tests/service/ServiceTest.h>
#include <velmora/service/LocalizedClockText.h>

namespace velmora {
namespace {

// The short style of English puts a narrow no-break space (U+202F) in front of AM and PM.
class LocalizedClockText : public ::testing::Test {
 protected:
  const ScopedLocale _locale{"en_US"};
  const ScopedDefaultTimeZone _zone{"Asia/Kathmandu"};
};

TEST_F(LocalizedClockText, IsTheShortStyleOfTheUser) {
  const std::pair<const char*, const char*> cases[] = {
      {"05:48 AM", "5:48\u202fAM"},  {"11:58 PM", "11:58\u202fPM"}, {"12:00 PM", "12:00\u202fPM"},
      {"12:15 AM", "12:15\u202fAM"}, {"01:00 PM", "1:00\u202fPM"},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(localizedClockText(text), expected);
}

TEST_F(LocalizedClockText, TheHourAfterMidnightMayBeWrittenAsZero) {
  EXPECT_EQ(localizedClockText("00:15 AM"), "12:15\u202fAM");
  EXPECT_EQ(localizedClockText("00:00 AM"), "12:00\u202fAM");
}

TEST_F(LocalizedClockText, TheMarkOfTheNextDayIsGluedToTheTime) {
  EXPECT_EQ(localizedClockText("11:58 PM **"), "11:58\u202fPM**");
  EXPECT_EQ(localizedClockText("00:15 AM **"), "12:15\u202fAM**");
  EXPECT_EQ(localizedClockText("11:58 PM**"), "11:58\u202fPM**");
  EXPECT_EQ(localizedClockText("11:58 PM *"), "11:58\u202fPM**") << "only the last star is looked at";
}

TEST_F(LocalizedClockText, FollowsLanguageAndClockHabit) {
  const std::pair<Locale, const char*> cases[] = {
      {Locale("de_DE"), "23:58**"},
      {Locale("ja_JP"), "23:58**"},
      {Locale("ko_KR"), "오후 11:58**"},
      {Locale("en_US").withHourCycle(Locale::HourCycle::h24), "23:58**"},
      {Locale("de_DE").withHourCycle(Locale::HourCycle::h12), "11:58\u202fPM**"},
  };
  for (const auto& [locale, expected] : cases) {
    const ScopedLocale scoped(locale);
    EXPECT_EQ(localizedClockText("11:58 PM **"), expected) << locale.identifier();
  }
}

TEST_F(LocalizedClockText, OfEveryMinuteOfTheDayIsItsShortText) {
  DateFormatter times;
  times.setTimeZone(TimeZone::fixed(0));
  times.setTimeStyle(DateFormatter::Style::shortStyle);
  DateFormatter texts;
  texts.setTimeZone(TimeZone::fixed(0));
  texts.setDateFormat("hh:mm a");
  for (std::int64_t minute = 0; minute < 1440; ++minute) {
    const Instant instant = utc(2024, 6, 1, 0, minute);
    EXPECT_EQ(localizedClockText(texts.stringFromDate(instant)), times.stringFromDate(instant));
  }
}

TEST_F(LocalizedClockText, OtherTextsStayAsTheyAre) {
  const char* const texts[] = {
      "",         "--",       "--:--",     "05:48",        "17:05",    "24:00",     "24:37 **",
      "*",        "**",       "***",       " **",          "-- **",    "13:05 PM",  "05:60 AM",
      "05:48 XM", "05:48 am", "05:48  AM", "05-48 AM",     "ab:cd AM", "05:48 AM ", " 05:48 AM",
      "05:48AM",  "+5:48 AM", "005:48 AM", "05:48 AM *x*",
  };
  for (const char* text : texts) EXPECT_EQ(localizedClockText(text), text);
}

TEST_F(LocalizedClockText, ATextOnceRewrittenStaysAsItIs) {
  for (const char* identifier : {"en_US", "de_DE", "ko_KR", "ar_EG"}) {
    const ScopedLocale locale(identifier);
    for (const char* text : {"05:48 AM", "00:15 AM **", "--"}) {
      const std::string once = localizedClockText(text);
      EXPECT_EQ(localizedClockText(once), once) << identifier;
    }
  }
}

class LocalizedItems : public ServiceTest {
 protected:
  static RiseSetPhaseItem itemWith(const std::string& moonRise, const std::string& moonSet,
                                   const std::string& sunRise, const std::string& sunSet) {
    RiseSetPhaseItem item;
    item.riseSetData.emplace();
    item.riseSetData->moonRiseText = moonRise;
    item.riseSetData->moonSetText = moonSet;
    item.riseSetData->sunRiseText = sunRise;
    item.riseSetData->sunSetText = sunSet;
    item.riseSetData->twilightBeginText = "05:20 AM";
    item.riseSetData->twilightEndText = "08:01 PM **";
    item.timeText = "03:00 AM";
    return item;
  }
};

TEST_F(LocalizedItems, HaveFourTextsRewritten) {
  RiseSetPhaseItem item = itemWith("11:58 PM **", "00:15 AM", "05:48 AM", "08:35 PM");
  service().localizeDateTimeStringsForRiseSetPhaseItem(&item, std::nullopt);
  EXPECT_EQ(item.riseSetData->moonRiseText, "11:58\u202fPM**");
  EXPECT_EQ(item.riseSetData->moonSetText, "12:15\u202fAM");
  EXPECT_EQ(item.riseSetData->sunRiseText, "5:48\u202fAM");
  EXPECT_EQ(item.riseSetData->sunSetText, "8:35\u202fPM");
}

TEST_F(LocalizedItems, KnowNoMarkOfTheSun) {
  RiseSetPhaseItem item = itemWith("12:10 AM **", "12:10 AM **", "12:10 AM **", "12:10 AM **");
  service().localizeDateTimeStringsForRiseSetPhaseItem(&item, std::nullopt);
  EXPECT_EQ(item.riseSetData->moonRiseText, "12:10\u202fAM**");
  EXPECT_EQ(item.riseSetData->moonSetText, "12:10\u202fAM**");
  EXPECT_EQ(item.riseSetData->sunRiseText, "12:10 AM **");
  EXPECT_EQ(item.riseSetData->sunSetText, "12:10 AM **");
}

TEST_F(LocalizedItems, KeepTheirOtherTexts) {
  RiseSetPhaseItem item = itemWith("--", "--:--", "*", "17:05");
  service().localizeDateTimeStringsForRiseSetPhaseItem(&item, TimeZone::named("Asia/Tokyo"));
  EXPECT_EQ(item.riseSetData->moonRiseText, "--");
  EXPECT_EQ(item.riseSetData->moonSetText, "--:--");
  EXPECT_EQ(item.riseSetData->sunRiseText, "*");
  EXPECT_EQ(item.riseSetData->sunSetText, "17:05");
  EXPECT_EQ(item.riseSetData->twilightBeginText, "05:20 AM");
  EXPECT_EQ(item.riseSetData->twilightEndText, "08:01 PM **");
  EXPECT_EQ(item.timeText, "03:00 AM");
}

TEST_F(LocalizedItems, AreTheSameInEveryZone) {
  for (const char* zone : {"Asia/Tokyo", "America/Los_Angeles", "Asia/Kathmandu"}) {
    const ScopedDefaultTimeZone process(zone);
    RiseSetPhaseItem item = itemWith("11:58 PM", "00:15 AM", "05:48 AM", "08:35 PM");
    service().localizeDateTimeStringsForRiseSetPhaseItem(&item, TimeZone::named(zone));
    EXPECT_EQ(item.riseSetData->moonRiseText, "11:58\u202fPM") << zone;
  }
}

TEST_F(LocalizedItems, WithoutRiseAndSetAreLeftAlone) {
  service().localizeDateTimeStringsForRiseSetPhaseItem(nullptr, std::nullopt);
  RiseSetPhaseItem item;
  service().localizeDateTimeStringsForRiseSetPhaseItem(&item, std::nullopt);
  EXPECT_EQ(item.riseSetData, std::nullopt);
}

}  // namespace
}  // namespace velmora
