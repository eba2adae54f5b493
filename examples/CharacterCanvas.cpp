#include "CharacterCanvas.h"

#include <algorithm>
#include <variant>

namespace {

using velmora::Path;
using velmora::Point;

constexpr int stepsOfCurve = 16;
constexpr double brightness = 0.5;  // from which a colour is bright

Point mix(Point from, Point to, double part) {
  return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

Point onCurve(Point from, const Path::Curve& curve, double part) {
  const Point middle = mix(curve.control1, curve.control2, part);
  const Point first = mix(mix(from, curve.control1, part), middle, part);
  const Point second = mix(middle, mix(curve.control2, curve.to, part), part);
  return mix(first, second, part);
}

/// Whether a ray to the right crosses the polygon's edges an odd number of times.
bool contains(const std::vector<Point>& polygon, Point point) {
  bool isInside = false;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
    if ((a.y > point.y) == (b.y > point.y)) continue;
    if (point.x < a.x + (point.y - a.y) * (b.x - a.x) / (b.y - a.y)) isInside = !isInside;
  }
  return isInside;
}

}  // namespace

void CharacterCanvas::restore() {
  if (_saved.empty()) return;
  _state = _saved.back();
  _saved.pop_back();
}

CharacterCanvas::Shape CharacterCanvas::outline(const Path& path) const {
  Shape shape;
  Point current;  // in the path's own frame
  const auto goTo = [&](Point point) {
    shape.back().push_back(_state.frame.apply(point));
    current = point;
  };
  for (const Path::Element& element : path.elements()) {
    if (const auto* move = std::get_if<Path::Move>(&element)) {
      shape.emplace_back();
      goTo(move->to);
    } else if (const auto* line = std::get_if<Path::Line>(&element)) {
      goTo(line->to);
    } else if (const auto* curve = std::get_if<Path::Curve>(&element)) {
      const Point from = current;
      for (int step = 1; step <= stepsOfCurve; ++step) {
        goTo(onCurve(from, *curve, static_cast<double>(step) / stepsOfCurve));
      }
    }
  }
  return shape;
}

char CharacterCanvas::character() const {
  const velmora::Color& color = _state.fillColor;
  if (_state.blendMode == velmora::BlendMode::clear) return ' ';
  return (color.red + color.green + color.blue) / 3 >= brightness ? '#' : '.';
}

void CharacterCanvas::paint(const Path& path, char character) {
  const Shape shape = outline(path);
  for (std::size_t row = 0; row < _rows.size(); ++row) {
    for (std::size_t column = 0; column < _rows[row].size(); ++column) {
      const Point middle = {static_cast<double>(column) + 0.5, static_cast<double>(row) + 0.5};
      const auto holdsMiddle = [&](const Shape& polygons) {
        return std::any_of(polygons.begin(), polygons.end(),
                           [&](const Polygon& polygon) { return contains(polygon, middle); });
      };
      const bool isWithinClips = std::all_of(_state.clips.begin(), _state.clips.end(), holdsMiddle);
      if (isWithinClips && holdsMiddle(shape)) _rows[row][column] = character;
    }
  }
}
