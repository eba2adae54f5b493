#pragma once

#include <cstdint>
#include <optional>

#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

/// Where the days of a month lie in a view: seven columns, one row a week, as read from left to right. Pure
/// arithmetic, in points from the view's top left.
struct MonthGrid {
  /// Of any month.
  static constexpr std::int64_t columns = 7;
  static constexpr std::int64_t mostRows = 6;

  /// Margins of the grid, paddings between its cells, and what it holds.
  double topMargin = 0;
  double bottomMargin = 0;
  double leftMargin = 0;
  double rightMargin = 0;
  double cellPaddingX = 0;  ///< between two columns
  double cellPaddingY = 0;  ///< between two rows
  double cellWidth = 0;
  double cellHeight = 0;
  std::int64_t firstDayOfWeek = 0;       ///< the column of day 1, 0 to 6
  std::int64_t numberOfDaysInMonth = 0;  ///< 0 for no month

  /// The month view's grid in a view of that size.
  /// Kept: the left margin is not taken off the width, so that the grid is that much wider than its place.
  static MonthGrid inView(Size view, std::int64_t firstDayOfWeek, std::int64_t numberOfDaysInMonth);

  /// The column, 0 to 6, of a weekday (1 = Sunday) in weeks that start on the day with that index
  /// (0 = Sunday).
  static std::int64_t columnOfWeekday(std::int64_t weekday, std::int64_t weekStartDay);

  /// The index, 0 to 6 (0 = Sunday), of the weekday that such weeks have in the column.
  static std::int64_t weekdayInColumn(std::int64_t column, std::int64_t weekStartDay);

  /// The rows that the month takes, at least 1.
  std::int64_t rows() const;

  /// The cell of a day of the month.
  Rect cell(std::int64_t day) const;

  /// The cell at the point, counted row by row from 1, blank ones included. Points in the margins count to
  /// the nearest cells. None where there is no room for cells, and a billion cells away.
  /// Kept: points right of the last column count to the first cell of the next row.
  std::optional<std::int64_t> cellAt(Point point) const;

  /// The day in the cell; none in a blank one.
  std::optional<std::int64_t> dayInCell(std::int64_t cell) const;

  friend bool operator==(const MonthGrid&, const MonthGrid&) = default;
};

/// What is drawn for one day of the month view, and where.
struct MonthDayCell {
  /// Where what is drawn lies in the view.
  Rect disc;
  Rect label;  ///< of the day number, right under the disc
  Rect frame;  ///< around both, on the selected day
  double markerSize = 0;

  /// As read from left to right. A tablet's discs leave room for the label, a phone's overhang low cells.
  MonthDayCell(const MonthGrid& grid, std::int64_t day, double labelHeight, bool isTablet);

  /// The same in the current layout direction.
  MonthDayCell mirroredIn(Rect container) const;

  /// The square of the small disc that marks a principal phase, left of the number in every direction.
  Rect marker() const;

  /// The frame when it also holds the bar of today.
  Rect frameOfToday() const;

  /// The bar that marks today, under the number.
  Rect todayBar() const;

  friend bool operator==(const MonthDayCell&, const MonthDayCell&) = default;
};

}  // namespace velmora
