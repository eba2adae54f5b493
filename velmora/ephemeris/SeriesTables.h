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
inline constexpr std::size_t largeAngleCount = 4;  ///< those of large terms are l, l', F and D
extern const std::array<Polynomial, angleCount> anglePolynomials;

/// The nodes are complex numbers, the cosines and sines of combinations of the angles: first those of the
/// angles, then 1, then two for each product of earlier ones: the first times the second and the first times
/// the second's conjugate.
struct Product {
  std::uint16_t first, second;
};
inline constexpr std::size_t mostNodes = 320;

/// Arguments are sums or differences of an outer and an inner part. The terms of both are a pair: with the
/// nodes a of the outer and b of the inner part
///     re a (reRe re b + reIm im b) + im a (imRe re b + imIm im b).
template <class Real>
struct MixedPair {
  Real reRe, reIm, imRe, imIm;
  std::uint16_t inner;
};

/// A pair of cosines alone, re a (re b re) + im a (im b im), or of sines alone, im a (re b re) + re a (im b
/// im).
template <class Real>
struct PurePair {
  Real re, im;
  std::uint16_t inner;
};

/// So many pairs have the same outer part.
struct Group {
  std::uint16_t outer;
  std::uint8_t mixedCount, pureCount;
};

/// The terms of a coordinate, or those that are multiplied by T.
template <class Real>
struct Sum {
  std::uint8_t coordinate;
  bool isTimesT;
  bool isOfCosines;  ///< what its pure pairs are of
  std::span<const Group> groups;
  std::span<const MixedPair<Real>> mixed;
  std::span<const PurePair<Real>> pure;
};

/// The part of a series that is computed in the precision of `Real`.
template <class Real>
struct Part {
  std::span<const Product> products;
  std::span<const Sum<Real>> sums;
};

inline constexpr std::size_t mostCoordinates = 3;

/// Each coordinate is a polynomial, large terms and small ones.
struct Series {
  Part<double> large;
  Part<float> small;
  std::array<Polynomial, mostCoordinates> polynomials;
};

/// Longitude and latitude in units of 0.001″ from the mean equinox and ecliptic of date, apparent, and
/// distance at the instant in units of 0.01 km.
extern const Series moonSeries;
/// The same, the distance in kilometres.
extern const Series sunSeries;
/// Nutation in longitude and in obliquity in units of 0.0001″.
extern const Series nutationSeries;

}  // namespace ephemeris
}  // namespace velmora
