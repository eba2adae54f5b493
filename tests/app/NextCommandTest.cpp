#include "AppTest.h"

namespace velmora::app {
namespace {

constexpr double nearSeconds = 2;

class NextCommandTest : public AppTest {
 protected:
  static Json next(const char* now, const char* zone = "UTC") {
    return json({"next", "--now", now, "--tz", zone, "--24h"});
  }

  /// Of the elements that are phases: number and instant.
  static Json phasesOf(const Json& list) {
    Json phases = Json::array();
    for (const Json& element : list) {
      if (element.contains("phase")) phases.push_back({element["phase"], element["localDate"]});
    }
    return phases;
  }

  /// Of the elements that are rises and sets: "moon set 2024-06-20T02:34:56Z".
  static std::vector<std::string> eventsOf(const Json& list) {
    std::vector<std::string> events;
    for (const Json& element : list) {
      if (element.contains("event"))
        events.push_back(element["body"].get<std::string>() + " " + element["event"].get<std::string>() +
                         " " + element["instant"].get<std::string>());
    }
    return events;
  }
};

TEST_F(NextCommandTest, BeginsWithTheNextOfEachPhaseInOrderOfTime) {
  // By the Swiss Ephemeris.
  const std::pair<int, const char*> expected[] = {{2, "2024-12-22T22:18:11Z"},
                                                  {3, "2024-12-30T22:26:48Z"},
                                                  {1, "2025-01-06T23:56:18Z"},
                                                  {0, "2025-01-13T22:26:55Z"}};
  const Json phases = phasesOf(next("2024-12-20T00:00:00Z"));
  ASSERT_EQ(phases.size(), 4U);
  for (std::size_t i = 0; i < phases.size(); ++i) {
    EXPECT_EQ(phases[i][0], expected[i].first);
    EXPECT_NEAR(secondsBetween(phases[i][1], expected[i].second), 0, nearSeconds);
  }
}

TEST_F(NextCommandTest, APhaseIsOverAtItsOwnInstant) {
  const Json first = next("2024-03-25T06:00:00Z")[0], second = next("2024-03-25T08:00:00Z")[0];
  EXPECT_NEAR(secondsBetween(first["localDate"], "2024-03-25T07:00:20Z"), 0, nearSeconds);
  EXPECT_NEAR(secondsBetween(second["localDate"], "2024-04-02T03:14:44Z"), 0, nearSeconds);
}

TEST_F(NextCommandTest, GoesOnWithTheNextRiseAndSetOfBothBodies) {
  const auto events = eventsOf(json({"next", "--city", "Helsinki"}));
  ASSERT_EQ(events.size(), 4U);
  EXPECT_EQ(events[0].substr(0, 26), "moon rise 2024-06-20T19:25");
  EXPECT_EQ(events[1].substr(0, 25), "sun set 2024-06-20T19:49:");
  EXPECT_EQ(events[2].substr(0, 25), "moon set 2024-06-20T23:02");
  EXPECT_EQ(events[3].substr(0, 25), "sun rise 2024-06-21T00:54");
}

TEST_F(NextCommandTest, TheNextSunriseOfThePolarNightIsWeeksAway) {
  const auto events = eventsOf(json({"next", "--city", "Longyearbyen", "--now", "2024-12-21T12:00:00Z"}));
  ASSERT_EQ(events.size(), 4U);
  EXPECT_EQ(events[2].substr(0, 19), "sun rise 2025-02-15");
}

TEST_F(NextCommandTest, EndsWithTheNextEclipseThatIsSeenFromThePlace) {
  EXPECT_EQ(json({"next", "--city", "Helsinki"}).back()["datetime"].get<std::string>().substr(0, 10),
            "2024-09-18");
  const Json sydney = json({"next", "--city", "Sydney"}).back();
  EXPECT_EQ(sydney["datetime"].get<std::string>().substr(0, 10), "2025-03-14");
  EXPECT_EQ(sydney["isVisible"], true);
}

TEST_F(NextCommandTest, AnEclipseThatIsPastItsGreatestElsewhereMayStillComeHere) {
  // Greatest in Mexico at 18:17; in Iceland it begins at 18:49.
  const auto eclipseAfter = [](const char* now) {
    return json({"next", "--city", "Reykjavik", "--now", now}).back()["datetime"].get<std::string>();
  };
  EXPECT_EQ(eclipseAfter("2024-04-08T18:30:00Z").substr(0, 16), "2024-04-08T18:17");
  EXPECT_EQ(eclipseAfter("2024-04-08T18:55:00Z").substr(0, 10), "2024-09-18");
}

TEST_F(NextCommandTest, InstantsOfPhasesAreThoseOfEveryZone) {
  for (const char* now : {"2024-12-31T23:00:00Z", "2025-01-01T00:30:00Z", "2009-12-31T19:12:00Z"}) {
    const Json universal = phasesOf(next(now));
    for (const char* zone : {"Pacific/Pago_Pago", "Asia/Kathmandu", "Pacific/Kiritimati"})
      EXPECT_EQ(phasesOf(next(now, zone)), universal) << now << " " << zone;
  }
}

TEST_F(NextCommandTest, AllFourPhasesComeWithinALunation) {
  for (int year = 1900; year <= 2100; year += 8) {
    const std::string now = std::to_string(year) + "-11-20T12:00:00Z";
    EXPECT_EQ(phasesOf(next(now.c_str())).size(), 4U) << year;
  }
}

TEST_F(NextCommandTest, KnowsNothingAfter2100) {
  const Json list = next("2100-12-30T12:00:00Z");
  EXPECT_EQ(phasesOf(list).size(), 1U);
  EXPECT_EQ(runProgram({"next", "--tz", "America/Chicago", "--now", "2100-12-31T12:00:00Z"}).status, 2);
}

TEST_F(NextCommandTest, SaysHowManyDaysAway) {
  const auto lines = linesOf(answer({"next", "--now", "2024-06-20T23:30:00Z", "--city", "London", "--24h"}));
  ASSERT_EQ(lines.size(), 15U);
  EXPECT_EQ(lines[4], "    Fri 2024-06-21 03:24  today       Moonset");
  EXPECT_EQ(lines[8], "🌕  Sat 2024-06-22 02:08  tomorrow    Full Moon");
  EXPECT_EQ(lines[9], "🌗  Fri 2024-06-28 22:53  in 7 days   Last Quarter");
  EXPECT_EQ(lines[12], "    Wed 2024-09-18 03:13  in 89 days  Partial Lunar Eclipse");
  EXPECT_EQ(lines[13], "                                      partial 0.08");
}

TEST_F(NextCommandTest, AnEclipseStandsWhereItBeginsAndSaysWhenMostIsSeen) {
  const auto lines = linesOf(answer({"next", "--now", "2024-06-20T23:30:00Z", "--city", "London", "--24h"}));
  EXPECT_EQ(lines[12].substr(4, 20), "Wed 2024-09-18 03:13");
  EXPECT_EQ(lines[14], "                                      Maximum 03:44");
}

TEST_F(NextCommandTest, TheNoteOnTimeToComeIsThereForAnyOfTheLines) {
  // The next eclipses seen in Helsinki are those of 9 December 2030 and 7 May 2031.
  const std::string note = "Of years after 2030";
  EXPECT_EQ(answer({"next", "--city", "Helsinki", "--now", "2030-06-20T00:00:00Z"}).find(note),
            std::string::npos);
  EXPECT_NE(answer({"next", "--city", "Helsinki", "--now", "2030-12-20T00:00:00Z"}).find(note),
            std::string::npos);
}

}  // namespace
}  // namespace velmora::app
