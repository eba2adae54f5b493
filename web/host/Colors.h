#pragma once

#include <string>

#include <velmora/platform/graphics/Color.h>

namespace velmora::web {

/// Gives the themes that the views share the colours of a light page, or those of the library, which are
/// dark.
void useColors(bool isLight);

/// What the views are laid on.
Color backgroundOfPage();

}  // namespace velmora::web
