// Chapter 49, Phases of the Moon.

#include <array>
#include <cmath>

#include "Lunation.h"
#include "LunationArguments.h"

namespace velmora::meeus {
namespace {

/// amplitude (days) · E^|sun| · sin(sun · M + moon · M' + latitude · F). The book leaves E out of a few of
/// the smallest terms, which changes no instant by more than some hundredths of a second.
struct Term {
  double amplitude;
  int sun, moon, latitude;
};

constexpr std::array newMoonTerms{
    Term{-0.40720, 0, 1, 0}, Term{0.17241, 1, 0, 0},  Term{0.01608, 0, 2, 0}, Term{0.01039, 0, 0, 2},
    Term{0.00739, -1, 1, 0}, Term{-0.00514, 1, 1, 0}, Term{0.00208, 2, 0, 0},
};
constexpr std::array fullMoonTerms{
    Term{-0.40614, 0, 1, 0}, Term{0.17302, 1, 0, 0},  Term{0.01614, 0, 2, 0}, Term{0.01043, 0, 0, 2},
    Term{0.00734, -1, 1, 0}, Term{-0.00515, 1, 1, 0}, Term{0.00209, 2, 0, 0},
};
constexpr std::array newAndFullMoonTerms{
    Term{-0.00111, 0, 1, -2}, Term{-0.00057, 0, 1, 2}, Term{0.00056, 1, 2, 0},    Term{-0.00042, 0, 3, 0},
    Term{0.00042, 1, 0, 2},   Term{0.00038, 1, 0, -2}, Term{-0.00024, -1, 2, 0},  Term{-0.00007, 2, 1, 0},
    Term{0.00004, 0, 2, -2},  Term{0.00004, 3, 0, 0},  Term{0.00003, 1, 1, -2},   Term{0.00003, 0, 2, 2},
    Term{-0.00003, 1, 1, 2},  Term{0.00003, -1, 1, 2}, Term{-0.00002, -1, 1, -2}, Term{-0.00002, 1, 3, 0},
    Term{0.00002, 0, 4, 0},
};
constexpr std::array quarterTerms{
    Term{-0.62801, 0, 1, 0}, Term{0.17172, 1, 0, 0},  Term{-0.01183, 1, 1, 0},  Term{0.00862, 0, 2, 0},
    Term{0.00804, 0, 0, 2},  Term{0.00454, -1, 1, 0}, Term{0.00204, 2, 0, 0},   Term{-0.00180, 0, 1, -2},
    Term{-0.00070, 0, 1, 2}, Term{-0.00040, 0, 3, 0}, Term{-0.00034, -1, 2, 0}, Term{0.00032, 1, 0, 2},
    Term{0.00032, 1, 0, -2}, Term{-0.00028, 2, 1, 0}, Term{0.00027, 1, 2, 0},   Term{-0.00005, -1, 1, -2},
    Term{0.00004, 0, 2, 2},  Term{-0.00004, 1, 1, 2}, Term{0.00004, -2, 1, 0},  Term{0.00003, 1, 1, -2},
    Term{0.00003, 3, 0, 0},  Term{0.00002, 0, 2, -2}, Term{0.00002, -1, 1, 2},  Term{-0.00002, 1, 3, 0},
};
constexpr double nodeAmplitude = -0.00017;

/// amplitude (days) · sin(start + rate · k [+ quadratic · T²]), in degrees.
struct PlanetaryTerm {
  double amplitude, start, rate, quadratic = 0;
};

constexpr std::array planetaryTerms{
    PlanetaryTerm{0.000325, 299.77, 0.107408, -0.009173},
    PlanetaryTerm{0.000165, 251.88, 0.016321},
    PlanetaryTerm{0.000164, 251.83, 26.651886},
    PlanetaryTerm{0.000126, 349.42, 36.412478},
    PlanetaryTerm{0.000110, 84.66, 18.206239},
    PlanetaryTerm{0.000062, 141.74, 53.303771},
    PlanetaryTerm{0.000060, 207.14, 2.453732},
    PlanetaryTerm{0.000056, 154.84, 7.306860},
    PlanetaryTerm{0.000047, 34.52, 27.261239},
    PlanetaryTerm{0.000042, 207.19, 0.121824},
    PlanetaryTerm{0.000040, 291.34, 1.844379},
    PlanetaryTerm{0.000037, 161.72, 24.198154},
    PlanetaryTerm{0.000035, 239.56, 25.513099},
    PlanetaryTerm{0.000023, 331.55, 3.592518},
};

template <typename Terms>
double sumOf(const Terms& terms, const LunationArguments& a) {
  double sum = 0;
  for (const Term& term : terms) {
    const double angle = term.sun * a.sun + term.moon * a.moon + term.latitude * a.latitude;
    sum += term.amplitude * std::pow(a.E, std::abs(term.sun)) * std::sin(angle);
  }
  return sum;
}

double planetarySum(double k, double T) {
  double sum = 0;
  for (const PlanetaryTerm& term : planetaryTerms) {
    sum += term.amplitude * std::sin(radians(term.start + term.rate * k + term.quadratic * T * T));
  }
  return sum;
}

/// W: what first quarters come later and last quarters come earlier.
double quarterShift(const LunationArguments& a) {
  return 0.00306 - 0.00038 * a.E * std::cos(a.sun) + 0.00026 * std::cos(a.moon) -
         0.00002 * std::cos(a.moon - a.sun) + 0.00002 * std::cos(a.moon + a.sun) +
         0.00002 * std::cos(2 * a.latitude);
}

}  // namespace

double phaseInstant(double k) {
  const LunationArguments a(k);
  const double fraction = k - std::floor(k);
  const double base = a.meanPhase + nodeAmplitude * std::sin(a.node) + planetarySum(k, a.T);
  if (fraction == 0.0) return base + sumOf(newMoonTerms, a) + sumOf(newAndFullMoonTerms, a);
  if (fraction == 0.5) return base + sumOf(fullMoonTerms, a) + sumOf(newAndFullMoonTerms, a);
  return base + sumOf(quarterTerms, a) + (fraction < 0.5 ? quarterShift(a) : -quarterShift(a));
}

}  // namespace velmora::meeus
