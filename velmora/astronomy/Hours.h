#pragma once

#include <cmath>
#include <cstddef>

namespace [[gnu::visibility("hidden")]] velmora {

// Four hours at once; not for other folders.

/// A number for each of four consecutive hours, computed side by side as two vectors of the processor, in
/// the form that g++ and clang share. A double stands for the same number in every hour. Four numbers of one
/// moment may stand side by side as well.
class Hours {
 public:
  static constexpr std::size_t count = 4;

  Hours() = default;
  Hours(double number) : _early{number, number}, _late{number, number} {}

  static Hours of(double a, double b, double c, double d) { return {Pair{a, b}, Pair{c, d}}; }

  /// `first`, first + 1 and so on.
  static Hours from(double first) { return {Pair{first, first + 1}, Pair{first + 2, first + 3}}; }

  double operator[](std::size_t hour) const { return hour < 2 ? _early[hour] : _late[hour - 2]; }
  void set(std::size_t hour, double number) {
    Pair& pair = hour < 2 ? _early : _late;
    pair[hour % 2] = number;
  }

  friend Hours operator+(const Hours& a, const Hours& b) { return {a._early + b._early, a._late + b._late}; }
  friend Hours operator-(const Hours& a, const Hours& b) { return {a._early - b._early, a._late - b._late}; }
  friend Hours operator*(const Hours& a, const Hours& b) { return {a._early * b._early, a._late * b._late}; }
  friend Hours operator/(const Hours& a, const Hours& b) { return {a._early / b._early, a._late / b._late}; }

  /// `yes` in the hours in which a < b, `no` in the others.
  friend Hours selectLess(const Hours& a, const Hours& b, const Hours& yes, const Hours& no) {
    return {a._early < b._early ? yes._early : no._early, a._late < b._late ? yes._late : no._late};
  }

  friend Hours sqrt(const Hours& x) { return {squareRoots(x._early), squareRoots(x._late)}; }

 private:
  using Pair [[gnu::vector_size(2 * sizeof(double))]] = double;

  Hours(Pair early, Pair late) : _early(early), _late(late) {}
  static Pair squareRoots(Pair x) { return Pair{std::sqrt(x[0]), std::sqrt(x[1])}; }

  Pair _early{}, _late{};
};

constexpr double selectLess(double a, double b, double yes, double no) { return a < b ? yes : no; }

}  // namespace velmora
