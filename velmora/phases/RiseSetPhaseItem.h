#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <velmora/astronomy/RiseSetData.h>
#include <velmora/phases/PhaseItem.h>

namespace velmora {

/// A day's phase with its rise, set and twilight. `localDate` is its principal phase's instant, else 03:00.
struct RiseSetPhaseItem : PhaseItem {
  std::int64_t weekDay = 0;                ///< 1 = Sunday to 7 = Saturday
  std::string timeText;                    ///< that instant's time in the user's own short time style
  std::optional<RiseSetData> riseSetData;  ///< rise, set and twilight of the day

  friend bool operator==(const RiseSetPhaseItem&, const RiseSetPhaseItem&) = default;
};

}  // namespace velmora
