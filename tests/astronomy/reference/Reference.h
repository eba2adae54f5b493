#pragma once

#include <cstdint>
#include <string>

#include <velmora/astronomy/PositionData.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/astronomy/RiseSetData.h>

/// The engine written as its formulas are printed: every term with its own sine, every sample from its own
/// arguments, every text by the standard library. Where a body rises and sets is found by halving intervals,
/// not by the engine's quadratic equations. Slow; the engine is compared with it.
namespace velmora::reference {

double frac(double x);
double siderealDegrees(double mjd);  ///< Greenwich's mean, [0, 360)

EquatorialCoordinates minisun(double centuries);
EquatorialCoordinates minimoon(double centuries);
double sinAlt(double object, double mjd0, double hour, double longitude, double cosLatitude,
              double sinLatitude);

/// Altitude and azimuth in degrees. Longitude and latitude in radians; `d`: days from 2000 January 1, 12h.
struct Horizontal {
  double altitude = 0.0, azimuth = 0.0;
};
Horizontal sunPosition(double d, double longitude, double latitude);
/// `longitude` in degrees.
Horizontal moonPosition(double mjd, double longitude, double cosLatitude, double sinLatitude);

/// Rise, set and twilight of the day whose date is `mjd0`, texts in the 24-hour form.
RiseSetData compute(double mjd0, double offsetHours, double longitude, double latitude, int twilight);

std::string degreesText(double degrees);

}  // namespace velmora::reference
