#include <algorithm>
#include <cmath>
#include <utility>

#include <velmora/almanac/EclipseDiscs.h>
#include <velmora/almanac/EclipseSky.h>
#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/LocalSky.h>

namespace velmora::almanac {
namespace {

// Times are seconds after the middle of the sky, which is about the maximum.

/// Everything of an eclipse lies within that time of its maximum.
constexpr double longestHalf = 4 * 3600;

/// How far two centres are from a contact: the square of their separation less that of the separation at the
/// contact, and its change a second.
struct Gap {
  double value, slope;
};

Gap gap(const Separation& separation, double atContact) {
  return {separation.angle * separation.angle - atContact * atContact, 2 * separation.product};
}

/// When the gap closes between a moment at which it is less than zero and one at which it is not: by Newton's
/// method, or by halving where a step would leave the stretch.
template <typename GapAt>
double contact(const GapAt& gapAt, double inside, double outside, double guess) {
  for (double seconds = guess;;) {
    const Gap now = gapAt(seconds);
    (now.value < 0 ? inside : outside) = seconds;
    const auto [low, high] = std::minmax(inside, outside);
    double next = seconds - now.value / now.slope;
    if (!(low < next && next < high)) next = (low + high) / 2;
    if (std::abs(next - seconds) < 0.001) return next;
    seconds = next;
  }
}

/// The circumstances of an eclipse at a place while they are worked out; `DiscsAt` tells the discs of a time.
template <typename DiscsAt>
class Circumstances {
 public:
  Circumstances(const LocalSky& sky, DiscsAt discsAt, double maximum, LocalEclipse& local)
      : _sky(sky), _discsAt(discsAt), _maximum(maximum), _local(local) {
    _local.maximum = sky.moment(maximum);
  }

  /// The two times at which the separation is the one that `limit` tells of the discs; it is less at the
  /// maximum.
  template <typename Limit>
  std::pair<double, double> addContacts(ContactName before, ContactName after, const Limit& limit) {
    const auto gapAt = [&](double seconds) {
      const auto discs = _discsAt(seconds);
      return gap(discs.separation, limit(discs));
    };
    const double half =
        std::sqrt(std::max(0.0, -gapAt(_maximum).value) / _discsAt(_maximum).separation.squaredSpeed);
    const double first = contact(gapAt, _maximum, _maximum - longestHalf, _maximum - half);
    const double last = contact(gapAt, _maximum, _maximum + longestHalf, _maximum + half);
    const auto middle = _local.contacts.begin() + std::ssize(_local.contacts) / 2;
    _local.contacts.insert(middle, {{before, _sky.moment(first)}, {after, _sky.moment(last)}});
    return {first, last};
  }

  /// What is above the horizon of the time between two contacts.
  template <typename Magnitude>
  void setVisible(std::pair<double, double> span, const Magnitude& magnitudeOf) {
    const auto [first, last] = span;
    const std::vector<double> passages = _sky.horizonPassages(first, last);
    const EclipseMoment atFirst = _sky.moment(first), atLast = _sky.moment(last);
    if (passages.empty() && !atFirst.isUp) return;
    _local.isVisible = true;
    _local.visibleFrom = atFirst.isUp ? atFirst.at : _sky.moment(passages.front()).at;
    _local.visibleTo = atLast.isUp ? atLast.at : _sky.moment(passages.back()).at;
    _local.best = _local.maximum;
    _local.bestMagnitude = _local.magnitude;
    if (_local.maximum.isUp) return;
    _local.bestMagnitude = 0;
    for (const double passage : passages) {
      // Seconds from the maximum the shadow may still widen.
      const double magnitude = std::min(magnitudeOf(_discsAt(passage)), _local.magnitude);
      if (magnitude <= _local.bestMagnitude) continue;
      _local.bestMagnitude = magnitude;
      _local.best = _sky.moment(passage);
      _local.best.isUp = true;
    }
  }

 private:
  const LocalSky& _sky;
  DiscsAt _discsAt;
  double _maximum;
  LocalEclipse& _local;
};

/// When the discs are nearest to each other. The first step is one of even motion, the others are secants.
template <typename DiscsAt>
double nearestTime(const DiscsAt& discsAt) {
  double seconds = 0, step = 0;
  Separation now = discsAt(seconds).separation;
  double slope = now.squaredSpeed;
  for (int count = 0; count < 20; ++count) {
    step = std::clamp(seconds - now.product / slope, -longestHalf, longestHalf) - seconds;
    if (std::abs(step) < 0.01) break;
    const double before = now.product;
    seconds += step;
    now = discsAt(seconds).separation;
    slope = (now.product - before) / step;
  }
  return seconds;
}

std::optional<LocalEclipse> solarSeenFrom(const EclipseSky& sky, const Place& place) {
  const LocalSky localSky(sky, Body::sun, place);
  const auto discsAt = [&](double seconds) {
    return solarDiscs(localSky.seen(sky.sun(seconds), seconds), localSky.seen(sky.moon(seconds), seconds));
  };
  const double maximum = nearestTime(discsAt);
  const SolarDiscs discs = discsAt(maximum);
  if (!discs.isEclipse()) return std::nullopt;

  LocalEclipse local;
  local.kind = !discs.isCentral() ? EclipseKind::partial
               : discs.isTotal()  ? EclipseKind::total
                                  : EclipseKind::annular;
  local.magnitude = discs.magnitude();
  local.obscuration = discs.obscuration();
  Circumstances circumstances(localSky, discsAt, maximum, local);
  const auto span = circumstances.addContacts(ContactName::C1, ContactName::C4,
                                              [](const SolarDiscs& d) { return d.outer; });
  if (discs.isCentral()) {
    circumstances.addContacts(ContactName::C2, ContactName::C3, [](const SolarDiscs& d) { return d.inner; });
  }
  circumstances.setVisible(span, [](const SolarDiscs& d) { return d.magnitude(); });
  return local;
}

std::optional<LocalEclipse> lunarSeenFrom(const EclipseSky& sky, const Place& place) {
  const auto shadowAt = [&](double seconds) { return earthShadow(sky.sun(seconds), sky.moon(seconds)); };
  const double maximum = sky.greatest(Body::moon);
  const EarthShadow shadow = shadowAt(maximum);
  LocalEclipse local;
  local.body = Body::moon;
  local.kind = shadow.kind();
  local.magnitude = shadow.magnitude(local.kind);
  if (local.magnitude <= 0) return std::nullopt;

  const LocalSky localSky(sky, Body::moon, place);
  Circumstances circumstances(localSky, shadowAt, maximum, local);
  auto span = circumstances.addContacts(ContactName::P1, ContactName::P4,
                                        [](const EarthShadow& s) { return s.penumbra + s.moon; });
  if (local.kind != EclipseKind::penumbral) {
    span = circumstances.addContacts(ContactName::U1, ContactName::U4,
                                     [](const EarthShadow& s) { return s.umbra + s.moon; });
  }
  if (local.kind == EclipseKind::total) {
    circumstances.addContacts(ContactName::U2, ContactName::U3,
                              [](const EarthShadow& s) { return s.umbra - s.moon; });
  }
  circumstances.setVisible(span, [&](const EarthShadow& s) { return s.magnitude(local.kind); });
  return local;
}

}  // namespace

std::optional<LocalEclipse> seenFrom(const Eclipse& eclipse, const Place& place) {
  if (!isValid(place)) return std::nullopt;
  const auto sky = EclipseSky::around(eclipse.maximum);
  if (!sky) return std::nullopt;
  return eclipse.body == Body::sun ? solarSeenFrom(*sky, place) : lunarSeenFrom(*sky, place);
}

}  // namespace velmora::almanac
