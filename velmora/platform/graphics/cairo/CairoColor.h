#pragma once

#include <cairo.h>

#include <velmora/platform/graphics/Color.h>

namespace [[gnu::visibility("hidden")]] velmora {

inline void setSource(cairo_t* context, const Color& color) {
  cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

}  // namespace velmora
