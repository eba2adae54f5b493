#include <velmora/platform/graphics/cairo/ShapeCache.h>

#include <utility>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// In bytes. A month at three pixels a point takes some 2 MB.
constexpr std::size_t room = 16 << 20;
constexpr std::size_t overhead = 1000;  // beside its pixels, with its place in the table

std::size_t bytesOf(const ShapeKey& key, cairo_surface_t* pixels) {
  return overhead + key.bytes().size() +
         static_cast<std::size_t>(cairo_image_surface_get_stride(pixels)) *
             static_cast<std::size_t>(cairo_image_surface_get_height(pixels));
}

}  // namespace

ShapeCache& ShapeCache::ofThread() {
  thread_local ShapeCache cache;
  return cache;
}

cairo_surface_t* ShapeCache::find(const ShapeKey& key) const {
  const auto found = _shapes.find(key.bytes());
  return found == _shapes.end() ? nullptr : found->second.get();
}

cairo_surface_t* ShapeCache::keep(const ShapeKey& key, CairoSurface pixels) {
  const std::size_t added = bytesOf(key, pixels.get());
  if (_bytes + added > room) {
    _shapes.clear();
    _bytes = 0;
  }
  _bytes += added;
  return _shapes.insert_or_assign(key.bytes(), std::move(pixels)).first->second.get();
}

}  // namespace velmora
