#include "Photometry.h"

#include <algorithm>

namespace moonpictures {
namespace {

constexpr Light sunTint{1.0, 0.972, 0.925};
constexpr Light earthTint{0.66, 0.84, 1.15};

/// Reflected share of white ground, 1 at full Moon.
double lommelSeeliger(double mu0, double mu) {
  constexpr double grazing = 0.03;  // keeps slopes that turn away from the Earth within bounds
  return mu0 <= 0 ? 0 : 2 * mu0 / (mu0 + std::max(mu, grazing));
}

}  // namespace

Illumination illuminationAt(double elongation) {
  constexpr double crescentStrength = 0.7, newMoonEarthStrength = 0.035;
  const double angle = elongation * degree;
  const double lit = (1 - std::cos(angle)) / 2;
  return {{std::sin(angle), 0, -std::cos(angle)},
          mix(crescentStrength, 1, std::max(0.0, 2 * lit - 1)),
          newMoonEarthStrength * (1 - lit)};
}

Light lightFrom(const Spot& spot, const Illumination& lamps, double sunlit) {
  const double mu = spot.normal.z;
  const double sun = lamps.sunStrength * sunlit * lommelSeeliger(dot(spot.normal, lamps.sun), mu);
  const double earth = lamps.earthStrength * lommelSeeliger(mu, mu);
  return spot.albedo * (sun * sunTint + earth * earthTint);
}

std::uint8_t encoded(double light) {
  constexpr double whitePoint = 1.2;  // the light that becomes full white (extended Reinhard curve)
  const double toned = std::min(1.0, light * (1 + light / (whitePoint * whitePoint)) / (1 + light));
  const double value = toned <= 0.0031308 ? 12.92 * toned : 1.055 * std::pow(toned, 1 / 2.4) - 0.055;
  return static_cast<std::uint8_t>(std::lround(255 * value));
}

}  // namespace moonpictures
