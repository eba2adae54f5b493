#pragma once

#include <cstdint>

namespace velmora {

/// The library's numbers of the Moon's phases. The four principal phases are events at an instant; the other
/// four are the phases of the days between them.
/// Kept: the order of the principal phases.
enum Phase : std::int64_t {
  kUnknownPhase = -1,
  kFullMoon = 0,
  kFirstQuarter = 1,
  kLastQuarter = 2,
  kNewMoon = 3,
  kWaxingCrescent = 4,
  kWaxingGibbous = 5,
  kWaningGibbous = 6,
  kWaningCrescent = 7,
};

}  // namespace velmora
