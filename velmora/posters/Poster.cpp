#include <velmora/posters/Poster.h>

#include <velmora/posters/Sheet.h>
#include <velmora/views/UIControls.h>

namespace velmora {
namespace {

/// Shows nothing: for the texts of a poster alone.
class BlindCanvas final : public Canvas {
  void save() override {}
  void restore() override {}
  void setStrokeColor(const Color&) override {}
  void setFillColor(const Color&) override {}
  void setLineWidth(double) override {}
  void setLineDash(const std::vector<double>&, double) override {}
  void setAlpha(double) override {}
  void setBlendMode(BlendMode) override {}
  void translate(double, double) override {}
  void rotate(double) override {}
  void scale(double, double) override {}
  void concat(const AffineTransform&) override {}
  void clip(const Path&) override {}
  void fill(const Path&) override {}
  void stroke(const Path&) override {}
  void clearRect(Rect) override {}
  void drawImage(const Image&, Rect) override {}
  void drawText(const AttributedText&, Point) override {}
  void drawGlyph(const AttributedText&, std::size_t, Point) override {}
  void beginGroup(double) override {}
  void endGroup() override {}
};

}  // namespace

void Poster::drawRect(Canvas& canvas, Rect rect) {
  const Palette& palette = Palette::of(_theme);
  canvas.setFillColor(palette.paper);
  canvas.fillRect(rect);
  Sheet sheet(canvas, rect.size(), palette, UIControls::isUserInterfaceRightToLeft());
  compose(sheet);
}

std::vector<AccessibilityElement> Poster::accessibilityElements() {
  BlindCanvas canvas;
  Sheet sheet(canvas, bounds().size(), Palette::of(_theme), UIControls::isUserInterfaceRightToLeft());
  compose(sheet);
  std::vector<AccessibilityElement> elements;
  for (const Label& label : sheet.labels()) elements.push_back({.frame = label.room, .label = label.text});
  return elements;
}

}  // namespace velmora
