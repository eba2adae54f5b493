#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>

/// A canvas of characters, one a point: what is filled bright shows as '#', what is filled dark as '.'.
/// Lines and texts are too fine for it and left out.
class CharacterCanvas final : public velmora::Canvas {
 public:
  CharacterCanvas(std::size_t width, std::size_t height) : _rows(height, std::string(width, ' ')) {}

  const std::vector<std::string>& rows() const { return _rows; }

  void save() override { _saved.push_back(_state); }
  void restore() override;
  void setFillColor(const velmora::Color& color) override { _state.fillColor = color; }
  void setBlendMode(velmora::BlendMode mode) override { _state.blendMode = mode; }
  void translate(double dx, double dy) override { _state.frame = _state.frame.translated(dx, dy); }
  void rotate(double angle) override { _state.frame = _state.frame.rotated(angle); }
  void scale(double sx, double sy) override { _state.frame = _state.frame.scaled(sx, sy); }
  void concat(const velmora::AffineTransform& transform) override {
    _state.frame = transform.concat(_state.frame);
  }
  void clip(const velmora::Path& path) override { _state.clips.push_back(outline(path)); }
  void fill(const velmora::Path& path) override { paint(path, character()); }
  void clearRect(velmora::Rect rect) override { paint(velmora::Path::rect(rect), ' '); }

  void setStrokeColor(const velmora::Color&) override {}
  void setLineWidth(double) override {}
  void setLineDash(const std::vector<double>&, double) override {}
  void setAlpha(double) override {}
  void stroke(const velmora::Path&) override {}
  void drawImage(const velmora::Image&, velmora::Rect) override {}
  void drawText(const velmora::AttributedText&, velmora::Point) override {}
  void drawGlyph(const velmora::AttributedText&, std::size_t, velmora::Point) override {}
  void beginGroup(double) override {}
  void endGroup() override {}

 private:
  using Polygon = std::vector<velmora::Point>;
  /// Polygons that cover an area together, in characters.
  using Shape = std::vector<Polygon>;

  struct State {
    velmora::Color fillColor = velmora::Color::black();
    velmora::BlendMode blendMode = velmora::BlendMode::normal;
    velmora::AffineTransform frame;
    std::vector<Shape> clips;
  };

  Shape outline(const velmora::Path& path) const;
  char character() const;
  void paint(const velmora::Path& path, char character);

  std::vector<std::string> _rows;
  State _state;
  std::vector<State> _saved;
};
