#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <tests/resources/StringTables.h>
#include <tests/resources/WritingScripts.h>
#include <tests/support/SourceDirectory.h>

namespace velmora {
namespace {

const std::filesystem::path host = sourceDirectory() + "/app/resources";

const std::set<std::string> phaseNames = {"Full Moon",      "First Quarter",   "Last Quarter",
                                          "New Moon",       "Waxing Crescent", "Waxing Gibbous",
                                          "Waning Gibbous", "Waning Crescent"};
const std::set<std::string> eclipseTitles = {
    "Total Lunar Eclipse",   "Partial Lunar Eclipse", "Penumbra Lunar Eclipse", "Total Solar Eclipse",
    "Partial Solar Eclipse", "Annular Solar Eclipse", "Hybrid Solar Eclipse"};
const std::set<std::string> upperCaseTexts = {"FULL MOON", "NEW MOON", "ELEVATION: %@", "TIME"};
const std::set<std::string> otherViewTexts = {
    "at", "Full Moon - Year Calendar (%@)", "New Moon - Year Calendar (%@)", "Tap to select date", "Select"};
const std::set<std::string> spokenTexts = {
    "moonrise %@",    "moonset %@",       "sunrise %@",           "sunset %@",           "%@ the next day",
    "Sun up all day", "Sun down all day", "Moon up all day",      "Moon down all day",   "Compass",
    "Moon",           "%@ at the top",    "%@ above the horizon", "%@ below the horizon"};
const std::set<std::string> directions = {"north", "northeast", "east", "southeast",
                                          "south", "southwest", "west", "northwest"};

std::set<std::string> united(std::initializer_list<std::set<std::string>> sets) {
  std::set<std::string> all;
  for (const std::set<std::string>& set : sets) all.insert(set.begin(), set.end());
  return all;
}

const std::set<std::string> libraryKeys =
    united({phaseNames, eclipseTitles, upperCaseTexts, otherViewTexts, spokenTexts, directions});

std::set<std::string> languagesIn(const std::filesystem::path& bundle) {
  std::set<std::string> languages;
  for (const auto& entry : std::filesystem::directory_iterator(bundle)) {
    if (entry.path().extension() == ".lproj") languages.insert(entry.path().stem().string());
  }
  return languages;
}

/// Calls check(language, key, text) for every text of both bundles.
template <class Check>
void forEachText(const Check& check) {
  for (const std::filesystem::path& bundle : {libraryFolder(), host}) {
    for (const auto& [language, script] : kLanguages) {
      for (const auto& [key, text] : textsOf(bundle, language)) {
        SCOPED_TRACE(language + ": " + key + ": " + text);
        check(language, key, text);
      }
    }
  }
}

bool hasAnyOf(const std::string& text, std::u32string_view characters) {
  return charactersOf(text).find_first_of(characters) != std::u32string::npos;
}

TEST(Translations, BothBundlesSpeakTheSameLanguages) {
  std::set<std::string> languages;
  for (const auto& [language, script] : kLanguages) languages.insert(language);
  EXPECT_EQ(languagesIn(libraryFolder()), languages);
  EXPECT_EQ(languagesIn(host), languages);
}

TEST(Translations, EveryLanguageIsComplete) {
  for (const auto& [language, script] : kLanguages) {
    EXPECT_EQ(keysOf(textsOf(libraryFolder(), language)), libraryKeys) << language;
    EXPECT_EQ(keysOf(textsOf(host, language)), phaseNames) << language;
  }
}

TEST(Translations, EnglishTextsAreTheirKeysAndNoOtherLanguageLeavesOneInEnglish) {
  forEachText([](const std::string& language, const std::string& key, const std::string& text) {
    EXPECT_EQ(text == key, language == "en");
  });
}

TEST(Translations, TextsKeepThePlaceholdersOfTheirKeys) {
  forEachText([](const std::string&, const std::string& key, const std::string& text) {
    EXPECT_EQ(placeholdersOf(text), placeholdersOf(key));
  });
}

TEST(Translations, NoTextBeginsOrEndsWithABlank) {
  forEachText([](const std::string&, const std::string&, const std::string& text) {
    ASSERT_FALSE(text.empty());
    EXPECT_NE(text.front(), ' ');
    EXPECT_NE(text.back(), ' ');
  });
}

TEST(Translations, TextsAreWrittenInTheScriptOfTheirLanguageAlone) {
  forEachText([](const std::string& language, const std::string&, const std::string& text) {
    const Script script = kLanguages.at(language);
    const std::u32string characters = charactersOf(text);
    const auto isOwnLetter = [script](char32_t c) { return isLetterOf(script, c); };
    EXPECT_TRUE(std::any_of(characters.begin(), characters.end(), isOwnLetter));
    EXPECT_TRUE(std::all_of(characters.begin(), characters.end(),
                            [&](char32_t c) { return isOwnLetter(c) || !isLetterOfAnyScript(c); }));
  });
}

TEST(Translations, SimplifiedAndTraditionalCharactersDoNotMix) {
  forEachText([](const std::string& language, const std::string&, const std::string& text) {
    const bool isTraditional = language == "zh-Hant";
    if (language != "zh-Hans" && !isTraditional) return;
    EXPECT_FALSE(hasAnyOf(text, isTraditional ? U"满亏残环历于时间选择轻点" : U"滿虧殘環曆於時間選擇點"));
  });
}

TEST(Translations, UpperCaseTextsAreInUpperCaseInEveryLanguage) {
  forEachText([](const std::string&, const std::string& key, const std::string& text) {
    if (upperCaseTexts.count(key) == 0) return;
    const std::u32string characters = charactersOf(text);
    EXPECT_TRUE(std::none_of(characters.begin(), characters.end(), isLowerCaseLetter));
  });
}

TEST(Translations, TurkishCapitalIKeepsItsDot) {
  EXPECT_EQ(textsOf(libraryFolder(), "tr")["NEW MOON"], "YENİ AY");
  EXPECT_EQ(textsOf(host, "tr")["First Quarter"], "İlk Dördün");
}

TEST(Translations, NoTwoPhasesEclipsesSpokenTextsAndDirectionsAreTheSame) {
  for (const auto& [language, script] : kLanguages) {
    const Texts texts = textsOf(libraryFolder(), language);
    std::set<std::string> names;
    for (const std::string& key : united({phaseNames, eclipseTitles, spokenTexts, directions})) {
      EXPECT_TRUE(names.insert(texts.at(key)).second) << language << ": " << texts.at(key);
    }
  }
}

TEST(Translations, TheHostNamesThePhasesAsTheLibraryDoes) {
  for (const auto& [language, script] : kLanguages) {
    const Texts library = textsOf(libraryFolder(), language);
    for (const auto& [name, text] : textsOf(host, language)) EXPECT_EQ(text, library.at(name)) << language;
  }
}

TEST(Translations, TheYearTitlesNameTheirPhase) {
  for (const auto& [language, script] : kLanguages) {
    Texts texts = textsOf(libraryFolder(), language);
    for (const std::string phase : {"Full Moon", "New Moon"}) {
      EXPECT_EQ(texts[phase + " - Year Calendar (%@)"].find(texts[phase]), 0U) << language;
    }
  }
}

TEST(Translations, APhaseItsTimeAndTheWordBetweenReadAsOneLine) {
  const auto line = [](const std::string& language, const std::string& time) {
    Texts texts = textsOf(libraryFolder(), language);
    return texts["FULL MOON"] + " " + texts["at"] + " " + time;
  };
  EXPECT_EQ(line("en", "5:30 PM"), "FULL MOON at 5:30 PM");
  EXPECT_EQ(line("de", "17:30"), "VOLLMOND um 17:30");
  EXPECT_EQ(line("fr", "17:30"), "PLEINE LUNE à 17:30");
  EXPECT_EQ(line("ru", "17:30"), "ПОЛНОЛУНИЕ в 17:30");
  EXPECT_EQ(line("hi", "5:30 pm"), "पूर्णिमा समय: 5:30 pm");
  EXPECT_EQ(line("zh-Hans", "17:30"), "满月 于 17:30");
}

}  // namespace
}  // namespace velmora
