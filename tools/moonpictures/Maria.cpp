#include "Maria.h"

#include "Noise.h"

namespace moonpictures {
namespace {

constexpr std::uint64_t shoreSeed = 11;
constexpr double shoreGrain = 12;         // waves of the shore line a Moon radius
constexpr double shoreUnevenness = 0.80;  // of the plains' thickness, which is 0.5 at an ellipse's edge
constexpr double widestSlope = 75;        // kilometres from an ellipse's edge to full thickness

/// Kilometres inside (above 0) or outside (below 0) of the ellipse, good near its edge.
double depthInside(const Mare& mare, const Vector& place) {
  const Vector offset = moonRadius * (place - mare.centre);
  const double east = dot(offset, eastOf(mare.centre));
  const double north = dot(offset, northOf(mare.centre));
  const double cosine = std::cos(mare.rotation * degree);
  const double sine = std::sin(mare.rotation * degree);
  const double across = (east * cosine + north * sine) / mare.halfWidth;
  const double along = (north * cosine - east * sine) / mare.halfHeight;
  return (1 - std::hypot(across, along)) * std::min(mare.halfWidth, mare.halfHeight);
}

/// 0 outside of the ellipse, 0.5 on its edge, 1 well inside.
double thicknessOf(const Mare& mare, const Vector& place) {
  const double slope = std::min(widestSlope, 0.8 * std::min(mare.halfWidth, mare.halfHeight));
  return smoothStep(-slope, slope, depthInside(mare, place));
}

}  // namespace

SurfaceMap mareCover(const std::vector<Mare>& maria) {
  constexpr float usualDarkness = 0.75F;
  SurfaceMap bare(1), darkness(usualDarkness);
  for (const Mare& mare : maria) {
    const double reach = std::max(mare.halfWidth, mare.halfHeight) + widestSlope;
    bare.visitAround(mare.centre, reach, [&](const Vector& place, float& share) {
      share *= static_cast<float>(1 - thicknessOf(mare, place));
    });
    darkness.visitAround(mare.centre, reach, [&](const Vector& place, float& value) {
      value = static_cast<float>(mix(value, mare.darkness, thicknessOf(mare, place)));
    });
  }
  SurfaceMap cover;
  cover.visitAll([&](const Vector& direction, float& value) {
    const Place place = placeOf(direction);
    const double covered = 1 - bare.valueAt(place);
    if (covered <= 0) return;
    const double uneven = shoreUnevenness * fractalNoise(shoreGrain * direction, 5, 0.55, shoreSeed);
    value = static_cast<float>(darkness.valueAt(place) * smoothStep(0.36, 0.66, covered + uneven));
  });
  return cover;
}

}  // namespace moonpictures
