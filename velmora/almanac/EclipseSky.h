#pragma once

#include <algorithm>
#include <cmath>
#include <optional>

#include <velmora/almanac/Sky.h>
#include <velmora/almanac/Vectors.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// Two points that pass each other. Where they are nearest to each other the product is zero.
struct Approach {
  double product;       ///< of their distance and its change a second
  double squaredSpeed;  ///< of one past the other

  explicit Approach(const Motion& apart)
      : product(dot(apart.at, apart.rate)), squaredSpeed(dot(apart.rate, apart.rate)) {}
};

/// The sky in the hours around an eclipse. Times are seconds after a middle, which is about the eclipse's
/// maximum; all of the eclipse lies within `longestHalf` of it, at any place.
class EclipseSky {
 public:
  static constexpr double longestHalf = 4 * 3600;

  /// None where the hours are not covered.
  static std::optional<EclipseSky> around(Instant middle);

  Instant instant(double seconds) const { return _middle + Seconds(seconds); }

  /// Kilometres from the centre of the Earth, in the frame that turns with it.
  Motion sun(double seconds) const { return motion(ephemeris::Body::sun, seconds); }
  Motion moon(double seconds) const { return motion(ephemeris::Body::moon, seconds); }
  Motion motion(ephemeris::Body body, double seconds) const;

  /// From the centre of the Earth across to the axis of the Moon's shadow, or, where the Moon is eclipsed,
  /// from the axis of the Earth's shadow across to the Moon.
  Motion offset(ephemeris::Body eclipsed, double seconds) const;
  /// When the offset is shortest.
  double greatest(ephemeris::Body eclipsed) const;

  /// The samples of the sky, and where the time lies among them.
  const Sky& sky() const { return _sky; }
  double secondsAfterFirstSample(double seconds) const { return _middleAfterStart + seconds; }

 private:
  EclipseSky(const ephemeris::Paths& paths, Sky::Blocks blocks, Instant middle);

  Sky _sky;
  Instant _middle;
  double _middleAfterStart;
};

/// When the two are nearest to each other, within `longestHalf`: from an even motion, then by secants.
template <typename ApproachAt>
double nearestTime(const ApproachAt& approachAt) {
  double seconds = 0;
  Approach now = approachAt(seconds);
  double slope = now.squaredSpeed;
  for (int count = 0; count < 20; ++count) {
    const double next =
        std::clamp(seconds - now.product / slope, -EclipseSky::longestHalf, EclipseSky::longestHalf);
    const double step = next - seconds, before = now.product;
    seconds = next;
    if (std::abs(step) < 0.001) break;
    now = approachAt(seconds);
    slope = (now.product - before) / step;
  }
  return seconds;
}

}  // namespace almanac
}  // namespace velmora
