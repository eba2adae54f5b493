#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

#include <velmora/ephemeris/TimeScales.h>

namespace velmora::ephemeris {

// What `Paths` holds: for the ephemeris and the almanac, whose search for events asks thirty times a day. The
// types are as visible as `Paths`, what is done with them is not.

/// With so many nodes the paths lie within 0.005″ of the series.
inline constexpr std::size_t nodesOfSegment = 8;

/// The path of a body over `segmentSeconds`, a polynomial in x from −1 at its beginning to 1 at its end.
struct Segment {
  std::array<Vector, nodesOfSegment> coefficients;  ///< of the powers of x
};

/// Half a year over which Terrestrial Time and sidereal time run evenly: leap seconds and the entries of the
/// tables lie at its ends. What that leaves out of sidereal time is less than 0.0001″.
struct Stretch {
  Instant since{};
  double terrestrial = 0.0, terrestrialRate = 0.0;  ///< seconds from J2000 at `since`, seconds a second
  double sidereal = 0.0, siderealRate = 0.0;        ///< Greenwich mean at `since` in turns, turns a second
};

struct PathData {
  [[gnu::visibility("hidden")]] ~PathData() = default;

  Instant from{}, to{};
  double firstMoonSegment = 0.0, firstSunSegment = 0.0;  ///< their numbers
  std::vector<Segment> moonSegments, sunSegments;
  std::vector<Stretch> stretches;
};

}  // namespace velmora::ephemeris

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {

/// The almanac asks for whole blocks of time, which are numbered from 1970: those that an interval touches.
struct Blocks {
  std::int64_t first, count;
};
inline constexpr double blockSeconds = secondsPerDay / 2;
inline Instant startOfBlock(std::int64_t block) {
  return instantFromUnixSeconds(blockSeconds * static_cast<double>(block));
}
Blocks blocksOf(Instant start, Instant end);

constexpr double segmentSeconds(Body body) { return (body == Body::moon ? 4 : 16) * secondsPerDay; }

/// A time in lengths of a segment from J2000; its whole part is the number of the segment that holds the
/// time.
constexpr double segmentsAt(Body body, double terrestrial) {
  return terrestrial * (1 / segmentSeconds(body));
}

inline Vector operator+(const Vector& a, const Vector& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vector operator*(const Vector& a, double b) { return {a.x * b, a.y * b, a.z * b}; }

/// The value of the segment's polynomial, in an order that keeps the processor from waiting.
inline Vector valueAt(const Segment& segment, double x) {
  const auto& c = segment.coefficients;
  const double xx = x * x;
  const Vector low = (c[0] + c[1] * x) + (c[2] + c[3] * x) * xx;
  const Vector high = (c[4] + c[5] * x) + (c[6] + c[7] * x) * xx;
  return low + high * (xx * xx);
}

/// The stretch in which the instant lies.
inline const Stretch& stretchAt(const PathData& data, Instant instant) {
  const auto isBefore = [](Instant at, const Stretch& stretch) { return at < stretch.since; };
  return *std::prev(std::upper_bound(data.stretches.begin() + 1, data.stretches.end(), instant, isBefore));
}

/// Seconds of Terrestrial Time from J2000 to an instant of the stretch.
inline double terrestrialAt(const Stretch& stretch, Instant instant) {
  return stretch.terrestrial + stretch.terrestrialRate * (instant - stretch.since).count();
}

/// Greenwich mean sidereal time at an instant of the stretch, turns, counted from a day near J2000 on.
inline double siderealAt(const Stretch& stretch, Instant instant) {
  return stretch.sidereal + stretch.siderealRate * (instant - stretch.since).count();
}

/// As `Paths::vector`, at a time in seconds of Terrestrial Time from J2000.
inline Vector vectorAt(const PathData& data, Body body, double terrestrial) {
  const bool isMoon = body == Body::moon;
  const double segments = segmentsAt(body, terrestrial);
  const double number = std::floor(segments);
  const auto index =
      static_cast<std::size_t>(number - (isMoon ? data.firstMoonSegment : data.firstSunSegment));
  return valueAt((isMoon ? data.moonSegments : data.sunSegments)[index], 2 * (segments - number) - 1);
}

}  // namespace ephemeris
}  // namespace velmora
