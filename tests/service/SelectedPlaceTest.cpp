#include <tests/service/SelectionTest.h>

namespace velmora {
namespace {

using PlaceSelection = SelectionTest;

TEST_F(PlaceSelection, PostsThePlaceAlone) {
  select(losAngeles(), 2024, 3, 10);
  const NotificationRecord told;
  service().SetSelectedLocation(sydney());
  EXPECT_EQ(told.texts, Texts{"CalenderLocationChanged 2024-3-11, events 4, days 31, in Australia/Sydney"});
}

TEST_F(PlaceSelection, WithADatePostsThePlaceAlone) {
  const NotificationRecord told;
  service().SetSelectedLocation(sydney(), utc(2024, 6, 5, 20));
  EXPECT_EQ(told.texts, Texts{"CalenderLocationChanged 2024-6-6, events 4, days 30, in Australia/Sydney"});
}

TEST_F(PlaceSelection, BeforeAnyDateMovesTheCalendarAlone) {
  const NotificationRecord told;
  service().SetSelectedLocation(sydney());
  EXPECT_EQ(told.texts, Texts{"CalenderLocationChanged 0-0-0, events 0, days 0, in Australia/Sydney"});
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
}

TEST_F(PlaceSelection, InTheSameMonthKeepsTheMonthsEvents) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  ASSERT_TRUE(hasWholeMonth());
  const auto events = service().currentMonthData();
  EXPECT_EQ(eventDays(), (Days{3, 10, 16, 25}));
  service().SetSelectedLocation(tokyo());
  EXPECT_TRUE(hasNothingOfMonth());
  EXPECT_EQ(service().currentMonthData(), events) << "kept as seen from Los Angeles";
  EXPECT_EQ(service().currentMonthPhaseDictionary()->at(17)->phase, 1) << "as seen from Tokyo";
}

TEST_F(PlaceSelection, InAnotherMonthBuildsTheMonthAnew) {
  const Place west = losAngeles();
  service().SetSelectedLocation(west, localTime(west, 2024, 3, 31, 20));
  EXPECT_EQ(service().currentMonth(), 3);
  service().SetSelectedLocation(tokyo());
  EXPECT_EQ(service().currentMonth(), 4);
  EXPECT_EQ(service().currentDay(), 1);
  EXPECT_EQ(eventDays(), (Days{2, 9, 16, 24}));
}

TEST_F(PlaceSelection, InAnotherYearLoadsItsTable) {
  const Place west = losAngeles();
  service().SetSelectedLocation(west, localTime(west, 2024, 12, 31, 20));
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2024));
  service().SetSelectedLocation(tokyo());
  EXPECT_EQ(service().currentYear(), 2025);
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2025));
}

TEST_F(PlaceSelection, OfTheSamePlaceAgainForgetsTheMonthAndPosts) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  buildMonth();
  int told = 0;
  const auto subscription =
      NotificationCenter::defaultCenter().subscribe(kCalenderLocationChangedNotification, [&] { ++told; });
  service().SetSelectedLocation(place);
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(hasNothingOfMonth());
}

TEST_F(PlaceSelection, WithADateIsNotChecked) {
  const NotificationRecord told;
  service().SetSelectedLocation(greenwich(), utc(1999, 5, 5));
  EXPECT_EQ(service().currentYear(), 1999);
  EXPECT_EQ(service().currentDate(), utc(1999, 5, 5));
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  service().SetSelectedLocation(greenwich(), utc(1999, 5, 5));
  EXPECT_EQ(told.texts.size(), 2U) << "posted for the same instant, too";
}

TEST_F(PlaceSelection, WithoutADateLeavesTheDayAsItWas) {
  select(losAngeles(), 2024, 3, 10);
  const NotificationRecord told;
  service().SetSelectedLocation(tokyo(), std::nullopt);
  EXPECT_EQ(service().currentDate(), std::nullopt);
  EXPECT_EQ(service().currentDay(), 10);
  EXPECT_EQ(told.texts.size(), 1U);
}

TEST_F(PlaceSelection, ARecordMovedToAnotherZoneMovesTheCalendarWithTheNextMonth) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  place->SetLocation(35.6762, 139.6503, "Tokyo", "Asia/Tokyo", 0, false);
  EXPECT_EQ(service().calendar().timeZone().name(), "America/Los_Angeles") << "while the month stays";
  service().SetSelectedDate(localTime(place, 2024, 4, 10, 3));
  EXPECT_EQ(service().calendar().timeZone().name(), "Asia/Tokyo");
  EXPECT_EQ(eventDays(), (Days{2, 9, 16, 24}));
  EXPECT_EQ(service().GetRiseSetPhaseItemsForCurrentMonth()->at(10)->weekDay, 4) << "a Wednesday";
  EXPECT_EQ(service().GetRiseSetPhaseItemsForYear(2024).at(4).at(0)->day, 2);
}

TEST_F(PlaceSelection, ADayOfARecordMovedToAnotherZoneStartsThere) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  place->SetLocation(35.6762, 139.6503, "Tokyo", "Asia/Tokyo", 0, false);
  service().changeSelectedDay(20, 3, 2024);
  EXPECT_EQ(service().currentDate(), localTime(place, 2024, 3, 20));
  EXPECT_EQ(service().currentDay(), 20);
}

TEST_F(PlaceSelection, OfNoPlaceKeepsTheCalendarsZone) {
  select(losAngeles(), 2024, 3, 10);
  service().SetSelectedLocation(nullptr);
  EXPECT_EQ(service().currentLocation(), nullptr);
  EXPECT_EQ(service().calendar().timeZone().name(), "America/Los_Angeles");
  EXPECT_EQ(service().currentDay(), 10);
}

TEST_F(PlaceSelection, WithoutANamedZoneFollowsTheFixedOffset) {
  service().SetSelectedLocation(placeWithoutZone(19800), utc(2024, 3, 10, 18, 30));
  EXPECT_EQ(service().calendar().timeZone().name(), "GMT+05:30");
  EXPECT_EQ(service().currentDay(), 11);
  service().changeSelectedDay(25, 3, 2024);
  EXPECT_EQ(service().currentDate(), utc(2024, 3, 24, 18, 30));
  EXPECT_EQ(service().currentMonthPhaseDictionary()->at(25)->phase, 0);
}

}  // namespace
}  // namespace velmora
