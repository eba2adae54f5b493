#include <velmora/views/MonthGrid.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include <velmora/platform/ui/Device.h>

#include "tests/views/DrawnView.h"

namespace velmora {
namespace {

constexpr std::int64_t sunday = 0, saturday = 6;
constexpr double labelHeight = 17;

/// Four rows of cells of 45 by 100 points in columns 53 points apart.
MonthGrid shortFebruary() { return MonthGrid::inView({389, 450}, sunday, 28); }

TEST(MonthGridTest, AMonthTakesAsManyRowsAsWeeksItTouches) {
  EXPECT_EQ(shortFebruary().rows(), 4);
  EXPECT_EQ(MonthGrid::inView({390, 844}, 1, 28).rows(), 5);
  EXPECT_EQ(MonthGrid::inView({390, 844}, saturday, 29).rows(), 5);
  EXPECT_EQ(MonthGrid::inView({390, 844}, saturday, 30).rows(), 6);
  EXPECT_EQ(MonthGrid::inView({390, 844}, saturday, 31).rows(), 6);
}

TEST(MonthGridTest, NoMonthTakesLessThanFourOrMoreThanSixRows) {
  for (std::int64_t first = sunday; first <= saturday; ++first) {
    for (std::int64_t days = 28; days <= 31; ++days) {
      const std::int64_t rows = MonthGrid::inView({390, 844}, first, days).rows();
      EXPECT_GE(rows, 4);
      EXPECT_LE(rows, 6);
      EXPECT_GE(rows * 7, first + days) << "every day has a cell";
      EXPECT_LT((rows - 1) * 7, first + days) << "no row is blank";
    }
  }
}

TEST(MonthGridTest, CellsShareTheWidthWithoutTheLeftMargin) {
  const MonthGrid grid = MonthGrid::inView({390, 844}, 2, 31);
  EXPECT_DOUBLE_EQ(grid.cellWidth, (390.0 - 10 - 8 * 8) / 7);
  const Rect last = grid.cell(5);
  EXPECT_DOUBLE_EQ(last.maxX(), 390.0 - 10 - 8 - 8 + 6) << "in the seventh column";
}

TEST(MonthGridTest, CellsShareTheHeightBetweenTheMargins) {
  EXPECT_DOUBLE_EQ(shortFebruary().cellHeight, 100);
  EXPECT_DOUBLE_EQ(MonthGrid::inView({389, 450}, saturday, 31).cellHeight, 400.0 / 6);
}

TEST(MonthGridTest, DaysFollowEachOtherRowByRow) {
  const MonthGrid grid = MonthGrid::inView({389, 450}, 5, 30);  // 5 rows of 80
  EXPECT_EQ(grid.cell(1), (Rect{6 + 5 * 53, 40, 45, 80}));
  EXPECT_EQ(grid.cell(2), (Rect{6 + 6 * 53, 40, 45, 80}));
  EXPECT_EQ(grid.cell(3), (Rect{6, 120, 45, 80}));
  EXPECT_EQ(grid.cell(30), (Rect{6 + 6 * 53, 360, 45, 80}));
}

TEST(MonthGridTest, EachRowBeginsOnAWholePoint) {
  const MonthGrid grid = MonthGrid::inView({389, 453}, sunday, 28);  // 4 rows of 100.75
  EXPECT_DOUBLE_EQ(grid.cell(1).y, 40);
  EXPECT_DOUBLE_EQ(grid.cell(8).y, 140);
  EXPECT_DOUBLE_EQ(grid.cell(15).y, 240);
  EXPECT_DOUBLE_EQ(grid.cell(22).y, 340);
}

TEST(MonthGridTest, TheFirstColumnIsTheDayThatWeeksStartOn) {
  EXPECT_EQ(MonthGrid::columnOfWeekday(1, 0), 0) << "Sunday in weeks from Sunday";
  EXPECT_EQ(MonthGrid::columnOfWeekday(7, 0), 6) << "Saturday in weeks from Sunday";
  EXPECT_EQ(MonthGrid::columnOfWeekday(1, 1), 6) << "Sunday in weeks from Monday";
  EXPECT_EQ(MonthGrid::columnOfWeekday(2, 1), 0) << "Monday in weeks from Monday";
  EXPECT_EQ(MonthGrid::columnOfWeekday(1, 6), 1) << "Sunday in weeks from Saturday";
}

TEST(MonthGridTest, TheColumnsWeekdayIsTheOneThatFallsIntoIt) {
  for (std::int64_t start = -8; start <= 8; ++start) {
    for (std::int64_t weekday = 1; weekday <= 7; ++weekday) {
      const std::int64_t column = MonthGrid::columnOfWeekday(weekday, start);
      EXPECT_EQ(MonthGrid::weekdayInColumn(column, start), weekday - 1);
    }
  }
}

TEST(MonthGridTest, WholeWeeksDoNotCountHoweverMany) {
  constexpr std::int64_t asSunday = std::numeric_limits<std::int64_t>::max();    // a multiple of 7
  constexpr std::int64_t asSaturday = std::numeric_limits<std::int64_t>::min();  // one less than another
  EXPECT_EQ(MonthGrid::columnOfWeekday(1, asSunday), 0);
  EXPECT_EQ(MonthGrid::columnOfWeekday(1, asSaturday), 1);
  EXPECT_EQ(MonthGrid::weekdayInColumn(6, asSunday), 6);
  EXPECT_EQ(MonthGrid::weekdayInColumn(6, asSaturday), 5);
}

TEST(MonthGridTest, APointInADaysCellIsThatDay) {
  for (std::int64_t first = sunday; first <= saturday; ++first) {
    const MonthGrid grid = MonthGrid::inView({390, 844}, first, 31);
    for (std::int64_t day = 1; day <= 31; ++day) {
      const auto cell = grid.cellAt(grid.cell(day).center());
      ASSERT_EQ(cell, day + first);
      EXPECT_EQ(grid.dayInCell(*cell), day);
    }
  }
}

TEST(MonthGridTest, BlankCellsHoldNoDay) {
  const MonthGrid grid = MonthGrid::inView({390, 844}, 3, 30);
  EXPECT_EQ(grid.dayInCell(3), std::nullopt);
  EXPECT_EQ(grid.dayInCell(4), 1);
  EXPECT_EQ(grid.dayInCell(33), 30);
  EXPECT_EQ(grid.dayInCell(34), std::nullopt);
}

TEST(MonthGridTest, PointsInTheMarginsCountToTheNearestCells) {
  const MonthGrid grid = shortFebruary();
  EXPECT_EQ(grid.cellAt({0, 0}), 1) << "left of the first column, above the first row";
  EXPECT_EQ(grid.cellAt({58, 139}), 1) << "the gap belongs to the cell before it";
  EXPECT_EQ(grid.cellAt({59, 139}), 2);
  EXPECT_EQ(grid.cellAt({59, 140}), 9);
}

TEST(MonthGridTest, RightOfTheLastColumnIsTheNextRowsFirstCell) {
  const MonthGrid grid = shortFebruary();
  EXPECT_EQ(grid.cellAt({6 + 7 * 53 - 0.5, 40}), 7);
  EXPECT_EQ(grid.cellAt({6 + 7 * 53, 40}), 8);
}

TEST(MonthGridTest, WithoutRoomThereAreNoCells) {
  EXPECT_EQ(MonthGrid().cellAt({0, 0}), std::nullopt) << "before the first drawing";
  EXPECT_EQ(MonthGrid::inView({390, 50}, sunday, 28).cellAt({10, 45}), std::nullopt);
  EXPECT_EQ(MonthGrid::inView({18, 450}, sunday, 28).cellAt({10, 45}), std::nullopt);
  EXPECT_EQ(MonthGrid::inView({1, 1}, sunday, 28).cellAt({0, 0}), std::nullopt);
}

TEST(MonthGridTest, PointsFartherThanAnyScreenAreInNoCell) {
  const MonthGrid grid = shortFebruary();
  const double infinity = std::numeric_limits<double>::infinity();
  for (const Point point : {Point{1e300, 90}, {20, -1e300}, {infinity, -infinity}, {std::nan(""), 90}})
    EXPECT_EQ(grid.cellAt(point), std::nullopt) << point.x << " " << point.y;
  EXPECT_EQ(grid.cellAt({-1e6, 90}), -18867) << "a cell, but of no day";
}

TEST(MonthDayCellTest, OnAPhoneTheDiscIsAsWideAsTheCellInItsMiddle) {
  const MonthDayCell cell(shortFebruary(), 9, labelHeight, false);
  EXPECT_EQ(cell.disc, (Rect{59, 140 + 27.5, 45, 45}));
  EXPECT_EQ(cell.label, (Rect{59, 212.5, 45, labelHeight}));
  EXPECT_EQ(cell.frame, (Rect{55, 163.5, 53, 45 + labelHeight + 3 + 4}));
  EXPECT_EQ(cell.frameOfToday(), (Rect{55, 163.5, 53, 45 + labelHeight + 3 + 4 + 8}));
  EXPECT_EQ(cell.todayBar(), (Rect{64, 212.5 + labelHeight + 3, 35, 4}));
}

TEST(MonthDayCellTest, OnAPhoneTheMarkerIsFourPointsSmallerThanHalfTheDisc) {
  const MonthDayCell cell(shortFebruary(), 9, labelHeight, false);
  EXPECT_EQ(cell.marker(), (Rect{59 + 22.5 - 18.5 - 5, 212.5 + 0.75, 18.5, 18.5}));
}

TEST(MonthDayCellTest, FractionsOfAColumnAreCut) {
  const MonthGrid grid = MonthGrid::inView({390, 450}, sunday, 28);  // columns 53 1/7 apart
  const MonthDayCell cell(grid, 3, labelHeight, false);
  EXPECT_DOUBLE_EQ(cell.disc.x, 112) << "not 112 2/7";
  EXPECT_DOUBLE_EQ(cell.label.width, 45) << "not 45 1/7";
  EXPECT_DOUBLE_EQ(cell.disc.width, 316.0 / 7);
}

TEST(MonthDayCellTest, DiscsAndMarkersHaveALargestSize) {
  const MonthGrid wide = MonthGrid::inView({1200, 1200}, sunday, 28);
  EXPECT_DOUBLE_EQ(MonthDayCell(wide, 1, labelHeight, false).disc.width, 110);
  EXPECT_DOUBLE_EQ(MonthDayCell(wide, 1, labelHeight, false).markerSize, 32);
  EXPECT_DOUBLE_EQ(MonthDayCell(wide, 1, labelHeight, true).disc.width, 110);
  EXPECT_DOUBLE_EQ(MonthDayCell(wide, 1, labelHeight, true).markerSize, 16);
}

TEST(MonthDayCellTest, OnATabletTheDiscLeavesRoomForTheLabel) {
  const MonthGrid grid = MonthGrid::inView({774, 450}, sunday, 28);  // cells of 100 by 100
  const MonthDayCell cell(grid, 1, labelHeight, true);
  EXPECT_EQ(cell.disc, (Rect{6 + 15, 40 + 15, 70, 70}));
  EXPECT_EQ(cell.label, (Rect{6, 125, 100, labelHeight}));
  EXPECT_EQ(cell.frame, (Rect{2, 51, 108, 70 + labelHeight + 3 + 4}));
}

TEST(MonthDayCellTest, OnATabletASmallDiscHasAMarkerOfHalfItsSize) {
  const MonthGrid grid = MonthGrid::inView({774, 250}, sunday, 28);  // cells of 100 by 50
  EXPECT_DOUBLE_EQ(MonthDayCell(grid, 1, labelHeight, true).disc.width, 20);
  EXPECT_DOUBLE_EQ(MonthDayCell(grid, 1, labelHeight, true).markerSize, 10);
}

TEST(MonthDayCellTest, FromRightToLeftDiscLabelAndFrameChangeSides) {
  const ScopedDevice mirrored(testing::mirroredDevice);
  const Rect view = {0, 0, 389, 450};
  const MonthDayCell cell = MonthDayCell(shortFebruary(), 9, labelHeight, false).mirroredIn(view);
  EXPECT_EQ(cell.disc, (Rect{389 - 59 - 45, 167.5, 45, 45}));
  EXPECT_EQ(cell.label, (Rect{389 - 59 - 45, 212.5, 45, labelHeight}));
  EXPECT_EQ(cell.frame, (Rect{389 - 55 - 53, 163.5, 53, 69}));
  EXPECT_DOUBLE_EQ(cell.marker().x, cell.disc.midX() - 18.5 - 5) << "left of the number all the same";
  EXPECT_DOUBLE_EQ(cell.todayBar().x, cell.label.x + 5);
}

TEST(MonthDayCellTest, FromLeftToRightMirroringChangesNothing) {
  const ScopedDevice leftToRight(Device{.forcedDirection = LayoutDirection::leftToRight});
  const MonthDayCell cell(shortFebruary(), 9, labelHeight, false);
  const MonthDayCell mirrored = cell.mirroredIn({0, 0, 389, 450});
  EXPECT_EQ(mirrored.disc, cell.disc);
  EXPECT_EQ(mirrored.label, cell.label);
  EXPECT_EQ(mirrored.frame, cell.frame);
}

}  // namespace
}  // namespace velmora
