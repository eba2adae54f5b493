#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <type_traits>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

// Numbers of eight instants side by side, in vectors of the processor; for the ephemeris and the almanac.

inline constexpr std::size_t laneCount = 8;

/// As many numbers as fill a vector, worked on like one. A scalar stands for the same number everywhere.
template <class Real, std::size_t bytes>
struct Pack {
  static constexpr std::size_t count = bytes / sizeof(Real);
  using Scalar = Real;
  using Vector [[gnu::vector_size(bytes)]] = Real;
  Vector numbers;

  friend Pack operator+(const Pack& a, const Pack& b) { return {a.numbers + b.numbers}; }
  friend Pack operator-(const Pack& a, const Pack& b) { return {a.numbers - b.numbers}; }
  friend Pack operator*(const Pack& a, const Pack& b) { return {a.numbers * b.numbers}; }
  friend Pack operator/(const Pack& a, const Pack& b) { return {a.numbers / b.numbers}; }
  friend Pack operator+(const Pack& a, Real b) { return {a.numbers + b}; }
  friend Pack operator-(const Pack& a, Real b) { return {a.numbers - b}; }
  friend Pack operator*(const Pack& a, Real b) { return {a.numbers * b}; }
  friend Pack operator+(Real a, const Pack& b) { return {a + b.numbers}; }
  friend Pack operator-(Real a, const Pack& b) { return {a - b.numbers}; }
  friend Pack operator*(Real a, const Pack& b) { return {a * b.numbers}; }
};

/// Twice as many numbers as a half has.
template <class Half>
struct Twice {
  static constexpr std::size_t count = 2 * Half::count;
  using Scalar = typename Half::Scalar;
  Half low, high;

  friend Twice operator+(const Twice& a, const Twice& b) { return {a.low + b.low, a.high + b.high}; }
  friend Twice operator-(const Twice& a, const Twice& b) { return {a.low - b.low, a.high - b.high}; }
  friend Twice operator*(const Twice& a, const Twice& b) { return {a.low * b.low, a.high * b.high}; }
  friend Twice operator/(const Twice& a, const Twice& b) { return {a.low / b.low, a.high / b.high}; }
  friend Twice operator+(const Twice& a, Scalar b) { return {a.low + b, a.high + b}; }
  friend Twice operator-(const Twice& a, Scalar b) { return {a.low - b, a.high - b}; }
  friend Twice operator*(const Twice& a, Scalar b) { return {a.low * b, a.high * b}; }
  friend Twice operator+(Scalar a, const Twice& b) { return {a + b.low, a + b.high}; }
  friend Twice operator-(Scalar a, const Twice& b) { return {a - b.low, a - b.high}; }
  friend Twice operator*(Scalar a, const Twice& b) { return {a * b.low, a * b.high}; }
};

/// `yes` where a < b, `no` elsewhere.
inline double selectLess(double a, double b, double yes, double no) { return a < b ? yes : no; }
template <class Real, std::size_t bytes>
Pack<Real, bytes> selectLess(const Pack<Real, bytes>& a, const Pack<Real, bytes>& b,
                             const Pack<Real, bytes>& yes, const Pack<Real, bytes>& no) {
  return {a.numbers < b.numbers ? yes.numbers : no.numbers};
}
template <class Half>
Twice<Half> selectLess(const Twice<Half>& a, const Twice<Half>& b, const Twice<Half>& yes,
                       const Twice<Half>& no) {
  return {selectLess(a.low, b.low, yes.low, no.low), selectLess(a.high, b.high, yes.high, no.high)};
}

inline double squareRoot(double x) { return std::sqrt(x); }
template <class Real, std::size_t bytes>
Pack<Real, bytes> squareRoot(const Pack<Real, bytes>& x) {
  Pack<Real, bytes> result;
  for (std::size_t i = 0; i < Pack<Real, bytes>::count; ++i) result.numbers[i] = std::sqrt(x.numbers[i]);
  return result;
}
template <class Half>
Twice<Half> squareRoot(const Twice<Half>& x) {
  return {squareRoot(x.low), squareRoot(x.high)};
}

/// The eight, in vectors that every processor has, or in those of twice the size.
struct Narrow {
  using Doubles = Twice<Twice<Pack<double, 16>>>;
  using Floats = Twice<Pack<float, 16>>;
};
struct Wide {
  using Doubles = Twice<Pack<double, 32>>;
  using Floats = Pack<float, 32>;
};

/// The type of single precision beside one of double precision.
template <class Number>
struct InSingle;
template <>
struct InSingle<double> {
  using Type = float;
};
template <>
struct InSingle<Narrow::Doubles> {
  using Type = Narrow::Floats;
};
template <>
struct InSingle<Wide::Doubles> {
  using Type = Wide::Floats;
};
template <class Number>
using Single = typename InSingle<Number>::Type;

/// The same eight numbers: every kind of them lies in memory as they do in a row.
template <class Kind, class Numbers>
Kind laidAs(const Numbers& numbers) {
  Kind result;
  static_assert(sizeof result == sizeof numbers);
  std::memcpy(&result, &numbers, sizeof result);
  return result;
}
template <class Real>
using Row = std::array<Real, laneCount>;

/// The eight in numbers of the other precision.
template <class Converted, class Number>
Converted converted(const Number& x) {
  using Real = typename Converted::Scalar;
  const auto from = laidAs<Row<typename Number::Scalar>>(x);
  Row<Real> to;
  for (std::size_t i = 0; i < laneCount; ++i) to[i] = static_cast<Real>(from[i]);
  return laidAs<Converted>(to);
}

inline float inSingle(double x) { return static_cast<float>(x); }
template <class Number>
Single<Number> inSingle(const Number& x) {
  return converted<Single<Number>>(x);
}

template <class Number>
Number inDouble(const Number& x) {
  return x;
}
template <class Number>
Number inDouble(const Single<Number>& x) {
  if constexpr (std::is_same_v<Number, double>) {
    return x;
  } else {
    return converted<Number>(x);
  }
}

/// The eight as they are handed around.
using Doubles = Narrow::Doubles;

inline double lane(const Doubles& numbers, std::size_t index) { return laidAs<Row<double>>(numbers)[index]; }

/// Eight numbers in a row, or eight in vectors of another size.
template <class Number = Doubles, class Numbers>
Number doublesOf(const Numbers& numbers) {
  return laidAs<Number>(numbers);
}

#if defined(__x86_64__) && !defined(__clang__)  // which does not inline all of it
template <class Work>
[[gnu::target("avx2"), gnu::flatten]] void inWideLanes(const Work& work) {
  work(Wide());
}

/// Does work(Narrow()) or work(Wide()), which give the same bits.
template <class Work>
void inLanes(const Work& work) {
  static const bool isWide = __builtin_cpu_supports("avx2");
  isWide ? inWideLanes(work) : work(Narrow());
}
#else
template <class Work>
void inLanes(const Work& work) {
  work(Narrow());
}
#endif

}  // namespace ephemeris
}  // namespace velmora
