#include <velmora/posters/YearLayout.h>

#include <algorithm>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr std::size_t months = 12, longestMonth = 31, daysInWeek = 7;

/// Cut into so many rectangles beside or below each other.
std::vector<Rect> parts(Rect room, std::size_t count, bool areBeside) {
  std::vector<Rect> list;
  const double step = (areBeside ? room.width : room.height) / static_cast<double>(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double at = static_cast<double>(i) * step;
    list.push_back(areBeside ? Rect{room.x + at, room.y, step, room.height}
                             : Rect{room.x, room.y + at, room.width, step});
  }
  return list;
}

}  // namespace

YearLayout YearLayout::of(Size size, double unit, DayAlignment alignment, std::size_t eclipseCount) {
  const double margin = 40 * unit, width = size.width - 2 * margin;
  YearLayout layout;
  layout.unit = unit;
  layout.hasColumns = size.height >= size.width;
  layout.caption = {margin, margin - 4 * unit, width * 0.5, 15 * unit};
  layout.title = {margin, layout.caption.maxY(), width * 0.5, 38 * unit};
  layout.place = {margin, layout.title.maxY(), width * 0.5, 17 * unit};

  const Rect legend = {margin + width * 0.5, margin + 4 * unit, width * 0.5, 60 * unit};
  layout.phases = parts(legend, 4, true);

  const double line = 12.5 * unit;
  const double lines = static_cast<double>((eclipseCount + 1) / 2);
  const double footer = size.height - margin - line * (lines + 1);
  layout.note = {margin, footer, width, line};
  for (std::size_t i = 0; i < eclipseCount; ++i) {
    const double y = layout.note.maxY() + static_cast<double>(i / 2) * line;
    layout.eclipses.push_back(
        {margin + static_cast<double>(i % 2) * width / 2, y, width / 2 - 8 * unit, line});
  }

  const double top = layout.place.maxY() + 16 * unit, bottom = footer - 12 * unit;
  const double namesHeight = 16 * unit, namesWidth = (layout.hasColumns ? 22 : 62) * unit;
  layout.grid = {margin + namesWidth, top + namesHeight, width - namesWidth, bottom - top - namesHeight};
  const Rect above = {layout.grid.x, top, layout.grid.width, namesHeight};
  const Rect before = {margin, layout.grid.y, namesWidth, layout.grid.height};
  const std::size_t cells = alignment == DayAlignment::date ? longestMonth : longestMonth + daysInWeek - 1;
  layout.monthNames = parts(layout.hasColumns ? above : before, months, layout.hasColumns);
  layout.lineNames = parts(layout.hasColumns ? before : above, cells, !layout.hasColumns);
  return layout;
}

/// In a column the texts stand behind the disc, in a row below it.
YearLayout::Cell YearLayout::cell(std::size_t month, std::size_t line) const {
  const Rect &along = monthNames[month], &across = lineNames[line];
  Cell cell;
  if (hasColumns) {
    cell.room = {along.x, across.y, along.width, across.height};
    cell.radius = std::min(across.height * 0.43, along.width * 0.22);
    cell.center = {along.x + cell.radius + 1 * unit, across.midY()};
    const double x = cell.center.x + cell.radius + 3 * unit, width = cell.room.maxX() - x - 1 * unit;
    cell.day = {x, across.midY() - across.height * 0.46, width, across.height * 0.46};
    cell.time = {x, across.midY(), width, across.height * 0.46};
    return cell;
  }
  cell.room = {across.x, along.y, across.width, along.height};
  cell.radius = std::min(across.width * 0.42, along.height * 0.27);
  cell.center = {across.midX(), along.y + cell.radius + 2 * unit};
  const double y = cell.center.y + cell.radius + 1 * unit, height = (cell.room.maxY() - y) / 2;
  cell.day = {across.x, y, across.width, height};
  cell.time = {across.x, y + height, across.width, height};
  return cell;
}

std::size_t firstLine(std::chrono::year_month month, DayAlignment alignment, unsigned firstWeekday) {
  if (alignment == DayAlignment::date) return 0;
  const std::chrono::weekday weekday(std::chrono::sys_days(month / 1));
  return (weekday.c_encoding() + daysInWeek - firstWeekday) % daysInWeek;
}

}  // namespace velmora
