#pragma once

#include <cstddef>

namespace [[gnu::visibility("hidden")]] velmora {

/// Asks the system for large pages where the memory has not been touched yet: a picture's memory is some
/// thousand small ones, and each that is touched for the first time takes its time. A system may refuse.
void preferLargePages(void* memory, std::size_t size);

}  // namespace velmora
