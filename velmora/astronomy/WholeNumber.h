#pragma once

#include <limits>

namespace [[gnu::visibility("hidden")]] velmora {

/// `value` cut toward zero to the integer type: NaN becomes 0, a value outside the type its nearest end.
template <class Integer>
constexpr Integer wholeNumber(double value) {
  using Limits = std::numeric_limits<Integer>;
  if (value != value) return 0;
  if (value <= static_cast<double>(Limits::min())) return Limits::min();
  if (value >= static_cast<double>(Limits::max())) return Limits::max();
  return static_cast<Integer>(value);
}

}  // namespace velmora
