#include <velmora/views/MoonRiseSetDayView.h>

#include <cmath>
#include <string>
#include <utility>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/phases/RiseSetPhaseItem.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/PhaseDisc.h>
#include <velmora/views/RiseSetStrip.h>
#include <velmora/views/UIControls.h>

namespace velmora {

const double kCornerRadius = 8;

namespace {

constexpr double rowHeight = 80;
constexpr double discColumnWidth = 50, discShareOfHeight = 0.625;
constexpr double labelHeight = 18, labelOverlap = 2;
constexpr double stripGap = 5;
constexpr double hairline = 0.5;
constexpr double moonIconAlpha = 1, sunIconAlpha = 0.7, midlineAlpha = 0.9;
constexpr double tabletTextSize = 15, narrowScreenTextSize = 10, narrowScreenWidth = 320;

double timeTextSize() {
  if (SettingsModel::isIPad()) return tabletTextSize;
  return Device::current().screenWidth <= narrowScreenWidth ? narrowScreenTextSize
                                                            : Font::smallSystemFontSize;
}

/// Of the rise and set times.
const TextAttributes& labelTextTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] {
    return TextAttributes{.font = Font::boldSystemFont(timeTextSize()),
                          .color = VelmoraTheme::defaultTheme()->darkTextColor,
                          .alignment = TextAlignment::left,
                          .lineBreak = LineBreak::clipping};
  });
}

/// Draws on a strip, mirrored where the layout runs from right to left.
class StripPainter {
 public:
  StripPainter(Canvas& canvas, const RiseSetStrip& strip) : _canvas(canvas), _strip(strip) {}

  void drawMoon(const RiseSetData& day) {
    const MoonHours hours =
        MoonHours::between(day.moonRiseMinutesFromMidnight, day.moonSetMinutesFromMidnight);
    _canvas.setFillColor(VelmoraTheme::defaultTheme()->moonLightColor);
    const bool isSplit = hours.isUpAtMidnight();
    const Rect risen = isSplit ? _strip.moonBarFromRise(hours) : _strip.moonBar(hours);
    const Rect setting = isSplit ? _strip.moonBarUntilSet(hours) : risen;
    if (isSplit) {
      fillSegments(setting, risen);
    } else {
      _canvas.clearRect(mirrored(risen));
      fillBar(risen);
    }
    if (RiseSetStrip::isWithinDay(day.moonRiseMinutesFromMidnight)) drawMoonrise(risen, day.moonRiseText);
    if (RiseSetStrip::isWithinDay(day.moonSetMinutesFromMidnight)) drawMoonset(setting, day.moonSetText);
  }

  void drawDaylight(const RiseSetData& day) {
    const Rect bar = _strip.dayBar(day.sunRiseMinutesFromMidnight, day.dayLengthMinutes);
    _canvas.setFillColor(VelmoraTheme::defaultTheme()->dayLightColor);
    fillBar(bar);
    drawIcon("sunrise", RiseSetStrip::iconAtStart(bar), sunIconAlpha);
    drawIcon("sunset", RiseSetStrip::iconAtEnd(bar), sunIconAlpha);
    const TextLayout sunrise = timeText(day.sunRiseText), sunset = timeText(day.sunSetText);
    sunrise.drawInRect(_canvas, mirrored(RiseSetStrip::sunRiseText(bar, sunrise.size())));
    sunset.drawInRect(_canvas, mirrored(RiseSetStrip::sunSetText(bar, sunset.size())));
  }

  void drawMidline(const Color& color) {
    const Rect rect = _strip.rect();
    const double y = std::trunc(rect.midY());
    _canvas.save();
    _canvas.setLineWidth(hairline);
    _canvas.setLineDash({2, 4});
    _canvas.setAlpha(midlineAlpha);
    _canvas.setStrokeColor(color);
    _canvas.strokeLine({rect.x, y}, {rect.x + rect.width, y});
    _canvas.restore();
  }

 private:
  Rect mirrored(Rect rect) const { return UIControls::rectForCurrentLayoutDirection(rect, _strip.rect()); }

  static TextLayout timeText(const std::string& text) {
    return TextLayout(AttributedText(text, labelTextTextAttributes()));
  }

  void fillBar(Rect bar) { _canvas.fill(Path::roundedRect(mirrored(bar), kCornerRadius)); }

  // Rounded where the Moon sets and rises; at midnight they are cut off.
  void fillSegments(Rect untilSet, Rect fromRise) {
    constexpr unsigned leftCorners = Corners::topLeft | Corners::bottomLeft;
    constexpr unsigned rightCorners = Corners::topRight | Corners::bottomRight;
    const bool isMirrored = UIControls::isUserInterfaceRightToLeft();
    fillSegment(untilSet, isMirrored ? leftCorners : rightCorners);
    fillSegment(fromRise, isMirrored ? rightCorners : leftCorners);
  }

  void fillSegment(Rect segment, unsigned corners) {
    _canvas.fill(Path::roundedRect(mirrored(segment), corners, {kCornerRadius, kCornerRadius}));
  }

  void drawMoonrise(Rect bar, const std::string& time) {
    drawMoonIcon("moonrise", RiseSetStrip::iconAtStart(bar));
    const TextLayout text = timeText(time);
    text.drawInRect(_canvas, mirrored(_strip.moonRiseText(bar, text.size())));
  }

  void drawMoonset(Rect bar, const std::string& time) {
    drawMoonIcon("moonset", RiseSetStrip::iconAtEnd(bar));
    const TextLayout text = timeText(time);
    if (const auto place = _strip.moonSetText(bar, text.size())) text.drawInRect(_canvas, mirrored(*place));
  }

  void drawMoonIcon(const char* name, Rect place) {
    if (place.x >= _strip.rect().x) drawIcon(name, place, moonIconAlpha);
  }

  void drawIcon(const char* name, Rect place, double alpha) {
    const auto icon = Bundle::main().image(name);
    if (icon == nullptr) return;
    _canvas.save();
    _canvas.setBlendMode(BlendMode::overlay);
    _canvas.setAlpha(alpha);
    _canvas.drawImage(*icon, mirrored(place));
    _canvas.restore();
  }

  Canvas& _canvas;
  const RiseSetStrip& _strip;
};

}  // namespace

void MoonRiseSetDayView::setPhaseItem(std::shared_ptr<const RiseSetPhaseItem> item) {
  _phaseItem = std::move(item);
  setNeedsDisplay();
}

void MoonRiseSetDayView::setLabelText(AttributedText text) {
  _labelText = std::move(text);
  setNeedsDisplay();
}

void MoonRiseSetDayView::setIsSelected(bool isSelected) {
  _isSelected = isSelected;
  setNeedsDisplay();
}

void MoonRiseSetDayView::setColorTheme(std::shared_ptr<VelmoraTheme> theme) {
  _colorTheme = std::move(theme);
  setNeedsDisplay();
}

const std::shared_ptr<VelmoraTheme>& MoonRiseSetDayView::calendarTheme() {
  if (_colorTheme == nullptr) _colorTheme = VelmoraTheme::calendarTheme();
  return _colorTheme;
}

Size MoonRiseSetDayView::cellSize() const { return {bounds().width, rowHeight}; }

bool MoonRiseSetDayView::isSouthernHemisphere() const {
  return MoonPhaseData::sharedInstance().isSouthernHemisphere();
}

void MoonRiseSetDayView::handleTouchEvent(const Touch&) { setNeedsDisplay(); }

void MoonRiseSetDayView::drawRect(Canvas& canvas, Rect rect) {
  canvas.clearRect(rect);
  const double left = std::trunc(edgeInsets.left);
  const auto mirrored = [this](Rect part) {
    return UIControls::rectForCurrentLayoutDirection(part, bounds());
  };
  const Rect disc = {left, std::trunc(phasePadding.height) + std::trunc(edgeInsets.top), discColumnWidth,
                     cellSize().height * discShareOfHeight};
  drawDisc(canvas, mirrored(disc));
  const Rect label = {left, disc.maxY() - labelOverlap, discColumnWidth, labelHeight};
  TextLayout(_labelText).drawInRect(canvas, mirrored(label));
  drawSeparators(canvas);
  const double stripX = std::trunc(edgeInsets.left + discColumnWidth + stripGap);
  const Rect strip = {stripX, 0, bounds().width - stripX - edgeInsets.right, cellSize().height};
  drawRiseSetData(mirrored(strip), _phaseItem.get(), canvas);
}

void MoonRiseSetDayView::drawDisc(Canvas& canvas, Rect discRect) {
  if (_phaseItem == nullptr) return;
  const VelmoraTheme& theme = *calendarTheme();
  const Color& color = _isSelected ? theme.selectedBackgroundColor : theme.lightTextColor;
  canvas.setStrokeColor(color);
  canvas.setFillColor(color);
  drawMoonPhaseInRect(discRect, *_phaseItem, canvas);
}

void MoonRiseSetDayView::drawMoonPhaseInRect(Rect rect, const PhaseItem& withPhaseItem, Canvas& context) {
  PhaseDisc::inRiseSetDay(rect).draw(context, withPhaseItem, isSouthernHemisphere(),
                                     calendarTheme()->backgroundColor);
}

void MoonRiseSetDayView::drawSeparators(Canvas& canvas) {
  const Size size = bounds().size();
  const double x = std::trunc(edgeInsets.left) + discColumnWidth + stripGap;
  const Point top = UIControls::pointForCurrentLayoutDirection({x, 0}, bounds());
  canvas.setLineWidth(hairline);
  canvas.setStrokeColor(calendarTheme()->borderColor);
  canvas.strokeLine(top, {top.x, size.height});
  canvas.strokeLine({0, size.height - 1}, {size.width, size.height - 1});
}

void MoonRiseSetDayView::drawRiseSetData(Rect rect, const RiseSetPhaseItem* with, Canvas& context) {
  const RiseSetStrip strip(rect);
  StripPainter painter(context, strip);
  if (with != nullptr && with->riseSetData) {
    painter.drawMoon(*with->riseSetData);
    painter.drawDaylight(*with->riseSetData);
  }
  painter.drawMidline(calendarTheme()->borderColor);
}

}  // namespace velmora
