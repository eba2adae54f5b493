// Answers are wholly in the language of the locale: nothing of English is left in them but names.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include <tests/resources/StringTables.h>
#include <tests/support/SourceDirectory.h>

#include "tests/app/AppTest.h"

namespace velmora::app {
namespace {

class LanguageTest : public AppTest, public ::testing::WithParamInterface<const char*> {};

const std::vector<std::vector<std::string>> questions = {
    {"today"},
    {"today", "--twilight", "all"},
    {"month", "2024-04"},
    {"month", "2024-04", "--grid"},
    {"year", "2024"},
    {"phases", "--from", "2024-04-01", "--to", "2024-04-30"},
    {"next"},
    {"riseset", "--from", "2024-04-01", "--to", "2024-04-03"},
    {"riseset", "--date", "2024-04-01", "--twilight", "all", "--transit"},
    {"position", "--body", "moon"},
    {"track", "--body", "sun"},
    {"elevation", "10", "--body", "sun"},
    {"elevation", "89", "--body", "moon"},
    {"eclipse", "--date", "2024-04-08"},
    {"eclipse", "--date", "2024-04-09"},
    {"eclipses", "2024"},
    {"ics", "--from", "2024-04-01", "--to", "2024-04-30"},
};

/// Without what is the same in every language: the place, zones, units, halves of the day in Hindi, and what
/// programs read in a calendar file.
std::string withoutNames(const std::string& text) {
  static const std::regex names(
      R"(America/New_York|New York City|GMT|km|[0-9]+h [0-9.]+m|° [NSEW]|[ap]m\b|\\n|SUMMARY:|DESCRIPTION:|LOCATION:|)"
      R"((BEGIN|END|VERSION|PRODID|NAME|X-WR-CALNAME|UID|DTSTAMP|DTSTART|DTEND|TRANSP|CALSCALE)[:;].*)");
  return std::regex_replace(text, names, "");
}

TEST_P(LanguageTest, NothingIsLeftInEnglish) {
  for (std::vector<std::string> question : questions) {
    question.insert(question.end(), {"--city", "New York", "--locale", GetParam()});
    const std::string text = withoutNames(answer(question));
    EXPECT_FALSE(std::regex_search(text, std::regex("[A-Za-z]"))) << question[0] << "\n" << text;
  }
}

INSTANTIATE_TEST_SUITE_P(OtherScripts, LanguageTest,
                         ::testing::Values("ru_RU", "ar_EG", "he_IL", "hi_IN", "ja_JP", "ko_KR", "zh_CN",
                                           "zh_TW"));

class DataLanguageTest : public AppTest, public ::testing::WithParamInterface<const char*> {};

/// Without the values that docs/json.md leaves to the locale.
void eraseLocalTexts(Json& json) {
  if (json.is_object())
    for (const char* name : {"phaseName", "title", "time", "timeText"}) json.erase(name);
  for (Json& part : json)
    if (part.is_structured()) eraseLocalTexts(part);
}

std::vector<std::string> inLocale(std::vector<std::string> question, const char* locale, const char* form) {
  question.insert(question.end(), {"--city", "New York", "--24h", "--locale", locale, form});
  return question;
}

TEST_P(DataLanguageTest, JsonIsTheSameButForNamesAndClockTexts) {
  for (const std::vector<std::string>& question : questions) {
    if (question[0] == "ics" || question.back() == "--grid") continue;
    Json english = jsonFromText(answer(inLocale(question, "en_US", "--json")));
    Json other = jsonFromText(answer(inLocale(question, GetParam(), "--json")));
    eraseLocalTexts(english);
    eraseLocalTexts(other);
    EXPECT_EQ(english, other) << question[0];
  }
}

/// The rows without those of their values that are names.
std::string withoutNameColumns(const std::string& csv) {
  std::istringstream lines(csv);
  std::vector<std::string> headings;
  std::string kept;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream values(line);
    std::vector<std::string> cells;
    for (std::string value; std::getline(values, value, ',');) cells.push_back(value);
    if (headings.empty()) headings = cells;
    for (std::size_t i = 0; i < cells.size(); ++i)
      if (headings.at(i) != "phaseName" && headings[i] != "title") kept += cells[i] + ",";
    kept += "\n";
  }
  return kept;
}

TEST_P(DataLanguageTest, CsvIsTheSameButForNames) {
  const std::vector<std::vector<std::string>> tables = {
      {"phases", "--from", "2024-04-01", "--to", "2024-04-30"},
      {"riseset", "--from", "2024-04-01", "--to", "2024-04-03"},
      {"track", "--body", "moon"},
      {"elevation", "10", "--body", "sun"},
      {"eclipses", "2024"}};
  for (const std::vector<std::string>& question : tables) {
    const std::string english = answer(inLocale(question, "en_US", "--csv"));
    EXPECT_GT(std::count(english.begin(), english.end(), '\n'), 1) << question[0];
    EXPECT_EQ(withoutNameColumns(english),
              withoutNameColumns(answer(inLocale(question, GetParam(), "--csv"))));
  }
}

INSTANTIATE_TEST_SUITE_P(OtherHabits, DataLanguageTest,
                         ::testing::Values("de_DE", "ar_EG", "hi_IN", "zh_TW", "fa_IR"));

/// The literals that stand as first argument of `words` and `wordsForCount` in a source.
std::set<std::string> textsIn(const std::string& source) {
  static const std::regex call(R"re(\bwords(?:ForCount)?\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+))re");
  static const std::regex part(R"re("((?:[^"\\]|\\.)*)")re");
  std::set<std::string> texts;
  for (std::sregex_iterator found(source.begin(), source.end(), call), end; found != end; ++found) {
    const std::string literals = (*found)[1];
    std::string text;
    for (std::sregex_iterator one(literals.begin(), literals.end(), part); one != end; ++one)
      text += (*one)[1];
    texts.insert(text);
  }
  return texts;
}

std::string sources() {
  std::ostringstream all;
  for (const char* folder : {"/app", "/velmora"})
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sourceDirectory() + folder))
      if (entry.path().extension() == ".cpp") all << std::ifstream(entry.path()).rdbuf();
  return all.str();
}

TEST(WordsOfTheSources, StandInTheTables) {
  const std::set<std::string> known =
      keysOf(textsOf(sourceDirectory() + "/velmora/resources", "en", "Almanac"));
  const std::set<std::string> used = textsIn(sources());
  EXPECT_GT(used.size(), 60U);
  for (const std::string& text : used) EXPECT_TRUE(known.contains(text)) << text;
}

TEST(WordsOfTheSources, AreAllThatTheTablesHave) {
  const std::string source = std::regex_replace(sources(), std::regex("\"\\s*\""), "");
  for (const auto& [key, text] : textsOf(sourceDirectory() + "/velmora/resources", "en", "Almanac")) {
    const std::string whole = key.substr(0, key.rfind(" ["));
    EXPECT_NE(source.find('"' + whole + '"'), std::string::npos) << key;
  }
}

}  // namespace
}  // namespace velmora::app
