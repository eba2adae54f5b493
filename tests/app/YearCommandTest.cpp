#include <velmora/service/MoonPhaseData.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using YearCommandTest = AppTest;

/// The year's items of the library, but for rise and set and the shifted instant.
Json itemsOf(std::int64_t year, const char* zone) {
  const auto location = std::make_shared<GeoLocationData>();
  location->SetLocation(10, 20, std::nullopt, zone, 0, false);
  MoonPhaseData service;
  service.SetSelectedLocation(location);
  Json months;
  for (const auto& [month, items] : service.GetRiseSetPhaseItemsForYear(year)) {
    for (const auto& item : items) {
      months[std::to_string(month)].push_back({{"day", item->day},
                                               {"month", item->month},
                                               {"year", item->year},
                                               {"phase", item->phase},
                                               {"phaseName", *service.nameForPhase(item->phase)},
                                               {"fullFactor", item->fullFactor},
                                               {"weekDay", item->weekDay},
                                               {"timeText", item->timeText}});
    }
  }
  return months;
}

Json withoutInstants(Json months) {
  for (Json& events : months)
    for (Json& event : events) event.erase("instant");
  return months;
}

TEST_F(YearCommandTest, EventsAreTheLibrarysItemsWithTheirTrueInstants) {
  for (const char* zone : {"UTC", "Asia/Kathmandu", "America/Los_Angeles"}) {
    const Json months = json({"year", "2024", "--lat", "10", "--lon", "20", "--tz", zone});
    EXPECT_EQ(withoutInstants(months), itemsOf(2024, zone)) << zone;
    EXPECT_EQ(months["3"].back()["instant"], "2024-03-25T07:00:00Z");
  }
}

TEST_F(YearCommandTest, MonthsStandInOrder) {
  const Json months = json({"year", "2024"});
  std::string names;
  for (const auto& [month, events] : months.items()) names += month + " ";
  EXPECT_EQ(names, "1 2 3 4 5 6 7 8 9 10 11 12 ");
}

TEST_F(YearCommandTest, NewYearsNightBelongsToTheYearOfThePlace) {
  // First quarter on 2012-01-01 06:15 UTC; the library's items of 2012 have it in their December.
  const Json before = json({"year", "2011", "--city", "Los Angeles"});
  const Json after = json({"year", "2012", "--city", "Los Angeles"});
  EXPECT_EQ(before["12"].back()["instant"], "2012-01-01T06:15:00Z");
  EXPECT_EQ(before["12"].back()["day"], 31);
  EXPECT_EQ(before["12"].back()["year"], 2011);
  EXPECT_EQ(before["12"].back()["weekDay"], 7);
  EXPECT_EQ(after["1"].front()["day"], 8);
  for (const Json& event : after["12"]) EXPECT_EQ(event["year"], 2012);
}

TEST_F(YearCommandTest, IsThePresentOneAtThePlaceWhereNoneIsNamed) {
  const std::string now = "2024-12-31T12:00:00Z";
  EXPECT_EQ(json({"year", "--tz", "UTC", "--now", now}), json({"year", "2024", "--tz", "UTC"}));
  EXPECT_EQ(json({"year", "--tz", "Pacific/Kiritimati", "--now", now}),
            json({"year", "2025", "--tz", "Pacific/Kiritimati"}));
}

TEST_F(YearCommandTest, TimesFollowTheClock) {
  EXPECT_EQ(json({"year", "2024", "--tz", "UTC", "--24h"})["1"][3]["timeText"], "17:54");
  EXPECT_EQ(json({"year", "2024", "--tz", "UTC", "--12h"})["1"][3]["timeText"], "5:54\u202fPM");
}

TEST_F(YearCommandTest, ReadsMonthByMonth) {
  const auto lines = linesOf(answer({"year", "2024", "--city", "Tokyo", "--24h"}));
  ASSERT_EQ(lines.size(), 4U + 50U);
  EXPECT_EQ(lines[3], "2024           Day     Time   Phase");
  EXPECT_EQ(lines[4], "January    🌗  Thu  4  12:30  Last Quarter");
  EXPECT_EQ(lines[5], "           🌑  Thu 11  20:57  New Moon");
  EXPECT_EQ(lines[8], "February   🌗  Sat  3  08:18  Last Quarter");
}

}  // namespace
}  // namespace velmora::app
