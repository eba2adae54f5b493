#include <velmora/foundation/GeoLocationData.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/service/MoonPhaseData.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using Arguments = std::vector<std::string>;

class EclipseCommandTest : public AppTest {
 protected:
  static Json keyOn(const char* date, Arguments place) {
    place.insert(place.begin(), {"eclipse", "--date", date});
    const Json eclipse = json(place);
    return eclipse.is_null() ? eclipse : eclipse["key"];
  }
};

const Arguments dallas = {"--lat", "32.78", "--lon", "-96.8", "--tz", "America/Chicago"};
const Arguments albuquerque = {"--lat", "35.08", "--lon", "-106.65", "--tz", "America/Denver"};

TEST_F(EclipseCommandTest, IsTheRecordOfTheVisibleEclipse) {
  EXPECT_EQ(json({"eclipse", "--city", "Chicago", "--date", "2024-04-08"}),
            Json({{"key", "TSE"},
                  {"title", "Total Solar Eclipse"},
                  {"datetime", "2024-04-08T18:17:00Z"},
                  {"isLunarEvent", false}}));
}

TEST_F(EclipseCommandTest, IsSeenOnlyFromWhereTheEclipsedBodyIsUp) {
  EXPECT_EQ(keyOn("2024-04-08", dallas), "TSE");
  EXPECT_EQ(keyOn("2024-04-08", {"--city", "Sydney"}), nullptr);
  EXPECT_EQ(keyOn("2024-04-09", {"--city", "Sydney"}), nullptr);
  EXPECT_EQ(keyOn("2022-11-08", {"--city", "Tokyo"}), "TLE");
  EXPECT_EQ(keyOn("2022-11-08", {"--city", "Paris"}), nullptr);
  EXPECT_EQ(keyOn("2023-10-14", albuquerque), "ASE");
}

TEST_F(EclipseCommandTest, IsSeenWhereTheEclipsedBodyStaysUpAllDay) {
  EXPECT_EQ(keyOn("2021-06-10", {"--city", "Resolute"}), "ASE");    // the midnight Sun
  EXPECT_EQ(keyOn("2000-01-20", {"--city", "Resolute"}), "TLE");    // a Moon that does not set
  EXPECT_EQ(keyOn("2021-12-04", {"--city", "Resolute"}), nullptr);  // the polar night
  EXPECT_EQ(keyOn("2021-12-04", {"--city", "McMurdo"}), "TSE");
  EXPECT_EQ(keyOn("2017-02-11", {"--city", "McMurdo"}), nullptr);
}

TEST_F(EclipseCommandTest, NewYorksEclipseOfMarch2025FallsAfterMidnight) {
  EXPECT_EQ(keyOn("2025-03-13", {"--city", "New York"}), nullptr);
  EXPECT_EQ(keyOn("2025-03-14", {"--city", "New York"}), "TLE");
}

TEST_F(EclipseCommandTest, WithoutADateItIsTodaysAtThePlace) {
  EXPECT_EQ(json({"eclipse", "--city", "New York", "--now", "2025-03-14T20:00:00Z"})["key"], "TLE");
  EXPECT_EQ(json({"eclipse", "--city", "New York", "--now", "2025-03-15T20:00:00Z"}), nullptr);
}

TEST_F(EclipseCommandTest, ReadsAsASentence) {
  EXPECT_EQ(answer({"eclipse", "--city", "New York", "--date", "2025-03-14", "--24h"}),
            "New York City\n40.7143° N, 74.0060° W, America/New_York\nFriday 14 March 2025\n\n"
            "Total Lunar Eclipse\nGreatest at 2025-03-14 02:59\n");
  EXPECT_NE(answer({"eclipse", "--city", "New York", "--date", "2025-03-13"})
                .find("No eclipse is visible from here on this day.\n"),
            std::string::npos);
  EXPECT_TRUE(
      answer({"eclipse", "--city", "Chicago", "--date", "2024-04-08", "--24h"})
          .ends_with("\n\nTotal Solar Eclipse\nGreatest at 2024-04-08 13:17\n"
                     "Whether the Moon's shadow reaches the place in a solar eclipse is not computed.\n"));
}

TEST_F(EclipseCommandTest, TitlesAreInTheLanguageOfTheUser) {
  const Arguments arguments = {"eclipse", "--city", "Tokyo", "--date", "2022-11-08", "--locale", "ja_JP"};
  EXPECT_EQ(json(arguments)["title"], "皆既月食");
  EXPECT_NE(answer(arguments).find("皆既月食"), std::string::npos);
}

TEST_F(EclipseCommandTest, DaysOutsideTheCatalogueAreBadInput) {
  for (const Arguments& arguments :
       {Arguments{"--date", "1999-12-31"}, Arguments{"--date", "2041-01-01"},
        Arguments{"--now", "2041-01-01T12:00:00Z"}, Arguments{"--city", "Apia", "--date", "2011-12-30"}}) {
    Arguments all = {"eclipse"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Outcome outcome = runProgram(all);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(linesOf(outcome.err).size(), 1U) << outcome.err;
  }
}

TEST_F(EclipseCommandTest, AMissingCatalogueIsAFailure) {
  const ScopedLibraryBundle nothing{"/nonexistent"};
  for (const char* command : {"eclipse", "eclipses"}) {
    const Outcome outcome = runProgram({command});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              "velmora: the catalogue of eclipses cannot be read from '/nonexistent/Data/events.txt'\n");
  }
}

using EclipsesCommandTest = EclipseCommandTest;

TEST_F(EclipsesCommandTest, AreAllOfTheYearWithTheirVisibility) {
  const Json list = json({"eclipses", "2024", "--city", "Sydney"});
  ASSERT_EQ(list.size(), 4U);
  EXPECT_EQ(list[1], Json({{"key", "TSE"},
                           {"title", "Total Solar Eclipse"},
                           {"datetime", "2024-04-08T18:17:00Z"},
                           {"isLunarEvent", false},
                           {"isVisible", false}}));
  EXPECT_EQ(json({"eclipses", "2024", "--city", "Chicago"})[1]["isVisible"], true);
}

TEST_F(EclipsesCommandTest, TheVisibleOnesAreThoseOfTheirDays) {
  for (const char* city : {"Reykjavik", "Auckland", "Santiago"}) {
    for (const Json& eclipse : json({"eclipses", "2019", "--city", city})) {
      const auto time = eclipse["datetime"].get<std::string>();
      const Json ofDay = json({"eclipse", "--city", city, "--now", time});
      EXPECT_EQ(eclipse["isVisible"], !ofDay.is_null()) << city << " " << time;
    }
  }
}

TEST_F(EclipsesCommandTest, AreVisibleAsTheServiceHasItWhereTheSunRisesDailyAndClocksNeverChange) {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(-1.28, 36.82, std::nullopt, "Africa/Nairobi", 0, false);
  MoonPhaseData service;
  service.SetSelectedLocation(place);
  for (int year = 2000; year <= 2040; ++year) {
    for (const Json& eclipse : json({"eclipses", std::to_string(year), "--lat", "-1.28", "--lon", "36.82",
                                     "--tz", "Africa/Nairobi"})) {
      const auto time = eclipse["datetime"].get<std::string>();
      const auto seen = service.eventsOnDate(instant(time.c_str()), *place->timezone);
      EXPECT_EQ(eclipse["isVisible"], seen != nullptr) << time;
    }
  }
}

TEST_F(EclipsesCommandTest, TheYearIsThatOfThePlace) {
  // The partial lunar eclipse of 31 December 2009, 19:23 UTC, falls into the next year in Japan.
  const auto keys = [](const char* year, const char* city) {
    std::string text;
    for (const Json& eclipse : json({"eclipses", year, "--city", city}))
      text += eclipse["datetime"].get<std::string>().substr(0, 10) + " ";
    return text;
  };
  EXPECT_NE(keys("2009", "New York").find("2009-12-31"), std::string::npos);
  EXPECT_EQ(keys("2010", "New York").find("2009-12-31"), std::string::npos);
  EXPECT_EQ(keys("2009", "Tokyo").find("2009-12-31"), std::string::npos);
  EXPECT_NE(keys("2010", "Tokyo").find("2009-12-31"), std::string::npos);
}

TEST_F(EclipsesCommandTest, WithoutAYearItIsThePresentOne) {
  EXPECT_EQ(answer({"eclipses"}), answer({"eclipses", "2024"}));
}

TEST_F(EclipsesCommandTest, ReadAsATable) {
  Arguments arguments = {"eclipses", "2024", "--24h"};
  arguments.insert(arguments.end(), dallas.begin(), dallas.end());
  EXPECT_EQ(answer(arguments),
            "32.7800° N, 96.8000° W, America/Chicago\n\n"
            "Greatest          From here  Eclipse\n"
            "2024-03-25 02:13  visible    Penumbra Lunar Eclipse\n"
            "2024-04-08 13:17  visible    Total Solar Eclipse\n"
            "2024-09-17 21:44  visible    Partial Lunar Eclipse\n"
            "2024-10-02 13:45  visible    Annular Solar Eclipse\n"
            "\nVisible: at its height the eclipsed Sun or Moon is above the horizon.\n"
            "Whether the Moon's shadow reaches the place in a solar eclipse is not computed.\n");
  EXPECT_NE(answer({"eclipses", "2024", "--city", "Sydney"}).find("below the horizon  Total Solar Eclipse"),
            std::string::npos);
}

TEST_F(EclipsesCommandTest, YearsOutsideTheCatalogueAreBadInput) {
  for (const char* year : {"1999", "2041", "abc", "2024.5", "-2024"}) {
    const Outcome outcome = runProgram({"eclipses", year});
    EXPECT_EQ(outcome.status, 2) << year;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(linesOf(outcome.err).size(), 1U) << outcome.err;
  }
}

}  // namespace
}  // namespace velmora::app
