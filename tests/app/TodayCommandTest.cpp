#include "AppTest.h"

namespace velmora::app {
namespace {

using TodayCommandTest = AppTest;

TEST_F(TodayCommandTest, AnswersWhereNoCommandIsNamed) {
  EXPECT_EQ(answer({}), answer({"today"}));
  EXPECT_EQ(answer({"--city", "Oslo"}), answer({"today", "--city", "Oslo"}));
  EXPECT_EQ(answer({"--city", "Oslo", "today"}), answer({"today", "--city", "Oslo"}));
}

TEST_F(TodayCommandTest, IsTheDayAtThePlace) {
  EXPECT_EQ(answer({"--24h"}),
            "San Francisco, CA\n"
            "37.7855° N, 122.3918° W, America/Los_Angeles\n"
            "Thursday 20 June 2024, 05:00 (GMT-07:00)\n"
            "\n"
            "      Rise   Set    Now\n"
            "Sun   05:48  20:35  8.6° below the horizon, NE\n"
            "Moon  19:56  04:13  7.5° below the horizon, WSW\n"
            "\n"
            "Daylight          14h 47m\n"
            "Twilight (civil)  from 05:17 to 21:06\n");
}

TEST_F(TodayCommandTest, FollowsTheClockOfTheLocale) {
  EXPECT_NE(answer({}).find("05:48 AM"), std::string::npos);
  EXPECT_NE(answer({"--locale", "fi_FI"}).find("20:35"), std::string::npos);
  EXPECT_NE(answer({"--locale", "fi_FI", "--12h"}).find("08:35 PM"), std::string::npos);
}

TEST_F(TodayCommandTest, IsMadeOfRiseSetAndPositions) {
  const Json today = json({"today", "--city", "Oslo"});
  Json sun = json({"position", "--city", "Oslo", "--body", "sun"}),
       moon = json({"position", "--city", "Oslo"});
  sun.erase("body");
  moon.erase("body");
  EXPECT_EQ(today["date"], "2024-06-20");
  EXPECT_EQ(today["instant"], "2024-06-20T12:00:00Z");
  EXPECT_EQ(today["riseSet"], json({"riseset", "--city", "Oslo"})[0]);
  EXPECT_EQ(today["sun"], sun);
  EXPECT_EQ(today["moon"], moon);
}

TEST_F(TodayCommandTest, OfAnotherDateIsItsNoon) {
  const Json day = json({"today", "--date", "2024-01-15"});
  EXPECT_EQ(day["date"], "2024-01-15");
  EXPECT_EQ(day["instant"], "2024-01-15T20:00:00Z");
}

TEST_F(TodayCommandTest, PolarNightReadsAsSuch) {
  const std::string text = answer({"--city", "Longyearbyen", "--date", "2024-12-21", "--24h"});
  EXPECT_NE(text.find("\nSun   down all day"), std::string::npos) << text;
  EXPECT_NE(text.find("\nDaylight          0h 00m\n"), std::string::npos) << text;
  EXPECT_NE(text.find("neither begins nor ends"), std::string::npos) << text;
}

TEST_F(TodayCommandTest, AtThePoleEveryColumnStandsApart) {
  const std::string text = answer({"--lat", "90", "--lon", "0", "--date", "2024-12-21", "--24h"});
  EXPECT_NE(text.find("      Rise  Set     Then\nSun   down all day  23.4° below the horizon"),
            std::string::npos)
      << text;
}

TEST_F(TodayCommandTest, MidnightIsTwelveOnTheTwelveHourClock) {
  const std::string text = answer({"--city", "Helsinki", "--date", "2024-06-21", "--12h"});
  EXPECT_NE(text.find("to 12:42 AM next day"), std::string::npos) << text;
}

TEST_F(TodayCommandTest, HeadingsAreBoldOnlyOnDemandOrOnATerminal) {
  EXPECT_EQ(answer({}).find('\033'), std::string::npos);
  EXPECT_EQ(answer({"--color", "auto"}).find('\033'), std::string::npos);
  EXPECT_EQ(answer({"--color", "never"}).find('\033'), std::string::npos);
  EXPECT_NE(answer({"--color", "always"}).find("\033[1m"), std::string::npos);
}

TEST_F(TodayCommandTest, FitsThePage) {
  for (const char* city : {"Longyearbyen", "America/North_Dakota/New_Salem", "Buenos Aires"}) {
    for (const char* date : {"2024-06-21", "2024-12-21", "2024-09-21"}) {
      for (const std::string& line :
           linesOf(answer({"--city", city, "--date", date, "--12h", "--twilight", "astronomical"})))
        EXPECT_LE(charactersOf(line), 80U) << line;
    }
  }
}

}  // namespace
}  // namespace velmora::app
