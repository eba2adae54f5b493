#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

#include <velmora/ephemeris/Places.h>
#include <velmora/ephemeris/TimeScales.h>

namespace velmora::ephemeris {
namespace {

constexpr int nodes = 8;
using Polynomial = std::array<Vector, nodes>;

/// The true equator with the x axis turned back by the equation of the equinoxes.
Vector vectorAt(Body body, double unix) {
  const Instant instant = instantFromUnixSeconds(unix);
  const MeanPlace mean = meanPlace(body, terrestrialCenturies(instant));
  const Nutation n = nutation(instant);
  const double longitude = mean.longitude + n.longitude;
  const double cosE = std::cos(n.trueObliquity), sinE = std::sin(n.trueObliquity);
  const double x = std::cos(mean.latitude) * std::cos(longitude);
  const double y = std::cos(mean.latitude) * std::sin(longitude), z = std::sin(mean.latitude);
  const double equatorX = x, equatorY = cosE * y - sinE * z, north = sinE * y + cosE * z;
  const double back = n.longitude * cosE;
  const double c = std::cos(back), s = std::sin(back), r = mean.distance;
  return {r * (c * equatorX + s * equatorY), r * (c * equatorY - s * equatorX), r * north};
}

Polynomial chebyshev(Body body, double start, double length) {
  constexpr double pi = std::numbers::pi;
  std::array<Vector, nodes> samples;
  for (int j = 0; j < nodes; ++j) {
    const double x = std::cos(pi * (j + 0.5) / nodes);
    samples[static_cast<std::size_t>(j)] = vectorAt(body, start + 0.5 * length * (1 + x));
  }
  Polynomial coefficients{};
  for (int k = 0; k < nodes; ++k) {
    Vector& c = coefficients[static_cast<std::size_t>(k)];
    for (int j = 0; j < nodes; ++j) {
      const double w = (k == 0 ? 1.0 : 2.0) / nodes * std::cos(pi * k * (j + 0.5) / nodes);
      const Vector& v = samples[static_cast<std::size_t>(j)];
      c = {c.x + w * v.x, c.y + w * v.y, c.z + w * v.z};
    }
  }
  return coefficients;
}

Vector value(const Polynomial& p, double x) {
  Vector b1{}, b2{};
  for (std::size_t k = nodes; k-- > 1;) {
    const Vector b = {2 * x * b1.x - b2.x + p[k].x, 2 * x * b1.y - b2.y + p[k].y,
                      2 * x * b1.z - b2.z + p[k].z};
    b2 = b1;
    b1 = b;
  }
  return {x * b1.x - b2.x + p[0].x, x * b1.y - b2.y + p[0].y, x * b1.z - b2.z + p[0].z};
}

}  // namespace

struct Paths::Segments {
  struct Track {
    double first = 0.0, length = 0.0;
    std::vector<Polynomial> polynomials;
  };
  Track sun, moon;
  Instant from, to;

  static Track track(Body body, double from, double to, double length) {
    Track made{std::floor(from / length) * length, length, {}};
    for (double start = made.first; start <= to; start += length) {
      made.polynomials.push_back(chebyshev(body, start, length));
    }
    return made;
  }
};

std::optional<Paths> Paths::over(Instant from, Instant to) {
  if (!covers(from) || !(covers(to) || to == endInstant()) || to < from) return std::nullopt;
  constexpr double margin = 6 * 3600.0, moonDays = 4 * secondsPerDay, sunDays = 16 * secondsPerDay;
  auto segments = std::make_shared<Segments>();
  const double start = unixSeconds(from) - margin, end = unixSeconds(to) + margin;
  segments->from = from;
  segments->to = to;
  segments->sun = Segments::track(Body::sun, start, end, sunDays);
  segments->moon = Segments::track(Body::moon, start, end, moonDays);
  Paths paths;
  paths._segments = std::move(segments);
  return paths;
}

Vector Paths::vector(Body body, Instant instant) const {
  const Segments::Track& track = body == Body::sun ? _segments->sun : _segments->moon;
  const double elapsed = unixSeconds(instant) - track.first;
  const double index =
      std::clamp(std::floor(elapsed / track.length), 0.0, static_cast<double>(track.polynomials.size()) - 1);
  // Exact, so that it does not depend on where the track begins.
  const double inSegment = elapsed - index * track.length;
  return value(track.polynomials[static_cast<std::size_t>(index)], 2 * inSegment / track.length - 1);
}

Instant Paths::from() const { return _segments->from; }
Instant Paths::to() const { return _segments->to; }

}  // namespace velmora::ephemeris
