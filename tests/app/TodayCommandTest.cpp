#include <app/text/DisplayWidth.h>
#include <velmora/almanac/Positions.h>
#include <velmora/platform/resources/Bundle.h>

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
            "The default place; keep another with velmora place.\n"
            "Thursday 20 June 2024, 05:00 (GMT-07:00)\n"
            "\n"
            "    ⢀⣤⣴⣶⣿⣿⣿⣿⣶⣶⣤⡀\n"
            "  ⢀⣴⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣷⣄\n"
            " ⢴⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣦    Waxing Gibbous\n"
            "⢐⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⡇   Lit        97%, lit from the lower right\n"
            "⢵⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿   Age        day 15 of the lunation\n"
            "⠽⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿   Full Moon  Fri 2024-06-21 18:08\n"
            "⢐⢿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⡇   New Moon   Fri 2024-07-05 15:57\n"
            " ⠙⢿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⠟    Eclipse    none seen from here\n"
            "  ⠙⢿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⡿⠋\n"
            "    ⠈⠙⠿⠿⣿⣿⣿⣿⠿⠿⠛⠁\n"
            "\n"
            "      Rise   Set    Now\n"
            "Sun   05:48  20:35  8.6° below the horizon, NE\n"
            "Moon  19:56  04:14  8.4° below the horizon, WSW\n"
            "\n"
            "Daylight          14h 47m\n"
            "Twilight (civil)  dawn 05:16, dusk 21:06\n");
}

TEST_F(TodayCommandTest, ThePhaseIsTheRecordOfTheDay) {
  const Json today = json({"today"});
  const Json month = json({"month", "2024-06"});
  for (const Json& day : month["days"]) {
    if (day["day"] != 20) continue;
    for (const char* name : {"phase", "phaseName", "fullFactor", "moonAge"})
      EXPECT_EQ(today[name], day.value(name, today[name])) << name;
    EXPECT_EQ(today["moonAge"], day["moonAge"]);
  }
  EXPECT_EQ(today["phase"], 5);
  EXPECT_EQ(today["phaseName"], "Waxing Gibbous");
}

TEST_F(TodayCommandTest, TheLitShareIsThatOfTheInstant) {
  const Json evening = json({"today", "--date", "2024-06-20", "--time", "23:00"});
  const Json morning = json({"today", "--date", "2024-06-20", "--time", "01:00"});
  const auto litAt = [](const char* text) {
    return almanac::illumination({37.78549082, -122.39184303}, instant(text))->fraction;
  };
  EXPECT_EQ(evening["illumination"], litAt("2024-06-21T06:00:00Z"));
  EXPECT_EQ(morning["illumination"], litAt("2024-06-20T08:00:00Z"));
  EXPECT_EQ(evening["fullFactor"], morning["fullFactor"]);
}

TEST_F(TodayCommandTest, TheNextNewAndFullMoonAreTrueInstantsAfterThePresent) {
  const Json before = json({"today", "--now", "2024-06-22T01:07:00Z"});
  EXPECT_EQ(before["nextFullMoon"], "2024-06-22T01:07:53Z");
  const Json after = json({"today", "--now", "2024-06-22T01:09:00Z"});
  EXPECT_EQ(after["nextFullMoon"], "2024-07-21T10:17:09Z");
  EXPECT_EQ(after["nextNewMoon"], "2024-07-05T22:57:24Z");
}

TEST_F(TodayCommandTest, TheNextPhasesMayLieInTheNextYear) {
  EXPECT_EQ(json({"today", "--date", "2024-12-31"})["nextFullMoon"], "2025-01-13T22:26:55Z");
}

TEST_F(TodayCommandTest, AtTheEndOfTheYearsKnownThereIsNoNextPhase) {
  const std::vector<std::string> arguments = {"today",      "--tz",   "UTC",  "--date",
                                              "2100-12-31", "--time", "23:00"};
  EXPECT_EQ(json(arguments)["nextNewMoon"], nullptr);
  EXPECT_NE(answer(arguments).find("New Moon   after 2100\n"), std::string::npos);
}

TEST_F(TodayCommandTest, OutsideTheTablesThePhaseIsTheAlmanacs) {
  const Json today = json({"today", "--date", "1950-04-17", "--tz", "UTC"});  // new moon at 08:25
  EXPECT_EQ(today["phase"], 3);
  EXPECT_EQ(today["moonAge"], 1);
  EXPECT_EQ(today["fullFactor"], nullptr);
  EXPECT_EQ(json({"today", "--date", "2049-12-31"})["phaseName"], "First Quarter");
}

TEST_F(TodayCommandTest, ThePhaseWithoutATableIsThatOfTheTableWhereThereIsOne) {
  for (const char* date : {"2024-02-29", "2039-12-31", "2004-07-01", "2012-01-16"}) {
    const Json today = json({"today", "--date", date});
    const auto lines = linesOf(answer({"today", "--date", date}));
    EXPECT_NE(lines.at(7).find(today["phaseName"].get<std::string>()), std::string::npos) << lines.at(7);
    EXPECT_NE(answer({"today", "--date", date}).find("day " + today["moonAge"].dump() + " of the lunation"),
              std::string::npos)
        << date;
  }
}

TEST_F(TodayCommandTest, TheFirstDaysOf1900HaveNoAge) {
  EXPECT_EQ(json({"today", "--date", "1900-01-01", "--tz", "UTC"})["moonAge"], 1);  // new moon at 13:52
}

TEST_F(TodayCommandTest, TheSoonerOfNewAndFullMoonComesFirst) {
  const std::string june = answer({"--date", "2024-06-20"}), july = answer({"--date", "2024-06-25"});
  EXPECT_LT(june.find("Full Moon "), june.find("New Moon "));
  EXPECT_LT(july.find("New Moon "), july.find("Full Moon "));
}

TEST_F(TodayCommandTest, ShowsTheVisibleEclipseOfTheDay) {
  const std::vector<std::string> arguments = {"today", "--city", "Chicago", "--date", "2024-04-08", "--24h"};
  EXPECT_EQ(json(arguments)["eclipse"], json({"eclipse", "--city", "Chicago", "--date", "2024-04-08"}));
  EXPECT_NE(answer(arguments).find("Eclipse    Total Solar Eclipse, 14:08\n"), std::string::npos);
  EXPECT_EQ(json({"today", "--city", "Sydney", "--date", "2024-04-08"})["eclipse"], nullptr);
}

TEST_F(TodayCommandTest, TheDiscIsMirroredSouthOfTheEquator) {
  const auto middleOf = [](const char* latitude) {
    return linesOf(answer({"--lat", latitude, "--lon", "0", "--date", "2024-06-14"})).at(7);
  };
  const std::string litOnTheRight = "⠅        ⢸⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿ ";
  const std::string litOnTheLeft = "⣿⣿⣿⣿⣿⣿⣿⣿⣿⣿⡇        ⠨ ";
  EXPECT_EQ(middleOf("0").find(litOnTheRight), 0U) << middleOf("0");
  EXPECT_EQ(middleOf("60").find(litOnTheRight), 0U) << middleOf("60");
  EXPECT_EQ(middleOf("-0.1").find(litOnTheLeft), 0U) << middleOf("-0.1");
}

TEST_F(TodayCommandTest, PhasesAreInTheLanguageOfTheUser) {
  const std::string text = answer({"--city", "Berlin", "--locale", "de_DE"});
  for (const char* word : {"Zunehmender Dreiviertelmond\n", "Vollmond    Sa 2024-06-22 03:08\n", "Neumond     "})
    EXPECT_NE(text.find(word), std::string::npos) << word;
}

TEST_F(TodayCommandTest, DaysOutsideTheYearsKnownAreBadInput) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--city", "Tokyo", "--date", "1900-01-01"},
        {"--city", "Chicago", "--date", "2100-12-31"}}) {
    const Outcome outcome = runProgram(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find("is not wholly known at the place"), std::string::npos) << outcome.err;
  }
}

TEST_F(TodayCommandTest, AMissingTableIsAFailureOfTheAnswerThatHasItsRecord) {
  const ScopedLibraryBundle nothing{"/nonexistent"};
  const Outcome outcome = runProgram({"today", "--json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err,
            "velmora: the phase table of 2024 cannot be read from '/nonexistent/Data/2024.plist'\n");
  EXPECT_EQ(runProgram({"today"}).status, 0);
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
  EXPECT_NE(text.find("Twilight (civil)  dawn none, dusk none\n"), std::string::npos) << text;
}

TEST_F(TodayCommandTest, AtThePoleEveryColumnStandsApart) {
  const std::string text = answer({"--lat", "90", "--lon", "0", "--date", "2024-12-21", "--24h"});
  EXPECT_NE(text.find("      Rise  Set     Then\nSun   down all day  23.4° below the horizon"),
            std::string::npos)
      << text;
}

TEST_F(TodayCommandTest, MidnightIsTwelveOnTheTwelveHourClock) {
  const std::string text = answer({"--city", "Helsinki", "--date", "2024-06-21", "--12h"});
  EXPECT_NE(text.find("dusk 12:42 AM\n"), std::string::npos) << text;
}

TEST_F(TodayCommandTest, AllTwilightsAreThreeLines) {
  const std::string text = answer({"--city", "Rome", "--twilight", "all"});
  for (const char* name : {"\nTwilight (civil) ", "\nTwilight (nautical) ", "\nTwilight (astronomical) "})
    EXPECT_NE(text.find(name), std::string::npos) << text;
}

TEST_F(TodayCommandTest, TheDiscIsInColorOnlyOnDemandOrOnATerminal) {
  EXPECT_NE(answer({"--color", "always"}).find("\033[93m⣿"), std::string::npos);
  EXPECT_EQ(answer({"--color", "never"}).find('\033'), std::string::npos);
}

TEST_F(TodayCommandTest, HeadingsAreBoldOnlyOnDemandOrOnATerminal) {
  EXPECT_EQ(answer({}).find('\033'), std::string::npos);
  EXPECT_EQ(answer({"--color", "auto"}).find('\033'), std::string::npos);
  EXPECT_EQ(answer({"--color", "never"}).find('\033'), std::string::npos);
  EXPECT_NE(answer({"--color", "always"}).find("\033[1m"), std::string::npos);
}

TEST_F(TodayCommandTest, FitsThePage) {
  for (const char* city : {"Longyearbyen", "America/North_Dakota/New_Salem", "Buenos Aires"}) {
    for (const char* date : {"2024-06-21", "2024-12-21", "2025-03-14", "2040-12-31"}) {
      for (const char* locale : {"en_US", "de_DE", "es_ES", "ja_JP", "hi_IN", "ru_RU"}) {
        for (const std::string& line : linesOf(answer({"--city", city, "--date", date, "--12h", "--twilight",
                                                       "astronomical", "--locale", locale})))
          EXPECT_LE(displayWidth(line), 80U) << line;
      }
    }
  }
}

}  // namespace
}  // namespace velmora::app
