#pragma once

#include <vector>

#include <velmora/almanac/EclipseSky.h>
#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Level.h>
#include <velmora/almanac/Observer.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The eclipsed body in the sky of a place. Times are seconds after the middle of the eclipse's sky, which
/// must outlive this.
class LocalSky {
 public:
  LocalSky(const EclipseSky& sky, Body body, const Place& place);

  /// What moves as seen from the centre of the Earth, as it does from the place.
  Motion seen(const Motion& geocentric, double seconds) const;

  EclipseMoment moment(double seconds) const;
  /// When the upper limb passes the horizon, in time order.
  std::vector<double> horizonPassages(double from, double to) const;

 private:
  Local direction(double seconds) const;
  double height(double seconds) const { return _horizon.heightOf(direction(seconds)); }

  struct Sample {
    double seconds, height;
  };
  void addPassages(const Sample& from, const Sample& to, std::vector<double>& passages) const;
  double passage(Sample from, Sample to) const;

  const EclipseSky& _sky;
  Body _body;
  Observer _observer;
  double _longitude;  // radians
  Level _horizon;
};

}  // namespace almanac
}  // namespace velmora
