#pragma once

#include <cstdint>

namespace [[gnu::visibility("hidden")]] velmora {

/// The years that the tables of phases cover, both included.
inline constexpr std::int64_t firstTableYear = 2000;
inline constexpr std::int64_t lastTableYear = 2040;

}  // namespace velmora
