#include "Albedo.h"

#include "Craters.h"
#include "Noise.h"

namespace moonpictures {
namespace {

constexpr std::uint64_t patchSeed = 61, grainSeed = 67, raySeed = 71, wanderSeed = 79;
constexpr double highlandAlbedo = 0.58, mareAlbedo = 0.135, rayAlbedo = 0.98;

double groundAlbedo(const Vector& place, double mareCover) {
  const double patches = fractalNoise(7 * place, 4, 0.6, patchSeed);
  const double grain = fractalNoise(45 * place, 4, 0.75, grainSeed);
  const double ground = mix(highlandAlbedo, mareAlbedo, mareCover);
  return ground * (1 + mix(0.34, 0.75, mareCover) * patches + 0.34 * grain);
}

void brighten(float& albedo, double share) { albedo = static_cast<float>(mix(albedo, rayAlbedo, share)); }

/// Fresh walls are bright, floors have a tone of their own, and a bright crater stands in a fading glow of
/// ejecta.
void paint(const Crater& crater, SurfaceMap& albedo) {
  constexpr double wallBrightness = 0.16, glowReach = 4.5;
  albedo.visitAround(crater.centre, glowReach * crater.diameter / 2, [&](const Vector& place, float& value) {
    const double distance = distanceInRadii(crater, place);
    const double inside = 1 - smoothStep(0.85, 1.05, distance);
    const double wall = std::exp(-std::pow((distance - 0.9) / 0.15, 2));
    if (crater.tone < 0) value = static_cast<float>(mix(value, 0.85 * mareAlbedo, -crater.tone * inside));
    if (crater.tone > 0) brighten(value, crater.tone * std::pow(1 - smoothStep(0.2, glowReach, distance), 2));
    brighten(value, wallBrightness * crater.freshness * wall);
  });
}

/// How bright a ray is, 0 … 1, at a place `along` degrees out and `across` kilometres beside its middle line.
double rayBrightness(const Ray& ray, const Vector& place, double along, double across) {
  constexpr double wandering = 1.3;  // half-widths
  const double fade = std::pow(1 - along / ray.reach, 0.8);
  const double width = ray.halfWidth * (0.7 + 1.1 * along / ray.reach);
  const double bent = across + wandering * ray.halfWidth * fractalNoise(16 * place, 3, 0.6, wanderSeed);
  const double patchy = std::fmin(1, std::fmax(0, 0.8 + 1.0 * fractalNoise(18 * place, 4, 0.7, raySeed)));
  return ray.strength * fade * patchy * std::exp(-std::pow(bent / width, 2));
}

void paint(const Ray& ray, SurfaceMap& albedo) {
  const Vector outward = std::cos(ray.azimuth * degree) * northOf(ray.origin) +
                         std::sin(ray.azimuth * degree) * eastOf(ray.origin);
  const Vector side = cross(ray.origin, outward);
  albedo.visitAround(ray.origin, ray.reach * degree * moonRadius, [&](const Vector& place, float& value) {
    const double across = moonRadius * std::asin(dot(place, side));
    if (std::abs(across) > 5 * ray.halfWidth) return;
    const double along = std::atan2(dot(place, outward), dot(place, ray.origin)) / degree;
    if (along > 0 && along < ray.reach) brighten(value, rayBrightness(ray, place, along, across));
  });
}

}  // namespace

SurfaceMap albedoOf(const Catalogue& catalogue, const SurfaceMap& mareCover) {
  SurfaceMap albedo;
  albedo.visitAll([&](const Vector& place, float& value) {
    value = static_cast<float>(groundAlbedo(place, mareCover.valueAt(placeOf(place))));
  });
  for (const Ray& ray : catalogue.rays) paint(ray, albedo);
  for (const Crater& crater : catalogue.craters) paint(crater, albedo);
  return albedo;
}

}  // namespace moonpictures
