#include <velmora/almanac/Refraction.h>

#include <algorithm>
#include <cmath>

#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Positions.h>

namespace velmora::almanac {

double refraction(double trueAltitude) {
  if (trueAltitude <= lowestRefracted) return 0;
  // In the zenith the formula as printed is −0.0014′.
  const double minutes = 1.02 / std::tan((trueAltitude + 10.3 / (trueAltitude + 5.11)) * degree);
  return std::max(minutes, 0.0) / 60;
}

}  // namespace velmora::almanac

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

double apparentAltitude(double trueAltitude) { return trueAltitude + refraction(trueAltitude); }

double trueAltitude(double apparent) {
  if (apparent <= lowestRefracted) return apparent;
  double low = lowestRefracted, high = apparent;  // the apparent altitude grows with the true one
  while (true) {
    const double middle = low + (high - low) / 2;
    if (middle <= low || middle >= high) return high;
    (apparentAltitude(middle) < apparent ? low : high) = middle;
  }
}

}  // namespace almanac
}  // namespace velmora
