#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <velmora/platform/time/Instant.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// One principal phase as a line of a yearly table gives it.
struct TableEvent {
  Instant instant;         ///< to the minute
  std::int64_t phase = 0;  ///< 0 to 3, or −1 for an unknown code
};

/// Reads a line that stands in a year's table under a month, 1 to 12 (see YearTable). Reading is strict: none
/// if there are fewer than three fields, or if day and time do not name a moment of that month. Each pair of
/// blanks counts as one, in a single pass: three blanks leave an empty field, and so no event.
std::optional<TableEvent> readTableLine(std::string_view line, std::int64_t year, std::int64_t month);

/// The phase of a code, by exact comparison: "FM" 0, "FQ" 1, "LQ" 2, "NM" 3, anything else −1.
std::int64_t phaseForCode(std::string_view code);

/// The lit fraction of the disc at a principal phase: 1 full, 0.5 at the quarters, 0 new and for anything
/// else.
float fullFactorForPrincipalPhase(std::int64_t phase);

}  // namespace velmora
