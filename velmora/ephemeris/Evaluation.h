#pragma once

#include <array>
#include <cstddef>

#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/ephemeris/Nodes.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

// Where a body stands, for one instant or for eight side by side with the same bits; not for other folders.

/// The cosines and sines of the angles at a time: of the Moon's and the Sun's in double precision, which
/// large terms need, and of all in single precision.
template <class Number>
struct Angles {
  std::array<Complex<Number>, largeAngleCount> large;
  std::array<Complex<Single<Number>>, angleCount> small;
};

/// The angles at `centuries` of Terrestrial Time from J2000.
template <class Number>
Angles<Number> anglesAt(const Number& centuries) {
  Angles<Number> result;
  for (std::size_t i = 0; i < angleCount; ++i) {
    const Number turns = polynomial(anglePolynomials[i], centuries);
    if (i < largeAngleCount) {
      result.large[i] = cosineAndSine(turns);
      result.small[i] = {inSingle(result.large[i].re), inSingle(result.large[i].im)};
    } else {
      result.small[i] = cosineAndSineOfPart<float>(inSingle(turns - nearestWhole(turns)));
    }
  }
  return result;
}

template <class Number>
using Coordinates = std::array<Number, mostCoordinates>;

/// Adds a part of a series.
template <class Real, class Summand, std::size_t count, class Number>
void add(const Part<Real>& part, const std::array<Complex<Summand>, count>& angles, const Number& centuries,
         Coordinates<Number>& coordinates) {
  const Nodes<Summand> nodes(angles, part.products);
  for (const Sum<Real>& sum : part.sums) {
    const Number value = inDouble<Number>(nodes.total(sum));
    Number& coordinate = coordinates[sum.coordinate];
    coordinate = coordinate + (sum.isTimesT ? value * centuries : value);
  }
}

/// The coordinates in the units of the table.
template <class Number>
Coordinates<Number> coordinatesOf(const Series& series, const Number& centuries,
                                  const Angles<Number>& angles) {
  Coordinates<Number> result;
  for (std::size_t i = 0; i < mostCoordinates; ++i) result[i] = polynomial(series.polynomials[i], centuries);
  add(series.large, angles.large, centuries, result);
  add(series.small, angles.small, centuries, result);
  return result;
}

/// Nutation and the obliquity, turns.
template <class Number>
struct Tilt {
  Number longitude, obliquity, trueObliquity;
};

template <class Number>
Tilt<Number> tilt(const Number& centuries, const Angles<Number>& angles) {
  // The mean obliquity: Capitaine, Wallace and Chapront, Astronomy and Astrophysics 412 (2003) 567; IERS
  // Conventions (2010), formula 5.40.
  static constexpr std::array<double, 6> meanObliquity = {84381.406,  -46.836769,   -0.0001831,
                                                          0.00200340, -0.000000576, -0.0000000434};
  constexpr double unitsOfTurn = 10000.0 * arcsecondsOfTurn;
  const auto nutation = coordinatesOf(nutationSeries, centuries, angles);
  const Number mean = polynomial(meanObliquity, centuries) * (1 / arcsecondsOfTurn);
  const Number obliquity = nutation[1] * (1 / unitsOfTurn);
  return {nutation[0] * (1 / unitsOfTurn), obliquity, mean + obliquity};
}

/// Longitude and latitude in turns from the mean equinox of date, distance in kilometres.
template <class Number>
struct Ecliptical {
  Number longitude, latitude, distance;
};

template <class Number>
Ecliptical<Number> ecliptical(Body body, const Number& centuries, const Angles<Number>& angles) {
  constexpr double unitsOfTurn = 1000.0 * arcsecondsOfTurn;
  const auto place = coordinatesOf(body == Body::sun ? sunSeries : moonSeries, centuries, angles);
  const double kilometres = body == Body::sun ? 1.0 : 0.01;
  return {place[0] * (1 / unitsOfTurn), place[1] * (1 / unitsOfTurn), place[2] * kilometres};
}

template <class Number>
struct Rectangular {
  Number x, y, z;
};

/// The direction in the equator whose equinox lies `longitude` turns back along the ecliptic.
template <class Number>
Rectangular<Number> equatorial(const Number& longitude, const Number& latitude, const Number& obliquity) {
  const auto along = cosineAndSine(longitude), across = cosineAndSine(latitude),
             tilted = cosineAndSine(obliquity);
  const Number x = across.re * along.re, y = across.re * along.im, z = across.im;
  return {x, y * tilted.re - z * tilted.im, y * tilted.im + z * tilted.re};
}

}  // namespace ephemeris
}  // namespace velmora
