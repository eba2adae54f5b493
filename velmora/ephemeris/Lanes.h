#pragma once

#include <cmath>
#include <cstddef>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

// Numbers of eight instants side by side; not for other folders.

/// Twice as many numbers as a half has, a number being worked on like any other. A scalar stands for the same
/// number everywhere.
template <class Half, class Real>
struct Twice {
  Half low, high;

  friend Twice operator+(const Twice& a, const Twice& b) { return {a.low + b.low, a.high + b.high}; }
  friend Twice operator-(const Twice& a, const Twice& b) { return {a.low - b.low, a.high - b.high}; }
  friend Twice operator*(const Twice& a, const Twice& b) { return {a.low * b.low, a.high * b.high}; }
  friend Twice operator/(const Twice& a, const Twice& b) { return {a.low / b.low, a.high / b.high}; }
  friend Twice operator+(const Twice& a, Real b) { return {a.low + b, a.high + b}; }
  friend Twice operator-(const Twice& a, Real b) { return {a.low - b, a.high - b}; }
  friend Twice operator*(const Twice& a, Real b) { return {a.low * b, a.high * b}; }
  friend Twice operator+(Real a, const Twice& b) { return {a + b.low, a + b.high}; }
  friend Twice operator-(Real a, const Twice& b) { return {a - b.low, a - b.high}; }
  friend Twice operator*(Real a, const Twice& b) { return {a * b.low, a * b.high}; }
};

using TwoDoubles [[gnu::vector_size(16)]] = double;
using FourFloats [[gnu::vector_size(16)]] = float;

inline constexpr std::size_t laneCount = 8;
using Doubles = Twice<Twice<TwoDoubles, double>, double>;
using Floats = Twice<FourFloats, float>;

inline double lane(const Doubles& numbers, std::size_t index) {
  const auto& half = index < 4 ? numbers.low : numbers.high;
  return index % 4 < 2 ? half.low[index % 2] : half.high[index % 2];
}

inline Doubles doublesOf(const double* x) {
  return {{TwoDoubles{x[0], x[1]}, TwoDoubles{x[2], x[3]}}, {TwoDoubles{x[4], x[5]}, TwoDoubles{x[6], x[7]}}};
}

inline void store(const Doubles& numbers, double* out) {
  for (std::size_t i = 0; i < laneCount; ++i) out[i] = lane(numbers, i);
}

// What a sum is computed in, from what its angles are given in, and back.

inline float inFloat(double number) { return static_cast<float>(number); }
inline FourFloats inFloat(const Twice<TwoDoubles, double>& x) {
  return FourFloats{static_cast<float>(x.low[0]), static_cast<float>(x.low[1]), static_cast<float>(x.high[0]),
                    static_cast<float>(x.high[1])};
}
inline Floats inFloat(const Doubles& x) { return {inFloat(x.low), inFloat(x.high)}; }

inline double inDouble(float number) { return number; }
inline Twice<TwoDoubles, double> inDouble(const FourFloats& x) {
  return {TwoDoubles{x[0], x[1]}, TwoDoubles{x[2], x[3]}};
}
inline Doubles inDouble(const Floats& x) { return {inDouble(x.low), inDouble(x.high)}; }

// What a mathematics library has for one number.

inline TwoDoubles squareRoot(const TwoDoubles& x) { return TwoDoubles{std::sqrt(x[0]), std::sqrt(x[1])}; }
inline double squareRoot(double x) { return std::sqrt(x); }
template <class Half>
Twice<Half, double> squareRoot(const Twice<Half, double>& x) {
  return {squareRoot(x.low), squareRoot(x.high)};
}

/// `yes` where a < b, `no` elsewhere.
inline double selectLess(double a, double b, double yes, double no) { return a < b ? yes : no; }
inline TwoDoubles selectLess(const TwoDoubles& a, const TwoDoubles& b, const TwoDoubles& yes,
                             const TwoDoubles& no) {
  return a < b ? yes : no;
}
template <class Half>
Twice<Half, double> selectLess(const Twice<Half, double>& a, const Twice<Half, double>& b,
                               const Twice<Half, double>& yes, const Twice<Half, double>& no) {
  return {selectLess(a.low, b.low, yes.low, no.low), selectLess(a.high, b.high, yes.high, no.high)};
}

}  // namespace ephemeris
}  // namespace velmora
