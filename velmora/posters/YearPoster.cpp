#include <velmora/posters/YearPoster.h>

#include <algorithm>

#include <velmora/almanac/Events.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/posters/MoonDays.h>
#include <velmora/posters/MoonNames.h>
#include <velmora/posters/MoonShape.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>
#include <velmora/posters/YearLayout.h>

namespace velmora {
namespace {

using std::chrono::year_month_day;

Instant middayOf(year_month_day date) { return std::chrono::sys_days(date) + std::chrono::hours(12); }

/// Draws the days into the layout.
class YearDrawing {
 public:
  YearDrawing(Sheet& sheet, const YearLayout& layout, const MoonDays& moons, const PosterPlace& place,
              const YearPosterStyle& style)
      : _sheet(sheet),
        _layout(layout),
        _moons(moons),
        _style(style),
        _isSouthern(place.place.latitude < 0),
        _local(place.zone),
        _plain(TimeZone::fixed(0)),
        _palette(sheet.palette()),
        _unit(sheet.unit()),
        _timeStyle(timeStyle()) {}

  void drawTitle(std::chrono::year year, const std::string& place) const {
    _sheet.label(words("Phases of the Moon"), _layout.caption,
                 {.size = 12 * _unit, .color = _palette.accent, .weight = FontWeight::semibold});
    _sheet.label(_plain.date(middayOf(year / 1 / 1), "y"), _layout.title,
                 {.size = 34 * _unit, .color = _palette.ink, .weight = FontWeight::semibold});
    _sheet.label(place, _layout.place, {.size = 13 * _unit, .color = _palette.quiet});
  }

  /// The four principal phases as the discs show them.
  void drawLegend() const {
    const double radius = 9 * _unit;
    for (std::size_t i = 0; i < _layout.phases.size(); ++i) {
      const auto phase = static_cast<almanac::PrincipalPhase>(i);
      almanac::Illumination moon;
      moon.isWaxing = i < 2;
      moon.fraction = i % 2 == 0 ? static_cast<double>(i / 2) : 0.5;
      const Rect room = _layout.phases[i];
      drawMoon(_sheet, {room.midX(), room.y + radius}, radius, upright(moon, _isSouthern));
      _sheet.label(phaseName(phase),
                   {room.x + 2 * _unit, room.y + 2 * radius + 6 * _unit, room.width - 4 * _unit, 13 * _unit},
                   {8.5 * _unit, _palette.quiet, Side::middle});
    }
  }

  void drawLineNames() const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < _layout.lineCount(); ++i) names.push_back(lineName(i));
    const double gap = 1.5 * _unit, width = _layout.lineNames.front().width - 2 * gap;
    const LabelStyle style = Sheet::fitting({6.5 * _unit, _palette.quiet, Side::middle}, names, width);
    for (std::size_t i = 0; i < names.size(); ++i)
      _sheet.label(names[i], _layout.lineNames[i].inset(gap, 0), style);
  }

  void drawMonth(std::chrono::year_month month) const {
    const std::size_t column = static_cast<unsigned>(month.month()) - 1;
    _sheet.label(_plain.date(middayOf(month / 1), _layout.hasColumns ? "LLL" : "LLLL"),
                 _layout.monthNames[column], {9 * _unit, _palette.ink, Side::leading, FontWeight::semibold});
    const DayAlignment alignment = _style.alignsWeekdays ? DayAlignment::weekday : DayAlignment::date;
    const std::size_t first = firstLine(month, alignment, _style.firstWeekday);
    const unsigned last = static_cast<unsigned>((month / std::chrono::last).day());
    for (unsigned day = 1; day <= last; ++day) {
      const MoonDay* const moon = _moons.find(month / std::chrono::day(day));
      if (moon) drawDay(*moon, _layout.cell(column, first + day - 1));
    }
  }

  void drawNotes() const {
    const LabelStyle style = {.size = 8.5 * _unit, .color = _palette.quiet};
    const std::string evening = _plain.time(Instant(MoonDays::evening));
    std::string note = words("The Moon of each day at %1", {evening});
    const std::vector<const MoonDay*> eclipses = eclipseDays(_moons);
    if (!eclipses.empty()) note += " · " + words("Ringed: an eclipse seen from here");
    _sheet.label(note, _layout.note, style);
    for (std::size_t i = 0; i < eclipses.size(); ++i)
      _sheet.label(eclipseText(*eclipses[i]->eclipse), _layout.eclipses[i], style);
  }

  static std::vector<const MoonDay*> eclipseDays(const MoonDays& moons) {
    std::vector<const MoonDay*> days;
    for (const MoonDay& day : moons.days)
      if (day.eclipse) days.push_back(&day);
    return days;
  }

 private:
  std::string lineName(std::size_t line) const {
    if (!_style.alignsWeekdays) return _plain.number(static_cast<std::int64_t>(line) + 1);
    static constexpr std::size_t daysInWeek = 7;
    return _weekdays.at((line + _style.firstWeekday) % daysInWeek);
  }

  Side sideOfTexts() const { return _layout.hasColumns ? Side::leading : Side::middle; }

  /// One size for the times of all phases.
  LabelStyle timeStyle() const {
    std::vector<std::string> times;
    for (const MoonDay& day : _moons.days)
      if (day.phase) times.push_back(_local.time(day.phase->at));
    return Sheet::fitting({5.6 * _unit, _palette.accent, sideOfTexts(), FontWeight::semibold}, times,
                          _layout.cell(0, 0).time.width);
  }

  void drawDay(const MoonDay& day, const YearLayout::Cell& cell) const {
    drawMoon(_sheet, cell.center, cell.radius,
             _style.isTilted ? tilted(day.moon) : upright(day.moon, _isSouthern));
    if (day.eclipse) drawRing(_sheet, cell.center, cell.radius);
    const bool isPrincipal = day.phase.has_value();
    _sheet.label(_plain.number(static_cast<unsigned>(day.date.day())), cell.day,
                 {6.5 * _unit, isPrincipal ? _palette.ink : _palette.quiet, sideOfTexts(),
                  isPrincipal ? FontWeight::bold : FontWeight::regular});
    if (isPrincipal) _sheet.label(_local.time(day.phase->at), cell.time, _timeStyle);
  }

  std::string eclipseText(const almanac::LocalEclipse& eclipse) const {
    return _local.date(eclipse.best.at, "MMMd") + ", " + _local.time(eclipse.best.at) + "  " +
           eclipseName(eclipse.body, eclipse.kind);
  }

  Sheet& _sheet;
  const YearLayout& _layout;
  const MoonDays& _moons;
  const YearPosterStyle& _style;
  const bool _isSouthern;
  const PosterTexts _local, _plain;
  const std::vector<std::string> _weekdays = DateFormatter::shortWeekdaySymbols(localeOfWords());
  const Palette& _palette;
  const double _unit;
  const LabelStyle _timeStyle;
};

}  // namespace

bool YearPoster::isCovered() const {
  const auto first = almanac::civilDay(place().zone, _year / 1 / 1);
  const auto last = almanac::civilDay(place().zone, _year / 12 / 31);
  return first && last && first->start >= ephemeris::firstInstant() && last->end <= ephemeris::endInstant();
}

void YearPoster::compose(Sheet& sheet) const {
  const auto moons = MoonDays::of(place(), _year);
  if (!moons) return;
  const DayAlignment alignment = _style.alignsWeekdays ? DayAlignment::weekday : DayAlignment::date;
  const YearLayout layout =
      YearLayout::of(sheet.size(), sheet.unit(), alignment, YearDrawing::eclipseDays(*moons).size());
  const YearDrawing drawing(sheet, layout, *moons, place(), _style);
  drawing.drawTitle(_year, place().name);
  drawing.drawLegend();
  drawing.drawLineNames();
  for (unsigned month = 1; month <= 12; ++month) drawing.drawMonth(_year / std::chrono::month(month));
  drawing.drawNotes();
}

}  // namespace velmora
