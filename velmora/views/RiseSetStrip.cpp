#include <velmora/views/RiseSetStrip.h>

#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr std::int64_t minutesOfDay = 1440;
constexpr double barMargin = 5;   // above and below each bar
constexpr double iconMargin = 2;  // between a bar's end and the icon in it
constexpr double textGap = 5;     // between a time and its bar or icon

double iconTop(Rect bar) {
  const double room = bar.height - RiseSetStrip::iconSide;
  return room > 0 ? bar.y + room * 0.5 : bar.y;
}

Rect textAt(double x, Rect bar, Size text) {
  return {x, iconTop(bar) + RiseSetStrip::iconSide - text.height, text.width, text.height};
}

}  // namespace

MoonHours MoonHours::between(std::int64_t rise, std::int64_t set) {
  const std::int64_t from = rise >= 1 ? rise : 0;
  if (set < rise) return {from, set};
  return {from, set >= 1 ? set : minutesOfDay};
}

RiseSetStrip::RiseSetStrip(Rect rect)
    : _rect(rect), _pointsPerMinute(static_cast<float>(rect.width / minutesOfDay)) {}

bool RiseSetStrip::isWithinDay(std::int64_t minutes) { return 0 <= minutes && minutes <= minutesOfDay; }

Rect RiseSetStrip::moonBar(MoonHours hours) const {
  return {xAt(hours.from), moonTop(), widthOf(hours.until - hours.from), barHeight()};
}

Rect RiseSetStrip::moonBarUntilSet(MoonHours hours) const {
  return {_rect.x, moonTop(), widthOf(hours.until), barHeight()};
}

Rect RiseSetStrip::moonBarFromRise(MoonHours hours) const {
  const double start = xAt(hours.from);
  return {start, moonTop(), end() - start, barHeight()};
}

Rect RiseSetStrip::dayBar(std::int64_t sunrise, std::int64_t dayLength) const {
  return {xAt(sunrise), dayTop(), widthOf(dayLength), barHeight()};
}

Rect RiseSetStrip::iconAtStart(Rect bar) { return {bar.x + iconMargin, iconTop(bar), iconSide, iconSide}; }

Rect RiseSetStrip::iconAtEnd(Rect bar) {
  return {bar.x + bar.width - iconSide - iconMargin, iconTop(bar), iconSide, iconSide};
}

Rect RiseSetStrip::moonRiseText(Rect bar, Size text) const {
  double x = std::trunc(bar.x - text.width - textGap);
  if (x < _rect.x) x = std::trunc(iconAtStart(bar).x + iconSide + textGap);
  return textAt(x, bar, text);
}

std::optional<Rect> RiseSetStrip::moonSetText(Rect bar, Size text) const {
  double x = std::trunc(bar.x + bar.width + textGap);
  if (x + text.width > end()) x = std::trunc(iconAtEnd(bar).x - text.width - textGap);
  if (x + text.width >= end()) return std::nullopt;
  return textAt(x, bar, text);
}

Rect RiseSetStrip::sunRiseText(Rect bar, Size text) {
  return textAt(bar.x - textGap - text.width, bar, text);
}

Rect RiseSetStrip::sunSetText(Rect bar, Size text) { return textAt(bar.x + bar.width + textGap, bar, text); }

double RiseSetStrip::widthOf(std::int64_t minutes) const {
  return static_cast<double>(_pointsPerMinute) * static_cast<double>(minutes);
}

double RiseSetStrip::moonTop() const { return _rect.y + barMargin; }

double RiseSetStrip::dayTop() const { return _rect.y + _rect.height * 0.5 + barMargin; }

double RiseSetStrip::barHeight() const { return _rect.height * 0.5 - 2 * barMargin; }

}  // namespace velmora
