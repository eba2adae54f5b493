#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>

namespace velmora {

/// Writes what is drawn as a list of numbers that a page replays on a canvas of its own (HTML's "2d"
/// context), in one call. A group becomes a layer only where something in it clears or overlays what lies
/// below it, or where it is faded, and then only as large as its clip.
class Canvas2dCanvas : public Canvas {
 public:
  /// A transparent canvas of that many pixels a point; the page has scaled its own alike.
  explicit Canvas2dCanvas(Size size, double scale);
  ~Canvas2dCanvas() override;

  /// The operations, once the drawing is complete: groups that are still open are ended.
  const std::vector<double>& operations();

  /// A number for each square of 64 by 64 pixels, row by row from the top left, for what is drawn there:
  /// where two drawings have the same, their pixels are the same, so that a page draws again only the others.
  std::vector<double> squares();

  void save() override;
  void restore() override;
  void setStrokeColor(const Color& color) override;
  void setFillColor(const Color& color) override;
  void setLineWidth(double width) override;
  void setLineDash(const std::vector<double>& lengths, double phase) override;
  void setAlpha(double alpha) override;
  void setBlendMode(BlendMode mode) override;
  void translate(double dx, double dy) override;
  void rotate(double angle) override;
  void scale(double sx, double sy) override;
  void concat(const AffineTransform& transform) override;
  void clip(const Path& path) override;
  void fill(const Path& path) override;
  void stroke(const Path& path) override;
  void fillRect(Rect rect) override;
  void clearRect(Rect rect) override;
  void drawImage(const Image& image, Rect rect) override;
  void drawText(const AttributedText& text, Point topLeft) override;
  void drawGlyph(const AttributedText& text, std::size_t glyph, Point topLeft) override;
  void beginGroup(double alpha) override;
  void endGroup() override;

 private:
  /// The number of the line that shows, once the page has been told of it.
  std::optional<double> shownLine(const AttributedText& text, Point topLeft);

  class Recording;
  std::unique_ptr<Recording> _recording;
};

}  // namespace velmora
