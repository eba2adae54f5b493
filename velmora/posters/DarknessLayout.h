#pragma once

#include <array>

#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Where the parts of the poster of a year's darkness lie, as from left to right.
struct DarknessLayout {
  Rect caption, title, place;             ///< one below the other
  Rect darkestHeading;                    ///< above the months' darkest nights
  Rect hours;                             ///< of the axis's numbers, above the carpet
  Rect carpet;                            ///< a row a night, the first one at the top
  double monthsX = 0, monthsWidth = 0;    ///< of their names, before the carpet
  double darkestX = 0, darkestWidth = 0;  ///< of the texts behind it
  Rect dayparts, moonKeys, note;          ///< of the legend, below each other

  static DarknessLayout of(Size size, double unit);

  /// The place on the carpet: of a share of the night, of a row of so many.
  double x(double share) const { return carpet.x + share * carpet.width; }
  double y(double row, std::size_t rowCount) const {
    return carpet.y + row / static_cast<double>(rowCount) * carpet.height;
  }
};

}  // namespace velmora
