#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>

#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/ShapeKey.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Keeps shapes as pixels once they were drawn: how much of each pixel a figure or a text covers, or the
/// colours of an image at its size in the picture. A view that is drawn again mostly draws the same shapes at
/// the same places, and laying the pixels down takes a fraction of the time that making them takes. When its
/// room is full, it starts anew.
class ShapeCache {
 public:
  /// The one of the calling thread.
  static ShapeCache& ofThread();

  /// None if nothing is kept under the key.
  cairo_surface_t* find(const ShapeKey& key) const;

  cairo_surface_t* keep(const ShapeKey& key, CairoSurface pixels);

 private:
  std::unordered_map<std::string, CairoSurface> _shapes;
  std::size_t _bytes = 0;
};

}  // namespace velmora
