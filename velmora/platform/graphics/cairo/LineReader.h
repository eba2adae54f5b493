#pragma once

#include <velmora/platform/graphics/cairo/PangoHandles.h>
#include <velmora/platform/graphics/cairo/ShapedLine.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The first line of a layout as glyphs in reading order, with its width and direction; its height is left to
/// the caller.
ShapedLine readLine(PangoLayout* layout);

}  // namespace velmora
