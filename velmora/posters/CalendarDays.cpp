#include <velmora/posters/CalendarDays.h>

#include <algorithm>
#include <cmath>

#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/posters/NameLines.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using almanac::Body;
using almanac::EventKind;

constexpr const char* untold = "–";

std::string nameOf(std::chrono::year_month_day date, const std::vector<CalendarNote>& notes) {
  std::string name;
  for (const CalendarNote& note : notes)
    if (note.date == date) name += (name.empty() ? "" : ", ") + note.text;
  return name;
}

/// The day of the second calendar as it is written in it; empty without one.
std::string secondDay(std::chrono::year_month_day date, std::int64_t type) {
  const auto kind = kindOfAlternateCalendar(type);
  if (!kind) return "";
  const Instant midday = std::chrono::sys_days(date) + std::chrono::hours(12);
  NumberFormatter formatter;
  formatter.setLocale(localeOfAlternateDays(type).value_or(localeOfWords()));
  return formatter.stringFromNumber(AlternateCalendar(*kind, TimeZone::fixed(0)).day(midday));
}

}  // namespace

void CalendarDays::draw(const CalendarPosterStyle& style) const {
  drawWeekdays();
  drawWeeks();
  CalendarMarks marks;
  for (const CalendarDay& day : _month.days) drawDay(day, style, marks);
  marks.draw(_sheet);
}

void CalendarDays::drawWeekdays() const {
  const auto symbols = DateFormatter::shortWeekdaySymbols(localeOfWords());
  std::vector<std::string> names;
  for (std::size_t i = 0; i < CalendarLayout::daysInWeek; ++i)
    names.push_back(symbols.at((i + _month.firstWeekday) % CalendarLayout::daysInWeek));
  const double gap = 3.5 * _unit;
  const LabelStyle style =
      Sheet::fitting({.size = 9.5 * _unit, .color = _palette.quiet, .weight = FontWeight::semibold}, names,
                     _layout.weekdays.front().width - 2 * gap);
  for (std::size_t i = 0; i < names.size(); ++i)
    _sheet.label(names[i], _layout.weekdays[i].inset(gap, 0), style);
}

void CalendarDays::drawWeeks() const {
  for (std::size_t week = 0; week < _layout.weekNumbers.size(); ++week) {
    const Rect room = _layout.weekNumbers[week];
    _sheet.line({room.x, room.y}, {_layout.grid.maxX(), room.y}, _palette.line, 0.6 * _unit);
    if (!_month.hasIsoWeeks()) continue;
    const Rect number = _layout.cell(week, 0).day;
    _sheet.label(_plain.number(isoWeek(_month.startOf(week))), {room.x, number.y, room.width, number.height},
                 {.size = 8.5 * _unit, .color = _palette.quiet});
  }
}

void CalendarDays::drawDay(const CalendarDay& day, const CalendarPosterStyle& style,
                           CalendarMarks& marks) const {
  const auto date = day.moon.date;
  const CalendarLayout::Cell cell = _layout.cell(_month.weekOf(date), _month.weekdayOf(date));
  const std::string name = nameOf(date, style.notes);
  drawNumbers(day, cell, style.secondCalendar, !name.empty());
  drawName(name, cell);
  drawMoon(day, cell, style.isTilted);
  drawTimes(day, Body::sun, cell.sun, marks);
  drawTimes(day, Body::moon, cell.moon, marks);
}

void CalendarDays::drawNumbers(const CalendarDay& day, const CalendarLayout::Cell& cell,
                               std::int64_t secondCalendar, bool hasName) const {
  _sheet.label(_plain.number(static_cast<unsigned>(day.moon.date.day())), cell.day,
               {.size = 13 * _unit,
                .color = hasName ? _palette.accent : _palette.ink,
                .weight = FontWeight::semibold});
  _sheet.label(secondDay(day.moon.date, secondCalendar), cell.second,
               {9 * _unit, _palette.quiet, Side::trailing});
}

void CalendarDays::drawName(const std::string& name, const CalendarLayout::Cell& cell) const {
  if (name.empty()) return;
  const LabelStyle style = {.size = 6.5 * _unit, .color = _palette.accent, .weight = FontWeight::semibold};
  const NameLines lines = NameLines::of(name, style, cell.names.front().width, cell.names.size());
  for (std::size_t i = 0; i < lines.lines.size(); ++i)
    _sheet.label(lines.lines[i], cell.names[i], lines.style);
}

void CalendarDays::drawMoon(const CalendarDay& day, const CalendarLayout::Cell& cell, bool isTilted) const {
  drawDisc(cell.center, cell.radius, day.moon.evening, day.moon.moon, isTilted);
  if (day.moon.eclipse) drawRing(_sheet, cell.center, cell.radius);
  if (day.moon.phase)
    _sheet.label(_local.time(day.moon.phase->at), cell.phase,
                 {6.5 * _unit, _palette.accent, Side::middle, FontWeight::bold});
}

void CalendarDays::drawTimes(const CalendarDay& day, Body body, const CalendarLayout::Times& rooms,
                             CalendarMarks& marks) const {
  const bool isSun = body == Body::sun;
  marks.add(isSun ? CalendarMarks::Kind::sun : CalendarMarks::Kind::moon, rooms.body, 5 * _unit);
  const almanac::AllDay allDay = isSun ? day.sky.sun : day.sky.moon;
  if (allDay != almanac::AllDay::no)
    return _sheet.label(words(allDay == almanac::AllDay::up ? "up all day" : "down all day"), rooms.both,
                        _timeStyle);
  const auto draw = [&](EventKind kind, Rect mark, Rect time) {
    const auto at = day.event(body, kind);
    marks.add(kind == EventKind::rise ? CalendarMarks::Kind::rise : CalendarMarks::Kind::set, mark,
              3 * _unit);
    _sheet.label(at ? _local.time(*at) : untold, time, _timeStyle);
  };
  draw(EventKind::rise, rooms.rise, rooms.riseTime);
  draw(EventKind::set, rooms.set, rooms.setTime);
}

/// One size for the times of all days, in steps, so that the months of a year share one: the first at which
/// they all fit, as most are then shaped at the size that they are drawn at alone.
LabelStyle CalendarDays::timeStyle() const {
  constexpr int steps = 10;
  std::vector<std::string> times;
  for (const CalendarDay& day : _month.days)
    for (const almanac::Event& event : day.sky.events) times.push_back(_local.time(event.at));
  const double wanted = 6.2 * _unit, room = _layout.cell(0, 0).sun.riseTime.width;
  LabelStyle style = {.size = wanted, .color = _palette.ink};
  const auto isTooWide = [&](const std::string& time) { return Sheet::widthOf(time, style) > room; };
  for (int step = steps - 1; std::any_of(times.begin(), times.end(), isTooWide); --step) {
    const double share = static_cast<double>(step) / steps;
    style.size = wanted * std::max(Sheet::leastShare, share);
    if (share <= Sheet::leastShare) break;
  }
  return style;
}

}  // namespace velmora
