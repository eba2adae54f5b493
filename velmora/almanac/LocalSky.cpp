#include <velmora/almanac/LocalSky.h>

#include <cmath>

#include <velmora/almanac/Course.h>
#include <velmora/almanac/Refraction.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

LocalSky::LocalSky(const EclipseSky& sky, Body body, const Place& place)
    : _sky(sky),
      _body(body),
      _observer(place),
      _place{{_observer.equatorial * _observer.cosLongitude, _observer.equatorial * _observer.sinLongitude,
              _observer.polar},
             {}},
      _horizon(horizonOf(body, place)) {}

EclipseMoment LocalSky::moment(double seconds) const {
  const Local local = _observer.seen(_sky.motion(_body, seconds).at);
  const double altitude = std::asin(local.up / local.distance()) / degree;
  return {_sky.instant(seconds), apparentAltitude(altitude), azimuthOf(local), _horizon.heightOf(local) >= 0};
}

std::vector<double> LocalSky::horizonPassages(double from, double to) const {
  const Sky& sky = _sky.sky();
  const Course course(sky, _body, _observer);
  std::vector<Passage> passages;
  course.addPassages(_horizon, 0, 0, sky.sampleCount() - 1, passages);
  find(passages);
  std::vector<double> times;
  for (const Passage& passage : passages) {
    const double seconds = (sky.timeOf(passage.sample) - _sky.instant(0)).count() + passage.seconds;
    if (from < seconds && seconds < to) times.push_back(seconds);
  }
  return times;
}

}  // namespace almanac
}  // namespace velmora
