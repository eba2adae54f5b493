#pragma once

#include <cairo.h>

#include <velmora/platform/graphics/Path.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Makes the path the context's current one. A path with a coordinate that is no number stays empty.
void setPath(cairo_t* context, const Path& path);

}  // namespace velmora
