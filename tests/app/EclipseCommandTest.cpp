#include <velmora/platform/resources/Bundle.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using Arguments = std::vector<std::string>;

class EclipseCommandTest : public AppTest {
 protected:
  static Json eclipseOn(const char* date, Arguments place) {
    place.insert(place.begin(), {"eclipse", "--date", date});
    return json(place);
  }

  /// The kind that is seen on the day; empty if none is.
  static std::string seenOn(const char* date, const Arguments& place) {
    const Json eclipse = eclipseOn(date, place);
    return eclipse.is_null() || eclipse["local"].is_null() ? "" : eclipse["local"]["kind"];
  }

  /// "C1 up, C4 down, " of the contacts of what is seen.
  static std::string contactsOf(const Json& eclipse) {
    std::string text;
    for (const Json& contact : eclipse["local"]["contacts"])
      text += contact["name"].get<std::string>() + (contact["isUp"] == true ? " up, " : " down, ");
    return text;
  }
};

const Arguments dallas = {"--lat", "32.78", "--lon", "-96.8", "--tz", "America/Chicago"};
const Arguments chicago = {"--lat", "41.88", "--lon", "-87.63", "--tz", "America/Chicago"};
const Arguments albuquerque = {"--lat", "35.08", "--lon", "-106.65", "--tz", "America/Denver"};

TEST_F(EclipseCommandTest, TellsTheEclipseAndWhatOfItIsSeen) {
  const Json eclipse = eclipseOn("2024-04-08", chicago);
  EXPECT_EQ(eclipse["key"], "TSE");
  EXPECT_EQ(eclipse["title"], "Total Solar Eclipse");
  EXPECT_EQ(eclipse["datetime"].get<std::string>().substr(0, 17), "2024-04-08T18:17:");
  EXPECT_EQ(eclipse["isLunarEvent"], false);
  EXPECT_EQ(eclipse["isVisible"], true);
  EXPECT_EQ(eclipse["local"]["kind"], "partial");
  EXPECT_NEAR(eclipse["local"]["magnitude"].get<double>(), 0.942, 0.001);
  EXPECT_NEAR(eclipse["local"]["obscuration"].get<double>(), 0.939, 0.001);
  EXPECT_EQ(contactsOf(eclipse), "C1 up, C4 up, ");
}

TEST_F(EclipseCommandTest, TheKindIsThatOfThePlace) {
  EXPECT_EQ(seenOn("2024-04-08", dallas), "total");
  EXPECT_EQ(contactsOf(eclipseOn("2024-04-08", dallas)), "C1 up, C2 up, C3 up, C4 up, ");
  EXPECT_EQ(seenOn("2024-04-08", {"--city", "Sydney"}), "");
  EXPECT_EQ(seenOn("2022-11-08", {"--city", "Tokyo"}), "total");
  EXPECT_EQ(seenOn("2022-11-08", {"--city", "Paris"}), "");
  EXPECT_EQ(seenOn("2023-10-14", albuquerque), "annular");
  EXPECT_EQ(seenOn("2023-10-14", dallas), "partial");
}

TEST_F(EclipseCommandTest, OfAnEclipseThatIsNotSeenItSaysSo) {
  const Json eclipse = eclipseOn("2024-04-08", {"--city", "Berlin"});
  EXPECT_EQ(eclipse["key"], "TSE");
  EXPECT_EQ(eclipse["isVisible"], false);
  EXPECT_EQ(eclipse["local"], nullptr);
  EXPECT_TRUE(
      answer({"eclipse", "--city", "Berlin", "--date", "2024-04-08"}).ends_with("\nNot seen from here.\n"));
}

TEST_F(EclipseCommandTest, ALunarEclipseIsSeenWhereTheMoonIsUpForAPartOfIt) {
  // The Moon rises in Berlin just before the total phase.
  const Json rising = eclipseOn("2018-07-27", {"--city", "Berlin"});
  EXPECT_EQ(contactsOf(rising), "P1 down, U1 down, U2 up, U3 up, U4 up, P4 up, ");
  EXPECT_EQ(rising["local"]["kind"], "total");
  EXPECT_NE(answer({"eclipse", "--city", "Berlin", "--date", "2018-07-27"}).find("partly before moonrise"),
            std::string::npos);
}

TEST_F(EclipseCommandTest, ATotalPhaseBelowTheHorizonIsNotSeen) {
  // The Moon sets in New York between the first shadow and the total phase.
  const Json setting = eclipseOn("2018-01-31", {"--city", "New York"});
  EXPECT_EQ(contactsOf(setting), "P1 up, U1 up, U2 down, U3 down, U4 down, P4 down, ");
  EXPECT_EQ(setting["local"]["kind"], "partial");
}

TEST_F(EclipseCommandTest, IsSeenWhereTheEclipsedBodyStaysUpAllDay) {
  EXPECT_EQ(seenOn("2021-06-10", {"--city", "Resolute"}), "partial");  // the midnight Sun
  EXPECT_EQ(seenOn("2000-01-20", {"--city", "Resolute"}), "total");    // a Moon that does not set
  EXPECT_EQ(seenOn("2021-12-04", {"--city", "Resolute"}), "");         // the polar night
  EXPECT_EQ(seenOn("2021-12-04", {"--city", "McMurdo"}), "partial");
}

TEST_F(EclipseCommandTest, AnEclipseAcrossMidnightIsSeenOnBothDays) {
  // In Los Angeles the partial phase begins at 22:09 and the total one ends at 00:31.
  const Arguments losAngeles = {"--city", "Los Angeles"};
  EXPECT_EQ(seenOn("2025-03-13", losAngeles), "total");
  EXPECT_EQ(seenOn("2025-03-14", losAngeles), "total");
  EXPECT_EQ(eclipseOn("2025-03-12", losAngeles), nullptr);
  EXPECT_EQ(eclipseOn("2025-03-15", losAngeles), nullptr);
}

TEST_F(EclipseCommandTest, NewYorksEclipseOfMarch2025FallsAfterMidnight) {
  EXPECT_EQ(seenOn("2025-03-13", {"--city", "New York"}), "");
  EXPECT_EQ(seenOn("2025-03-14", {"--city", "New York"}), "total");
}

TEST_F(EclipseCommandTest, WithoutADateItIsTodaysAtThePlace) {
  EXPECT_EQ(json({"eclipse", "--city", "New York", "--now", "2025-03-14T20:00:00Z"})["key"], "TLE");
  EXPECT_EQ(json({"eclipse", "--city", "New York", "--now", "2025-03-15T20:00:00Z"}), nullptr);
}

TEST_F(EclipseCommandTest, ReadsAsATableOfItsMoments) {
  Arguments arguments = {"eclipse", "--date", "2024-04-08", "--24h"};
  arguments.insert(arguments.end(), dallas.begin(), dallas.end());
  const auto lines = linesOf(answer(arguments));
  ASSERT_EQ(lines.size(), 14U);
  EXPECT_EQ(lines[1], "Monday 8 April 2024");
  EXPECT_EQ(lines[3], "Total Solar Eclipse");
  EXPECT_EQ(lines[4], "Greatest at 2024-04-08 13:17, somewhere on Earth");
  EXPECT_EQ(lines[5].substr(0, 35), "Seen from here: total, magnitude 1.");
  EXPECT_EQ(lines[6], "From 2024-04-08 12:23 to 2024-04-08 15:03, most at 2024-04-08 13:43.");
  EXPECT_EQ(lines[8].substr(0, 22), "                      ");
  EXPECT_EQ(lines[9].substr(0, 27), "Partial phase begins  12:23");
  EXPECT_EQ(lines[10].substr(0, 27), "Total phase begins    13:40");
  EXPECT_EQ(lines[11].substr(0, 27), "Maximum               13:42");
}

TEST_F(EclipseCommandTest, WhatIsCoveredInPartIsNeverRoundedToTheWhole) {
  // Just beside the path of the total phase near Exmouth.
  const Arguments exmouth = {"--lat", "-22", "--lon", "113.9", "--tz", "Australia/Perth"};
  const Json eclipse = eclipseOn("2023-04-20", exmouth)["local"];
  EXPECT_EQ(eclipse["kind"], "partial");
  EXPECT_GT(eclipse["magnitude"], 0.9995);
  EXPECT_GT(eclipse["obscuration"], 0.9995);
  EXPECT_NE(answer({"eclipse", "--lat", "-22", "--lon", "113.9", "--date", "2023-04-20"})
                .find("Seen from here: partial, magnitude 0.999, 99% of the Sun covered."),
            std::string::npos);
  EXPECT_NE(answer({"eclipses", "2023", "--lat", "-22", "--lon", "113.9"}).find("partial 99%\n"),
            std::string::npos);
}

TEST_F(EclipseCommandTest, WhatIsLessThanHalfAPercentIsToldByTheMagnitude) {
  const std::string told = answer({"eclipse", "--city", "Helsinki", "--date", "1967-05-09"});
  EXPECT_NE(told.find("Seen from here: partial, magnitude 0.004.\n"), std::string::npos) << told;
}

TEST_F(EclipseCommandTest, ADayWithoutOneSaysSo) {
  EXPECT_TRUE(answer({"eclipse", "--city", "New York", "--date", "2025-03-12"})
                  .ends_with("\nThere is no eclipse on this day.\n"));
}

TEST_F(EclipseCommandTest, TitlesAreInTheLanguageOfTheUser) {
  const Arguments arguments = {"eclipse", "--city", "Tokyo", "--date", "2022-11-08", "--locale", "ja_JP"};
  EXPECT_EQ(json(arguments)["title"], "皆既月食");
  EXPECT_NE(answer(arguments).find("皆既月食"), std::string::npos);
}

TEST_F(EclipseCommandTest, DaysThatAreNotKnownOrSkippedAreBadInput) {
  for (const Arguments& arguments : {Arguments{"--date", "1899-12-31"}, Arguments{"--date", "2100-12-31"},
                                     Arguments{"--city", "Apia", "--date", "2011-12-30"}}) {
    Arguments all = {"eclipse"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Outcome outcome = runProgram(all);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(linesOf(outcome.err).size(), 1U) << outcome.err;
  }
}

TEST_F(EclipseCommandTest, NoFileOfTheLibraryIsNeeded) {
  const ScopedLibraryBundle nothing{"/nonexistent"};
  EXPECT_EQ(runProgram({"eclipse"}).status, 0);
  EXPECT_EQ(runProgram({"eclipses"}).status, 0);
}

using EclipsesCommandTest = EclipseCommandTest;

TEST_F(EclipsesCommandTest, AreAllOfTheYearWithWhatIsSeen) {
  const Json list = json({"eclipses", "2024", "--city", "Sydney"});
  ASSERT_EQ(list.size(), 4U);
  EXPECT_EQ(list[1]["key"], "TSE");
  EXPECT_EQ(list[1]["isVisible"], false);
  EXPECT_EQ(list[1]["local"], nullptr);
  EXPECT_EQ(json({"eclipses", "2024", "--city", "Chicago"})[1]["isVisible"], true);
}

TEST_F(EclipsesCommandTest, AreThoseOfTheirDays) {
  for (const char* city : {"Reykjavik", "Auckland", "Santiago"}) {
    for (const Json& eclipse : json({"eclipses", "2019", "--city", city})) {
      if (eclipse["isVisible"] == false) continue;
      const auto time = eclipse["local"]["maximum"]["instant"].get<std::string>();
      EXPECT_EQ(eclipse, json({"eclipse", "--city", city, "--now", time})) << city << " " << time;
    }
  }
}

TEST_F(EclipsesCommandTest, TwoCenturiesAreKnown) {
  std::size_t count = 0;
  for (int year = 1900; year <= 2100; ++year)
    count += json({"eclipses", std::to_string(year), "--tz", "UTC"}).size();
  EXPECT_EQ(count, 913U);
}

TEST_F(EclipsesCommandTest, TheYearIsThatOfThePlace) {
  // The partial lunar eclipse of 31 December 2009, 19:23 UTC, falls into the next year in Japan.
  const auto days = [](const char* year, const char* city) {
    std::string text;
    for (const Json& eclipse : json({"eclipses", year, "--city", city}))
      text += eclipse["datetime"].get<std::string>().substr(0, 10) + " ";
    return text;
  };
  EXPECT_NE(days("2009", "New York").find("2009-12-31"), std::string::npos);
  EXPECT_EQ(days("2010", "New York").find("2009-12-31"), std::string::npos);
  EXPECT_EQ(days("2009", "Tokyo").find("2009-12-31"), std::string::npos);
  EXPECT_NE(days("2010", "Tokyo").find("2009-12-31"), std::string::npos);
}

TEST_F(EclipsesCommandTest, WithoutAYearItIsThePresentOne) {
  EXPECT_EQ(answer({"eclipses"}), answer({"eclipses", "2024"}));
}

TEST_F(EclipsesCommandTest, ReadAsATable) {
  Arguments arguments = {"eclipses", "2024", "--24h"};
  arguments.insert(arguments.end(), dallas.begin(), dallas.end());
  EXPECT_EQ(answer(arguments),
            "32.7800° N, 96.8000° W, America/Chicago\n\n"
            "Time              Eclipse                 From here\n"
            "2024-03-25 02:13  Penumbra Lunar Eclipse  penumbral\n"
            "2024-04-08 13:43  Total Solar Eclipse     total\n"
            "2024-09-17 21:44  Partial Lunar Eclipse   partial 0.08\n"
            "2024-10-02 13:45  Annular Solar Eclipse   not seen from here\n"
            "\nTime: when most is seen from here; of what is not seen, when it is greatest on Earth.\n");
  EXPECT_NE(answer({"eclipses", "2026", "--city", "Madrid"}).find("partial 99%, partly after sunset"),
            std::string::npos);
}

TEST_F(EclipsesCommandTest, AsATableOfValues) {
  Arguments arguments = {"eclipses", "2024", "--csv"};
  arguments.insert(arguments.end(), dallas.begin(), dallas.end());
  const auto lines = linesOf(answer(arguments));
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_TRUE(lines[2].starts_with("TSE,Total Solar Eclipse,2024-04-08T18:17:")) << lines[2];
  EXPECT_TRUE(lines[4].ends_with(",false,false,,,,,,,,,,,,,,,,,\r")) << lines[4];
}

TEST_F(EclipsesCommandTest, YearsThatAreNotKnownAreBadInput) {
  for (const char* year : {"1899", "2101", "abc", "2024.5", "-2024"}) {
    const Outcome outcome = runProgram({"eclipses", year});
    EXPECT_EQ(outcome.status, 2) << year;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(linesOf(outcome.err).size(), 1U) << outcome.err;
  }
}

}  // namespace
}  // namespace velmora::app
