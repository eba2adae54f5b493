#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <velmora/astronomy/RiseSetData.h>
#include <velmora/phases/PhaseItem.h>

namespace velmora {

/// A day's phase with its rise, set and twilight.
struct RiseSetPhaseItem : PhaseItem {
  std::int64_t weekDay = 0;                ///< 1 = Sunday to 7 = Saturday
  std::string timeText;                    ///< the record's time as the user reads it
  std::optional<RiseSetData> riseSetData;  ///< rise, set and twilight of the day

  friend bool operator==(const RiseSetPhaseItem&, const RiseSetPhaseItem&) = default;
};

}  // namespace velmora
