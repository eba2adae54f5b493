#include "tests/ephemeris/reference/TermByTerm.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace velmora::ephemeris::reference {
namespace {

double polynomial(const Polynomial& coefficients, double t) {
  double sum = 0;
  for (std::size_t i = coefficients.size(); i-- > 0;) sum = sum * t + coefficients[i];
  return sum;
}

/// The angles of a part's nodes, radians.
std::vector<double> anglesOfNodes(std::span<const Product> products, double centuries) {
  std::vector<double> angles;
  for (const Polynomial& turns : anglePolynomials) {
    angles.push_back(2 * std::numbers::pi * std::remainder(polynomial(turns, centuries), 1.0));
  }
  angles.push_back(0);
  for (const Product& product : products) {
    const double first = angles[product.first], second = angles[product.second];
    angles.push_back(first + second);
    angles.push_back(first - second);
  }
  return angles;
}

double term(double cosine, double sine, double angle) {
  return cosine * std::cos(angle) + sine * std::sin(angle);
}

/// The terms at the sum and at the difference of the outer and the inner part.
template <class Real>
double pair(const MixedPair<Real>& p, double outer, double inner) {
  return term((p.reRe - p.imIm) / 2.0, (p.imRe + p.reIm) / 2.0, outer + inner) +
         term((p.reRe + p.imIm) / 2.0, (p.imRe - p.reIm) / 2.0, outer - inner);
}

template <class Real>
MixedPair<Real> mixedOf(const PurePair<Real>& p, bool isOfCosines) {
  if (isOfCosines) return {p.re, 0, 0, p.im, p.inner};
  return {0, p.im, p.re, 0, p.inner};
}

template <class Real>
void add(const Part<Real>& part, double centuries, std::array<double, mostCoordinates>& coordinates) {
  const std::vector<double> angles = anglesOfNodes(part.products, centuries);
  for (const Sum<Real>& sum : part.sums) {
    const double factor = sum.isTimesT ? centuries : 1;
    auto mixed = sum.mixed.begin();
    auto pure = sum.pure.begin();
    for (const Group& group : sum.groups) {
      const double outer = angles[group.outer];
      for (int i = 0; i < group.mixedCount; ++i, ++mixed) {
        coordinates[sum.coordinate] += factor * pair(*mixed, outer, angles[mixed->inner]);
      }
      for (int i = 0; i < group.pureCount; ++i, ++pure) {
        coordinates[sum.coordinate] +=
            factor * pair(mixedOf(*pure, sum.isOfCosines), outer, angles[pure->inner]);
      }
    }
  }
}

}  // namespace

std::array<double, mostCoordinates> coordinates(const Series& series, double centuries) {
  std::array<double, mostCoordinates> result;
  for (std::size_t i = 0; i < mostCoordinates; ++i) result[i] = polynomial(series.polynomials[i], centuries);
  add(series.large, centuries, result);
  add(series.small, centuries, result);
  return result;
}

}  // namespace velmora::ephemeris::reference
