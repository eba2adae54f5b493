#pragma once

#include <cmath>

#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

using ephemeris::Vector;

inline double dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline double length(const Vector& a) { return std::sqrt(dot(a, a)); }
inline Vector operator+(const Vector& a, const Vector& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vector operator-(const Vector& a, const Vector& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vector operator*(double factor, const Vector& a) { return {factor * a.x, factor * a.y, factor * a.z}; }

/// A vector and its change a second.
struct Motion {
  Vector at, rate;
};

inline Motion operator-(const Motion& a, const Motion& b) { return {a.at - b.at, a.rate - b.rate}; }

/// The direction of a moving point, a vector of length 1.
inline Motion direction(const Motion& motion) {
  const double distance = length(motion.at);
  const Vector unit = (1 / distance) * motion.at;
  return {unit, (1 / distance) * (motion.rate - dot(unit, motion.rate) * unit)};
}

}  // namespace almanac
}  // namespace velmora
