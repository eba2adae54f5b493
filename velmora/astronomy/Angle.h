#pragma once

#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {

// Angles of the engine's series; not for other folders.

/// An angle held as its cosine and sine: sums of angles follow by the addition theorems, so that a series
/// needs no sine of its own for each term. `Number` is a double or the numbers of several hours.
template <class Number>
struct Angle {
  Number cosine, sine;
};

template <class Number>
constexpr Angle<Number> operator+(const Angle<Number>& a, const Angle<Number>& b) {
  return {a.cosine * b.cosine - a.sine * b.sine, a.sine * b.cosine + a.cosine * b.sine};
}

template <class Number>
constexpr Angle<Number> operator-(const Angle<Number>& a, const Angle<Number>& b) {
  return {a.cosine * b.cosine + a.sine * b.sine, a.sine * b.cosine - a.cosine * b.sine};
}

template <class Number>
constexpr const Number& cos(const Angle<Number>& angle) {
  return angle.cosine;
}

template <class Number>
constexpr const Number& sin(const Angle<Number>& angle) {
  return angle.sine;
}

inline Angle<double> angleOfRadians(double radians) { return {std::cos(radians), std::sin(radians)}; }

/// As above by Taylor's series: up to 0.17 radians (the largest perturbation of the Moon is 0.163) both are
/// right to 1e-16.
template <class Number>
constexpr Angle<Number> smallAngle(const Number& radians) {
  const Number x = radians, xx = x * x;
  return {
      1 + xx * (-1.0 / 2 + xx * (1.0 / 24 + xx * (-1.0 / 720 + xx * (1.0 / 40320 + xx * (-1.0 / 3628800))))),
      x * (1 + xx * (-1.0 / 6 + xx * (1.0 / 120 + xx * (-1.0 / 5040 + xx * (1.0 / 362880)))))};
}

/// As above of 0 to 2π radians, right to 1e-14: its distance from half a turn is that of a 32nd of it,
/// doubled five times.
template <class Number>
constexpr Angle<Number> angleWithinTurn(const Number& radians) {
  constexpr int doublings = 5;
  Angle<Number> angle = smallAngle<Number>((radians - 3.141592653589793) * (1.0 / (1 << doublings)));
  for (int i = 0; i < doublings; ++i) angle = angle + angle;
  return {0 - angle.cosine, 0 - angle.sine};
}

}  // namespace velmora
