#pragma once

#include <cmath>
#include <cstddef>

namespace [[gnu::visibility("hidden")]] velmora {

// Four calculations at once; not for other folders.

/// Four numbers, computed side by side as two vectors of the processor, in the form that g++ and clang share:
/// mostly one for each of four consecutive hours. A double stands for the same number four times.
class FourNumbers {
 public:
  static constexpr std::size_t count = 4;

  FourNumbers() = default;
  FourNumbers(double number) : _first{number, number}, _second{number, number} {}

  static FourNumbers of(double a, double b, double c, double d) { return {Pair{a, b}, Pair{c, d}}; }

  /// `first`, first + 1 and so on.
  static FourNumbers from(double first) { return {Pair{first, first + 1}, Pair{first + 2, first + 3}}; }

  double operator[](std::size_t index) const { return index < 2 ? _first[index] : _second[index - 2]; }
  void set(std::size_t index, double number) {
    Pair& pair = index < 2 ? _first : _second;
    pair[index % 2] = number;
  }

  friend FourNumbers operator+(const FourNumbers& a, const FourNumbers& b) {
    return {a._first + b._first, a._second + b._second};
  }
  friend FourNumbers operator-(const FourNumbers& a, const FourNumbers& b) {
    return {a._first - b._first, a._second - b._second};
  }
  friend FourNumbers operator*(const FourNumbers& a, const FourNumbers& b) {
    return {a._first * b._first, a._second * b._second};
  }
  friend FourNumbers operator/(const FourNumbers& a, const FourNumbers& b) {
    return {a._first / b._first, a._second / b._second};
  }

  /// `yes` in the places in which a < b, `no` in the others.
  friend FourNumbers selectLess(const FourNumbers& a, const FourNumbers& b, const FourNumbers& yes,
                                const FourNumbers& no) {
    return {a._first < b._first ? yes._first : no._first, a._second < b._second ? yes._second : no._second};
  }

  friend FourNumbers sqrt(const FourNumbers& x) { return {squareRoots(x._first), squareRoots(x._second)}; }

 private:
  using Pair [[gnu::vector_size(2 * sizeof(double))]] = double;

  FourNumbers(Pair first, Pair second) : _first(first), _second(second) {}
  static Pair squareRoots(Pair x) { return Pair{std::sqrt(x[0]), std::sqrt(x[1])}; }

  Pair _first{}, _second{};
};

constexpr double selectLess(double a, double b, double yes, double no) { return a < b ? yes : no; }

}  // namespace velmora
