#pragma once

#include <cmath>

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Trigonometry.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The part of a turn, [0, 1).
inline double partOfTurn(double turns) {
  const double part = turns - std::floor(turns);
  return part < 1 ? part : 0;  // a tiny negative angle rounds up to the turn
}

inline double dot(const Local& a, const Local& b) {
  return a.east * b.east + a.north * b.north + a.up * b.up;
}

inline Local cross(const Local& a, const Local& b) {
  return {a.north * b.up - a.up * b.north, a.up * b.east - a.east * b.up,
          a.east * b.north - a.north * b.east};
}

/// The angle at a body from one direction by the sky's east, seen with the first one up, to another: radians
/// counterclockwise.
inline double angleBetween(const Local& body, const Local& from, const Local& to) {
  const Local aside = cross(from, body), up = cross(body, aside);
  return arctangent(dot(to, aside) * body.distance(), dot(to, up));
}

}  // namespace almanac
}  // namespace velmora
