#include <velmora/views/MonthGrid.h>

#include <algorithm>
#include <cmath>

#include <velmora/views/UIControls.h>

namespace velmora {
namespace {

constexpr double mostDisc = 110, mostMarker = 32, mostMarkerOnTablet = 16;
constexpr double labelRoomOnTablet = 30;
constexpr double markerDistance = 5;  // from the middle of the disc
constexpr double frameDistance = 4;   // from the cell
constexpr double barDistance = 3, barHeight = 4, barInset = 5;
constexpr double frameRoomForBar = 8;

constexpr double farthestCell = 1e9;

/// The count of days without whole weeks, 0 to 6 for negative counts too.
std::int64_t withoutWholeWeeks(std::int64_t days) {
  const std::int64_t rest = days % MonthGrid::columns;
  return rest < 0 ? rest + MonthGrid::columns : rest;
}

double discSize(const MonthGrid& grid, bool isTablet) {
  const double size = std::min(mostDisc, grid.cellWidth);
  return isTablet ? std::min(size, grid.cellHeight - labelRoomOnTablet) : size;
}

double markerSizeBeside(double disc, bool isTablet) {
  return isTablet ? std::min(mostMarkerOnTablet, disc * 0.5) : std::min(mostMarker, disc * 0.5 - 4);
}

}  // namespace

MonthGrid MonthGrid::inView(Size view, std::int64_t firstDayOfWeek, std::int64_t numberOfDaysInMonth) {
  MonthGrid grid;
  grid.topMargin = 40;
  grid.bottomMargin = 10;
  grid.leftMargin = 6;
  grid.rightMargin = 10;
  grid.cellPaddingX = 8;
  grid.cellPaddingY = 0;
  grid.firstDayOfWeek = firstDayOfWeek;
  grid.numberOfDaysInMonth = numberOfDaysInMonth;
  const auto rows = static_cast<double>(grid.rows());
  grid.cellWidth = (view.width - grid.rightMargin - (columns + 1) * grid.cellPaddingX) / columns;
  grid.cellHeight = (view.height - grid.topMargin - grid.bottomMargin - grid.cellPaddingY * rows) / rows;
  return grid;
}

std::int64_t MonthGrid::columnOfWeekday(std::int64_t weekday, std::int64_t weekStartDay) {
  return withoutWholeWeeks(weekday - 1 - withoutWholeWeeks(weekStartDay));
}

std::int64_t MonthGrid::weekdayInColumn(std::int64_t column, std::int64_t weekStartDay) {
  return withoutWholeWeeks(withoutWholeWeeks(weekStartDay) + column);
}

std::int64_t MonthGrid::rows() const {
  const std::int64_t begunWeeks = (firstDayOfWeek + numberOfDaysInMonth + columns - 1) / columns;
  return std::clamp<std::int64_t>(begunWeeks, 1, mostRows);
}

Rect MonthGrid::cell(std::int64_t day) const {
  const std::int64_t index = firstDayOfWeek + day - 1;
  const double x = leftMargin + (cellWidth + cellPaddingX) * static_cast<double>(index % columns);
  double y = std::trunc(topMargin);
  for (std::int64_t row = 0; row < index / columns; ++row) y = std::trunc(y + cellHeight + cellPaddingY);
  return {x, y, cellWidth, cellHeight};
}

std::optional<std::int64_t> MonthGrid::cellAt(Point point) const {
  const double columnPitch = cellPaddingX + cellWidth, rowPitch = cellPaddingY + cellHeight;
  if (columnPitch <= 0 || rowPitch <= 0) return std::nullopt;
  const double column = std::trunc((point.x - leftMargin) / columnPitch);
  const double row = std::trunc((point.y - topMargin) / rowPitch);
  const double cell = column + columns * row + 1;
  if (!(std::abs(cell) < farthestCell)) return std::nullopt;
  return static_cast<std::int64_t>(cell);
}

std::optional<std::int64_t> MonthGrid::dayInCell(std::int64_t cell) const {
  const std::int64_t day = cell - firstDayOfWeek;
  if (day < 1 || day > numberOfDaysInMonth) return std::nullopt;
  return day;
}

MonthDayCell::MonthDayCell(const MonthGrid& grid, std::int64_t day, double labelHeight, bool isTablet) {
  const Rect cell = grid.cell(day);
  const double left = std::trunc(cell.x), size = discSize(grid, isTablet);
  disc = {left + (cell.width - size) * 0.5, cell.y + (cell.height - size) * 0.5, size, size};
  label = {left, disc.maxY(), std::trunc(cell.width), labelHeight};
  frame = {left - frameDistance, disc.y - frameDistance, cell.width + 2 * frameDistance,
           label.maxY() + barDistance - disc.y + frameDistance};
  markerSize = markerSizeBeside(size, isTablet);
}

MonthDayCell MonthDayCell::mirroredIn(Rect container) const {
  MonthDayCell mirrored = *this;
  for (Rect* rect : {&mirrored.disc, &mirrored.label, &mirrored.frame}) {
    *rect = UIControls::rectForCurrentLayoutDirection(*rect, container);
  }
  return mirrored;
}

Rect MonthDayCell::marker() const {
  return {disc.midX() - markerSize - markerDistance, label.y + std::abs(markerSize - label.height) * 0.5,
          markerSize, markerSize};
}

Rect MonthDayCell::frameOfToday() const {
  return {frame.x, frame.y, frame.width, frame.height + frameRoomForBar};
}

Rect MonthDayCell::todayBar() const {
  return {label.x + barInset, label.maxY() + barDistance, label.width - 2 * barInset, barHeight};
}

}  // namespace velmora
