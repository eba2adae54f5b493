#include <velmora/almanac/EclipseSky.h>

#include <algorithm>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

using ephemeris::Body;
using ephemeris::Paths;

EclipseSky::EclipseSky(const Paths& paths, Sky::Blocks blocks, Instant middle)
    : _sky(paths, blocks), _middle(middle), _middleAfterStart((middle - _sky.timeOf(0)).count()) {}

std::optional<EclipseSky> EclipseSky::around(Instant middle) {
  if (!ephemeris::covers(middle)) return std::nullopt;
  const Sky::Blocks blocks = Sky::blocksOf(middle - Seconds(longestHalf), middle + Seconds(longestHalf));
  const auto paths =
      Paths::over(Sky::startOfBlock(blocks.first), Sky::startOfBlock(blocks.first + blocks.count));
  if (!paths) return std::nullopt;
  return EclipseSky(*paths, blocks, middle);
}

Motion EclipseSky::motion(Body body, double seconds) const {
  const double afterStart = secondsAfterFirstSample(seconds);
  const double last = static_cast<double>(_sky.sampleCount() - 2);
  const double sample = std::clamp(std::floor(afterStart / Sky::sampleSeconds), 0.0, last);
  return _sky.motion(body, static_cast<std::size_t>(sample), afterStart - sample * Sky::sampleSeconds);
}

Motion EclipseSky::offset(Body eclipsed, double seconds) const {
  const Motion moonMotion = moon(seconds), sunMotion = sun(seconds);
  const Motion axis = direction(eclipsed == Body::moon ? sunMotion : sunMotion - moonMotion);
  const double along = dot(moonMotion.at, axis.at);
  const double alongRate = dot(moonMotion.rate, axis.at) + dot(moonMotion.at, axis.rate);
  return {moonMotion.at - along * axis.at, moonMotion.rate - along * axis.rate - alongRate * axis.at};
}

double EclipseSky::greatest(Body eclipsed) const {
  return nearestTime([&](double seconds) { return Approach(offset(eclipsed, seconds)); });
}

}  // namespace almanac
}  // namespace velmora
