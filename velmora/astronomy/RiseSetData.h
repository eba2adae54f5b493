#pragma once

#include <cstdint>
#include <string>

#include <velmora/platform/time/Instant.h>

namespace velmora {

/// Rise, set and twilight of one day at one place, as `RiseAndSetCalc::Compute` fills it.
///
/// A text is a clock text ("05:48", or "05:48 AM" by the settings' time format), the same followed by " **"
/// for an event of the following day, "--:--" where only the other event of the pair happens, or "--" where
/// neither does: the body stays up or down all day. A fresh record's texts are empty, its numbers zero.
struct RiseSetData {
  /// The texts described above.
  std::string moonRiseText;
  std::string moonSetText;
  std::string sunRiseText;
  std::string sunSetText;
  std::string twilightBeginText;
  std::string twilightEndText;
  std::int64_t sunRiseMinutesFromMidnight = 0;  ///< after local midnight; −1 for none
  /// −1 for none. A set of the next day has 1440 more than its clock time where that lies before the rise's.
  /// Kept: a later one, and one without a rise, has not.
  std::int64_t sunSetMinutesFromMidnight = 0;
  std::int64_t moonRiseMinutesFromMidnight = 0;  ///< −1 for none
  std::int64_t moonSetMinutesFromMidnight = 0;   ///< −1 for none; above 1440 for a set of the next day
  std::int64_t dayLengthMinutes = 0;  ///< sunset minus sunrise, 1440 standing for no set, 0 for no rise
  Instant date{};                     ///< the day described; set by the caller

  friend bool operator==(const RiseSetData&, const RiseSetData&) = default;
};

}  // namespace velmora
