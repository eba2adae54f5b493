#pragma once

#include <chrono>
#include <vector>

#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// How the days of a month follow each other on the poster of a year.
enum class DayAlignment {
  date,     ///< each month begins with the first cell
  weekday,  ///< the cells of a line have the same weekday
};

/// Where the parts of the poster of a year lie, as from left to right: a column a month on a sheet that
/// stands, a row a month on one that lies.
struct YearLayout {
  Rect caption, title, place;
  std::vector<Rect> phases;      ///< of the legend: a disc and its name each
  Rect note;                     ///< what the discs show
  std::vector<Rect> eclipses;    ///< one a line of the list of eclipses
  std::vector<Rect> monthNames;  ///< twelve
  std::vector<Rect> lineNames;   ///< of the cells across the months: dates or weekdays
  Rect grid;

  /// With room for so many eclipses.
  static YearLayout of(Size size, double unit, DayAlignment alignment, std::size_t eclipseCount);

  /// Of a cell, the disc's and that of the texts behind or below it.
  struct Cell {
    Rect room;
    Point center;
    double radius;
    Rect day, time;
  };
  /// The cell of a day: the month and the line count from 0.
  Cell cell(std::size_t month, std::size_t line) const;

  std::size_t lineCount() const { return lineNames.size(); }
  bool hasColumns = true;  ///< whether a month is a column
  double unit = 1;
};

/// The line of the month's first day: how many days its weekday comes after the first weekday, 0 is Sunday.
std::size_t firstLine(std::chrono::year_month month, DayAlignment alignment, unsigned firstWeekday);

}  // namespace velmora
