#include <algorithm>
#include <regex>
#include <set>

#include <app/request/Command.h>
#include <app/text/PhaseText.h>

#include "PictureTesting.h"
#include "tests/support/SourceDirectory.h"

namespace velmora::app {
namespace {

using Names = std::vector<std::string>;

/// What docs/json.md says of the answers against the answers.
class JsonPageTest : public PictureTest {
 protected:
  static std::string page() { return bytesOf(sourceDirectory() + "/docs/json.md"); }

  /// Requests to every command, in which every field appears.
  Names requests() const {
    return {
        R"({"op": "today", "city": "Chicago", "date": "2024-04-08"})",
        R"({"op": "month", "month": "2024-06"})",
        R"({"op": "year", "year": 2024})",
        R"({"op": "phases", "from": "2024-06-01", "to": "2024-06-30"})",
        R"({"op": "next"})",
        R"({"op": "riseset", "from": "2024-06-20", "to": "2024-06-21"})",
        R"({"op": "position"})",
        R"({"op": "position", "body": "sun"})",
        R"({"op": "track"})",
        R"({"op": "track", "body": "sun"})",
        R"({"op": "elevation", "degrees": 0})",
        R"({"op": "elevation", "degrees": 0, "body": "sun"})",
        R"({"op": "eclipse", "city": "Chicago", "date": "2024-04-08"})",
        R"({"op": "eclipses", "year": 2013})",
        R"({"op": "eclipses", "year": 2022})",
        R"({"op": "draw", "view": "disc", "output": ")" + path("disc.svg") + R"("})",
        R"({"op": "ics", "from": "2024-06-01", "to": "2024-06-30"})",
        R"({"op": "today", "lat": 91, "lon": 0})",
    };
  }

  static Names answersTo(const Names& requests, Names options = {}) {
    std::string lines;
    for (const std::string& request : requests) lines += request + "\n";
    options.insert(options.begin(), "batch");
    const Outcome outcome = runProgram(options, lines);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    return linesOf(outcome.out);
  }

  std::set<Names> objects() const {
    std::set<Names> objects;
    for (const std::string& answer : answersTo(requests(), {"--pictures", folder().path().string()}))
      collect(jsonFromText(answer), objects);
    collect(json({"place"}), objects);
    collect(json({"place", "--forget"}), objects);
    return objects;
  }

  /// The fields of each of the page's tables that has fields.
  static std::vector<Names> tables() {
    std::vector<Names> tables;
    bool isInside = false;
    for (const std::string& line : linesOf(page())) {
      const bool begins = line.starts_with("| Field |");
      if (begins) tables.emplace_back();
      isInside = begins || (isInside && line.starts_with("|"));
      if (isInside) addFields(line, tables.back());
    }
    return tables;
  }

  /// Whether each of the object's fields has its row, in their order.
  static bool describes(const Names& table, const Names& object) {
    auto row = table.begin();
    for (const std::string& field : object) {
      row = std::find(row, table.end(), field);
      if (row == table.end()) return false;
    }
    return true;
  }

  /// Whether the page has a row that begins so.
  static bool hasRow(const std::string& begin) { return page().find("\n" + begin) != std::string::npos; }

 private:
  /// The names of the fields of each object within the value.
  static void collect(const Json& value, std::set<Names>& objects) {
    if (!value.is_structured()) return;
    Names fields;
    for (const auto& [name, member] : value.items()) {
      fields.push_back(name);
      collect(member, objects);
    }
    if (value.is_object()) objects.insert(fields);
  }

  /// What stands in backticks in the row's first column.
  static void addFields(const std::string& row, Names& fields) {
    static const std::regex inBackticks("`([^`]+)`");
    const std::string column = row.substr(1, row.find('|', 1) - 1);
    for (std::sregex_iterator found(column.begin(), column.end(), inBackticks), end; found != end; ++found)
      fields.push_back((*found)[1]);
  }
};

TEST_F(JsonPageTest, EveryCommandThatAnswersInJsonHasAHeadingAndIsAskedHere) {
  std::set<std::string> asked;
  for (const std::string& request : requests()) asked.insert(jsonFromText(request)["op"]);
  for (const Command& command : allCommands()) {
    if (!command.isForBatch) continue;
    const std::string name(command.name);
    EXPECT_TRUE(asked.count(name)) << name;
    EXPECT_TRUE(std::regex_search(page(), std::regex("\n### [^\n]*`" + name + "`"))) << name;
  }
}

TEST_F(JsonPageTest, EveryObjectOfTheAnswersIsATableOfThePage) {
  const auto known = tables();
  for (const Names& object : objects()) {
    EXPECT_TRUE(
        std::any_of(known.begin(), known.end(), [&](const Names& table) { return describes(table, object); }))
        << "no table has all of " << ::testing::PrintToString(object);
  }
}

TEST_F(JsonPageTest, EveryFieldOfItsTablesStandsInAnAnswer) {
  const auto answered = objects();
  for (const Names& table : tables()) {
    std::set<std::string> missing(table.begin(), table.end());
    for (const Names& object : answered) {
      if (!describes(table, object)) continue;
      for (const std::string& field : object) missing.erase(field);
    }
    EXPECT_EQ(missing, std::set<std::string>()) << "of " << ::testing::PrintToString(table);
  }
}

TEST_F(JsonPageTest, EveryPhaseHasItsNumberAndName) {
  for (const char number : std::string("01234567"))
    EXPECT_TRUE(hasRow(std::string("| `") + number + "` | " + phaseName(number - '0') + " |")) << number;
}

TEST_F(JsonPageTest, EveryKindOfEclipseHasItsTitle) {
  std::set<std::string> kinds;
  for (int year = 2000; year <= 2040; ++year) {
    for (const Json& eclipse : json({"eclipses", std::to_string(year)})) {
      const std::string kind = eclipse["key"];
      if (kinds.insert(kind).second) {
        EXPECT_TRUE(hasRow("| `" + kind + "` | " + eclipse["title"].get<std::string>() + " |")) << kind;
      }
    }
  }
  EXPECT_EQ(kinds, (std::set<std::string>{"ASE", "HSE", "NLE", "PLE", "PSE", "TLE", "TSE"}));
}

TEST_F(JsonPageTest, EveryMarkOfAClockTextHasItsRow) {
  const std::string time = "00:42";
  std::set<std::string> marked;
  for (const char* city : {"Helsinki", "Resolute"}) {
    for (const Json& day :
         json({"riseset", "--city", city, "--from", "2024-05-01", "--to", "2024-06-30", "--24h"})) {
      for (const auto& [name, value] : day.items()) {
        if (!name.ends_with("Text")) continue;
        marked.insert(std::regex_replace(value.get<std::string>(), std::regex("^[0-9:]+"), time));
      }
    }
  }
  EXPECT_EQ(marked, (std::set<std::string>{time, time + " **", "--:--", "--"}));
  marked.erase(time);
  for (const std::string& mark : marked) EXPECT_TRUE(hasRow("| `" + mark + "` | ")) << mark;
}

TEST_F(JsonPageTest, TheRequestsThatItShowsHaveTheAnswersThatItShows) {
  Names requests, answers;
  for (const std::string& line : linesOf(page())) {
    if (line.starts_with("    {"))
      (line.find("\"op\"") == std::string::npos ? answers : requests).push_back(line.substr(4));
  }
  EXPECT_EQ(requests.size(), 2U);
  EXPECT_EQ(answersTo(requests, {"--now", "2024-04-08T12:00:00Z"}), answers);
}

}  // namespace
}  // namespace velmora::app
