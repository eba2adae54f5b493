#include <tests/service/SelectionTest.h>

namespace velmora {
namespace {

using MonthCaches = SelectionTest;

TEST_F(MonthCaches, AnotherDayOfTheMonthKeepsThem) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  const auto phases = service().currentPhaseDictionary();
  const auto images = service().currentImageDictionary();
  const auto items = service().currentRiseSetPhaseItemDictionary();
  const auto events = service().currentMonthData();
  const NotificationRecord told;
  service().SetSelectedDate(localTime(losAngeles(), 2024, 3, 31, 23, 59));
  EXPECT_EQ(told.texts.size(), 1U);
  EXPECT_EQ(service().currentDay(), 31);
  EXPECT_EQ(service().currentPhaseDictionary(), phases);
  EXPECT_EQ(service().currentImageDictionary(), images);
  EXPECT_EQ(service().currentRiseSetPhaseItemDictionary(), items);
  EXPECT_EQ(service().currentMonthData(), events);
}

TEST_F(MonthCaches, AnotherMonthForgetsThemAndKeepsTheTable) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  ASSERT_TRUE(hasWholeMonth());
  const auto table = service().rawDataDictionary();
  EXPECT_EQ(eventDays(), (Days{3, 10, 16, 25}));
  service().SetSelectedDate(localTime(losAngeles(), 2024, 4, 10));
  EXPECT_TRUE(hasNothingOfMonth());
  EXPECT_EQ(eventDays(), (Days{1, 8, 15, 23}));
  EXPECT_EQ(service().rawDataDictionary(), table);
}

TEST_F(MonthCaches, TheSameMonthOfAnotherYearLoadsItsTable) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  service().SetSelectedDate(localTime(losAngeles(), 2025, 3, 10));
  EXPECT_TRUE(hasNothingOfMonth());
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2025));
  EXPECT_EQ(*service().currentYearDictionary(), shippedTable(2025));
  EXPECT_EQ(eventDays(), (Days{6, 13, 22, 29}));
}

TEST_F(MonthCaches, AreForgottenBeforeAMoveToAnotherMonthAlone) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  service().dateWillChangeTo(std::nullopt);
  service().dateWillChangeTo(localTime(losAngeles(), 2024, 3, 1));
  EXPECT_TRUE(hasWholeMonth());
  service().dateWillChangeTo(localTime(losAngeles(), 2024, 2, 29, 23, 59));
  EXPECT_TRUE(hasNothingOfMonth());
  buildMonth();
  service().dateWillChangeTo(localTime(losAngeles(), 2023, 3, 10));
  EXPECT_TRUE(hasNothingOfMonth()) << "the same month of another year";
  EXPECT_EQ(service().currentDay(), 10);
}

TEST_F(MonthCaches, FollowADateWithoutSelectingIt) {
  select(losAngeles(), 2024, 3, 10);
  const Instant selected = *service().currentDate();
  const NotificationRecord told;
  service().updateCacheForDate(std::nullopt);
  EXPECT_EQ(service().currentDay(), 10);
  service().updateCacheForDate(localTime(losAngeles(), 2025, 4, 20));
  EXPECT_EQ(service().currentYear(), 2025);
  EXPECT_EQ(service().currentMonth(), 4);
  EXPECT_EQ(service().currentDay(), 20);
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2025));
  EXPECT_EQ(eventDays(), (Days{4, 12, 20, 27}));
  EXPECT_EQ(service().currentDate(), selected);
  EXPECT_EQ(told.texts, Texts());
}

TEST_F(MonthCaches, OfADateOnlyFollowedLeadToNoItemsOfTheFormerMonth) {
  select(losAngeles(), 2024, 3, 10);
  service().currentMonthPhaseDictionary();
  service().updateCacheForDate(localTime(losAngeles(), 2024, 4, 10));
  const auto items = service().GetRiseSetPhaseItemsForCurrentMonth();
  ASSERT_EQ(items->size(), 30U);
  for (const auto& [number, item] : *items) EXPECT_EQ(item->month, 4) << number;
}

TEST_F(MonthCaches, AYearsTableIsReadWithOrWithoutKeepingIt) {
  EXPECT_EQ(*service().getDataForYear(2030), shippedTable(2030));
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  service().loadDataForYear(2031);
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2031));
  service().loadDataForYear(1999);
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  EXPECT_EQ(service().getDataForYear(2041), nullptr);
}

TEST_F(MonthCaches, AYearIsNamedByItsLow32Bits) {
  EXPECT_EQ(*service().getDataForYear((std::int64_t{1} << 32) + 2024), shippedTable(2024));
}

TEST_F(MonthCaches, EventTimesFollowTheServicesClockForm) {
  service().SetSelectedLocation(greenwich());
  service().changeSelectedDay(1, 3, 2024);
  EXPECT_EQ(service().currentMonthData().at(0)->time, "03:23 PM");
  service().setUse24HrTimeFormat(true);
  EXPECT_EQ(service().currentMonthData().at(0)->time, "03:23 PM") << "until the month is built anew";
  service().calculateMoonPhases();
  EXPECT_EQ(service().currentMonthData().at(0)->time, "15:23");
}

TEST_F(MonthCaches, WithoutATableTheFormerMonthsEventsStay) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"10 09:00 NM"}}});
  select(greenwich(), 2024, 3, 10);
  EXPECT_EQ(eventDays(), Days{10});
  service().SetSelectedDate(utc(2025, 7, 1));
  EXPECT_EQ(service().currentYear(), 2025);
  EXPECT_EQ(service().currentMonth(), 7);
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  EXPECT_EQ(eventDays(), Days{10});
  EXPECT_EQ(service().currentMonthPhaseDictionary(), nullptr);
}

TEST_F(MonthCaches, AnUnreadableTableIsTriedAgainWhenTheYearIsSelectedAnew) {
  const OwnResources resources;
  resources.folder.write("Data/2024.plist", "no property list");
  resources.writeTable(2025, {});
  select(greenwich(), 2024, 3, 10);
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  resources.writeTable(2024, {{"3", {"10 09:00 NM"}}});
  service().changeSelectedDay(11, 3, 2024);
  EXPECT_EQ(service().rawDataDictionary(), nullptr) << "the year did not change";
  service().changeSelectedDay(1, 1, 2025);
  service().changeSelectedDay(11, 3, 2024);
  EXPECT_EQ(eventDays(), Days{10});
}

}  // namespace
}  // namespace velmora
