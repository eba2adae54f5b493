#include "Noise.h"

namespace moonpictures {
namespace {

constexpr std::uint64_t goldenGamma = 0x9E3779B97F4A7C15;

std::uint64_t mixed(std::uint64_t z) {
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
  return z ^ (z >> 31);
}

/// The top 53 bits as a number in 0 … 1.
double share(std::uint64_t bits) { return static_cast<double>(bits >> 11) * 0x1p-53; }

/// The slope of the noise at a corner of the unit lattice, each part in −2 … 2.
Vector slopeAt(const Vector& corner, std::uint64_t seed) {
  const auto key = [](double coordinate) {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(coordinate));
  };
  const std::uint64_t bits = mixed(key(corner.x) * 0x8DA6B343 + key(corner.y) * 0xD8163841 +
                                   key(corner.z) * 0xCB1AB31F + seed * goldenGamma);
  const auto part = [&](int shift) { return static_cast<double>((bits >> shift) & 0x1FFFFF) * 0x1p-19 - 2; };
  return {part(0), part(21), part(42)};
}

double eased(double t) { return t * t * t * (t * (t * 6 - 15) + 10); }

}  // namespace

std::uint64_t Random::next() { return mixed(_state += goldenGamma); }

double Random::between(double from, double to) { return mix(from, to, share(next())); }

// Gradient noise after K. Perlin, "Improving Noise" (2002).
double noise(const Vector& point, std::uint64_t seed) {
  const Vector base{std::floor(point.x), std::floor(point.y), std::floor(point.z)};
  const Vector t{eased(point.x - base.x), eased(point.y - base.y), eased(point.z - base.z)};
  const auto fromCorner = [&](double x, double y, double z) {
    const Vector corner = base + Vector{x, y, z};
    return dot(slopeAt(corner, seed), point - corner);
  };
  const auto alongX = [&](double y, double z) { return mix(fromCorner(0, y, z), fromCorner(1, y, z), t.x); };
  const auto alongY = [&](double z) { return mix(alongX(0, z), alongX(1, z), t.y); };
  return mix(alongY(0), alongY(1), t.z);
}

double fractalNoise(const Vector& point, int octaves, double persistence, std::uint64_t seed) {
  double sum = 0, highest = 0, height = 1, frequency = 1;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += height * noise(frequency * point, seed + static_cast<std::uint64_t>(octave));
    highest += height;
    height *= persistence;
    frequency *= 2;
  }
  return sum / highest;
}

}  // namespace moonpictures
