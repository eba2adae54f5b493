#include <velmora/views/CalendarCellAccessibilityCustomAction.h>

#include "tests/views/MonthViewTesting.h"

namespace velmora {
namespace {

using testing::honolulu;
using testing::MonthViewTest;
using testing::utc;

class MonthAccessibilityTest : public MonthViewTest {
 protected:
  MonthAccessibilityTest() { select(utc(2026, 2, 14)); }

  std::vector<AccessibilityElement> elements() {
    draw();
    return view->accessibilityElements();
  }

  std::string labelOfDay(std::size_t day) { return elements().at(day - 1).label; }

  static std::int64_t selectedDay(const AccessibilityElement& element) {
    return dynamic_cast<const CalendarCellAccessibilityCustomAction&>(*element.customActions.at(0))
        .selectedDay();
  }
};

TEST_F(MonthAccessibilityTest, TheViewIsAGroupOfDaysThatTakesTouches) {
  EXPECT_EQ(view->accessibilityTraits(), AccessibilityTraits::allowsDirectInteraction);
  EXPECT_EQ(view->accessibilityContainerType(), AccessibilityContainerType::semanticGroup);
  EXPECT_FALSE(view->isAccessibilityElement());
}

TEST_F(MonthAccessibilityTest, ItIsNoElementThoughItIsMadeOne) {
  view->setIsAccessibilityElement(true);
  EXPECT_FALSE(view->isAccessibilityElement());
}

TEST_F(MonthAccessibilityTest, AStoredLayoutGetsTheSameSettings) {
  view->setAccessibilityTraits(AccessibilityTraits::none);
  view->setIsAccessibilityElement(false);
  view->awakeFromNib();
  EXPECT_EQ(view->accessibilityTraits(), AccessibilityTraits::allowsDirectInteraction);
  EXPECT_TRUE(view->View::isAccessibilityElement());
}

TEST_F(MonthAccessibilityTest, EachDayIsAButtonInDayOrder) {
  const auto list = elements();
  ASSERT_EQ(list.size(), 28U);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const AccessibilityElement& element = list[i];
    EXPECT_EQ(element.value, "February " + std::to_string(i + 1));
    EXPECT_EQ(element.hint, "Tap to select date");
    EXPECT_EQ(element.traits, AccessibilityTraits::button);
    ASSERT_EQ(element.customActions.size(), 1U);
    EXPECT_EQ(element.customActions[0]->name(), "Select");
    EXPECT_EQ(selectedDay(element), static_cast<std::int64_t>(i)) << "the day number minus one";
  }
}

TEST_F(MonthAccessibilityTest, EachFrameIsTheDaysCell) {
  const auto list = elements();
  ASSERT_EQ(list.size(), 28U);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const auto column = static_cast<double>(i % 7), row = static_cast<double>(i / 7);
    EXPECT_EQ(list[i].frame, (Rect{6 + 53 * column, 40 + 100 * row, 45, 100}));
  }
}

// April 2026 begins on a Wednesday; five rows of 80 points.
TEST_F(MonthAccessibilityTest, FramesBeginInTheFirstDaysColumn) {
  select(utc(2026, 4, 14));
  const auto list = elements();
  ASSERT_EQ(list.size(), 30U);
  EXPECT_EQ(list[0].value, "April 1");
  EXPECT_EQ(list[0].frame, (Rect{6 + 53 * 3, 40, 45, 80}));
  EXPECT_EQ(list[3].frame, (Rect{6 + 53 * 6, 40, 45, 80}));
  EXPECT_EQ(list[4].frame, (Rect{6, 120, 45, 80}));
  EXPECT_EQ(list[29].frame, (Rect{6 + 53 * 4, 360, 45, 80}));
}

TEST_F(MonthAccessibilityTest, FromRightToLeftFramesLieWhereTheDaysAreDrawn) {
  const ScopedDevice rightToLeft(Device{.forcedDirection = LayoutDirection::rightToLeft});
  const auto list = elements();
  EXPECT_EQ(list.at(0).frame, (Rect{389 - 6 - 45, 40, 45, 100}));
  EXPECT_EQ(list.at(6).frame, (Rect{389 - 6 - 6 * 53 - 45, 40, 45, 100}));
}

TEST_F(MonthAccessibilityTest, TheActionOfADaySelectsTheDayBeforeIt) {
  elements().at(19).customActions.at(0)->activate();
  EXPECT_EQ(service().currentDay(), 19);
  EXPECT_EQ(announced, std::vector<std::string>{"Feb 19, 2026"});
}

TEST_F(MonthAccessibilityTest, TheActionOfTheFirstDaySelectsTheLastOfTheMonthBefore) {
  elements().at(0).customActions.at(0)->activate();
  EXPECT_EQ(service().currentDay(), 31);
  EXPECT_EQ(service().currentMonth(), 1);
  EXPECT_EQ(service().currentYear(), 2026);
}

TEST_F(MonthAccessibilityTest, AnActionOfAnotherKindSelectsNothing) {
  view->accessibilityCellSelected(AccessibilityCustomAction("Select", nullptr));
  EXPECT_EQ(service().currentDay(), 14);
  EXPECT_TRUE(announced.empty());
}

TEST_F(MonthAccessibilityTest, AnActionOutlivesItsViewWithoutEffect) {
  const auto list = elements();
  view.reset();
  list.at(19).customActions.at(0)->activate();
  EXPECT_EQ(service().currentDay(), 14);
}

TEST_F(MonthAccessibilityTest, ElementsNeedAFrameButNoDrawing) {
  const auto before = view->accessibilityElements();
  const auto after = elements();
  ASSERT_EQ(before.size(), 28U);
  EXPECT_EQ(before.at(27).frame, after.at(27).frame);
  EXPECT_EQ(before.at(27).label, after.at(27).label);
}

TEST_F(MonthAccessibilityTest, FebruaryAfterMarchHasItsOwnDaysBeforeItIsDrawn) {
  select(utc(2024, 3, 31));
  EXPECT_EQ(elements().size(), 31U);
  service().changeSelectedDay(1, 2, 2024);
  const auto february = view->accessibilityElements();
  ASSERT_EQ(february.size(), 29U);
  EXPECT_EQ(february.back().value, "February 29");
  EXPECT_EQ(february.back().label, "Feb 29, 2024, Waning Gibbous");
  draw();
  EXPECT_EQ(view->accessibilityElements().at(0).frame, february.at(0).frame);
  EXPECT_EQ(view->accessibilityElements().size(), 29U);
}

TEST_F(MonthAccessibilityTest, AnotherSizeAndAnotherWeekMoveTheFramesAtOnce) {
  elements();
  view->setFrame({0, 0, 389, 850});
  EXPECT_EQ(view->accessibilityElements().at(0).frame, (Rect{6, 40, 45, 200}));
  view->setWeekStartDay(6);
  EXPECT_EQ(view->accessibilityElements().at(0).frame.x, 6 + 53);
}

TEST_F(MonthAccessibilityTest, ElementsDoNotMoveWhatTouchesGoBy) {
  draw();
  select(utc(2026, 4, 14));
  view->accessibilityElements();
  view->touchesBegan(Touch({6 + 20, 60}));
  view->touchesEnded(Touch({6 + 20, 60}));
  EXPECT_EQ(service().currentDay(), 1) << "the first stands there still, though April begins on a Wednesday";
}

TEST_F(MonthAccessibilityTest, WithoutASelectionThereAreNoElementsEvenIfDaysWereDrawn) {
  draw();
  MoonPhaseData::resetSharedInstance();
  EXPECT_EQ(view->accessibilityElements().size(), 0U);
}

TEST_F(MonthAccessibilityTest, ElementsOfTheHostsOwnStayUntilItEmptiesThem) {
  view->setAxElements({{.label = "the whole month"}});
  select(utc(2026, 4, 14));
  ASSERT_EQ(elements().size(), 1U);
  EXPECT_EQ(elements().at(0).label, "the whole month");
  view->setAxElements({});
  EXPECT_EQ(elements().size(), 30U);
  EXPECT_EQ(view->axElements().at(0).value, "April 1");
}

TEST_F(MonthAccessibilityTest, LabelsSayDatePhaseAndEclipse) {
  EXPECT_EQ(labelOfDay(1), "Feb 1, 2026, Full Moon");
  EXPECT_EQ(labelOfDay(2), "Feb 2, 2026, Waning Gibbous");
  EXPECT_EQ(labelOfDay(17), "Feb 17, 2026, New Moon, Annular Solar Eclipse");
}

TEST_F(MonthAccessibilityTest, HiddenEclipsesAreNotSaidEither) {
  view->setHideEclipeInfo(true);
  EXPECT_EQ(labelOfDay(17), "Feb 17, 2026, New Moon");
}

TEST_F(MonthAccessibilityTest, ADayWithoutAPhaseIsLabelledByItsDate) {
  select(utc(2050, 2, 14));
  EXPECT_EQ(labelOfDay(1), "Feb 1, 2050");
}

TEST_F(MonthAccessibilityTest, LabelsAndHintsAreInTheUsersLanguageValuesInEnglish) {
  const ScopedLocale german("de_DE");
  MoonPhaseData::resetSharedInstance();
  select(utc(2026, 2, 14));
  const AccessibilityElement element = elements().at(16);
  EXPECT_EQ(element.label, "17.02.2026, Neumond, Ringförmige Sonnenfinsternis");
  EXPECT_EQ(element.value, "February 17");
  EXPECT_NE(element.hint, "Tap to select date");
  EXPECT_NE(element.customActions.at(0)->name(), "Select");
}

// At 02:13 UTC of the 31st it is still the 30th in Honolulu.
TEST_F(MonthAccessibilityTest, DatesAreThoseOfThePlace) {
  select(utc(2000, 7, 5), honolulu());
  EXPECT_EQ(labelOfDay(30), "Jul 30, 2000, New Moon, Partial Solar Eclipse");
  EXPECT_EQ(labelOfDay(31), "Jul 31, 2000, Waxing Crescent");
}

}  // namespace
}  // namespace velmora
