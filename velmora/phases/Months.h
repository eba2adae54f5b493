#pragma once

#include <cstdint>

namespace [[gnu::visibility("hidden")]] velmora {

/// The ends of a year in the zero-based months of MoonPhaseCalc.
inline constexpr std::int64_t zeroBasedJanuary = 0;
inline constexpr std::int64_t zeroBasedDecember = 11;

/// Also December's number where months count from 1, as in records and tables.
inline constexpr std::int64_t monthsOfYear = 12;

}  // namespace velmora
