#pragma once

#include <cstdint>

#include <velmora/platform/time/Instant.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// A quarter of a lunation: 0 is the new moon of 6 January 2000, 1 the first quarter after it, −1 the last
/// quarter before.
using Quarter = std::int64_t;

/// The last quarter whose mean instant lies at or before the instant. The true one is up to 15 hours off.
Quarter meanQuarterBefore(Instant instant);

/// About when a quarter is reached, and how the Moon moves then.
struct RoughPhase {
  Instant at{};                   ///< within seven minutes
  double elongationRate = 0.0;    ///< of the Moon's longitude from the Sun's, radians a second, within 0.6 %
  double latitudeArgument = 0.0;  ///< the Moon's mean distance from its ascending node, radians
};

/// Meeus, "Astronomical Algorithms", 2nd edition, chapter 49, without its small terms.
RoughPhase roughPhase(Quarter quarter);

}  // namespace almanac
}  // namespace velmora
