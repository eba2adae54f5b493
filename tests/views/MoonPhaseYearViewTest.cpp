#include <velmora/views/MoonPhaseYearView.h>

#include "tests/views/YearViewTesting.h"

namespace velmora {
namespace {

using testing::placeAt;
using testing::utc;
using testing::YearViewTest;
using YearItems = MoonPhaseYearView::YearItems;

std::int64_t selectedDay(const MoonPhaseYearView& view) {
  return view.selectedPhaseItem() ? view.selectedPhaseItem()->day : 0;
}

TEST_F(YearViewTest, ANewViewShowsFullMoonsOfNoYear) {
  EXPECT_EQ(year->phaseDictionary(), nullptr);
  EXPECT_EQ(year->filteredPhase(), kFullMoon);
  EXPECT_EQ(year->selectedYear(), 0);
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(MoonPhaseYearView::heightForHeaderView(), 40);
}

TEST_F(YearViewTest, AYearSetByTheHostIsTakenForLoaded) {
  select(utc(2026, 5, 15));
  year->setSelectedYear(2026);
  year->calendarDateChanged();
  EXPECT_EQ(year->phaseDictionary(), nullptr);
}

TEST_F(YearViewTest, ADateInAnotherYearLoadsThatYear) {
  show(utc(2026, 5, 15));
  service().SetSelectedDate(utc(2018, 1, 31));
  render();
  year->calendarDateChanged();
  EXPECT_EQ(year->selectedYear(), 2018);
  EXPECT_EQ(year->phaseDictionary()->at(1).size(), 5U) << "two full moons among January's five events";
  EXPECT_EQ(selectedDay(*year), 31);
  EXPECT_TRUE(year->needsDisplay());
}

TEST_F(YearViewTest, ADateInTheSameYearKeepsTheEventsAndMovesTheSelection) {
  show(utc(2026, 5, 15));
  const auto events = year->phaseDictionary();
  service().SetSelectedDate(utc(2026, 5, 31));
  year->calendarDateChanged();
  EXPECT_EQ(year->phaseDictionary(), events);
  EXPECT_EQ(selectedDay(*year), 31);
  service().SetSelectedDate(utc(2026, 5, 30));
  year->calendarDateChanged();
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
}

TEST_F(YearViewTest, BeforeADateIsSelectedThereIsNoYearToLoad) {
  year->calendarDateChanged();
  EXPECT_EQ(year->phaseDictionary(), nullptr);
}

// The full moon of 29 June 2026, 23:57 in Greenwich, is one of the 30th in Paris.
TEST_F(YearViewTest, AnotherPlaceLoadsTheSameYearAnew) {
  show(utc(2026, 6, 29));
  EXPECT_EQ(selectedDay(*year), 29);
  const auto events = year->phaseDictionary();
  render();
  service().SetSelectedLocation(placeAt(48.9, "Europe/Paris"));
  year->calendarLocationChanged();
  EXPECT_NE(year->phaseDictionary(), events);
  EXPECT_EQ(year->selectedYear(), 2026);
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(year->phaseDictionary()->at(6).back()->day, 30);
  EXPECT_TRUE(year->needsDisplay());
}

TEST_F(YearViewTest, AYearWithoutATableHasNoEvents) {
  show(utc(2050, 1, 1));
  EXPECT_EQ(year->selectedYear(), 2050);
  EXPECT_TRUE(year->phaseDictionary()->empty());
}

TEST_F(YearViewTest, TheServicesPostsReachTheMonthViewsPartAlone) {
  show(utc(2026, 5, 1));
  render();
  service().SetSelectedDate(utc(2018, 1, 31));
  EXPECT_TRUE(year->needsDisplay());
  EXPECT_EQ(year->selectedDate(), utc(2018, 1, 31));
  EXPECT_EQ(year->selectedYear(), 2026);
  EXPECT_EQ(selectedDay(*year), 1);
}

TEST_F(YearViewTest, ComingIntoAnotherViewSelectsTheServicesDay) {
  show(utc(2026, 5, 15));
  service().SetSelectedDate(utc(2026, 5, 31));
  ASSERT_EQ(year->selectedPhaseItem(), nullptr);
  const auto screen = std::make_shared<View>();
  screen->addSubview(year);
  EXPECT_EQ(selectedDay(*year), 31);
}

TEST_F(YearViewTest, OnlyTheShownPhaseIsSelected) {
  year->setFilteredPhase(kNewMoon);
  show(utc(2026, 5, 31));
  EXPECT_EQ(year->selectedPhaseItem(), nullptr) << "a full moon";
  service().SetSelectedDate(utc(2026, 5, 16));
  year->loadSelectedPhaseItem();
  EXPECT_EQ(selectedDay(*year), 16);
}

TEST_F(YearViewTest, OnlyTheServicesDayMonthAndYearAreSelected) {
  select(utc(2026, 1, 3));
  for (const auto& other :
       {moon(2026, 1, 4, 1), moon(2026, 2, 3, 3), moon(2027, 1, 3, 1), moon(2026, 1, 3, 7, kNewMoon)}) {
    showAlone(other);
    year->loadSelectedPhaseItem();
    EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  }
}

TEST_F(YearViewTest, OfTwoMoonsOnTheServicesDayTheLastIsSelected) {
  select(utc(2026, 1, 3));
  const auto first = moon(2026, 1, 3, 7), last = moon(2026, 1, 3, 7);
  year->setPhaseDictionary(std::make_shared<const YearItems>(YearItems{{1, {first, last}}}));
  year->loadSelectedPhaseItem();
  EXPECT_EQ(year->selectedPhaseItem(), last);
}

TEST_F(YearViewTest, WithoutEventsNothingIsSelected) {
  show(utc(2026, 5, 31));
  year->setPhaseDictionary(nullptr);
  year->loadSelectedPhaseItem();
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
}

TEST_F(YearViewTest, ClearingTheSelectionAsksForDrawing) {
  show(utc(2026, 5, 31));
  render();
  year->clearSelection();
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  EXPECT_TRUE(year->needsDisplay());
  EXPECT_EQ(service().currentDay(), 31) << "the service keeps its day";
}

TEST_F(YearViewTest, SelectingAMoonSelectsTheStartOfItsDayAtThePlaceAndAnnouncesIt) {
  show(utc(2026, 5, 15), placeAt(35.7, "Asia/Tokyo"));
  const auto january = year->phaseDictionary()->at(1).front();
  year->changeSelectedItem(january);
  EXPECT_EQ(year->selectedPhaseItem(), january);
  EXPECT_EQ(service().currentDate(), utc(2026, 1, 2, 15));
  EXPECT_EQ(year->selectedDate(), utc(2026, 1, 2, 15));
  EXPECT_EQ(announced, std::vector<std::string>{"Jan 3, 2026"});
}

TEST_F(YearViewTest, SelectingNoneLeavesTheServiceAlone) {
  show(utc(2026, 5, 31));
  year->changeSelectedItem(nullptr);
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(service().currentDay(), 31);
  EXPECT_TRUE(announced.empty());
}

// A full moon of 31 December in Greenwich is one of New Year's Day in Tokyo; it stands in the old year's
// January and leads to the new year.
TEST_F(YearViewTest, SelectingANeighbouringYearsMoonLoadsThatYear) {
  show(utc(2028, 5, 15), placeAt(35.7, "Asia/Tokyo"));
  const auto subscription = NotificationCenter::defaultCenter().subscribe(
      kCalenderDateChangedNotification, [this] { year->calendarDateChanged(); });
  year->changeSelectedItem(year->phaseDictionary()->at(1).back());
  EXPECT_EQ(service().currentYear(), 2029);
  EXPECT_EQ(year->selectedYear(), 2029);
  EXPECT_EQ(announced, std::vector<std::string>{"Jan 1, 2029"});
}

TEST_F(YearViewTest, EveryPropertyThatShowsAsksForDrawing) {
  show(utc(2026, 5, 31));
  render();
  year->setFilteredPhase(kNewMoon);
  EXPECT_TRUE(year->needsDisplay());
  render();
  year->setPhaseDictionary(std::make_shared<const YearItems>());
  EXPECT_TRUE(year->needsDisplay());
  render();
  year->setSelectedYear(2027);
  EXPECT_TRUE(year->needsDisplay()) << "the title says the year";
  render();
  year->changeSelectedItem(nullptr);
  EXPECT_TRUE(year->needsDisplay());
}

TEST_F(YearViewTest, ADrawingAsksForNoOther) {
  show(utc(2026, 5, 31));
  render();
  year->setFrame({0, 0, 500, 600});
  render();
}

}  // namespace
}  // namespace velmora
