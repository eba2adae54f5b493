#pragma once

#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Path.h>
#include <velmora/platform/ui/Layer.h>

namespace velmora {

/// A layer that fills a path and then strokes it, in its own coordinates. A clear colour leaves its step out.
class ShapeLayer : public Layer {
 public:
  /// The shape, in the layer's own coordinates.
  const Path& path() const { return _path; }
  void setPath(Path path) { _path = std::move(path); }

  /// Of the area.
  Color fillColor() const { return _fillColor; }
  void setFillColor(const Color& color) { _fillColor = color; }

  /// Of the line.
  Color strokeColor() const { return _strokeColor; }
  void setStrokeColor(const Color& color) { _strokeColor = color; }

  /// Of the line, in points.
  double lineWidth() const { return _lineWidth; }
  void setLineWidth(double width) { _lineWidth = width; }

 private:
  void draw(Canvas& canvas) const override;

  Path _path;
  Color _fillColor = Color::black();
  Color _strokeColor = Color::clear();
  double _lineWidth = 1;
};

}  // namespace velmora
