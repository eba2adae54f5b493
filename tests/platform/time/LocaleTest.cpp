#include <velmora/platform/time/Locale.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "ScopedEnvironment.h"

namespace velmora {
namespace {

TEST(Locale, AHyphenAndAnUnderscoreAreTheSame) {
  EXPECT_EQ(Locale("zh-Hans-CN"), Locale("zh_Hans_CN"));
  EXPECT_EQ(Locale("en_US").identifier(), "en_US");
}

TEST(Locale, KnowsTheLanguageByBothItsCodes) {
  EXPECT_EQ(Locale("ar_EG").languageCode(), "ar");
  EXPECT_EQ(Locale("ara").languageCode(), "ar");
  EXPECT_EQ(Locale("he").languageCode(), "he");
  EXPECT_EQ(Locale("iw").languageCode(), "he");
  EXPECT_EQ(Locale("zh-Hans").languageCode(), "zh");
  EXPECT_EQ(Locale("FI_fi").languageCode(), "fi");
}

TEST(Locale, ATextThatIsNoIdentifierHasNoLanguage) {
  for (const char* text : {"", "12", "x\xff\xff", "..", "e n", "\xd7\xa2"}) {
    const Locale locale{std::string(text)};
    EXPECT_EQ(locale.languageCode(), "") << text;
    EXPECT_FALSE(locale.isRightToLeft()) << text;
    EXPECT_EQ(locale.identifier(), text);
  }
}

TEST(Locale, KnowsTheLanguagesWrittenFromRightToLeft) {
  for (const char* identifier :
       {"ar", "ar_EG", "ara", "he", "he_IL", "iw", "fa_IR", "ur_PK", "yi", "az_Arab"}) {
    EXPECT_TRUE(Locale(identifier).isRightToLeft()) << identifier;
  }
  for (const char* identifier : {"en_US", "ja", "zh-Hans", "az_Latn", "xx_YY", "", "not a locale"}) {
    EXPECT_FALSE(Locale(identifier).isRightToLeft()) << identifier;
  }
}

TEST(Locale, KnowsWhereChineseIsWrittenInItsTraditionalForm) {
  for (const char* identifier :
       {"zh_TW", "zh_HK", "zh_MO", "zh-Hant", "zh_hant", "zh_Hant_CN", "en_HK", "zh_MO@calendar=roc"}) {
    EXPECT_TRUE(Locale(identifier).writesTraditionalChinese()) << identifier;
  }
  for (const char* identifier :
       {"zh", "zh_CN", "zh_SG", "zh-Hans", "zh_Hans_HK", "zh_CN@x=TW", "ja_JP", ""}) {
    EXPECT_FALSE(Locale(identifier).writesTraditionalChinese()) << identifier;
  }
}

TEST(Locale, KnowsHowClocksAreReadThere) {
  for (const char* identifier :
       {"de_DE", "fi_FI", "en_GB", "ja_JP", "zh-Hans", "he", "th_TH", "fa_IR", "fr_CA"}) {
    EXPECT_TRUE(Locale(identifier).uses24HourClock()) << identifier;
  }
  for (const char* identifier : {"en_US", "ar_EG", "ara", "hi_IN", "en_AU", "ko_KR"}) {
    EXPECT_FALSE(Locale(identifier).uses24HourClock()) << identifier;
  }
}

TEST(Locale, AnOverrideOfTheClockHabitStands) {
  const Locale us("en_US");
  const Locale overridden = us.withHourCycle(Locale::HourCycle::h24);
  EXPECT_TRUE(overridden.uses24HourClock());
  EXPECT_FALSE(Locale("de_DE").withHourCycle(Locale::HourCycle::h12).uses24HourClock());
  EXPECT_EQ(overridden.identifier(), "en_US");
  EXPECT_EQ(overridden.hourCycle(), Locale::HourCycle::h24);
  EXPECT_EQ(us.hourCycle(), std::nullopt);
  EXPECT_NE(overridden, us);
}

TEST(Locale, TheCurrentLocaleIsPutBackAtTheEndOfAScope) {
  const ScopedLocale german("de_DE");
  {
    const ScopedLocale arabic("ar_EG");
    EXPECT_EQ(Locale::current(), Locale("ar_EG"));
  }
  EXPECT_EQ(Locale::current(), Locale("de_DE"));
}

TEST(Locale, WithoutAChoiceTheEnvironmentNamesTheCurrentLocale) {
  using Value = std::optional<std::string>;
  struct Case {
    Value all, time, lang;
    const char* identifier;
  };
  const Case cases[] = {
      {{}, {}, "de_DE.UTF-8", "de_DE"},
      {{}, {}, "ca_ES@valencia", "ca_ES"},
      {{}, "fi_FI.UTF-8", "de_DE.UTF-8", "fi_FI"},
      {"ar_EG", "fi_FI.UTF-8", "de_DE.UTF-8", "ar_EG"},
      {"", "", "sr_Latn_RS", "sr_Latn_RS"},
      {{}, {}, "fil_PH.UTF-8", "fil_PH"},
      {{}, {}, {}, "en_US"},
      {{}, {}, "C", "en_US"},
      {{}, {}, "C.UTF-8", "en_US"},
      {{}, {}, "POSIX", "en_US"},
      {"C", {}, "de_DE.UTF-8", "en_US"},
      {{}, {}, "nonsense", "en_US"},
      {{}, {}, "d1_DE", "en_US"},
      {{}, {}, "de_", "en_US"},
      {{}, {}, "../../etc", "en_US"},
  };
  Locale::setCurrent(std::nullopt);
  for (const Case& c : cases) {
    const ScopedEnvironment all("LC_ALL", c.all), time("LC_TIME", c.time), lang("LANG", c.lang);
    EXPECT_EQ(Locale::current().identifier(), c.identifier);
  }
}

TEST(LocalePlurals, AreThoseOfTheLanguage) {
  const auto category = [](const char* locale, std::int64_t count) {
    return Locale(locale).pluralCategory(count);
  };
  EXPECT_EQ(category("en_US", 1), "one");
  EXPECT_EQ(category("en_US", 0), "other");
  EXPECT_EQ(category("fr_FR", 0), "one");
  EXPECT_EQ(category("pl_PL", 22), "few");
  EXPECT_EQ(category("ru_RU", 12), "many");
  EXPECT_EQ(category("ar_EG", 2), "two");
  EXPECT_EQ(category("ja_JP", 1), "other");
  EXPECT_EQ(category("no locale", 1), "other");
  EXPECT_EQ(category("en_US", 1'000'000'000'000), "other");
}

TEST(LocaleWeek, BeginsAsCalendarsThereDo) {
  for (const char* identifier : {"en_US", "pt_BR", "he_IL", "ja_JP", "hi_IN", "ko_KR"})
    EXPECT_EQ(Locale(identifier).firstWeekday(), 1) << identifier;
  for (const char* identifier : {"de_DE", "en_GB", "fr_FR", "fi_FI", "ru_RU", "tr_TR", "de", "xx_XX"})
    EXPECT_EQ(Locale(identifier).firstWeekday(), 2) << identifier;
  EXPECT_EQ(Locale("ar_EG").firstWeekday(), 7);
}

}  // namespace
}  // namespace velmora
