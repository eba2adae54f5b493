#include <velmora/posters/NightChart.h>

#include <algorithm>

#include <velmora/posters/MoonShape.h>

namespace [[gnu::visibility("hidden")]] velmora {
using almanac::Event;
using almanac::EventKind;
using ephemeris::Body;

namespace {

long hourOn(const TimeZone& zone, Instant at) {
  const LocalTime reading = zone.localTime(at);
  return std::chrono::floor<std::chrono::hours>(reading - std::chrono::floor<std::chrono::days>(reading))
      .count();
}

}  // namespace

void NightChart::draw(const TimeZone& zone, std::chrono::year_month_day date) const {
  Canvas& canvas = _sheet.canvas();
  canvas.save();
  canvas.clip(Path::roundedRect(_sheet.onPaper(_layout.chart), 6 * _sheet.unit()));
  drawSky();
  drawGround();
  canvas.restore();
  drawGrid(zone, date);
  canvas.save();
  canvas.clip(Path::rect(_sheet.onPaper(_layout.chart)));
  drawWay(&SkySample::sunHeight, _sheet.palette().sun);
  drawWay(&SkySample::moonHeight, _sheet.palette().moonLit);
  canvas.restore();
  drawCulminations();
  drawRisings();
}

double NightChart::x(Instant at) const {
  return _layout.x((at - _night.start) / (_night.end - _night.start));
}

Color NightChart::skyBetween(const SkySample& from, const SkySample& to) const {
  const Daypart part = daypartAt((from.sun + to.sun) / 2);
  const Color& sky = _sheet.palette().sky(part);
  if (part <= Daypart::civil) return sky;
  const double light = moonlight(_night.moon.fraction, (from.moonHeight + to.moonHeight) / 2);
  return mixed(sky, _sheet.palette().moonlight, mostMoonlight * light);
}

/// Each strip reaches to the end, under the later ones, so that no seam shows.
void NightChart::drawSky() const {
  for (std::size_t i = 0; i + 1 < _night.samples.size(); ++i) {
    const double from = x(_night.samples[i].at);
    _sheet.fillRect({from, _layout.chart.y, _layout.chart.maxX() - from, _layout.chart.height},
                    skyBetween(_night.samples[i], _night.samples[i + 1]));
  }
}

void NightChart::drawGround() const {
  Color ground = _sheet.palette().paper;
  ground.alpha = 0.72;
  const double horizon = _layout.y(0);
  _sheet.fillRect({_layout.chart.x, horizon, _layout.chart.width, _layout.chart.maxY() - horizon}, ground);
}

void NightChart::drawGrid(const TimeZone& zone, std::chrono::year_month_day date) const {
  const double unit = _sheet.unit();
  const Palette& palette = _sheet.palette();
  const LabelStyle style = {10 * unit, palette.quiet, Side::trailing};
  Color faint = palette.quiet;
  faint.alpha = 0.35;
  for (const int altitude : _layout.gridAltitudes()) {
    const double y = _layout.y(altitude);
    const bool isHorizon = altitude == 0;
    _sheet.line({_layout.chart.x, y}, {_layout.chart.maxX(), y}, isHorizon ? palette.ink : faint,
                (isHorizon ? 1 : 0.5) * unit);
    _sheet.label(_texts.degrees(altitude),
                 {_layout.heights.x, y - 7 * unit, _layout.heights.width, 14 * unit}, style);
  }
  constexpr int noon = 12, hourStep = 3;
  for (int hour = noon; hour <= noon + 24; hour += hourStep) {
    const auto found = zone.lookup(LocalTime(std::chrono::local_days(date)) + std::chrono::hours(hour));
    if (hourOn(zone, found.before) != hour % 24) continue;  // the clocks skip it
    const double at = x(found.before), half = 1.2 * _layout.chart.width / 24;
    _sheet.line({at, _layout.chart.maxY()}, {at, _layout.chart.maxY() + 4 * unit}, palette.quiet,
                0.75 * unit);
    _sheet.label(_texts.hour(hour % 24), {at - half, _layout.hours.y, 2 * half, _layout.hours.height},
                 {10 * unit, palette.quiet, Side::middle});
  }
}

void NightChart::drawWay(double SkySample::*height, const Color& color) const {
  Path way;
  for (const SkySample& sample : _night.samples) {
    const Point point = {x(sample.at), _layout.y(sample.*height)};
    way.isEmpty() ? way.moveTo(point) : way.lineTo(point);
  }
  Color casing = _sheet.palette().night;
  casing.alpha = 0.5;
  _sheet.stroke(way, casing, 3.6 * _sheet.unit());
  _sheet.stroke(way, color, 2 * _sheet.unit());
}

/// So that no way of Sun or Moon runs through it.
void NightChart::drawOnPlate(const std::string& text, Rect room, const LabelStyle& style) const {
  Color plate = _sheet.palette().paper;
  plate.alpha = 0.85;
  _sheet.fill(Path::roundedRect(room, 3 * _sheet.unit()), plate);
  _sheet.label(text, room, style);
}

/// Of the Sun in the upper rows below the horizon, of the Moon in the lower ones.
void NightChart::drawRisings() const {
  const double unit = _sheet.unit();
  const Palette& palette = _sheet.palette();
  for (const Body body : {Body::sun, Body::moon}) {
    const LabelStyle style = {10.5 * unit, palette.ink, Side::middle, FontWeight::semibold};
    const double top = _layout.y(0) + (body == Body::sun ? 7 : 23) * unit, height = 15 * unit;
    for (const Event& event : _night.events.events) {
      if (event.body != body || (event.kind != EventKind::rise && event.kind != EventKind::set)) continue;
      const std::string text = _texts.time(event.at);
      const double half = Sheet::widthOf(text, style) * 0.5 + 3 * unit, at = x(event.at);
      const double middle =
          std::clamp(at, _layout.chart.x + half + 2 * unit, _layout.chart.maxX() - half - 2 * unit);
      const double radius = 3.4 * unit;
      _sheet.line({at, _layout.y(0)}, {at, top + 1.5 * unit}, palette.quiet, 0.6 * unit);
      const Path dot = Path::ellipse({at - radius, _layout.y(0) - radius, 2 * radius, 2 * radius});
      _sheet.fill(dot, body == Body::sun ? palette.sun : palette.moonLit);
      _sheet.stroke(dot, palette.night, 0.8 * unit);
      const Rect room = {middle - half, top, 2 * half, height};
      drawOnPlate(text, room, style);
    }
  }
}

void NightChart::drawCulminations() const {
  const double unit = _sheet.unit();
  const Palette& palette = _sheet.palette();
  for (const Event& event : _night.events.events) {
    if (event.kind != EventKind::transit || event.body != Body::moon || event.altitude <= 0) continue;
    const Point top = {x(event.at), _layout.y(event.altitude)};
    const double radius = 9 * unit;
    drawMoon(_sheet, top, radius, tilted(_night.moon));
    const std::string text = _texts.time(event.at) + "  " + _texts.degrees(event.altitude);
    const LabelStyle style = {10.5 * unit, palette.ink, Side::middle, FontWeight::semibold};
    const double half = Sheet::widthOf(text, style) * 0.5 + 3 * unit;
    const double middle = std::clamp(top.x, _layout.chart.x + half, _layout.chart.maxX() - half);
    drawOnPlate(text, {middle - half, top.y - radius - 18 * unit, 2 * half, 15 * unit}, style);
  }
}

}  // namespace velmora
