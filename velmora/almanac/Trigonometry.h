#pragma once

#include <velmora/ephemeris/Sines.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

// What a mathematics library has, of sums and products alone: the same bits on every machine, and in a page a
// part of its size. Angles are radians.

using ephemeris::Complex;

/// The cosine and the sine.
Complex<double> directionAt(double angle);
double sine(double angle);
double cosine(double angle);

/// −π/2 to π/2, and 0 to π; of numbers from −1 to 1.
double arcsine(double sine);
double arccosine(double cosine);

/// From the x axis to the point (x, y), −π to π.
double arctangent(double y, double x);

/// The same direction within half a turn, −π to π.
double withinHalfTurn(double angle);

}  // namespace almanac
}  // namespace velmora
