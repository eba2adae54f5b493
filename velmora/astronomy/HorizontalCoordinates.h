#pragma once

#include <array>

#include <velmora/astronomy/SunAndMoonSeries.h>

namespace [[gnu::visibility("hidden")]] velmora {

// Positions in numbers alone, as the files of the engine share them; not for other folders.

// To the last figure, where no formula prints fewer.
inline constexpr double degreesPerRadian = 57.29577951308232;
inline constexpr double radiansPerDegree = 0.017453292519943295;

/// A place in the sky, in degrees: altitude −90..90, azimuth from north over east 0..360, where it has no
/// meaning as low as −90.
struct HorizontalCoordinates {
  double altitude, azimuth;
};

/// The Sun. `d`: days from 2000 January 1, 12h. Longitude in radians.
HorizontalCoordinates sunCoordinates(double d, double longitude, const Angle<double>& latitude);

/// The same at four hours.
std::array<HorizontalCoordinates, FourNumbers::count> sunCoordinates(const FourNumbers& d, double longitude,
                                                                     const Angle<double>& latitude);

/// The Moon. `mjd`: Modified Julian Date. Longitude in degrees. No guard where the azimuth is undefined, at
/// the poles and the zenith: it may be NaN there.
HorizontalCoordinates moonCoordinates(double mjd, double longitude, const Angle<double>& latitude);

/// The same of the Moon in a direction that is known already.
HorizontalCoordinates moonCoordinates(const Direction<double>& moon, double mjd, double longitude,
                                      const Angle<double>& latitude);

/// Days from 2000 January 1, 12h for `sunCoordinates`, valid from 1901 to 2099.
double daysFromJ2000(std::int64_t year, std::int64_t month, std::int64_t day, double hour);

/// The hour that the Sun's record carries: a universal hour and the zone value given with it, 24 more where
/// that falls below zero.
double sunZoneHour(double hour, std::int64_t zone);

/// The record of a position with its texts.
PositionData positionAt(const HorizontalCoordinates& place, double hour);

}  // namespace velmora
