#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Path.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What a page is to do on its own canvas, as it reads it: each operation's number, then its numbers in the
/// order given here. Colours are red, green and blue of 0 to 255 in one number, then alpha.
enum class Operation {
  save,         ///< keeps the state of the page's canvas
  restore,      ///< puts it back
  transform,    ///< a, b, c, d, tx, ty
  fillColor,    ///< colour
  strokeColor,  ///< colour
  lineWidth,    ///< points
  lineDash,     ///< phase, count, lengths
  alpha,        ///< 0 to 1
  blendMode,    ///< 0 normal, 1 overlay
  fill,         ///< count, steps of the outline
  stroke,       ///< the same
  clip,         ///< the same
  clear,        ///< the same: makes it transparent whatever the state
  fillRect,     ///< x, y, width, height
  clearRect,    ///< the same
  image,        ///< serial, whether it is mirrored, x, y, width, height
  text,         ///< number of the line, x, y of its top left
  glyph,        ///< the same, then which glyph
  beginGroup,   ///< whether on a layer, alpha; what may show in pixels: x, y, width, height
  endGroup,     ///< lays the layer down
};

/// A step of an outline: its number, then the coordinates of its points.
enum class OutlineStep { move, line, curve, close };

/// Operations one after the other.
class OperationList {
 public:
  const std::vector<double>& numbers() const { return _numbers; }
  std::size_t size() const { return _numbers.size(); }

  void add(Operation operation, std::initializer_list<double> numbers = {});
  void add(Operation operation, const Path& path);
  void add(Operation operation, const Color& color);
  void append(const std::vector<double>& numbers);

  /// Takes back all numbers behind the first ones.
  void cut(std::size_t size) { _numbers.resize(size); }

  /// Overwrites a number that was added before.
  void set(std::size_t at, double number) { _numbers[at] = number; }

 private:
  void append(Point point) {
    _numbers.push_back(point.x);
    _numbers.push_back(point.y);
  }

  std::vector<double> _numbers;
};

}  // namespace velmora
