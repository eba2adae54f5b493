#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

// The series as tables, made by tools/ephemeris; not for other folders.

/// Coefficients of the powers of T, Julian centuries of Terrestrial Time from J2000.
using Polynomial = std::array<double, 5>;

/// The angles of which the arguments of all terms are whole-number combinations, in turns: l, l', F, D and
/// the node of the Moon, the mean longitudes of Venus, the Earth, Mars, Jupiter and Saturn.
inline constexpr std::size_t angleCount = 10;
extern const std::array<Polynomial, angleCount> anglePolynomials;

/// The cosine and the sine of every argument, a complex number, comes from those of the angles by products.
/// The places of two earlier numbers; there follow the first times the second, then the first times the
/// second's conjugate.
struct Product {
  std::uint16_t first, second;
};
inline constexpr std::size_t mostNodes = 900;

/// Coefficients, in units of the table, and the place of the argument's number.
template <class Real>
struct Term {
  Real cosine, sine;
  std::uint16_t node;
};

/// Terms are taken four at a time; so many make up each sum.
inline constexpr std::size_t termsTogether = 4;

inline constexpr std::size_t mostCoordinates = 3;

/// The part of a series that is computed in the precision of `Real`: the sum of the terms of each coordinate,
/// followed by the sum of those that are multiplied by T.
template <class Real>
struct Sums {
  std::span<const Product> products;
  std::array<std::span<const Term<Real>>, 2 * mostCoordinates> terms;
};

/// Each coordinate is a polynomial, large terms and small ones.
struct Series {
  Sums<double> large;
  Sums<float> small;
  std::array<Polynomial, mostCoordinates> polynomials;
};

/// Longitude and latitude in units of 0.001″ from the mean equinox and ecliptic of date, distance in units of
/// 0.01 km; light time and aberration are in them.
extern const Series moonSeries;
/// The same, the distance in kilometres.
extern const Series sunSeries;
/// Nutation in longitude and in obliquity in units of 0.0001″.
extern const Series nutationSeries;

}  // namespace ephemeris
}  // namespace velmora
