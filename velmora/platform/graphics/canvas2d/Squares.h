#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// A number that stands for all numbers added so far and their order.
class Fingerprint {
 public:
  void add(double number);
  void add(std::uint64_t bits);
  void add(const double* numbers, std::size_t count);
  std::uint64_t value() const { return _value; }

 private:
  std::uint64_t _value = 0xcbf29ce484222325;  // FNV-1a
};

/// What a drawing shows in each square of its canvas, as a number: where that is the same in two drawings, so
/// are the pixels.
class Squares {
 public:
  /// The side of a square in pixels.
  static constexpr double side = 64;

  explicit Squares(Size pixels);

  /// Something that may show within the rectangle.
  void add(const Rect& pixels, std::uint64_t what);

  /// Row by row from the top left.
  std::vector<double> numbers() const;

 private:
  std::size_t _across, _down;
  std::vector<Fingerprint> _squares;
};

}  // namespace velmora
