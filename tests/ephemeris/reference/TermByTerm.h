#pragma once

#include <array>

#include <velmora/ephemeris/SeriesTables.h>

namespace velmora::ephemeris::reference {

/// The coordinates of a series in the units of its table, at centuries of Terrestrial Time from J2000: every
/// term by itself, with a sine and a cosine of the mathematics library, in double precision.
std::array<double, mostCoordinates> coordinates(const Series& series, double centuries);

}  // namespace velmora::ephemeris::reference
