#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include <velmora/ephemeris/Ephemeris.h>

#include <velmora/ephemeris/SeriesTables.h>
#include <velmora/ephemeris/Sines.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

// Where a body stands, for one instant or for eight side by side with the same bits; not for other folders.

/// The cosines and sines of the angles at a time, in both precisions.
template <class Number>
struct Angles {
  using Small = decltype(inFloat(Number{}));
  std::array<Complex<Number>, angleCount> large;
  std::array<Complex<Small>, angleCount> small;
};

/// The angles at `centuries` of Terrestrial Time from J2000.
template <class Number>
Angles<Number> anglesAt(const Number& centuries) {
  Angles<Number> result;
  for (std::size_t i = 0; i < angleCount; ++i) {
    result.large[i] = cosineAndSine(polynomial(anglePolynomials[i], centuries));
    result.small[i] = {inFloat(result.large[i].re), inFloat(result.large[i].im)};
  }
  return result;
}

template <class Real, class Number>
Number total(std::span<const Term<Real>> terms, const Complex<Number>* nodes) {
  const auto value = [&](const Term<Real>& term) {
    return nodes[term.node].re * term.cosine + nodes[term.node].im * term.sine;
  };
  Number a{}, b{}, c{}, d{};  // four sums, so that none waits for another
  for (const Term<Real>* term = terms.data(); term != terms.data() + terms.size(); term += termsTogether) {
    a = a + value(term[0]);
    b = b + value(term[1]);
    c = c + value(term[2]);
    d = d + value(term[3]);
  }
  return (a + b) + (c + d);
}

/// What each part of a series comes to, its cosines and sines made from those of the angles.
template <class Real, class Number>
std::array<Number, 2 * mostCoordinates> totals(const Sums<Real>& sums,
                                               const std::array<Complex<Number>, angleCount>& angles) {
  std::array<Complex<Number>, mostNodes> nodes;
  Complex<Number>* next = std::copy(angles.begin(), angles.end(), nodes.data());
  for (const Product& product : sums.products) {
    const Complex<Number> a = nodes[product.first], b = nodes[product.second];
    const Number rr = a.re * b.re, ii = a.im * b.im, ir = a.im * b.re, ri = a.re * b.im;
    *next++ = {rr - ii, ir + ri};
    *next++ = {rr + ii, ir - ri};
  }
  std::array<Number, 2 * mostCoordinates> results;
  for (std::size_t i = 0; i < results.size(); ++i) results[i] = total(sums.terms[i], nodes.data());
  return results;
}

/// The coordinates in the units of the table.
template <class Number>
std::array<Number, mostCoordinates> coordinates(const Series& series, const Number& centuries,
                                                const Angles<Number>& angles) {
  const auto large = totals(series.large, angles.large);
  const auto small = totals(series.small, angles.small);
  std::array<Number, mostCoordinates> results;
  for (std::size_t i = 0; i < mostCoordinates; ++i) {
    const auto growing = large[2 * i + 1] + inDouble(small[2 * i + 1]);
    results[i] = polynomial(series.polynomials[i], centuries) + large[2 * i] + inDouble(small[2 * i]) +
                 growing * centuries;
  }
  return results;
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
  const auto nutation = coordinates(nutationSeries, centuries, angles);
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
  const auto place = coordinates(body == Body::sun ? sunSeries : moonSeries, centuries, angles);
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
