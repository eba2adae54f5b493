#pragma once

#include <utility>

#include <velmora/platform/graphics/AttributedText.h>
#include <velmora/platform/ui/Layer.h>

namespace velmora {

/// A layer that draws one line of text from the top left of its bounds. A line that is too long is not
/// clipped.
class TextLayer : public Layer {
 public:
  /// The line of text.
  const AttributedText& attributedText() const { return _attributedText; }
  void setAttributedText(AttributedText text) { _attributedText = std::move(text); }

  /// Pixels a point that the text is meant for, as a host may ask; the canvas draws it sharp at its own.
  double contentsScale() const { return _contentsScale; }
  void setContentsScale(double scale) { _contentsScale = scale; }

 private:
  void draw(Canvas& canvas) const override;

  AttributedText _attributedText;
  double _contentsScale = 1;
};

}  // namespace velmora
