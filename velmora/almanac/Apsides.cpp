#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>

#include <velmora/almanac/CoveredPart.h>
#include <velmora/almanac/Phases.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::almanac {
namespace {

using ephemeris::Apparent;
using ephemeris::Body;

/// Between two apsides lie ten days and more. The grid is the same for every question, so that the answer is.
/// It begins a day after the first instant covered; the first apsis comes two days later, the last three
/// before the end.
constexpr Seconds gridStep(2 * 86400.0);
constexpr Seconds gridBegin(86400.0);
/// Of the samples from which an apsis is refined.
constexpr Seconds sampleStep(0.2 * 86400);

/// The Moon's distances at instants in even steps.
template <std::size_t count>
std::array<double, count> distances(Instant first, Seconds step) {
  std::array<Instant, count> instants;
  for (std::size_t i = 0; i < count; ++i) instants[i] = first + step * static_cast<double>(i);
  std::array<Apparent, count> moon;
  ephemeris::apparent(Body::moon, instants, moon);
  std::array<double, count> result;
  for (std::size_t i = 0; i < count; ++i) result[i] = moon[i].distance;
  return result;
}

/// Newton's method on the derivative, which like the second one comes from five samples.
Apsis refined(Instant at) {
  Apsis apsis;
  for (int step = 0; step < 3; ++step) {
    const auto d = distances<5>(at - 2 * sampleStep, sampleStep);
    const double slope = (d[0] - 8 * d[1] + 8 * d[3] - d[4]) / 12;
    const double curvature = (-d[0] + 16 * d[1] - 30 * d[2] + 16 * d[3] - d[4]) / 12;
    const double steps = -slope / curvature;
    at += steps * sampleStep;
    apsis = {at, curvature > 0, d[2] + steps * slope / 2};
  }
  return apsis;
}

/// The middle of three samples is nearer or farther than both its neighbours.
bool hasApsis(std::span<const double, 3> d) { return (d[1] - d[0]) * (d[2] - d[1]) <= 0; }

/// Where the parabola through three samples has its vertex, in steps from the middle one.
double vertex(std::span<const double, 3> d) { return (d[0] - d[2]) / (2 * (d[0] - 2 * d[1] + d[2])); }

}  // namespace

std::vector<Apsis> apsides(Instant from, Instant to) {
  std::vector<Apsis> found;
  const auto part = coveredPart(from, to);
  if (!part) return found;
  const auto [begin, end] = *part;
  constexpr std::size_t batchSize = 64;
  const Instant origin = ephemeris::firstInstant() + gridBegin;
  const auto before = std::max(0.0, std::floor((begin - origin) / gridStep) - 1);
  // Each batch begins with the last two samples of the one before.
  for (Instant first = origin + before * gridStep; first < end; first += (batchSize - 2.0) * gridStep) {
    const auto d = distances<batchSize>(first, gridStep);
    for (std::size_t i = 1; i + 1 < batchSize; ++i) {
      const std::span<const double, 3> three(d.data() + i - 1, 3);
      if (!hasApsis(three)) continue;
      const Instant middle = first + static_cast<double>(i) * gridStep;
      const Apsis apsis = refined(middle + vertex(three) * gridStep);
      if (begin <= apsis.at && apsis.at < end) found.push_back(apsis);
    }
  }
  return found;
}

}  // namespace velmora::almanac
