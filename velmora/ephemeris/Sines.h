#pragma once

#include <array>
#include <cstddef>
#include <numbers>

#include <velmora/ephemeris/Lanes.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

// Sines, cosines and arctangents of one number or of eight side by side. A mathematics library's differ in
// the last bit from one library or processor to the next; these do not, because they are sums and products
// alone. For the ephemeris and the almanac.

inline constexpr double radiansOfTurn = 2 * std::numbers::pi;
inline constexpr double arcsecondsOfTurn = 1296000.0;

/// A complex number: the cosine and the sine of an angle.
template <class Number>
struct Complex {
  Number re, im;

  friend Complex operator*(const Complex& a, const Complex& b) {
    return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
  }
};

/// The nearest whole number, for numbers up to 2^51.
template <class Number>
constexpr Number nearestWhole(const Number& x) {
  constexpr double unitsAreLastBits = 6755399441055744.0;  // 1.5 · 2^52
  return (x + unitsAreLastBits) - unitsAreLastBits;
}

/// The sum of the powers of x with these coefficients, the constant first.
template <class Number, class Real, std::size_t count>
constexpr Number polynomial(const std::array<Real, count>& coefficients, const Number& x) {
  Number sum = x * coefficients[count - 1] + coefficients[count - 2];
  for (std::size_t i = count - 2; i-- > 0;) sum = sum * x + coefficients[i];
  return sum;
}

/// Taylor's coefficients 1, −1 / (n (n + 1)), … of the even powers: of cos x for n = 1, of sin x / x for n
/// = 2.
template <class Real, std::size_t count>
constexpr std::array<Real, count> taylorOfEvenPowers(double n) {
  std::array<Real, count> coefficients{};
  double coefficient = 1;
  for (Real& rounded : coefficients) {
    rounded = static_cast<Real>(coefficient);
    coefficient /= -n * (n + 1);
    n += 2;
  }
  return coefficients;
}

/// As many coefficients as the precision needs up to π/4.
template <class Real>
[[gnu::visibility("hidden")]] inline constexpr auto taylorOfCosine =
    taylorOfEvenPowers<Real, sizeof(Real) + 1>(1);
template <class Real>
[[gnu::visibility("hidden")]] inline constexpr auto taylorOfSine = taylorOfEvenPowers<Real, sizeof(Real)>(2);

/// Cosine and sine of an angle from −1/2 to 1/2 turn, with an error of up to 32 halves of the last bit.
/// Taylor's series of a quarter of the angle, doubled twice.
template <class Real, class Number>
constexpr Complex<Number> cosineAndSineOfPart(const Number& turns) {
  const Number x = turns * static_cast<Real>(radiansOfTurn / 4);  // −π/4..π/4
  const Number xx = x * x;
  const Number sine = x * polynomial(taylorOfSine<Real>, xx), cosine = polynomial(taylorOfCosine<Real>, xx);
  const Number sineOfHalf = sine * cosine * Real(2), cosineOfHalf = Real(1) - sine * sine * Real(2);
  return {Real(1) - sineOfHalf * sineOfHalf * Real(2), sineOfHalf * cosineOfHalf * Real(2)};
}

/// Cosine and sine of an angle in turns.
template <class Number>
constexpr Complex<Number> cosineAndSine(const Number& turns) {
  return cosineAndSineOfPart<double>(turns - nearestWhole(turns));
}

inline constexpr double tangentOf16th = 0.198912367379658007;  ///< of π/16
inline constexpr double tangentOf8th = 0.414213562373095049;   ///< of π/8

/// 2 (−1)^n tan^(2n+1) φ / (2n + 1).
template <std::size_t count>
constexpr std::array<double, count> chebyshevOfArctangent(double tangent) {
  std::array<double, count> coefficients{};
  double power = 2 * tangent;
  for (std::size_t n = 0; n < count; ++n, power *= -tangent * tangent) {
    coefficients[n] = power / static_cast<double>(2 * n + 1);
  }
  return coefficients;
}

/// The arctangent of a number from −tan π/8 to tan π/8, by Chebyshev's series with φ = π/16:
/// arctan(t tan 2φ) = 2 Σ (−1)^n tan^(2n+1) φ T_(2n+1)(t) / (2n + 1).
template <class Number>
Number smallArctangent(const Number& tangent) {
  static constexpr auto coefficients = chebyshevOfArctangent<11>(tangentOf16th);
  const Number t = tangent * (1 / tangentOf8th);
  const Number w = t * t * 4.0 - 2.0;
  Number before{}, sum = before + coefficients.back();  // Clenshaw's
  for (std::size_t n = coefficients.size() - 1; n-- > 0;) {
    const Number next = w * sum - before + coefficients[n];
    before = sum;
    sum = next;
  }
  return t * (sum - before);
}

/// The angle from the x axis to the point (x, y), radians, −π..π, with an error of some 10^-16; 0 for the
/// origin.
template <class Number>
Number angleOf(const Number& y, const Number& x) {
  const Number zero{};
  const Number width = selectLess(x, zero, zero - x, x), height = selectLess(y, zero, zero - y, y);
  const Number less = selectLess(width, height, width, height),
               more = selectLess(width, height, height, width);
  const Number limit = more * tangentOf8th;
  const Number opposite = selectLess(limit, less, less - more, less);
  const Number adjacent = selectLess(limit, less, less + more, selectLess(zero, more, more, zero + 1.0));
  Number angle = smallArctangent(opposite / adjacent);
  angle = selectLess(limit, less, angle + std::numbers::pi / 4, angle);
  angle = selectLess(width, height, std::numbers::pi / 2 - angle, angle);
  angle = selectLess(x, zero, std::numbers::pi - angle, angle);
  return selectLess(y, zero, zero - angle, angle);
}

}  // namespace ephemeris
}  // namespace velmora
