#pragma once

#include <cstddef>
#include <vector>

#include <velmora/platform/graphics/AttributedText.h>
#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Geometry.h>
#include <velmora/platform/graphics/Path.h>

namespace velmora {

class Image;

/// How paint meets what is already there. On a transparent picture overlay paints as normal does; clear
/// leaves transparency wherever the shape covers, whatever the colour and the alpha.
enum class BlendMode { normal, overlay, clear };

/// What the views draw on. A new canvas is transparent and has black as both colours, line width 1, no dash,
/// alpha 1, blend mode normal, no clip. Lengths are in points of the current frame.
class Canvas {
 public:
  virtual ~Canvas() = default;

  /// Keeps and puts back colours, line, alpha, blend mode, frame and clip. A restore without a save does
  /// nothing.
  virtual void save() = 0;
  virtual void restore() = 0;

  /// What later strokes and fills are painted with; the width in points.
  virtual void setStrokeColor(const Color& color) = 0;
  virtual void setFillColor(const Color& color) = 0;
  virtual void setLineWidth(double width) = 0;
  /// Lengths of lines and gaps in turn; none is a solid line.
  virtual void setLineDash(const std::vector<double>& lengths, double phase = 0) = 0;
  /// Multiplies the alpha of everything drawn, images included: 0 is invisible, 1 leaves it as it is.
  virtual void setAlpha(double alpha) = 0;
  virtual void setBlendMode(BlendMode mode) = 0;

  /// Moves, turns (radians, clockwise as seen) or scales the frame that later calls draw in.
  virtual void translate(double dx, double dy) = 0;
  virtual void rotate(double angle) = 0;
  virtual void scale(double sx, double sy) = 0;
  virtual void concat(const AffineTransform& transform) = 0;

  /// Later drawing shows only inside the path, and inside the clips before it.
  virtual void clip(const Path& path) = 0;

  /// Paints the area of the path, or a line along it.
  virtual void fill(const Path& path) = 0;
  virtual void stroke(const Path& path) = 0;

  /// Shortcuts, by paths unless a canvas has something quicker.
  virtual void fillRect(Rect rect) { fill(Path::rect(rect)); }
  virtual void fillEllipse(Rect rect) { fill(Path::ellipse(rect)); }
  virtual void strokeEllipse(Rect rect) { stroke(Path::ellipse(rect)); }
  virtual void strokeLine(Point from, Point to);

  /// Makes the rectangle transparent within the clip, whatever blend mode and alpha are.
  virtual void clearRect(Rect rect) = 0;

  /// Draws the whole image into the rectangle with the current alpha and blend mode.
  virtual void drawImage(const Image& image, Rect rect) = 0;

  /// Draws the text as one line whose ascent starts at the point; its attributes give the colours. Views use
  /// TextLayout, which calls this.
  virtual void drawText(const AttributedText& text, Point topLeft) = 0;

  /// Draws one glyph of the text, counted in reading order, where the whole line at that point would have it.
  virtual void drawGlyph(const AttributedText& text, std::size_t glyph, Point topLeft) = 0;

  /// What is drawn up to endGroup is gathered on a transparent layer of its own, which is then laid down as
  /// one with that alpha. Inside, alpha is 1 and blend mode normal again; clearing reaches only the layer.
  /// Colours, line, frame and clip go on and come back as they were at the end. Groups nest with saves.
  virtual void beginGroup(double alpha) = 0;
  virtual void endGroup() = 0;
};

}  // namespace velmora
