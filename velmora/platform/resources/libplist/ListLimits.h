#pragma once

#include <cstddef>
#include <string_view>

namespace [[gnu::visibility("hidden")]] velmora {

inline constexpr std::size_t maximumListSize = std::size_t{1} << 20;
inline constexpr std::size_t maximumContainers = 1024;

/// Whether the bytes may be handed to libplist, which reads and frees nested values by recursion, copies a
/// binary list's value once for each reference to it, and stops the process at a key with a zero in it. A
/// list that passes is small, nests at most `maximumContainers` deep, expands to a few mebibytes and has no
/// such key. Says nothing of the list being well formed.
bool isWithinListLimits(std::string_view bytes);

}  // namespace velmora
