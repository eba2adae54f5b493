#include <velmora/posters/CalendarLayout.h>

#include <algorithm>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// All in units.
constexpr double margin = 40, headHeight = 74, headGap = 20, weekdayHeight = 16, weekNumberWidth = 18;
constexpr double footLine = 12.5, footGap = 8;
constexpr double inset = 3.5;  // of what stands in a cell
constexpr double dayHeight = 16, nameHeight = 7.6, phaseHeight = 9, timesHeight = 8.5, bodyWidth = 7;
constexpr std::size_t nameLines = 2;

CalendarLayout::Times timesIn(Rect room, double unit) {
  const double body = bodyWidth * unit, mark = 4.4 * unit, gap = 2 * unit;
  const Rect both = {room.x + body, room.y, room.width - body, room.height};
  const double half = (both.width - gap) / 2, second = both.x + half + gap;
  return {.body = {room.x, room.y, body, room.height},
          .rise = {both.x, room.y, mark, room.height},
          .riseTime = {both.x + mark, room.y, half - mark, room.height},
          .set = {second, room.y, mark, room.height},
          .setTime = {second + mark, room.y, half - mark, room.height},
          .both = both};
}

/// Columns of one width, which end where the room does.
std::vector<CalendarLayout::Phase> phasesIn(Rect room, double unit, std::size_t count) {
  constexpr double columnWidth = 66, radius = 16;
  const double width = columnWidth * unit, line = 10.5 * unit;
  std::vector<CalendarLayout::Phase> phases;
  for (std::size_t i = 0; i < count; ++i) {
    const double x = room.maxX() - width * static_cast<double>(count - i), inner = width - 4 * unit;
    const double y = room.y + 2 * radius * unit + 6 * unit;
    const auto below = [&](int lines) { return Rect{x + 2 * unit, y + lines * line, inner, line}; };
    phases.push_back({{x + width / 2, room.y + radius * unit}, radius * unit, below(0), below(1), below(2)});
  }
  return phases;
}

}  // namespace

CalendarLayout CalendarLayout::of(Size size, double unit, const Contents& contents) {
  const double edge = margin * unit, width = size.width - 2 * edge;
  CalendarLayout layout;
  layout.unit = unit;
  layout.hasNotes = contents.hasNotes;
  const double titleWidth = width * 0.34;
  layout.caption = {edge, edge - 4 * unit, titleWidth, 17 * unit};
  layout.title = {edge, layout.caption.maxY(), titleWidth, 40 * unit};
  layout.place = {edge, layout.title.maxY(), titleWidth, 17 * unit};
  layout.phases = phasesIn({edge + titleWidth, edge - 2 * unit, width - titleWidth, headHeight * unit}, unit,
                           contents.phases);

  const double line = footLine * unit;
  const double footLines = 2 + static_cast<double>((contents.eclipses + 1) / 2);
  const double foot = size.height - edge - line * footLines;
  layout.keys = {edge, foot, width, line};
  layout.note = {edge, foot + line, width, line};
  for (std::size_t i = 0; i < contents.eclipses; ++i)
    layout.eclipses.push_back({edge + static_cast<double>(i % 2) * width / 2,
                               foot + line * static_cast<double>(2 + i / 2), width / 2 - 8 * unit, line});

  const double numbers = contents.hasWeekNumbers ? weekNumberWidth * unit : 0;
  const double above = edge + (headHeight + headGap) * unit, top = above + weekdayHeight * unit;
  layout.grid = {edge + numbers, top, width - numbers, foot - footGap * unit - top};
  const double column = layout.grid.width / daysInWeek,
               row = layout.grid.height / static_cast<double>(contents.weeks);
  for (std::size_t i = 0; i < daysInWeek; ++i)
    layout.weekdays.push_back(
        {layout.grid.x + static_cast<double>(i) * column, above, column, weekdayHeight * unit});
  for (std::size_t i = 0; i < contents.weeks; ++i)
    layout.weekNumbers.push_back({edge, top + static_cast<double>(i) * row, numbers, row});
  return layout;
}

CalendarLayout::Cell CalendarLayout::cell(std::size_t week, std::size_t weekday) const {
  const Rect &across = weekNumbers[week], &along = weekdays[weekday];
  const Rect room = {along.x, across.y, along.width, across.height};
  const Rect inner = room.inset(inset * unit, inset * unit);
  Cell cell;
  cell.room = room;
  cell.day = {inner.x, inner.y, inner.width * 0.5, dayHeight * unit};
  cell.second = {cell.day.maxX(), inner.y, inner.width * 0.5, dayHeight * unit};
  double top = cell.day.maxY();
  for (std::size_t i = 0; hasNotes && i < nameLines; ++i, top += nameHeight * unit)
    cell.names.push_back({inner.x, top, inner.width, nameHeight * unit});
  const double times = timesHeight * unit;
  cell.moon = timesIn({inner.x, inner.maxY() - times, inner.width, times}, unit);
  cell.sun = timesIn({inner.x, inner.maxY() - 2 * times, inner.width, times}, unit);
  cell.phase = {inner.x, inner.maxY() - 2 * times - phaseHeight * unit, inner.width, phaseHeight * unit};
  const double free = cell.phase.y - top, ring = 4 * unit;
  cell.radius = std::min(free - ring, inner.width * 0.72) / 2;
  cell.center = {inner.midX(), top + free / 2};
  return cell;
}

}  // namespace velmora
