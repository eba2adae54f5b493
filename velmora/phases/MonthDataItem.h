#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <velmora/platform/time/Instant.h>

namespace velmora {

/// One principal phase as seen from a place.
struct MonthDataItem {
  /// The fields in order; `fullFactor` follows from the phase.
  MonthDataItem(std::int64_t phase, std::int64_t day, std::string time, Instant localDate);

  std::int64_t phase;  ///< 0 to 3, or −1 for an unknown code
  std::int64_t day;    ///< of the month, in the place's zone
  /// Display time.
  /// Kept: shifted twice by the place's offset unless the default zone is UTC.
  std::string time;
  Instant localDate;       ///< the true instant, not shifted
  const float fullFactor;  ///< lit fraction of the disc: 1, 0.5 or 0; 0 for an unknown code

  /// The phase's name from the host application's "Localizable" table; none for another phase than 0 to 3.
  std::optional<std::string> phaseString() const;

  friend bool operator==(const MonthDataItem&, const MonthDataItem&) = default;
};

}  // namespace velmora
