#pragma once

#include <memory>

#include <velmora/platform/ui/View.h>

namespace velmora {

struct PhaseItem;

/// The phase disc of one day, as an icon on a clear background. It needs a frame, a day and, south of the
/// equator, to be told so; nothing is drawn without a day.
class MoonPhaseIconView : public View {
 public:
  /// The day that is drawn.
  const std::shared_ptr<const PhaseItem>& phaseItem() const { return _phaseItem; }
  /// The day to draw; none for no disc. Asks to be drawn again, unlike the properties below, which show from
  /// the next drawing on.
  void setPhaseItem(std::shared_ptr<const PhaseItem> item);

  /// The outline of the disc; white unless set.
  const Color& strokeColor() const { return _strokeColor; }
  void setStrokeColor(const Color& color) { _strokeColor = color; }

  /// The lit part; white unless set.
  const Color& fillColor() const { return _fillColor; }
  void setFillColor(const Color& color) { _fillColor = color; }

  /// The dark part of a crescent; black unless set.
  const Color& phaseBackgroundColor() const { return _phaseBackgroundColor; }
  void setPhaseBackgroundColor(const Color& color) { _phaseBackgroundColor = color; }

  /// Whether left and right change places; no unless set.
  bool isSouthernHemisphere() const { return _isSouthernHemisphere; }
  void setIsSouthernHemisphere(bool isSouthern) { _isSouthernHemisphere = isSouthern; }

  void drawRect(Canvas& canvas, Rect rect) override;

  /// Draws the day's disc into the rectangle, its outline and lit part in the canvas's own colours.
  void drawMoonPhaseInRect(Rect rect, const PhaseItem& withPhaseItem, Canvas& context) const;

 private:
  std::shared_ptr<const PhaseItem> _phaseItem;
  Color _strokeColor = Color::white();
  Color _fillColor = Color::white();
  Color _phaseBackgroundColor = Color::black();
  bool _isSouthernHemisphere = false;
};

}  // namespace velmora
