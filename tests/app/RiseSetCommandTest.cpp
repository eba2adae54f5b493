#include <algorithm>

#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/time/Calendar.h>

#include <app/answers/RequestScope.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

class RiseSetCommandTest : public AppTest {
 protected:
  static std::string datesOf(const Json& days) {
    std::string dates;
    for (const Json& day : days) dates += day["date"].get<std::string>() + " ";
    return dates;
  }

  /// "2024-05-17T23:05:30Z astronomicalDusk", of the body.
  static std::vector<std::string> eventsOf(const Json& day, const char* body) {
    std::vector<std::string> events;
    for (const Json& event : day["events"]) {
      if (event["body"] == body)
        events.push_back(event["instant"].get<std::string>() + " " + event["event"].get<std::string>());
    }
    return events;
  }

  /// The rows of the table for people, without its heading.
  static std::vector<std::string> rows(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "riseset");
    arguments.emplace_back("--24h");
    const auto lines = linesOf(answer(arguments));
    const auto heading = std::find_if(lines.begin(), lines.end(),
                                      [](const std::string& line) { return line.starts_with("Date "); });
    return {std::next(heading), lines.end()};
  }
};

/// The members of a day's object that the library's own record of 09:00 at the place has.
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
          {"dayLengthMinutes", record.dayLengthMinutes}};
}

TEST_F(RiseSetCommandTest, EachDayHasTheLibrarysRecordOfItsMorning) {
  GeoLocationData sydney;
  sydney.SetLocation(-33.9, 151.2, std::nullopt, "Australia/Sydney", 0, false);
  const char* dates[] = {"2024-04-06", "2024-04-07", "2024-04-08"};  // clocks go back on the 7th
  for (const bool use24Hours : {true, false}) {
    const ScopedTimeFormat form(use24Hours);
    const Json days = json({"riseset", "--lat", "-33.9", "--lon", "151.2", "--tz", "Australia/Sydney",
                            "--from", "2024-04-06", "--to", "2024-04-08", "--twilight", "astronomical",
                            use24Hours ? "--24h" : "--12h"});
    ASSERT_EQ(days.size(), 3U);
    for (std::size_t i = 0; i < days.size(); ++i) {
      const Json record = recordOf(dates[i], sydney, 2);
      for (const auto& [name, value] : record.items()) EXPECT_EQ(days[i][name], value) << dates[i] << name;
    }
  }
}

TEST_F(RiseSetCommandTest, TheRecordsTwilightIsOneOfThreeKinds) {
  const auto dawn = [&](const char* kind) {
    return json({"riseset", "--city", "Madrid", "--date", "2024-03-20", "--24h", "--twilight",
                 kind})[0]["twilightBeginText"]
        .get<std::string>();
  };
  EXPECT_LT(dawn("astronomical"), dawn("nautical"));
  EXPECT_LT(dawn("nautical"), dawn("civil"));
  EXPECT_EQ(dawn("all"), dawn("civil"));
}

TEST_F(RiseSetCommandTest, EventsStandInTheOrderOfTheDayWithWhereTheyHappen) {
  const Json events = json({"riseset", "--city", "London", "--date", "2024-05-18"})[0]["events"];
  std::string names;
  for (const Json& event : events)
    names += event["body"].get<std::string>() + " " + event["event"].get<std::string>() + ", ";
  EXPECT_EQ(names,
            "sun astronomicalDusk, sun astronomicalDawn, moon set, sun nauticalDawn, sun civilDawn, "
            "sun rise, sun transit, moon rise, sun set, moon transit, sun civilDusk, sun nauticalDusk, ");
  for (const Json& event : events) {
    EXPECT_EQ(event.contains("altitude"), event["event"] == "transit");
    EXPECT_TRUE(event["azimuth"] >= 0 && event["azimuth"] < 360);
  }
  EXPECT_NEAR(events[6]["azimuth"].get<double>(), 180, 0.01);
  EXPECT_NEAR(events[6]["altitude"].get<double>(), 58.2, 0.1);
}

TEST_F(RiseSetCommandTest, LondonsShortNightOfMayIsNotNone) {
  const auto events = eventsOf(json({"riseset", "--city", "London", "--date", "2024-05-18"})[0], "sun");
  EXPECT_EQ(events[0], "2024-05-17T23:05:30Z astronomicalDusk");
  EXPECT_EQ(events[1], "2024-05-18T00:47:57Z astronomicalDawn");
  EXPECT_EQ(rows({"--city", "London", "--date", "2024-05-18", "--twilight", "astronomical"})[0],
            "2024-05-18  01:48  05:04    20:51   00:05  15h 47m  15:22     03:19");
}

TEST_F(RiseSetCommandTest, WithoutADateItIsTheDayAtThePlace) {
  EXPECT_EQ(datesOf(json({"riseset", "--city", "Helsinki"})), "2024-06-20 ");
  EXPECT_EQ(datesOf(json({"riseset", "--city", "Auckland", "--now", "2024-06-20T12:30:00Z"})), "2024-06-21 ");
}

TEST_F(RiseSetCommandTest, PacificApiaSkippedADay) {
  EXPECT_EQ(datesOf(json({"riseset", "--city", "Apia", "--from", "2011-12-28", "--to", "2012-01-01"})),
            "2011-12-28 2011-12-29 2011-12-31 2012-01-01 ");
}

TEST_F(RiseSetCommandTest, CairosDayWithoutMidnightIsADay) {
  EXPECT_EQ(datesOf(json({"riseset", "--city", "Cairo", "--from", "2024-04-25", "--to", "2024-04-27"})),
            "2024-04-25 2024-04-26 2024-04-27 ");
}

TEST_F(RiseSetCommandTest, ARangeMayLast41Years) {
  const std::string days = answer({"riseset", "--from", "1960-01-01", "--to", "2000-12-31", "--json"});
  // Counted in the text: to parse it would take most of the test.
  const std::string beginning = "{\"date\":\"";
  int count = 0;
  for (auto at = days.find(beginning); at != std::string::npos; at = days.find(beginning, at + 1)) ++count;
  EXPECT_EQ(count, 14976);
  EXPECT_TRUE(days.starts_with("[" + beginning + "1960-01-01\""));
  EXPECT_EQ(days.rfind(beginning + "2000-12-31\""), days.rfind(beginning));
}

TEST_F(RiseSetCommandTest, TheWhole20thAnd21stCenturyIsKnownButForTheEdgesInUniversalTime) {
  EXPECT_EQ(json({"riseset", "--tz", "UTC", "--from", "1900-01-01", "--to", "1900-01-02"}).size(), 2U);
  EXPECT_EQ(json({"riseset", "--tz", "UTC", "--from", "2100-12-30", "--to", "2100-12-31"}).size(), 2U);
  for (const auto& [city, date] : {std::pair("Tokyo", "1900-01-01"), std::pair("New York", "2100-12-31")}) {
    const Outcome outcome = runProgram({"riseset", "--city", city, "--date", date});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, std::string("velmora: the day ") + date +
                               " is not wholly known at the place; accepted: what lies from 1900 to 2100 in "
                               "UTC\n");
  }
}

TEST_F(RiseSetCommandTest, MidnightSunAndPolarNightAreToldApart) {
  const auto dayOn = [&](const char* date) {
    return json({"riseset", "--city", "Longyearbyen", "--date", date})[0];
  };
  const Json june = dayOn("2024-06-21"), december = dayOn("2024-12-21"), march = dayOn("2024-03-21");
  EXPECT_EQ(june["sunAllDay"], "up");
  EXPECT_EQ(june["daylightSeconds"], 86400);
  EXPECT_EQ(december["sunAllDay"], "down");
  EXPECT_EQ(december["daylightSeconds"], 0);
  EXPECT_EQ(march["sunAllDay"], nullptr);
}

TEST_F(RiseSetCommandTest, ABodyIsUpOrDownAllDayOnlyWhereItIsForAllOfIt) {
  // The polar night's last days: the Sun shows for half an hour of the 15th.
  const Json days = json({"riseset", "--city", "Longyearbyen", "--from", "2024-02-14", "--to", "2024-02-17"});
  for (const Json& day : days) {
    const bool rises = !eventsOf(day, "sun").empty() && day["daylightSeconds"] > 0;
    EXPECT_EQ(day["sunAllDay"].is_null(), rises) << day["date"];
  }
  EXPECT_EQ(days[0]["sunAllDay"], "down");
  EXPECT_EQ(days[3]["sunAllDay"], nullptr);
}

TEST_F(RiseSetCommandTest, AlaskasDayWithTwoSunsetsHasBoth) {
  // Where clocks are far from the Sun a summer's sunset passes midnight: one day has two, another none.
  const std::vector<std::string> fairbanks = {"--lat",  "64.8", "--lon",
                                              "-147.7", "--tz", "America/Anchorage"};
  const auto rowOf = [&](const char* date, std::size_t line) {
    auto arguments = fairbanks;
    arguments.insert(arguments.end(), {"--date", date});
    return rows(arguments).at(line);
  };
  EXPECT_EQ(rowOf("2024-07-14", 0).substr(0, 44), "2024-07-14  none  03:52    00:02   none  20h");
  EXPECT_EQ(rowOf("2024-07-14", 1), "                           23:59                            23:58");
  std::size_t sets = 0;
  auto arguments = fairbanks;
  arguments.insert(arguments.begin(), {"riseset", "--from", "2024-05-01", "--to", "2024-07-31"});
  for (const Json& day : json(arguments)) {
    for (const std::string& event : eventsOf(day, "sun")) sets += event.ends_with(" set") ? 1 : 0;
  }
  EXPECT_EQ(sets, 92U) << "none is lost, none doubled";
}

TEST_F(RiseSetCommandTest, BerlinsDayOf25HoursHasEachEventOnce) {
  const Json day = json({"riseset", "--city", "Berlin", "--date", "2024-10-27"})[0];
  const auto moon = eventsOf(day, "moon");
  ASSERT_EQ(moon.size(), 3U);
  EXPECT_EQ(moon[0], "2024-10-27T00:04:01Z rise");  // 02:04, in the last hour of summer time
  for (const Json& event : day["events"]) {
    EXPECT_GE(event["instant"], "2024-10-26T22:00:00Z");
    EXPECT_LT(event["instant"], "2024-10-27T23:00:00Z");
  }
}

TEST_F(RiseSetCommandTest, DaysJoinWithoutGapOrDouble) {
  // Lord Howe's clocks move by half an hour.
  const std::vector<std::string> place = {"--lat",  "-31.55", "--lon",
                                          "159.08", "--tz",   "Australia/Lord_Howe"};
  auto arguments = place;
  arguments.insert(arguments.begin(), {"riseset", "--from", "2024-01-01", "--to", "2024-12-31"});
  std::string former;
  std::size_t rises = 0;
  for (const Json& day : json(arguments)) {
    for (const Json& event : day["events"]) {
      EXPECT_LE(former, event["instant"].get<std::string>());
      former = event["instant"];
      rises += event["body"] == "sun" && event["event"] == "rise" ? 1 : 0;
    }
  }
  EXPECT_EQ(rises, 366U);
}

TEST_F(RiseSetCommandTest, HeightAboveTheHorizonLengthensTheDay) {
  const auto daylight = [&](const char* height) {
    return json({"riseset", "--city", "Helsinki", "--date", "2024-03-20", "--height",
                 height})[0]["daylightSeconds"]
        .get<int>();
  };
  EXPECT_EQ(json({"riseset", "--city", "Helsinki", "--date", "2024-03-20"})[0]["daylightSeconds"],
            daylight("0"));
  EXPECT_GT(daylight("100"), daylight("0") + 250);
  EXPECT_LT(daylight("100"), daylight("0") + 300);
}

TEST_F(RiseSetCommandTest, HelsinkiAtMidsummer) {
  EXPECT_EQ(answer({"riseset", "--city", "Helsinki", "--from", "2024-06-20", "--to", "2024-06-22", "--24h"}),
            "Helsinki\n"
            "60.1695° N, 24.9354° E, Europe/Helsinki\n"
            "Dawn and dusk: civil twilight\n"
            "\n"
            "Date        Dawn   Sunrise  Sunset  Dusk   Daytime  Moonrise  Moonset\n"
            "2024-06-20  02:02  03:54    22:50   00:42  18h 56m  22:25     01:53\n"
            "2024-06-21  02:02  03:54    22:50   00:42  18h 56m  23:56     02:03\n"
            "2024-06-22  02:02  03:54    22:50   00:42  18h 56m  none      02:34\n");
}

TEST_F(RiseSetCommandTest, TheThreeTwilightsStandAroundTheDay) {
  const auto lines =
      linesOf(answer({"riseset", "--city", "Rome", "--date", "2024-03-20", "--twilight", "all", "--24h"}));
  EXPECT_EQ(lines[2], "Dawn and dusk: astronomical, nautical and civil twilight");
  EXPECT_EQ(lines[4], "Date       Astr. Naut. Civil Sunrise Sunset Civil Naut. Astr. Moonrise Moonset");
}

TEST_F(RiseSetCommandTest, TransitsHaveColumnsOfTheirOwn) {
  const auto lines =
      linesOf(answer({"riseset", "--city", "Rome", "--date", "2024-03-20", "--transit", "--24h"}));
  EXPECT_EQ(lines[4], "Date       Dawn  Sunrise Sunset Dusk  Noon  Daytime Moonrise Moonset Transit");
  EXPECT_NE(lines[5].find(" 12:17 "), std::string::npos) << lines[5];
}

TEST_F(RiseSetCommandTest, ADayWithoutEventsSaysWhereTheBodyStays) {
  EXPECT_EQ(rows({"--city", "Longyearbyen", "--date", "2024-06-21"})[0],
            "2024-06-21  none  up all day       none  24h 00m  down all day");
}

TEST_F(RiseSetCommandTest, AnEventOfTheDaysLastHalfMinuteStaysOnTheDay) {
  // Moonrise at 23:59:56 there.
  const Json day = json(
      {"riseset", "--lat", "60", "--lon", "22.85", "--tz", "Europe/Helsinki", "--date", "2024-06-21"})[0];
  EXPECT_EQ(eventsOf(day, "moon").back().substr(0, 20), "2024-06-21T20:59:56Z");
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

TEST_F(RiseSetCommandTest, AsATableOfValuesItHasARowForEachEvent) {
  const auto lines = linesOf(
      answer({"riseset", "--city", "Longyearbyen", "--from", "2024-06-20", "--to", "2024-06-21", "--csv"}));
  EXPECT_EQ(lines[0], "date,instant,body,event,azimuth,altitude\r");
  EXPECT_EQ(lines[1], "2024-06-20,,sun,upAllDay,,\r");
  EXPECT_TRUE(lines[3].starts_with("2024-06-20,2024-06-20T")) << lines[3];
}

}  // namespace
}  // namespace velmora::app
