#pragma once

#include <vector>

#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The keys of a legend beside each other: each a swatch and, behind it, the name of what it stands for.
struct KeyRow {
  static constexpr double swatch = 11, indent = 17, leastGap = 9;  ///< units: of a key and between two

  std::vector<Rect> swatches, names;
  double share = 1;  ///< what each name gets of the width that it wants, 0 to 1

  /// At the top of the room, as high as it, by the widths that the names want. `isSpread` lets the last key
  /// end where the room ends.
  static KeyRow of(Rect room, double unit, const std::vector<double>& wanted, bool isSpread);
};

}  // namespace velmora
