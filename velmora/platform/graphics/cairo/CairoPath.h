#pragma once

#include <cairo.h>

#include <vector>

#include <velmora/platform/graphics/Path.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Makes the path the context's current one. A path with a coordinate that is no number stays empty.
void setPath(cairo_t* context, const Path& path);

/// A path as Cairo draws it: through its frame, in pixels rounded to 256ths.
using OutlineInPixels = std::vector<cairo_path_data_t>;

/// That of the path in the context's frame. The context's current path is empty then.
OutlineInPixels outlineInPixels(cairo_t* context, const Path& path);

}  // namespace velmora
