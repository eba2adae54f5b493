#pragma once

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The part of [from, to) that the ephemeris covers, as begin and end; none if that is nothing or one of them
/// is not finite.
inline std::optional<std::pair<Instant, Instant>> coveredPart(Instant from, Instant to) {
  if (!std::isfinite(unixSeconds(from)) || !std::isfinite(unixSeconds(to))) return std::nullopt;
  from = std::max(from, ephemeris::firstInstant());
  to = std::min(to, ephemeris::endInstant());
  if (!(from < to)) return std::nullopt;
  return std::pair(from, to);
}

}  // namespace almanac
}  // namespace velmora
