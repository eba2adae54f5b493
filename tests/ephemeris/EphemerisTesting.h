#pragma once

#include <cmath>
#include <random>
#include <vector>

#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::ephemeris {

inline constexpr auto bodies = {Body::sun, Body::moon};
constexpr double arcsecondsOfRadian = 206264.80624709636;

/// The angle between two directions in seconds of arc, exact where it is small.
inline double separation(const Vector& a, const Vector& b) {
  const auto length = [](const Vector& v) { return std::hypot(v.x, v.y, v.z); };
  const double la = length(a), lb = length(b);
  return length({a.x / la - b.x / lb, a.y / la - b.y / lb, a.z / la - b.z / lb}) * arcsecondsOfRadian;
}

/// The point at that right ascension (radians), declination and distance.
inline Vector pointAt(double rightAscension, double declination, double distance) {
  const double inEquator = distance * std::cos(declination);
  return {inEquator * std::cos(rightAscension), inEquator * std::sin(rightAscension),
          distance * std::sin(declination)};
}

inline Vector pointAt(const Apparent& place) {
  return pointAt(place.rightAscension, place.declination, place.distance);
}

/// Instants anywhere in the years covered, the same in each run.
inline std::vector<Instant> anyInstants(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  const double first = unixSeconds(firstInstant()), length = unixSeconds(endInstant()) - first;
  std::vector<Instant> instants;
  for (std::size_t i = 0; i < count; ++i) {
    instants.push_back(
        instantFromUnixSeconds(first + length * (static_cast<double>(random()) / 4294967296.0)));
  }
  return instants;
}

}  // namespace velmora::ephemeris
