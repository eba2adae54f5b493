#pragma once

#include <cmath>

namespace moonpictures {

inline constexpr double degree = 3.14159265358979323846 / 180;
inline constexpr double moonRadius = 1737.4;  // kilometres (IAU)

/// A place or a direction seen from the Moon's centre: x to the Moon's east limb (right in the pictures), y
/// to its north pole (up), z to the Earth. Lengths are Moon radii.
struct Vector {
  double x, y, z;
};

inline Vector operator+(const Vector& a, const Vector& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vector operator-(const Vector& a, const Vector& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vector operator*(double factor, const Vector& a) { return {factor * a.x, factor * a.y, factor * a.z}; }

inline double dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

inline Vector cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline Vector unit(const Vector& a) { return (1 / std::sqrt(dot(a, a))) * a; }

/// A place on the Moon in selenographic degrees, north and east positive.
struct Place {
  double latitude, longitude;
};

inline Vector directionOf(const Place& place) {
  const double latitude = place.latitude * degree;
  const double longitude = place.longitude * degree;
  return {std::cos(latitude) * std::sin(longitude), std::sin(latitude),
          std::cos(latitude) * std::cos(longitude)};
}

inline Place placeOf(const Vector& direction) {
  return {std::asin(std::fmax(-1, std::fmin(1, direction.y))) / degree,
          std::atan2(direction.x, direction.z) / degree};
}

/// Horizontal unit vectors of a place that is not a pole.
inline Vector eastOf(const Vector& direction) { return unit(cross({0, 1, 0}, direction)); }
inline Vector northOf(const Vector& direction) { return cross(direction, eastOf(direction)); }

/// Distance along the ground in kilometres.
inline double distanceBetween(const Vector& a, const Vector& b) {
  const Vector chord = a - b;
  return 2 * moonRadius * std::asin(std::fmin(1, std::sqrt(dot(chord, chord)) / 2));
}

/// 0 up to `from`, 1 from `to` on, and a smooth rise between.
inline double smoothStep(double from, double to, double value) {
  const double t = std::fmin(1, std::fmax(0, (value - from) / (to - from)));
  return t * t * (3 - 2 * t);
}

inline double mix(double a, double b, double share) { return a + (b - a) * share; }

}  // namespace moonpictures
