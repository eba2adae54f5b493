#include <iterator>

#include "tests/views/DrawnView.h"
#include "tests/views/YearViewTesting.h"

namespace velmora {
namespace {

using testing::utc;
using testing::YearViewTest;

// The full moons of 2026 in Greenwich by month, May's as one of two: columns from Sunday on.
struct Moon {
  std::int64_t month, day, column;
};

constexpr Moon fullMoons[] = {{1, 3, 6},   {2, 1, 0},   {3, 3, 2},  {4, 2, 4},  {5, 1, 5},
                              {5, 31, 0},  {6, 29, 1},  {7, 29, 3}, {8, 28, 5}, {9, 26, 6},
                              {10, 26, 1}, {11, 24, 2}, {12, 24, 4}};

/// The year 2026 as drawn, with none of its moons selected.
class YearTouchesTest : public YearViewTest {
 protected:
  YearTouchesTest() {
    show(utc(2026, 5, 15));
    render();
  }

  /// The middle of the place where touches look for the cell, 8 points above that of the drawn one.
  static Point middleOf(std::int64_t column, std::int64_t row) {
    return {8 + 50 * static_cast<double>(column) + 25, 70 + 40 * static_cast<double>(row) + 20};
  }

  std::string selectedDate() const {
    return std::to_string(service().currentMonth()) + "/" + std::to_string(service().currentDay());
  }

  bool isNothingSelected() const { return !year->selectedPhaseItem() && selectedDate() == "5/15"; }
};

TEST_F(YearTouchesTest, EveryMoonIsPickedInItsCell) {
  for (const Moon& moon : fullMoons) {
    tap(middleOf(moon.column, moon.month - 1));
    ASSERT_NE(year->selectedPhaseItem(), nullptr) << moon.month;
    EXPECT_EQ(year->selectedPhaseItem()->day, moon.day);
    EXPECT_EQ(service().currentMonth(), moon.month);
    EXPECT_EQ(service().currentDay(), moon.day);
  }
  EXPECT_EQ(announced.size(), std::size(fullMoons));
  EXPECT_EQ(announced.at(5), "May 31, 2026");
}

TEST_F(YearTouchesTest, AFingerThatLiftsAsksForDrawing) {
  year->touchesBegan(Touch(middleOf(5, 0)));
  render();
  year->touchesEnded(Touch(middleOf(5, 0)));
  EXPECT_TRUE(year->needsDisplay());
}

TEST_F(YearTouchesTest, FromRightToLeftSundayIsOnTheRight) {
  const ScopedDevice mirrored(testing::mirroredDevice);
  tap({366 - 33, 130});
  EXPECT_EQ(selectedDate(), "2/1");
  tap({366 - 333, 90});
  EXPECT_EQ(selectedDate(), "1/3");
}

TEST_F(YearTouchesTest, AFingerGoingDownEndsTheSelection) {
  tap(middleOf(6, 0));
  render();
  year->touchesBegan(Touch(middleOf(0, 1)));
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  EXPECT_TRUE(year->needsDisplay());
  EXPECT_EQ(selectedDate(), "1/3") << "the service keeps its day";
}

TEST_F(YearTouchesTest, ATapOnAnEmptyCellLeavesNothingSelected) {
  tap(middleOf(6, 0));
  tap(middleOf(5, 0));
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(selectedDate(), "1/3");
  EXPECT_EQ(announced.size(), 1U);
}

TEST_F(YearTouchesTest, AFingerThatLiftsInAnotherCellPicksNothing) {
  year->touchesBegan(Touch(middleOf(6, 0)));
  year->touchesEnded(Touch(middleOf(0, 1)));
  EXPECT_TRUE(isNothingSelected());
  year->touchesBegan(Touch(middleOf(5, 0)));
  year->touchesEnded(Touch(middleOf(6, 0)));
  EXPECT_TRUE(isNothingSelected());
}

TEST_F(YearTouchesTest, AFingerThatMovesWithinTheCellPicksIt) {
  year->touchesBegan(Touch(middleOf(6, 0)));
  year->touchesMoved(Touch(middleOf(6, 0) + Point{10, -5}));
  year->touchesEnded(Touch(middleOf(6, 0) + Point{20, -15}));
  EXPECT_EQ(selectedDate(), "1/3");
}

TEST_F(YearTouchesTest, AFingerThatMovesAwayAndBackPicksNothing) {
  year->touchesBegan(Touch(middleOf(6, 0)));
  year->touchesMoved(Touch(middleOf(3, 0)));
  year->touchesEnded(Touch(middleOf(6, 0)));
  EXPECT_TRUE(isNothingSelected());
}

TEST_F(YearTouchesTest, TheNextTouchStartsAfresh) {
  year->touchesBegan(Touch(middleOf(6, 0)));
  year->touchesMoved(Touch(middleOf(3, 0)));
  year->touchesEnded(Touch(middleOf(3, 0)));
  tap(middleOf(6, 0));
  EXPECT_EQ(selectedDate(), "1/3");
}

// The month view does not count the header above the grid: with rows of 39 points one of its rows begins at
// 69, amid what touches take for January.
TEST_F(YearTouchesTest, AMoveCrossesRowsWhereTheMonthViewHasThem) {
  year->setFrame({0, 0, 366, 561});
  draw();
  year->touchesBegan(Touch({333, 68.5}));
  year->touchesMoved(Touch({333, 69.5}));
  year->touchesEnded(Touch({333, 69.5}));
  EXPECT_TRUE(isNothingSelected());
  tap({333, 69.5});
  EXPECT_EQ(selectedDate(), "1/3") << "the same place without the move";
}

// February's row is drawn from 118 to 158.
TEST_F(YearTouchesTest, RowsAreTouchedEightPointsHigherThanTheyAreDrawn) {
  tap({33, 110.5});
  EXPECT_EQ(selectedDate(), "2/1");
  tap({333, 109.5});
  EXPECT_EQ(selectedDate(), "1/3");
  tap({33, 149.5});
  EXPECT_EQ(selectedDate(), "2/1");
  tap({33, 150.5});
  EXPECT_EQ(year->selectedPhaseItem(), nullptr) << "drawn in February, touched in March";
}

// Both coordinates are cut toward zero.
TEST_F(YearTouchesTest, TheFirstRowAndColumnReachOneCellFurther) {
  tap({333, 31});
  EXPECT_EQ(selectedDate(), "1/3") << "above the grid";
  tap({333, 29});
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  tap({-41, 130});
  EXPECT_EQ(selectedDate(), "2/1") << "left of the grid";
  tap({-43, 130});
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
}

TEST_F(YearTouchesTest, ColumnsAreTouchedByTheirFullWidth) {
  year->setFrame({0, 0, 372, 573});  // columns are drawn 50 points apart and touched 50 6/7
  draw();
  tap({8 + 6 * 50 + 2, 90});
  EXPECT_EQ(year->selectedPhaseItem(), nullptr) << "drawn on Saturday, touched on Friday";
  tap({8 + 6 * 50 + 6, 90});
  EXPECT_EQ(selectedDate(), "1/3");
}

TEST_F(YearTouchesTest, ThePhaseThatWasDrawnIsPicked) {
  year->setFilteredPhase(kNewMoon);
  tap(middleOf(6, 0));
  EXPECT_EQ(selectedDate(), "1/3") << "full moons are on the screen still";
  draw();
  tap(middleOf(6, 0));
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  tap(middleOf(0, 0));
  EXPECT_EQ(selectedDate(), "1/18");
}

TEST_F(YearViewTest, BeforeTheFirstDrawingATouchPicksNothing) {
  show(utc(2026, 5, 15));
  tap({333, 90});
  EXPECT_EQ(year->selectedPhaseItem(), nullptr);
  EXPECT_EQ(service().currentMonth(), 5);
}

}  // namespace
}  // namespace velmora
