// The string tables "Almanac": complete in every language, with the same places to fill and all plural forms.

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>

#include <tests/resources/StringTables.h>
#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

Texts wordsOf(const std::string& language) { return textsOf(libraryFolder(), language, "Almanac"); }

bool isPluralForm(const std::string& key) { return key.ends_with(']'); }

std::string withoutForm(const std::string& key) { return key.substr(0, key.rfind(" [")); }

std::set<std::string> wholeKeysOf(const Texts& texts) {
  std::set<std::string> keys = keysOf(texts);
  std::erase_if(keys, isPluralForm);
  return keys;
}

/// The texts that count something.
std::set<std::string> countedKeys() {
  std::set<std::string> keys;
  for (const auto& [key, text] : wordsOf("en"))
    if (isPluralForm(key)) keys.insert(withoutForm(key));
  return keys;
}

/// The plural forms of a language but "other", of all counts that an almanac has.
std::set<std::string> formsOf(const std::string& language) {
  std::set<std::string> forms;
  for (std::int64_t count = 0; count <= 1000; ++count) forms.insert(Locale(language).pluralCategory(count));
  forms.erase("other");
  return forms;
}

/// %1, %2 … in order; a percent sign alone is none.
std::multiset<std::string> placesOf(const std::string& text) {
  static const std::regex place("%[1-9]");
  const std::sregex_token_iterator first(text.begin(), text.end(), place), last;
  return {first, last};
}

TEST(AlmanacWords, AreTheSameInEveryLanguage) {
  const std::set<std::string> english = wholeKeysOf(wordsOf("en"));
  EXPECT_GT(english.size(), 100U);
  for (const auto& [language, script] : kLanguages)
    EXPECT_EQ(wholeKeysOf(wordsOf(language)), english) << language;
}

TEST(AlmanacWords, ThatCountHaveEveryPluralFormOfTheirLanguage) {
  for (const auto& [language, script] : kLanguages) {
    std::set<std::string> expected, found;
    for (const std::string& key : countedKeys())
      for (const std::string& form : formsOf(language)) expected.insert(key + " [" + form + "]");
    for (const auto& [key, text] : wordsOf(language))
      if (isPluralForm(key)) found.insert(key);
    EXPECT_EQ(found, expected) << language;
  }
}

TEST(AlmanacWords, KeepThePlacesOfTheirKeys) {
  for (const auto& [language, script] : kLanguages)
    for (const auto& [key, text] : wordsOf(language)) {
      if (isPluralForm(key)) continue;  // "in two days" needs no number
      EXPECT_EQ(placesOf(text), placesOf(key)) << language << ": " << text;
    }
}

TEST(AlmanacWords, OfEnglishAreTheirKeys) {
  for (const auto& [key, text] : wordsOf("en")) EXPECT_TRUE(text == key || isPluralForm(key)) << key;
}

TEST(AlmanacWords, AreWrittenInTheScriptOfTheirLanguage) {
  const std::string command = "velmora place";
  for (const auto& [language, script] : kLanguages)
    for (const auto& [key, text] : wordsOf(language)) {
      const std::string own = std::regex_replace(text, std::regex(command), "");
      for (const char32_t c : charactersOf(own))
        EXPECT_TRUE(isLetterOf(script, c) || !isLetterOfAnyScript(c)) << language << ": " << text;
      EXPECT_FALSE(text.empty() || text.front() == ' ' || text.back() == ' ') << language << ": " << key;
    }
}

TEST(AlmanacWords, OfEachLanguageDiffer) {
  for (const auto& [language, script] : kLanguages) {
    std::set<std::string> points;
    for (const char* point :
         {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE", "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"})
      EXPECT_TRUE(points.insert(wordsOf(language).at(point)).second) << language << ": " << point;
  }
}

TEST(Words, FillTheirPlacesInAnyOrder) {
  const ScopedLocale english("en_US");
  EXPECT_EQ(words("%2 of %1 is 100%", {"A", "B"}), "B of A is 100%");
  EXPECT_EQ(words("%1%3", {"A"}), "A%3");
  EXPECT_EQ(words("no such text"), "no such text");
}

TEST(Words, AreInTheLanguageOfTheCurrentLocale) {
  const auto twilight = [](const std::string& locale) {
    const ScopedLocale current(locale);
    return words("Twilight (civil)");
  };
  EXPECT_EQ(twilight("de_AT"), "Dämmerung (bürgerlich)");
  EXPECT_EQ(twilight("zh_TW"), "曙暮光（民用）");
  EXPECT_EQ(twilight("fi_FI"), "Twilight (civil)");
}

TEST(Words, OfALanguageWithoutThemAreEnglishAndSoAreTheirDates) {
  const auto localeFor = [](const std::string& locale) {
    const ScopedLocale current(locale);
    return localeOfWords().identifier();
  };
  EXPECT_EQ(localeFor("de_AT"), "de_AT");
  EXPECT_EQ(localeFor("en_GB"), "en_GB");
  EXPECT_EQ(localeFor("zh_HK"), "zh_HK");
  EXPECT_EQ(localeFor("fi_FI"), "en_US");
  EXPECT_EQ(localeFor("no locale"), "en_US");
}

TEST(Words, OfACountAreInItsPluralForm) {
  const auto inDays = [](const std::string& locale, std::int64_t count) {
    const ScopedLocale current(locale);
    return wordsForCount("in %1 days", count);
  };
  EXPECT_EQ(inDays("en_US", 1), "in 1 day");
  EXPECT_EQ(inDays("en_US", 3), "in 3 days");
  EXPECT_EQ(inDays("ru_RU", 1), "через 1 день");
  EXPECT_EQ(inDays("ru_RU", 22), "через 22 дня");
  EXPECT_EQ(inDays("ru_RU", 11), "через 11 дней");
  EXPECT_EQ(inDays("pl_PL", 5), "za 5 dni");
  EXPECT_EQ(inDays("ar_EG", 2), "خلال يومين");
  EXPECT_EQ(inDays("ar_EG", 7), "خلال 7 أيام");
  EXPECT_EQ(inDays("ja_JP", 7), "7日後");
  EXPECT_EQ(inDays("cs_CZ", 3), "in 3 days");
}

}  // namespace
}  // namespace velmora
