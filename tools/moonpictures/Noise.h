#pragma once

#include <cstdint>

#include "Geometry.h"

namespace moonpictures {

/// Random numbers that are the same on every machine (SplitMix64, G. Steele and others 2014).
class Random {
 public:
  explicit Random(std::uint64_t seed) : _state(seed) {}

  std::uint64_t next();

  /// Evenly spread over `from` (included) to `to` (excluded).
  double between(double from, double to);

 private:
  std::uint64_t _state;
};

/// Smooth noise around 0, seldom beyond −1 … 1, that changes over lengths of about 1; the seed picks the
/// pattern.
double noise(const Vector& point, std::uint64_t seed);

/// Sum of `octaves` noises, each twice as fine and `persistence` times as high as the one before, scaled to
/// the span of one.
double fractalNoise(const Vector& point, int octaves, double persistence, std::uint64_t seed);

}  // namespace moonpictures
