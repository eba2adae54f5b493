#include <velmora/views/MoonRiseSetDayView.h>

#include <cmath>
#include <utility>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/phases/RiseSetPhaseItem.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/PhaseDisc.h>
#include <velmora/views/RiseSetPainter.h>
#include <velmora/views/SpokenTexts.h>
#include <velmora/views/UIControls.h>

namespace velmora {

const double kCornerRadius = 8;

namespace {

constexpr double rowHeight = 80;
constexpr double discColumnWidth = 50, discShareOfHeight = 0.625;
constexpr double labelHeight = 18, labelOverlap = 2;
constexpr double stripGap = 5;
constexpr double hairline = 0.5;
constexpr double tabletTextSize = 15, narrowScreenTextSize = 10, narrowScreenWidth = 320;

double timeTextSize() {
  if (SettingsModel::isIPad()) return tabletTextSize;
  return Device::current().screenWidth <= narrowScreenWidth ? narrowScreenTextSize
                                                            : Font::smallSystemFontSize;
}

}  // namespace

const TextAttributes& MoonRiseSetDayView::labelTextTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] {
    return TextAttributes{.font = Font::boldSystemFont(timeTextSize()),
                          .color = VelmoraTheme::defaultTheme()->darkTextColor,
                          .alignment = TextAlignment::left,
                          .lineBreak = LineBreak::clipping};
  });
}

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

std::vector<AccessibilityElement> MoonRiseSetDayView::accessibilityElements() {
  if (_phaseItem == nullptr) return {};
  return {{.frame = bounds(), .label = SpokenDays().riseAndSet(*_phaseItem)}};
}

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
  RiseSetPainter painter(context, RiseSetStrip(rect));
  if (with != nullptr && with->riseSetData) {
    painter.drawMoon(*with->riseSetData);
    painter.drawDaylight(*with->riseSetData);
  }
  painter.drawMidline(calendarTheme()->borderColor);
}

}  // namespace velmora
