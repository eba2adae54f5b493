#pragma once

#include <cairo.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include <velmora/platform/graphics/cairo/CairoPath.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What decides which pixels a shape covers, and how much of each, gathered as bytes to be looked up by.
class ShapeKey {
 public:
  void add(double number) { append(&number, sizeof number); }
  void add(std::uint64_t number) { append(&number, sizeof number); }
  void add(const Rect& rect);
  /// The outline as it is seen from the point.
  void add(const OutlineInPixels& outline, Point origin);
  /// The frame as it is seen from the point, in pixels.
  void add(const cairo_matrix_t& frame, Point origin);

  const std::string& bytes() const { return _bytes; }

 private:
  void append(const void* value, std::size_t size) { _bytes.append(static_cast<const char*>(value), size); }

  std::string _bytes;
};

}  // namespace velmora
