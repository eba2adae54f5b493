#pragma once

#include <cstddef>
#include <functional>

namespace velmora::almanac {

/// Runs `part(0)` to `part(count − 1)`, each once, in any order and on any threads, and returns when all of
/// them have. An application hands in its own; an empty one runs them in the caller's thread.
using Executor = std::function<void(std::size_t count, const std::function<void(std::size_t)>& part)>;

/// One that shares the parts among that many threads, of which the caller's is one; where the system gives
/// fewer, among those. It holds no thread between calls.
Executor onThreads(unsigned count);

}  // namespace velmora::almanac
