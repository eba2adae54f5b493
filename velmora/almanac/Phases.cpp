#include <velmora/almanac/Phases.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>

#include <velmora/almanac/CoveredPart.h>
#include <velmora/almanac/Lunation.h>
#include <velmora/almanac/Trigonometry.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::almanac {
namespace {

using ephemeris::Apparent;
using ephemeris::Body;

/// As many phases as are refined side by side.
constexpr std::size_t batchSize = 64;

struct Batch {
  std::array<PhaseEvent, batchSize> events;
  std::array<Instant, batchSize> at;
  std::array<double, batchSize> rates;
  std::size_t size = 0;
};

PrincipalPhase phaseOf(Quarter quarter) { return static_cast<PrincipalPhase>(((quarter % 4) + 4) % 4); }

double elongationOf(PrincipalPhase phase) { return static_cast<double>(phase) * std::numbers::pi / 2; }

/// Newton's method on the elongation. From seven minutes off the first step leaves three seconds, the second
/// some hundredths.
void refine(Batch& batch) {
  std::array<Apparent, batchSize> sun, moon;
  const std::span instants(batch.at.data(), batch.size);
  for (int step = 0; step < 2; ++step) {
    ephemeris::apparent(Body::sun, instants, std::span(sun).first(batch.size));
    ephemeris::apparent(Body::moon, instants, std::span(moon).first(batch.size));
    for (std::size_t i = 0; i < batch.size; ++i) {
      const double ahead = moon[i].longitude - sun[i].longitude - elongationOf(batch.events[i].phase);
      batch.at[i] -= Seconds(withinHalfTurn(ahead) / batch.rates[i]);
    }
  }
  for (std::size_t i = 0; i < batch.size; ++i) batch.events[i].at = batch.at[i];
}

}  // namespace

std::vector<PhaseEvent> phases(Instant from, Instant to) {
  std::vector<PhaseEvent> found;
  const auto part = coveredPart(from, to);
  if (!part) return found;
  const auto [begin, end] = *part;
  Quarter quarter = meanQuarterBefore(begin) - 1;
  const Quarter last = meanQuarterBefore(end) + 1;
  found.reserve(static_cast<std::size_t>(last - quarter));
  while (quarter <= last) {
    Batch batch;
    for (; batch.size < batchSize && quarter <= last; ++quarter, ++batch.size) {
      const RoughPhase rough = roughPhase(quarter);
      batch.events[batch.size].phase = phaseOf(quarter);
      batch.at[batch.size] = rough.at;
      batch.rates[batch.size] = rough.elongationRate;
    }
    refine(batch);
    for (const PhaseEvent& event : std::span(batch.events).first(batch.size)) {
      if (begin <= event.at && event.at < end) found.push_back(event);
    }
  }
  return found;
}

}  // namespace velmora::almanac
