#include <velmora/platform/graphics/cairo/LargePages.h>

#include <sys/mman.h>
#include <unistd.h>

#include <memory>

namespace [[gnu::visibility("hidden")]] velmora {

void preferLargePages(void* memory, std::size_t size) {
#ifdef MADV_HUGEPAGE
  constexpr std::size_t usualLargePage = 2 << 20;
  if (size < usualLargePage) return;
  const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
  if (std::align(page, page, memory, size) != nullptr) ::madvise(memory, size / page * page, MADV_HUGEPAGE);
#else
  static_cast<void>(memory), static_cast<void>(size);
#endif
}

}  // namespace velmora
