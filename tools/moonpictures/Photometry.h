#pragma once

#include <cstdint>

#include "Geometry.h"

namespace moonpictures {

/// Light by colour, linear: 1 is a white surface at full Moon.
struct Light {
  double red = 0, green = 0, blue = 0;
};

inline Light operator+(const Light& a, const Light& b) {
  return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}
inline Light operator*(double factor, const Light& a) {
  return {factor * a.red, factor * a.green, factor * a.blue};
}

/// What one spot of the ground sends to the Earth, which lies in the direction z.
struct Spot {
  Vector normal;
  double albedo;
};

/// The two lamps over the Moon: the Sun, and the Earth that shines on the night side.
struct Illumination {
  Vector sun;                ///< direction
  double sunStrength = 0;    ///< 1 at full Moon
  double earthStrength = 0;  ///< beside a sunStrength of 1
};

/// The lamps at an angle of the Moon from the Sun in degrees. A picture of a crescent is exposed longer than
/// the eye would, so that it does not drown; the Earth, full at new moon, dims as the Moon waxes.
Illumination illuminationAt(double elongation);

/// Both lamps' light from a spot of which `sunlit` (0 … 1) lies outside of shadows. Lommel-Seeliger law,
/// which leaves the full Moon without darkening to its limb: brightness is mu0 / (mu0 + mu), with mu0 and mu
/// the cosines of the angles from the ground's normal to the lamp and to the Earth.
Light lightFrom(const Spot& spot, const Illumination& lamps, double sunlit);

/// An sRGB value (IEC 61966-2-1) for linear light; highlights are compressed softly.
std::uint8_t encoded(double light);

}  // namespace moonpictures
