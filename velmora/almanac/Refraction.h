#pragma once

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// At this true altitude and below, degrees, nothing is refracted.
inline constexpr double lowestRefracted = -1.0;

/// The apparent altitude of a true one, degrees.
double apparentAltitude(double trueAltitude);

/// The true altitude whose apparent one is given, degrees. Of the altitudes that refraction jumps over, where
/// it begins, it is −1°.
double trueAltitude(double apparentAltitude);

}  // namespace almanac
}  // namespace velmora
