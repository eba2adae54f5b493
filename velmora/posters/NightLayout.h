#pragma once

#include <array>
#include <vector>

#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Where the parts of the night's poster lie, as from left to right.
struct NightLayout {
  /// Of what is explained below the chart: the five dayparts, and the Moon.
  static constexpr std::size_t keys = 6;
  struct Key {
    Rect swatch, name;
    std::array<Rect, 2> lines;
  };

  Rect caption, title, place, darkness;  ///< one below the other
  Rect phase, light;                     ///< beside the disc, likewise
  Point discCenter;
  double discRadius = 0;
  Rect chart;
  Rect heights, hours;  ///< of the axes' numbers: before the chart and below it
  std::array<Key, keys> legend;

  /// On a sheet of the size, in its units; altitudes up to the highest are to be seen in the chart. What is
  /// explained shares the width by what each wants, in points.
  static NightLayout of(Size size, double unit, double highest, const std::array<double, keys>& wanted);

  /// What each of those gets of the width that it wants, 0 to 1.
  double keyShare = 1;

  double lowestAltitude = -24, highestAltitude = 0;  ///< degrees, of the chart

  /// At that share of the night.
  double x(double share) const { return chart.x + share * chart.width; }
  double y(double altitude) const;

  /// Altitudes with a line.
  std::vector<int> gridAltitudes() const;
};

}  // namespace velmora
