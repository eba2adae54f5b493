#pragma once

#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

/// Sheets that posters are printed on.
enum class Paper { a4, a3, letter, inches24x36 };

/// Width and height of the sheet in points, 72 an inch; upright unless it is to lie.
Size paperSize(Paper paper, bool isLandscape = false);

/// What a poster is printed in: light ink on a dark ground, or dark ink on white paper.
enum class PaperTheme { dark, light };

}  // namespace velmora
