#include <velmora/almanac/Refraction.h>

#include <velmora/almanac/Positions.h>

namespace velmora::almanac {

double refraction(double trueAltitude) { return refractionOf(trueAltitude); }

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
