#pragma once

#include <memory>
#include <vector>

#include <velmora/platform/ui/View.h>

namespace velmora {

struct PhaseItem;

/// The phase disc of one day, as an icon on a clear background. It needs a frame, a day and, south of the
/// equator, `isSouthernHemisphere`; nothing is drawn without a day. A changed property asks for a drawing.
class MoonPhaseIconView : public View {
 public:
  /// The day that is drawn.
  const std::shared_ptr<const PhaseItem>& phaseItem() const { return _phaseItem; }
  /// The day to draw; none for no disc.
  void setPhaseItem(std::shared_ptr<const PhaseItem> item);

  /// The outline of the disc; white unless set.
  const Color& strokeColor() const { return _strokeColor; }
  void setStrokeColor(const Color& color) { change(_strokeColor, color); }

  /// The lit part; white unless set.
  const Color& fillColor() const { return _fillColor; }
  void setFillColor(const Color& color) { change(_fillColor, color); }

  /// The dark part of a crescent; black unless set.
  const Color& phaseBackgroundColor() const { return _phaseBackgroundColor; }
  void setPhaseBackgroundColor(const Color& color) { change(_phaseBackgroundColor, color); }

  /// Whether left and right change places; no unless set.
  bool isSouthernHemisphere() const { return _isSouthernHemisphere; }
  void setIsSouthernHemisphere(bool isSouthern) { change(_isSouthernHemisphere, isSouthern); }

  /// One element, the disc: date and phase of its day; none without a day.
  std::vector<AccessibilityElement> accessibilityElements() override;

  void drawRect(Canvas& canvas, Rect rect) override;

  /// Draws the day's disc into the rectangle, its outline and lit part in the canvas's own colours.
  void drawMoonPhaseInRect(Rect rect, const PhaseItem& withPhaseItem, Canvas& context) const;

 private:
  template <class Value>
  void change(Value& property, const Value& value) {
    property = value;
    setNeedsDisplay();
  }

  std::shared_ptr<const PhaseItem> _phaseItem;
  Color _strokeColor = Color::white();
  Color _fillColor = Color::white();
  Color _phaseBackgroundColor = Color::black();
  bool _isSouthernHemisphere = false;
};

}  // namespace velmora
