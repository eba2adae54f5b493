#include <velmora/views/MoonPhaseIconView.h>

#include <utility>

#include <velmora/phases/PhaseItem.h>
#include <velmora/views/PhaseDisc.h>
#include <velmora/views/SpokenTexts.h>

namespace velmora {

void MoonPhaseIconView::setPhaseItem(std::shared_ptr<const PhaseItem> item) {
  _phaseItem = std::move(item);
  setNeedsDisplay();
}

std::vector<AccessibilityElement> MoonPhaseIconView::accessibilityElements() {
  if (_phaseItem == nullptr) return {};
  return {{.frame = bounds(), .label = SpokenDays().dateAndPhase(*_phaseItem)}};
}

void MoonPhaseIconView::drawRect(Canvas& canvas, Rect rect) {
  View::drawRect(canvas, rect);
  if (_phaseItem == nullptr) return;
  canvas.clearRect(bounds());
  canvas.setStrokeColor(_strokeColor);
  canvas.setFillColor(_fillColor);
  drawMoonPhaseInRect(bounds(), *_phaseItem, canvas);
}

void MoonPhaseIconView::drawMoonPhaseInRect(Rect rect, const PhaseItem& withPhaseItem,
                                            Canvas& context) const {
  PhaseDisc::inIcon(rect).draw(context, withPhaseItem, _isSouthernHemisphere, _phaseBackgroundColor);
}

}  // namespace velmora
