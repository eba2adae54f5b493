#pragma once

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// A polynomial of the fourth degree.
struct Quartic {
  double value, first, second, third, fourth;  ///< its coefficients

  /// The one that has these values at 0, 1, 2, 3 and 4: Newton's differences, multiplied out.
  static Quartic through(double f0, double f1, double f2, double f3, double f4) {
    const double d1 = f1 - f0, d2 = f2 - f1, d3 = f3 - f2, d4 = f4 - f3;
    const double second = d2 - d1, third = d3 - d2 - second, fourth = (d4 - d3) - (d3 - d2) - third;
    const double b = second / 2, c = third / 6, d = fourth / 24;
    return {f0, d1 - b + 2 * c - 6 * d, b - 3 * c + 11 * d, c - 6 * d, d};
  }

  double at(double u) const { return value + u * (first + u * (second + u * (third + u * fourth))); }
  double slope(double u) const { return first + u * (2 * second + u * (3 * third + u * 4 * fourth)); }
};

}  // namespace almanac
}  // namespace velmora
