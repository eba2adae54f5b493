#pragma once

#include <vector>

#include <velmora/almanac/EclipseSky.h>
#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Level.h>
#include <velmora/almanac/Observer.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The sky around an eclipse from a place, and the eclipsed body in it. Times are those of the eclipse's sky,
/// which must outlive this.
class LocalSky {
 public:
  LocalSky(const EclipseSky& sky, Body body, const Place& place);

  /// A body from the place, in the frame that turns with the Earth.
  Motion seen(Body body, double seconds) const { return _sky.motion(body, seconds) - _place; }

  EclipseMoment moment(double seconds) const;
  /// When the eclipsed body rises or sets, in time order.
  std::vector<double> horizonPassages(double from, double to) const;

 private:
  const EclipseSky& _sky;
  Body _body;
  Observer _observer;
  Motion _place;  // which is at rest
  Level _horizon;
};

}  // namespace almanac
}  // namespace velmora
