#include <velmora/views/RiseSetPainter.h>

#include <cmath>

#include <velmora/astronomy/RiseSetData.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/UIControls.h>
#include <velmora/views/VelmoraTheme.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double midlineWidth = 0.5, midlineAlpha = 0.9;
constexpr double moonIconAlpha = 1, sunIconAlpha = 0.7;

TextLayout timeText(const std::string& text) {
  return TextLayout(AttributedText(text, MoonRiseSetDayView::labelTextTextAttributes()));
}

}  // namespace

void RiseSetPainter::drawMoon(const RiseSetData& day) {
  const std::int64_t rise = day.moonRiseMinutesFromMidnight, set = day.moonSetMinutesFromMidnight;
  const MoonHours hours = MoonHours::between(rise, set);
  const bool isSplit = hours.isUpAtMidnight();
  const Rect risen = isSplit ? _strip.moonBarFromRise(hours) : _strip.moonBar(hours);
  const Rect setting = isSplit ? _strip.moonBarUntilSet(hours) : risen;
  _canvas.setFillColor(VelmoraTheme::defaultTheme()->moonLightColor);
  if (isSplit) {
    fillSegments(setting, risen);
  } else {
    _canvas.clearRect(mirrored(risen));
    fillBar(risen);
  }
  if (RiseSetStrip::isWithinDay(rise)) drawMoonrise(risen, day.moonRiseText);
  if (RiseSetStrip::isWithinDay(set)) drawMoonset(setting, day.moonSetText);
}

void RiseSetPainter::drawDaylight(const RiseSetData& day) {
  const Rect bar = _strip.dayBar(day.sunRiseMinutesFromMidnight, day.dayLengthMinutes);
  _canvas.setFillColor(VelmoraTheme::defaultTheme()->dayLightColor);
  fillBar(bar);
  drawIcon("sunrise", RiseSetStrip::iconAtStart(bar), sunIconAlpha);
  drawIcon("sunset", RiseSetStrip::iconAtEnd(bar), sunIconAlpha);
  const TextLayout sunrise = timeText(day.sunRiseText), sunset = timeText(day.sunSetText);
  sunrise.drawInRect(_canvas, mirrored(RiseSetStrip::sunRiseText(bar, sunrise.size())));
  sunset.drawInRect(_canvas, mirrored(RiseSetStrip::sunSetText(bar, sunset.size())));
}

void RiseSetPainter::drawMidline(const Color& color) {
  const Rect rect = _strip.rect();
  const double y = std::trunc(rect.midY());
  _canvas.save();
  _canvas.setLineWidth(midlineWidth);
  _canvas.setLineDash({2, 4});
  _canvas.setAlpha(midlineAlpha);
  _canvas.setStrokeColor(color);
  _canvas.strokeLine({rect.x, y}, {rect.x + rect.width, y});
  _canvas.restore();
}

Rect RiseSetPainter::mirrored(Rect rect) const {
  return UIControls::rectForCurrentLayoutDirection(rect, _strip.rect());
}

void RiseSetPainter::fillBar(Rect bar) { _canvas.fill(Path::roundedRect(mirrored(bar), kCornerRadius)); }

// Rounded where the Moon sets and rises; at midnight they are cut off.
void RiseSetPainter::fillSegments(Rect untilSet, Rect fromRise) {
  constexpr unsigned leftCorners = Corners::topLeft | Corners::bottomLeft;
  constexpr unsigned rightCorners = Corners::topRight | Corners::bottomRight;
  const bool isMirrored = UIControls::isUserInterfaceRightToLeft();
  fillSegment(untilSet, isMirrored ? leftCorners : rightCorners);
  fillSegment(fromRise, isMirrored ? rightCorners : leftCorners);
}

void RiseSetPainter::fillSegment(Rect segment, unsigned corners) {
  _canvas.fill(Path::roundedRect(mirrored(segment), corners, {kCornerRadius, kCornerRadius}));
}

void RiseSetPainter::drawMoonrise(Rect bar, const std::string& time) {
  drawMoonIcon("moonrise", RiseSetStrip::iconAtStart(bar));
  const TextLayout text = timeText(time);
  text.drawInRect(_canvas, mirrored(_strip.moonRiseText(bar, text.size())));
}

void RiseSetPainter::drawMoonset(Rect bar, const std::string& time) {
  drawMoonIcon("moonset", RiseSetStrip::iconAtEnd(bar));
  const TextLayout text = timeText(time);
  if (const auto place = _strip.moonSetText(bar, text.size())) text.drawInRect(_canvas, mirrored(*place));
}

void RiseSetPainter::drawMoonIcon(const char* name, Rect place) {
  if (place.x >= _strip.rect().x) drawIcon(name, place, moonIconAlpha);
}

void RiseSetPainter::drawIcon(const char* name, Rect place, double alpha) {
  const auto icon = Bundle::main().image(name);
  if (icon == nullptr) return;
  _canvas.save();
  _canvas.setBlendMode(BlendMode::overlay);
  _canvas.setAlpha(alpha);
  _canvas.drawImage(*icon, mirrored(place));
  _canvas.restore();
}

}  // namespace velmora
