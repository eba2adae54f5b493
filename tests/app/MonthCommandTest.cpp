#include <app/text/DisplayWidth.h>
#include <velmora/service/MoonPhaseData.h>

#include <algorithm>

#include "AppTest.h"

namespace velmora::app {
namespace {

class MonthCommandTest : public AppTest {
 protected:
  /// The lines of the table, without its heading.
  static std::vector<std::string> rows(const std::vector<std::string>& arguments) {
    const auto lines = linesOf(answer(arguments));
    const auto heading = std::find_if(lines.begin(), lines.end(),
                                      [](const std::string& line) { return line.starts_with("    Day"); });
    return {std::next(heading), lines.end()};
  }

  static Json eventTimes(const Json& month) {
    Json times = Json::array();
    for (const Json& event : month["events"])
      times.push_back({event["day"], event["phaseName"], event["time"], event["localDate"]});
    return times;
  }
};

struct PlaceAndMonth {
  const char* zone;
  double latitude, longitude;
  int year, month;
};

/// The service with the place and the month selected.
void selectMonth(MoonPhaseData& service, const PlaceAndMonth& what) {
  const auto location = std::make_shared<GeoLocationData>();
  location->SetLocation(what.latitude, what.longitude, std::nullopt, what.zone, 0, false);
  const Calendar calendar(*TimeZone::named(what.zone));
  service.SetSelectedLocation(location,
                              calendar.date({.year = what.year, .month = what.month, .day = 10, .hour = 12}));
}

TEST_F(MonthCommandTest, DaysAreTheRecordsOfTheLibrary) {
  const std::vector<PlaceAndMonth> cases = {
      {"America/Los_Angeles", 37.8, -122.4, 2024, 3}, {"Australia/Sydney", -33.9, 151.2, 2023, 11},
      {"Pacific/Pago_Pago", -14.3, -170.7, 2000, 1},  {"Pacific/Kiritimati", 1.9, -157.4, 2040, 12},
      {"Asia/Kathmandu", 27.7, 85.3, 2012, 2},        {"UTC", 0, 0, 2018, 2}};
  for (const PlaceAndMonth& what : cases) {
    const Json month = json(
        {"month", std::to_string(what.year) + (what.month < 10 ? "-0" : "-") + std::to_string(what.month),
         "--lat", Json(what.latitude).dump(), "--lon", Json(what.longitude).dump(), "--tz", what.zone});
    MoonPhaseData service;
    selectMonth(service, what);
    const auto days = service.currentMonthPhaseDictionary();
    const auto images = service.currentMonthImageDictionary();
    EXPECT_EQ(month["year"], what.year);
    EXPECT_EQ(month["month"], what.month);
    ASSERT_EQ(month["days"].size(), days->size()) << what.zone;
    for (const Json& day : month["days"]) {
      const PhaseItem& item = *days->at(day["day"]);
      EXPECT_EQ(day["month"], what.month);
      EXPECT_EQ(day["year"], what.year);
      EXPECT_EQ(day["phase"], item.phase);
      EXPECT_EQ(day["phaseName"], *service.nameForPhase(item.phase));
      EXPECT_EQ(day["fullFactor"].get<float>(), item.fullFactor);
      EXPECT_EQ(day["moonAge"], item.moonAge);
      EXPECT_EQ(day["localDate"], item.localDate ? Json(instantText(*item.localDate)) : Json(nullptr));
      const auto image = images->find(item.day);
      EXPECT_EQ(day["image"], image == images->end() ? Json(nullptr) : Json(image->second));
    }
  }
}

TEST_F(MonthCommandTest, FieldsStandInTheAgreedOrder) {
  const Json month = json({"month", "2024-03"});
  const auto names = [](const Json& object) {
    std::string list;
    for (const auto& [name, value] : object.items()) list += name + " ";
    return list;
  };
  EXPECT_EQ(names(month), "year month days events ");
  EXPECT_EQ(names(month["days"][0]), "day month year phase phaseName fullFactor moonAge localDate image ");
  EXPECT_EQ(names(month["events"][0]), "day phase phaseName time localDate ");
}

TEST_F(MonthCommandTest, EventsCarryTheClockTimeOfTheirTrueInstant) {
  EXPECT_EQ(eventTimes(json({"month", "2024-03", "--24h"})),
            jsonFromText(R"([[3, "Last Quarter", "07:23", "2024-03-03T15:23:00Z"],
                            [10, "New Moon", "01:00", "2024-03-10T09:00:00Z"],
                            [16, "First Quarter", "21:11", "2024-03-17T04:11:00Z"],
                            [25, "Full Moon", "00:00", "2024-03-25T07:00:00Z"]])"));
  EXPECT_EQ(json({"month", "2024-03", "--12h"})["events"][2]["time"], "09:11 PM");
}

TEST_F(MonthCommandTest, AnEventMovesToTheDayTheMonthAndTheYearOfThePlace) {
  const auto daysOfFullMoons = [](const char* month, const char* zone) {
    const Json answer = json({"month", month, "--tz", zone});
    Json days = Json::array();
    for (const Json& event : answer["events"])
      if (event["phase"] == 0) days.push_back(event["day"]);
    return days;
  };
  // Full moon on 2024-03-25 07:00 UTC.
  EXPECT_EQ(daysOfFullMoons("2024-03", "Pacific/Pago_Pago"), Json({24}));
  EXPECT_EQ(daysOfFullMoons("2024-03", "Pacific/Kiritimati"), Json({25}));
  // Full moon on 2018-03-31 12:37 UTC.
  EXPECT_EQ(daysOfFullMoons("2018-03", "UTC"), Json({2, 31}));
  EXPECT_EQ(daysOfFullMoons("2018-04", "Pacific/Kiritimati"), Json({1, 30}));
  // First quarter on 2012-01-01 06:15 UTC, new year's night in Los Angeles.
  const Json december = json({"month", "2011-12", "--tz", "America/Los_Angeles"})["events"];
  EXPECT_EQ(december.back()["localDate"], "2012-01-01T06:15:00Z");
  EXPECT_EQ(december.back()["day"], 31);
  EXPECT_EQ(json({"month", "2012-01", "--tz", "America/Los_Angeles"})["events"].size(), 4U);
}

TEST_F(MonthCommandTest, JanuaryListsAnEventOfThePreviousDecemberFirst) {
  // Full moon on 2009-12-31 19:13 UTC, already new year in Tokyo; the library lists it last.
  const Json events = json({"month", "2010-01", "--city", "Tokyo"})["events"];
  EXPECT_EQ(events.front()["localDate"], "2009-12-31T19:13:00Z");
  EXPECT_EQ(events.front()["day"], 1);
  for (std::size_t i = 1; i < events.size(); ++i)
    EXPECT_LT(events[i - 1]["localDate"].get<std::string>(), events[i]["localDate"].get<std::string>());
}

TEST_F(MonthCommandTest, IsThePresentOneAtThePlaceWhereNoneIsNamed) {
  const std::string now = "2024-03-31T23:30:00Z";
  EXPECT_EQ(json({"month", "--tz", "UTC", "--now", now}), json({"month", "2024-03", "--tz", "UTC"}));
  EXPECT_EQ(json({"month", "--city", "Helsinki", "--now", now}),
            json({"month", "2024-04", "--city", "Helsinki"}));
}

TEST_F(MonthCommandTest, RowsReadAsAPersonWouldWriteThem) {
  const auto lines = linesOf(answer({"month", "2024-03", "--24h", "--now", "2024-03-14T02:00:00Z"}));
  ASSERT_EQ(lines.size(), 37U);
  EXPECT_EQ(lines[3], "March 2024");
  EXPECT_EQ(lines[5], "    Day      Lit  Age  Time   Phase");
  EXPECT_EQ(lines[6], "🌖  Fri  1   68%   22         Waning Gibbous");
  EXPECT_TRUE(lines[18].ends_with("%    4         Waxing Crescent  ← today")) << lines[18];
  EXPECT_EQ(lines[21], "🌓  Sat 16   50%    7  21:11  First Quarter");
  EXPECT_EQ(lines[30], "🌕  Mon 25  100%   16  00:00  Full Moon");
}

TEST_F(MonthCommandTest, TheFirstDaysOfTheTablesHaveAnAgeToo) {
  const auto days = rows({"month", "2000-01", "--tz", "UTC", "--24h"});
  EXPECT_EQ(days[0], "🌘  Sat  1   22%   26         Waning Crescent");
  EXPECT_TRUE(days[4].ends_with("Waning Crescent")) << days[4];
  EXPECT_EQ(days[5], "🌑  Thu  6    0%    1  18:14  New Moon");
  EXPECT_EQ(json({"month", "2000-01", "--tz", "UTC"})["days"][0]["moonAge"], 34);  // the record stays
}

TEST_F(MonthCommandTest, OnlyTodayIsMarked) {
  const auto marked = [](const std::string& month) {
    int count = 0;
    for (const std::string& row : rows({"month", month, "--tz", "UTC"}))
      count += row.ends_with("← today") ? 1 : 0;
    return count;
  };
  EXPECT_EQ(marked("2024-06"), 1);
  EXPECT_EQ(marked("2024-05"), 0);
  EXPECT_EQ(marked("2023-06"), 0);
}

TEST_F(MonthCommandTest, TheDiscIsMirroredSouthOfTheEquator) {
  const auto firstOfMarch = [](const char* latitude) {
    return rows({"month", "2024-03", "--lat", latitude, "--lon", "0", "--tz", "UTC"}).front();
  };
  EXPECT_TRUE(firstOfMarch("60").starts_with("🌖"));
  EXPECT_TRUE(firstOfMarch("0").starts_with("🌖"));
  EXPECT_TRUE(firstOfMarch("-60").starts_with("🌔"));
}

TEST_F(MonthCommandTest, ADayThatThePlaceSkippedIsLeftOut) {
  const Json days = json({"month", "2011-12", "--city", "Apia"})["days"];
  ASSERT_EQ(days.size(), 30U);
  EXPECT_EQ(days[28]["day"], 29);
  EXPECT_EQ(days[29]["day"], 31);
  EXPECT_TRUE(rows({"month", "2011-12", "--city", "Apia"}).back().find("Sat 31") != std::string::npos);
}

class MonthGridTest : public MonthCommandTest {
 protected:
  static std::vector<std::string> grid(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "month");
    arguments.insert(arguments.end(), {"--grid", "--24h"});
    const auto lines = linesOf(answer(arguments));
    return {std::next(std::find(lines.begin(), lines.end(), "")), lines.end()};
  }
};

TEST_F(MonthGridTest, HasTheDaysInWeeksWithPhasesAndEclipsesMarked) {
  const auto lines = grid({"2024-04", "--city", "New York"});
  EXPECT_EQ(lines[0], "Sun     Mon     Tue     Wed     Thu     Fri     Sat");
  EXPECT_EQ(lines[1], "         1 🌗    2       3       4       5       6");
  EXPECT_EQ(lines[2], " 7       8 🌑*   9      10      11      12      13");
  EXPECT_EQ(lines[5], "28      29      30");
  EXPECT_EQ(lines[7], "* Mon  8  Total Solar Eclipse, 15:26: partial 90%");
}

TEST_F(MonthGridTest, TheListStandsBelowIt) {
  const std::string grid = answer({"month", "2024-04", "--city", "New York", "--grid"});
  const std::string list = answer({"month", "2024-04", "--city", "New York"});
  EXPECT_TRUE(grid.ends_with(list.substr(list.find("    Day"))));
}

TEST_F(MonthGridTest, TheWeekBeginsAsInTheLocale) {
  EXPECT_TRUE(grid({"2024-04", "--city", "Berlin", "--locale", "de_DE"})[0].starts_with("Mo "));
  EXPECT_TRUE(grid({"2024-04", "--city", "Cairo", "--locale", "ar_EG"})[0].starts_with("\u2067السبت "));
}

TEST_F(MonthGridTest, AMonthMayBeginWithTheWeekAndEndWithIt) {
  const auto lines = grid({"2026-02", "--city", "London"});
  EXPECT_EQ(lines[1].substr(0, 2), " 1");
  EXPECT_EQ(lines[4].substr(0, 2), "22");
}

TEST_F(MonthGridTest, ADayThatThePlaceSkippedLeavesAGap) {
  EXPECT_EQ(grid({"2011-12", "--city", "Apia"})[5], "25      26      27      28      29              31");
}

TEST_F(MonthGridTest, FitsThePageInEveryLanguage) {
  for (const char* locale : {"en", "de", "ja", "ar", "hi", "ru", "zh-Hant"}) {
    for (const std::string& line : grid({"2025-03", "--city", "New York", "--locale", locale}))
      EXPECT_LE(displayWidth(line), 80U) << locale << line;
  }
}

TEST_F(MonthCommandTest, NamesFollowTheLocale) {
  EXPECT_EQ(json({"month", "2024-03", "--locale", "ja_JP"})["days"][24]["phaseName"], "満月");
  EXPECT_EQ(json({"month", "2024-03", "--locale", "ar_EG"})["events"][3]["phaseName"], "البدر");
}

}  // namespace
}  // namespace velmora::app
