#include <velmora/almanac/Course.h>

#include <algorithm>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

constexpr double shortestPass = 0.25;  // seconds
constexpr double tolerance = 2e-4;     // seconds, of a passage

/// Bound of the second derivative of a component of a body's direction, a day squared: that of a point that
/// the Earth's rotation turns by 2π a day, and the body's own motion, which alone is left at a pole.
double curvatureBound(double cosine) {
  constexpr double turning = 1.02 * 4 * 9.8696044, ownMotion = 0.05, day = 86400;
  return (turning * cosine + ownMotion) / (day * day);
}

bool isAbove(double height) { return height >= 0; }

}  // namespace

struct Course::Point {
  double seconds, height;
};

struct Course::Moment {
  Local local, rate;
  double height, slope, bend;
};

/// Where a passage is looked for.
struct Course::Question {
  const Level& level;
  std::size_t line, sample;
  double curvature;
};

Course::Course(const Sky& sky, ephemeris::Body body, const Observer& observer)
    : _sky(sky), _body(body), _observer(observer), _curvature(curvatureBound(observer.cosLatitude)) {
  for (std::size_t i = sky.firstSample(); i <= sky.lastSample(); ++i) {
    const Local local = observer.seen(sky.at(body, i));
    _inverse[i] = 1 / local.distance();
    _up[i] = local.up * _inverse[i];
    _east[i] = local.east * _inverse[i];
  }
}

void Course::addPassages(const Level& level, std::size_t line, std::size_t firstSample,
                         std::size_t lastSample, std::vector<Passage>& passages) const& {
  const double curvature = level.isMeridian() ? curvatureBound(1) : _curvature;
  const double reach = curvature * Sky::sampleSeconds * Sky::sampleSeconds / 8;  // from both ends of a step
  Values heights;  // all of them first: several at a time
  for (std::size_t sample = firstSample; sample <= lastSample; ++sample) {
    heights[sample] = level.heightOf(sampled(sample));
  }
  for (std::size_t sample = firstSample; sample < lastSample; ++sample) {
    const double before = heights[sample], after = heights[sample + 1];
    if ((before > reach && after > reach) || (before < -reach && after < -reach)) continue;
    scan({level, line, sample, curvature}, {0, before}, {Sky::sampleSeconds, after}, passages);
  }
}

/// Looks at [a, b] as a whole, or at its halves where the bound does not tell how often the level is passed.
void Course::scan(const Question& question, Point a, Point b, std::vector<Passage>& passages) const {
  const double width = b.seconds - a.seconds, change = b.height - a.height;
  const double bend = 0.5 * question.curvature * width * width;
  const bool isOneWay = std::abs(change) >= bend || width <= shortestPass;
  if (isAbove(a.height) != isAbove(b.height)) {
    if (isOneWay) {
      if (question.level.isMeridian() && change < 0) return;
      passages.push_back({.course = this,
                          .level = &question.level,
                          .line = question.line,
                          .sample = question.sample,
                          .earliest = a.seconds,
                          .latest = b.seconds,
                          .isRising = change > 0,
                          .seconds = a.seconds - width * (a.height / change)});
      return;
    }
  } else {
    const double nearer = std::min(std::abs(a.height), std::abs(b.height)), rest = bend - std::abs(change);
    if (isOneWay || nearer * 4 * bend > rest * rest) return;
  }
  const double middle = a.seconds + width / 2;
  const Point m{middle, at(question.level, question.sample, middle).height};
  scan(question, a, m, passages);
  scan(question, m, b, passages);
}

Course::Moment Course::at(const Level& level, std::size_t sample, double seconds) const {
  const Motion motion = _sky.motion(_body, sample, seconds);
  const Local local = _observer.seen(motion.at), rate = _observer.along(motion.rate);
  const double inverse = 1 / local.distance();
  const double nearing = -inverse * inverse *  // how fast the inverse grows, as a part of it
                         (local.east * rate.east + local.north * rate.north + local.up * rate.up);
  const Direction direction{local.up * inverse, local.east * inverse, inverse};
  const Direction change{(rate.up + local.up * nearing) * inverse,
                         (rate.east + local.east * nearing) * inverse, inverse * nearing};
  // Of the second derivative what the rotation of the Earth makes.
  const double fromAxis = _observer.cosLatitude * (_observer.outward(local) + _observer.equatorial);
  const double bend = -turnPerSecond * turnPerSecond * inverse * level.mixed(fromAxis, local.east);
  return {local, rate, level.heightOf(direction), level.slopeOf(direction, change), bend};
}

void Course::approach(Passage& passage) const {
  const Moment here = at(*passage.level, passage.sample, passage.seconds);
  (isAbove(here.height) == passage.isRising ? passage.latest : passage.earliest) = passage.seconds;
  const double newton = -here.height / here.slope, flatness = newton * newton / here.slope;
  const double step = newton - 0.5 * here.bend * flatness;  // Chebyshev's: with the bend of the curve
  const double next = passage.seconds + step;
  const double width = passage.latest - passage.earliest;
  const bool isInside = next >= passage.earliest && next <= passage.latest;
  // The bend is known to a quarter of its bound.
  if (isInside && 0.125 * _curvature * std::abs(flatness) <= tolerance) {
    passage.isFound = true;
    passage.seconds = next;
    passage.local = {here.local.east + step * here.rate.east, here.local.north + step * here.rate.north,
                     here.local.up + step * here.rate.up};
  } else if (width <= tolerance) {
    passage.isFound = true;
    passage.local = here.local;
  } else {
    passage.seconds = isInside ? next : passage.earliest + width / 2;
  }
}

void find(std::span<Passage> passages) {
  constexpr int usualSteps = 2;
  for (int step = 0; step < usualSteps; ++step) {
    for (Passage& passage : passages) {
      if (!passage.isFound) passage.course->approach(passage);
    }
  }
  for (Passage& passage : passages) {
    while (!passage.isFound) passage.course->approach(passage);
  }
}

}  // namespace almanac
}  // namespace velmora
