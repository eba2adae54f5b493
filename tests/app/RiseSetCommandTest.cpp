#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/time/Calendar.h>

#include <app/answers/RequestScope.h>
#include <app/answers/RiseSetDay.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using RiseSetCommandTest = AppTest;

std::string allText(const Json& days) {
  std::string dates;
  for (const Json& day : days) dates += day["date"].get<std::string>() + " ";
  return dates;
}

/// The members of a day's object as the library's own record of 09:00 at the place has them.
Json recordOf(const char* date, const GeoLocationData& location, int twilight) {
  const CivilDate day = *dateFromText(date);
  const Calendar calendar(*location.timezone);
  const Instant morning = calendar.date({.year = static_cast<int>(day.year()),
                                         .month = static_cast<unsigned>(day.month()),
                                         .day = static_cast<unsigned>(day.day()),
                                         .hour = 9});
  const RiseSetData record =
      RiseAndSetCalc::Compute(morning, location, location.timezone->secondsFromGMT(morning), twilight);
  return {{"date", date},
          {"moonRiseText", record.moonRiseText},
          {"moonSetText", record.moonSetText},
          {"sunRiseText", record.sunRiseText},
          {"sunSetText", record.sunSetText},
          {"twilightBeginText", record.twilightBeginText},
          {"twilightEndText", record.twilightEndText},
          {"sunRiseMinutesFromMidnight", record.sunRiseMinutesFromMidnight},
          {"sunSetMinutesFromMidnight", record.sunSetMinutesFromMidnight},
          {"moonRiseMinutesFromMidnight", record.moonRiseMinutesFromMidnight},
          {"moonSetMinutesFromMidnight", record.moonSetMinutesFromMidnight},
          {"dayLengthMinutes", record.dayLengthMinutes},
          {"sunAllDay", nullptr},
          {"moonAllDay", nullptr}};
}

TEST_F(RiseSetCommandTest, EachDayOfARangeIsTheLibrarysRecordOfItsMorning) {
  GeoLocationData sydney;
  sydney.SetLocation(-33.9, 151.2, std::nullopt, "Australia/Sydney", 0, false);
  const char* dates[] = {"2024-04-06", "2024-04-07", "2024-04-08"};  // clocks go back on the 7th
  for (const bool use24Hours : {true, false}) {
    Json expected = Json::array();
    const ScopedTimeFormat form(use24Hours);
    for (const char* date : dates) expected.push_back(recordOf(date, sydney, 2));
    EXPECT_EQ(json({"riseset", "--lat", "-33.9", "--lon", "151.2", "--tz", "Australia/Sydney", "--from",
                    "2024-04-06", "--to", "2024-04-08", "--twilight", "astronomical",
                    use24Hours ? "--24h" : "--12h"}),
              expected);
  }
}

TEST_F(RiseSetCommandTest, TwilightsAreThreeKinds) {
  const auto dawn = [&](const char* kind) {
    return json({"riseset", "--city", "Madrid", "--date", "2024-03-20", "--24h", "--twilight",
                 kind})[0]["twilightBeginText"]
        .get<std::string>();
  };
  EXPECT_LT(dawn("astronomical"), dawn("nautical"));
  EXPECT_LT(dawn("nautical"), dawn("civil"));
}

TEST_F(RiseSetCommandTest, WithoutADateItIsTheDayAtThePlace) {
  EXPECT_EQ(allText(json({"riseset", "--city", "Helsinki"})), "2024-06-20 ");
  EXPECT_EQ(allText(json({"riseset", "--city", "Auckland", "--now", "2024-06-20T12:30:00Z"})), "2024-06-21 ");
}

TEST_F(RiseSetCommandTest, PacificApiaSkippedADay) {
  EXPECT_EQ(allText(json({"riseset", "--city", "Apia", "--from", "2011-12-28", "--to", "2012-01-01"})),
            "2011-12-28 2011-12-29 2011-12-31 2012-01-01 ");
}

TEST_F(RiseSetCommandTest, CairosDayWithoutMidnightIsADay) {
  EXPECT_EQ(allText(json({"riseset", "--city", "Cairo", "--from", "2024-04-25", "--to", "2024-04-27"})),
            "2024-04-25 2024-04-26 2024-04-27 ");
}

TEST_F(RiseSetCommandTest, ARangeMayLast41Years) {
  EXPECT_EQ(json({"riseset", "--from", "2000-01-01", "--to", "2040-12-31"}).size(), 14976U);
}

TEST_F(RiseSetCommandTest, MidnightSunAndPolarNightAreToldApart) {
  const std::vector<std::string> svalbard = {"riseset", "--city", "Longyearbyen", "--date"};
  const auto sunOn = [&](const char* date) {
    auto arguments = svalbard;
    arguments.emplace_back(date);
    return json(arguments)[0];
  };
  const Json june = sunOn("2024-06-21"), december = sunOn("2024-12-21"), march = sunOn("2024-03-21");
  EXPECT_EQ(june["sunRiseText"], "--");
  EXPECT_EQ(june["sunAllDay"], "up");
  EXPECT_EQ(december["sunRiseText"], "--");
  EXPECT_EQ(december["sunAllDay"], "down");
  EXPECT_EQ(march["sunAllDay"], nullptr);
}

TEST_F(RiseSetCommandTest, AMoonThatStaysUpOrDownIsToldApart) {
  std::string seen;
  for (const Json& day :
       json({"riseset", "--city", "Longyearbyen", "--from", "2024-01-01", "--to", "2024-01-31"})) {
    const Json& where = day["moonAllDay"];
    seen += where.is_null() ? '-' : where == "up" ? 'u' : 'd';
  }
  EXPECT_NE(seen.find("uuu"), std::string::npos) << seen;
  EXPECT_NE(seen.find("ddd"), std::string::npos) << seen;
}

TEST_F(RiseSetCommandTest, AnEventOfTheNextDayAloneLeavesTheDayWithoutOne) {
  // The polar night's last day: the Sun rises for minutes only, and the record names the next day's set
  // alone.
  const Json day = json({"riseset", "--lat", "78", "--lon", "15", "--tz", "Arctic/Longyearbyen", "--date",
                         "2024-02-14", "--24h"})[0];
  ASSERT_EQ(day["sunRiseText"], "--:--");
  ASSERT_TRUE(day["sunSetText"].get<std::string>().ends_with("**"));
  EXPECT_EQ(day["sunAllDay"], "down");
}

TEST_F(RiseSetCommandTest, HelsinkiAtMidsummer) {
  EXPECT_EQ(answer({"riseset", "--city", "Helsinki", "--from", "2024-06-20", "--to", "2024-06-22", "--24h"}),
            "Helsinki\n"
            "60.1695° N, 24.9354° E, Europe/Helsinki\n"
            "Dawn and dusk: civil twilight\n"
            "\n"
            "Date        Dawn   Sunrise  Sunset  Dusk            Day      Moonrise  Moonset\n"
            "2024-06-20  02:02  03:54    22:50   00:42 next day  18h 56m  22:25     01:53\n"
            "2024-06-21  02:02  03:54    22:50   00:42 next day  18h 56m  23:56     02:02\n"
            "2024-06-22  02:02  03:55    22:50   00:42 next day  18h 55m  none      02:34\n");
}

TEST_F(RiseSetCommandTest, WordsGiveWayToAStarWhereThePageIsTooNarrow) {
  const auto lines = linesOf(answer({"riseset", "--city", "Helsinki", "--date", "2024-06-20", "--12h"}));
  EXPECT_NE(lines[5].find("12:42 AM*"), std::string::npos) << lines[5];
  EXPECT_EQ(lines.back(), "* next day");
}

TEST_F(RiseSetCommandTest, ADayWithoutEventsSaysWhereTheBodyStays) {
  const auto lines = linesOf(answer({"riseset", "--city", "Longyearbyen", "--date", "2024-06-21", "--24h"}));
  EXPECT_EQ(lines[5], "2024-06-21  none  up all day       none  24h 00m  down all day");
}

TEST_F(RiseSetCommandTest, TablesFitThePage) {
  for (const char* city :
       {"Helsinki", "Longyearbyen", "Reykjavik", "Anadyr", "Troll", "McMurdo", "Guayaquil"}) {
    for (const char* clock : {"--24h", "--12h"}) {
      for (const std::string& line :
           linesOf(answer({"riseset", "--city", city, "--from", "2024-01-01", "--to", "2024-12-31", clock})))
        ASSERT_LE(charactersOf(line), 80U) << line;
    }
  }
}

int daylight(const char* sunrise, const char* sunset) {
  RiseSetDay day;
  day.record.sunRiseText = sunrise;
  day.record.sunSetText = sunset;
  return daylightMinutes(day);
}

TEST_F(RiseSetCommandTest, DaylightIsCountedFromSunriseToSunset) {
  EXPECT_EQ(daylight("03:54", "22:50"), 18 * 60 + 56);
  EXPECT_EQ(daylight("03:00", "00:37 **"), 21 * 60 + 37);
  EXPECT_EQ(daylight("02:00", "--:--"), 22 * 60);
  EXPECT_EQ(daylight("--:--", "23:00"), 23 * 60);
  EXPECT_EQ(daylight("13:00", "11:00"), 22 * 60);
}

}  // namespace
}  // namespace velmora::app
