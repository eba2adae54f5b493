#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include <velmora/almanac/Mark.h>
#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Sky.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// A body at the moment at which it passes a mark or the meridian.
struct Passage {
  double seconds;  ///< since the start of the block
  bool isRising;
  Local local;
};

/// The way of a body over a place. None of its passages is missed but such as come back within a quarter of a
/// second.
class Course {
 public:
  Course(const Sky& sky, ephemeris::Body body, const Observer& observer);

  /// Appends the passages of the mark in a block, in time order; upward and downward alternate, from one
  /// block to the next too.
  void addPassages(std::size_t block, const Mark& mark, std::vector<Passage>& passages) const;
  /// Appends the passages of the meridian towards the west.
  void addTransits(std::size_t block, std::vector<Passage>& passages) const;

  /// Whether the body is above the mark when the first block begins.
  bool startsAbove(const Mark& mark) const;

 private:
  using Values = std::array<double, Sky::maximumSamples>;
  template <class Height>
  class Search;

  const Sky& _sky;
  const ephemeris::Body _body;
  const Observer& _observer;
  /// At the samples: sine of the altitude, the east component of the direction, inverse of the distance in
  /// km.
  Values _sine, _east, _inverse;
  double
      _curvature;  ///< bound of the second derivative of the sine of the altitude, a second of time squared
};

}  // namespace almanac
}  // namespace velmora
