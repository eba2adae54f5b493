#pragma once

#include <span>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

/// One term: T^power (cosine cos k + sine sin k), k the whole-number combination of the arguments.
struct Term {
  int power;
  signed char multiples[9];
  double cosine, sine;
};

struct Series {
  std::span<const double> powers;
  std::span<const Term> terms;
};

extern const Series moonLongitude, moonLatitude, moonDistance, sunLongitude, sunLatitude, sunDistance;

}  // namespace ephemeris
}  // namespace velmora
