#pragma once

#include <vector>

#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Where the parts of a month's page lie, as from left to right.
struct CalendarLayout {
  static constexpr std::size_t daysInWeek = 7;

  /// Of what the page has to hold.
  struct Contents {
    std::size_t weeks = 5, phases = 4, eclipses = 0;
    bool hasNotes = false;  ///< whether a day has a name
    bool hasWeekNumbers = false;
  };

  struct Phase {
    Point center;
    double radius;
    Rect name, date, time;
  };

  /// Beside a mark for the body: rise and set, each a mark and a time.
  struct Times {
    Rect body, rise, riseTime, set, setTime;
    Rect both;  ///< of the two, for a body that neither rises nor sets
  };

  struct Cell {
    Rect room, day, second;
    std::vector<Rect> names;  ///< the lines of the day's name
    Point center;             ///< of the disc
    double radius;
    Rect phase;  ///< the time of a principal phase
    Times sun, moon;
  };

  Rect caption, title, place;
  std::vector<Phase> phases;
  Rect grid;
  std::vector<Rect> weekdays;     ///< seven, above the grid
  std::vector<Rect> weekNumbers;  ///< one a week, before the grid
  Rect keys, note;
  std::vector<Rect> eclipses;
  double unit = 1;
  bool hasNotes = false;

  static CalendarLayout of(Size size, double unit, const Contents& contents);

  /// Of a day by its week and how many days it comes after the first weekday.
  Cell cell(std::size_t week, std::size_t weekday) const;
};

}  // namespace velmora
