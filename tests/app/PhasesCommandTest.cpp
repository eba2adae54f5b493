#include <app/text/DisplayWidth.h>
#include <velmora/platform/resources/Bundle.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

class PhasesCommandTest : public AppTest {
 protected:
  static Json phases(const char* from, const char* to, std::vector<std::string> more = {}) {
    std::vector<std::string> arguments = {"phases", "--from", from, "--to", to};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return json(arguments);
  }

  static std::vector<std::string> instants(const Json& events) {
    std::vector<std::string> list;
    for (const Json& event : events) list.push_back(event["localDate"]);
    return list;
  }
};

TEST_F(PhasesCommandTest, GoesAcrossTheEndOfTheYear) {
  const Json found = phases("2024-12-29", "2025-01-07", {"--tz", "Asia/Tokyo", "--24h"});
  ASSERT_EQ(found.size(), 2U);
  Json newMoon = found[0], quarter = found[1];
  EXPECT_NEAR(secondsBetween(newMoon["localDate"], "2024-12-30T22:26:48Z"), 0, 2);
  EXPECT_NEAR(secondsBetween(quarter["localDate"], "2025-01-06T23:56:18Z"), 0, 2);
  newMoon.erase("localDate");
  quarter.erase("localDate");
  EXPECT_EQ(newMoon, jsonFromText(R"({"day": 31, "month": 12, "year": 2024, "phase": 3,
                                     "phaseName": "New Moon", "time": "07:27"})"));
  EXPECT_EQ(quarter, jsonFromText(R"({"day": 7, "month": 1, "year": 2025, "phase": 1,
                                     "phaseName": "First Quarter", "time": "08:56"})"));
}

TEST_F(PhasesCommandTest, BeginsAtMidnightOfThePlaceAndEndsWithTheLastDay) {
  // Full moon on 2024-03-25 07:00 UTC, 00:00 in Los Angeles.
  const std::vector<std::string> place = {"--city", "Los Angeles"};
  EXPECT_EQ(phases("2024-03-25", "2024-03-25", place).size(), 1U);
  EXPECT_EQ(phases("2024-03-24", "2024-03-24", place).size(), 0U);
  EXPECT_EQ(phases("2024-03-26", "2024-03-30", place).size(), 0U);
  // New moon on 2024-12-30 22:27 UTC, 23:57 in a zone an hour and a half ahead.
  EXPECT_EQ(phases("2024-12-30", "2024-12-30", {"--gmt-offset", "5400"}).size(), 1U);
  EXPECT_EQ(phases("2024-12-31", "2024-12-31", {"--gmt-offset", "5700"}).size(), 1U);
}

TEST_F(PhasesCommandTest, TwoCenturiesAreKnown) {
  const auto first = instants(phases("1900-01-01", "1900-01-03", {"--tz", "UTC"}));
  ASSERT_EQ(first.size(), 1U);
  EXPECT_NEAR(secondsBetween(first[0], "1900-01-01T13:51:59Z"), 0, 2);
  EXPECT_EQ(phases("2100-12-01", "2100-12-31", {"--tz", "UTC"}).size(), 5U);
}

TEST_F(PhasesCommandTest, OfYearsAfter2030ItSaysWhatIsNotKnown) {
  EXPECT_NE(answer({"phases", "--from", "2031-01-01", "--to", "2031-02-01"}).find("\nOf years after 2030 "),
            std::string::npos);
  EXPECT_EQ(answer({"phases", "--from", "2030-11-01", "--to", "2030-12-01"}).find("2030 the leap"),
            std::string::npos);
}

TEST_F(PhasesCommandTest, AsATableOfValues) {
  const auto lines =
      linesOf(answer({"phases", "--from", "2024-12-29", "--to", "2024-12-31", "--tz", "UTC", "--csv"}));
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], "day,month,year,phase,phaseName,localDate\r");
  EXPECT_EQ(lines[1].substr(0, 39), "30,12,2024,3,New Moon,2024-12-30T22:26:");
}

TEST_F(PhasesCommandTest, EveryEventIsListedOnceInEveryZone) {
  const auto universal = instants(phases("2000-01-01", "2040-12-31", {"--tz", "UTC"}));
  EXPECT_EQ(universal.size(), 2028U);
  EXPECT_TRUE(std::is_sorted(universal.begin(), universal.end()));
  for (const char* zone : {"Pacific/Pago_Pago", "America/Los_Angeles", "America/St_Johns", "Asia/Kathmandu",
                           "Pacific/Chatham", "Pacific/Apia", "Pacific/Kiritimati"})
    EXPECT_EQ(instants(phases("2000-01-01", "2040-12-31", {"--tz", zone})), universal) << zone;
}

TEST_F(PhasesCommandTest, OfOnePhaseAreTheEventsOfThatPhase) {
  const Json all = phases("2023-11-15", "2025-02-15");
  const std::vector<std::pair<const char*, int>> kinds = {{"full", 0}, {"first", 1}, {"last", 2}, {"new", 3}};
  std::size_t count = 0;
  for (const auto& [kind, phase] : kinds) {
    Json expected = Json::array();
    for (const Json& event : all)
      if (event["phase"] == phase) expected.push_back(event);
    EXPECT_EQ(phases("2023-11-15", "2025-02-15", {"--phase", kind}), expected) << kind;
    count += expected.size();
  }
  EXPECT_EQ(count, all.size());
}

TEST_F(PhasesCommandTest, OfADayThatThePlaceSkippedAreNone) {
  EXPECT_EQ(phases("2011-12-30", "2011-12-30", {"--city", "Apia"}), Json::array());
}

TEST_F(PhasesCommandTest, ReadsWithWeekdayDateAndTime) {
  const auto lines =
      linesOf(answer({"phases", "--from", "2024-12-25", "--to", "2025-01-10", "--city", "Sydney", "--24h"}));
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[3], "    Time                  Phase");
  EXPECT_EQ(lines[4], "🌑  Tue 2024-12-31 09:27  New Moon");
  EXPECT_EQ(lines[5], "🌗  Tue 2025-01-07 10:56  First Quarter");
}

TEST_F(PhasesCommandTest, SaysSoWhereThereIsNone) {
  const std::string text = answer({"phases", "--from", "2024-03-26", "--to", "2024-03-27"});
  EXPECT_TRUE(text.ends_with("\nNone in this range.\n")) << text;
}

TEST_F(PhasesCommandTest, WithoutTheTablesThereIsNoAnswer) {
  const ScopedLibraryBundle empty("/nowhere");
  for (const std::vector<std::string>& question :
       {std::vector<std::string>{"month", "2024-03"}, {"year", "2024"}}) {
    const Outcome outcome = runProgram(question);
    EXPECT_EQ(outcome.status, 1) << question.front();
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              "velmora: the phase table of 2024 cannot be read from '/nowhere/Data/2024.plist'\n");
  }
}

TEST_F(PhasesCommandTest, PhasesOfEveryLanguageFitThePage) {
  const std::vector<std::vector<std::string>> questions = {
      {"month", "2024-03"},
      {"year", "2024"},
      {"phases", "--from", "2024-01-01", "--to", "2024-12-31"},
      {"next"}};
  for (const char* locale : {"en", "de", "fr", "es", "it", "pt", "nl", "pl", "tr", "ru", "ar", "he", "hi",
                             "ja", "ko", "zh-Hans", "zh-Hant"}) {
    for (auto question : questions) {
      question.insert(question.end(),
                      {"--locale", locale, "--12h", "--city", "America/North_Dakota/New_Salem"});
      for (const std::string& line : linesOf(answer(question)))
        EXPECT_LE(displayWidth(line), 80U) << locale << " " << line;
    }
  }
}

}  // namespace
}  // namespace velmora::app
