#pragma once

#include <memory>

#include <velmora/platform/graphics/LayoutManager.h>
#include <velmora/platform/ui/View.h>

namespace velmora {

/// A text that runs glyph by glyph along a circle around the middle of the view.
class ArcTextView : public View {
 public:
  ArcTextView();

  /// A text can be seen through.
  bool isOpaque() const override { return false; }

  /// The text as it is drawn now.
  const AttributedText& attributedString() const { return _textStorage->attributedString(); }
  /// Replaces the text; does not ask to be drawn again.
  void setAttributedString(AttributedText text) { _textStorage->setAttributedString(std::move(text)); }

  /// Of the circle, in points.
  double arcRadius() const { return _arcRadius; }
  void setArcRadius(double radius);

  /// Where the text begins: degrees, clockwise as seen from the positive x axis.
  double arcTheta() const { return _arcTheta; }
  /// Whether the glyphs stand upside down, with their heads toward the centre.
  bool isFlipped() const { return _isFlipped; }
  void setArcTheta(double theta, bool shouldFlipText);

  /// Asks to be drawn again.
  /// Kept: while `isFlipped` is set it reverses the order of the text's characters each time it is called;
  /// two calls give back the order that was.
  void update();

  /// The point on a circle around the origin, the angle in radians.
  static Point pointOnArcWithAngle(double angle, double withRadius);

  /// The text and its layout: the storage notifies the manager, which fills the container.
  const std::shared_ptr<TextStorage>& textStorage() const { return _textStorage; }
  const std::shared_ptr<LayoutManager>& layoutManager() const { return _layoutManager; }
  const std::shared_ptr<TextContainer>& textContainer() const { return _textContainer; }

  void drawRect(Canvas& canvas, Rect rect) override;

 private:
  void drawGlyph(Canvas& canvas, std::size_t glyph, double angle) const;

  std::shared_ptr<TextContainer> _textContainer;
  std::shared_ptr<LayoutManager> _layoutManager;
  std::shared_ptr<TextStorage> _textStorage;
  double _arcRadius = 0;
  double _arcTheta = 0;
  bool _isFlipped = false;
};

}  // namespace velmora
