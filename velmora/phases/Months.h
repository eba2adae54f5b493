#pragma once

#include <cstdint>

namespace [[gnu::visibility("hidden")]] velmora {

/// The ends of a year in the zero-based months of MoonPhaseCalc.
inline constexpr std::int64_t kJanuary = 0;
inline constexpr std::int64_t kDecember = 11;

}  // namespace velmora
