#pragma once

#include <cstdint>
#include <optional>

#include <velmora/platform/time/Instant.h>

namespace velmora {

/// One calendar day with the Moon's phase, held by shared pointer.
struct PhaseItem {
  std::int64_t day = 0;              ///< of the month, 1 to its length
  std::int64_t month = 0;            ///< 1 = January
  std::int64_t year = 0;             ///< full year
  std::int64_t moonAge = 0;          ///< days counted from the last new moon, whose own day is 1
  std::int64_t phase = 0;            ///< 0 to 3 on the day of a principal phase, 4 to 7 between them;
                                     ///< −1 on the day of an unknown code
  float fullFactor = 0.0F;           ///< lit fraction of the disc, 0 new to 1 full
  std::optional<Instant> localDate;  ///< the instant of the day's principal phase

  friend bool operator==(const PhaseItem&, const PhaseItem&) = default;
};

}  // namespace velmora
