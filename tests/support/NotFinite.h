#pragma once

#include <limits>

namespace velmora::testing {

/// What no answer follows from.
inline constexpr double nan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinity = std::numeric_limits<double>::infinity();

}  // namespace velmora::testing
