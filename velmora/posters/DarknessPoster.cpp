#include <velmora/posters/DarknessPoster.h>

#include <algorithm>

#include <velmora/platform/resources/Words.h>
#include <velmora/posters/DarknessCarpet.h>
#include <velmora/posters/DarknessLayout.h>
#include <velmora/posters/DarknessYear.h>
#include <velmora/posters/KeyRow.h>
#include <velmora/posters/NightSky.h>
#include <velmora/posters/PosterTexts.h>
#include <velmora/posters/Sheet.h>

namespace velmora {
namespace {

/// The words around the carpet, and its lines.
class DarknessTexts {
 public:
  DarknessTexts(Sheet& sheet, const DarknessLayout& layout, const DarknessYear& year,
                const PosterTexts& texts)
      : _sheet(sheet),
        _layout(layout),
        _year(year),
        _texts(texts),
        _palette(sheet.palette()),
        _unit(sheet.unit()) {}

  void drawTitle(const std::string& place) const {
    _sheet.label(words("Hours of darkness"), _layout.caption,
                 {.size = 12 * _unit, .color = _palette.accent, .weight = FontWeight::semibold});
    _sheet.label(_texts.date(_year.nights.front().interval.start, "y"), _layout.title,
                 {.size = 34 * _unit, .color = _palette.ink, .weight = FontWeight::semibold});
    _sheet.label(place, _layout.place, {.size = 13 * _unit, .color = _palette.quiet});
  }

  void drawHours() const {
    constexpr int noon = 12, hourStep = 3, dayLength = 24;
    Color faint = _palette.paper;
    faint.alpha = 0.25;
    for (int hour = noon; hour <= noon + dayLength; hour += hourStep) {
      const bool isFirst = hour == noon, isLast = hour == noon + dayLength;
      const double x = _layout.x(static_cast<double>(hour - noon) / dayLength);
      const double step = _layout.carpet.width * hourStep / dayLength;
      _sheet.label(_texts.hour(hour % dayLength), {x - step / 2, _layout.hours.y, step, _layout.hours.height},
                   {9 * _unit, _palette.quiet, Side::middle});
      if (!isFirst && !isLast)
        _sheet.line({x, _layout.carpet.y}, {x, _layout.carpet.maxY()}, faint, 0.5 * _unit);
    }
    _sheet.label(words("Darkest night"), _layout.darkestHeading,
                 {.size = 9 * _unit, .color = _palette.quiet});
  }

  void drawMonths() const {
    const std::size_t count = _year.nights.size();
    std::size_t first = 0;
    for (unsigned month = 1; month <= 12; ++month) {
      std::size_t next = first;
      while (next < count && static_cast<unsigned>(_year.nights[next].evening.month()) == month) ++next;
      const double top = _layout.y(static_cast<double>(first), count);
      const double bottom = _layout.y(static_cast<double>(next), count);
      if (month > 1) rule(top);
      _sheet.label(_texts.date(_year.nights[first].interval.start, "LLLL"),
                   {_layout.monthsX, top, _layout.monthsWidth, bottom - top},
                   {.size = 11 * _unit, .color = _palette.ink, .weight = FontWeight::semibold});
      drawDarkest(_year.darkest[month - 1], top, bottom);
      first = next;
    }
  }

  void drawLegend() const {
    const std::vector<Entry> dayparts = {{"Daytime", _palette.daylight},
                                         {"Twilight (civil)", _palette.civil},
                                         {"Twilight (nautical)", _palette.nautical},
                                         {"Twilight (astronomical)", _palette.astronomical},
                                         {"Night", _palette.night}};
    const std::vector<Entry> moon = {{"Moonlight", brightestMoonlight(_palette)},
                                     {"Moonrise", moonriseColor(_palette), true},
                                     {"Moonset", moonsetColor(_palette), true, moonsetDash(_unit)}};
    drawKeys(dayparts, _layout.dayparts);
    drawKeys(moon, _layout.moonKeys);
    _sheet.label(words("Darkest night: the longest time of the month with the Sun 18° below the horizon and "
                       "the Moon down"),
                 _layout.note, {.size = 9 * _unit, .color = _palette.quiet});
  }

 private:
  struct Entry {
    const char* name;
    Color color;
    bool isLine = false;
    std::vector<double> dash = {};
  };

  void rule(double y) const {
    _sheet.line({_layout.monthsX, y}, {_layout.carpet.x, y}, _palette.line, 0.5 * _unit);
    _sheet.line({_layout.carpet.maxX(), y}, {_layout.darkestX + _layout.darkestWidth, y}, _palette.line,
                0.5 * _unit);
    Color faint = _palette.paper;
    faint.alpha = 0.4;
    _sheet.line({_layout.carpet.x, y}, {_layout.carpet.maxX(), y}, faint, 0.5 * _unit);
  }

  /// Three lines in the middle of the month: the evening, from when to when, how long.
  void drawDarkest(const std::optional<almanac::Interval>& darkest, double top, double bottom) const {
    const double line = 12.5 * _unit, middle = (top + bottom) / 2;
    const auto room = [&](double y) { return Rect{_layout.darkestX, y, _layout.darkestWidth, line}; };
    const LabelStyle quiet = {.size = 10 * _unit, .color = _palette.quiet};
    if (!darkest) return _sheet.label(words("not fully dark"), room(middle - line / 2), quiet);
    const NightRow& night = nightOf(*darkest);
    const LabelStyle strong = {.size = 10 * _unit, .color = _palette.ink, .weight = FontWeight::semibold};
    _sheet.label(_texts.date(night.interval.start, "MMMd"), room(middle - 1.5 * line), strong);
    _sheet.label(_texts.time(darkest->start) + " – " + _texts.time(darkest->end), room(middle - 0.5 * line),
                 {.size = 10 * _unit, .color = _palette.ink});
    _sheet.label(_texts.duration(darkest->end - darkest->start), room(middle + 0.5 * line), quiet);
  }

  const NightRow& nightOf(const almanac::Interval& stretch) const {
    return *std::find_if(_year.nights.begin(), _year.nights.end(),
                         [&](const NightRow& night) { return stretch.start < night.interval.end; });
  }

  void drawKeys(const std::vector<Entry>& entries, Rect room) const {
    const LabelStyle style = {.size = 9.5 * _unit, .color = _palette.ink};
    std::vector<double> wanted;
    for (const Entry& entry : entries) wanted.push_back(Sheet::widthOf(words(entry.name), style));
    const KeyRow row = KeyRow::of(room, _unit, wanted, false);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      drawSwatch(entries[i], row.swatches[i]);
      LabelStyle fitting = style;
      fitting.size *= row.share;
      _sheet.label(words(entries[i].name), row.names[i], fitting);
    }
  }

  void drawSwatch(const Entry& entry, Rect swatch) const {
    const Path shape = Path::roundedRect(swatch, 2 * _unit);
    _sheet.fill(shape, entry.isLine ? _palette.night : entry.color);
    if (entry.isLine) {
      Path line;
      line.moveTo({swatch.x, swatch.maxY()});
      line.lineTo({swatch.maxX(), swatch.y});
      _sheet.stroke(line, entry.color, 1.2 * _unit, entry.dash);
    }
    _sheet.stroke(shape, _palette.line, 0.75 * _unit);
  }

  Sheet& _sheet;
  const DarknessLayout& _layout;
  const DarknessYear& _year;
  const PosterTexts& _texts;
  const Palette& _palette;
  const double _unit;
};

}  // namespace

bool DarknessPoster::isCovered() const {
  return ephemeris::covers(nightOf(place().zone, _year / 1 / 1).start) &&
         ephemeris::covers(nightOf(place().zone, _year / 12 / 31).end);
}

void DarknessPoster::compose(Sheet& sheet) const {
  const auto sky = DarknessYear::of(place(), _year);
  if (!sky) return;
  const PosterTexts texts(place().zone);
  const DarknessLayout layout = DarknessLayout::of(sheet.size(), sheet.unit());
  const DarknessTexts around(sheet, layout, *sky, texts);
  around.drawTitle(place().name);
  drawCarpet(sheet, layout, *sky);
  around.drawHours();
  around.drawMonths();
  around.drawLegend();
}

}  // namespace velmora
