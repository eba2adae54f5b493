#pragma once

#include <velmora/platform/time/Instant.h>

namespace velmora::app {

/// How the Sun lights the Moon at a moment, seen from the centre of the Earth.
struct Illumination {
  double fraction;  ///< the lit part of the disc's area, 0 new to 1 full
  bool isWaxing;    ///< whether the Moon is on its way from new to full
};

/// Computed from the directions of the Sun and the Moon at the instant. Meeus, "Astronomical Algorithms", 2nd
/// ed., chapter 48, with the mean distances of both bodies, which cost 0.0001 at most.
/// Accuracy of the fraction against a precise ephemeris, 2000 to 2040: 0.0002 root mean square, at most
/// 0.0007.
Illumination illuminationAt(Instant instant);

}  // namespace velmora::app
