#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "Geometry.h"

namespace moonpictures {

/// One number for every place of the near side and a little beyond its limb, on cells of equal degrees.
class SurfaceMap {
 public:
  static constexpr int cellsPerDegree = 8;

  explicit SurfaceMap(float value = 0);

  /// The value at a place, interpolated between the four cells around it.
  double valueAt(const Place& place) const;

  /// Calls `visit(direction, value)` for every cell; the value may be changed.
  template <typename Visit>
  void visitAll(Visit visit) {
    visitRange(0, columns, 0, rows, visit);
  }

  /// The same for the cells within so many kilometres of a centre; a few cells farther off may be visited
  /// too.
  template <typename Visit>
  void visitAround(const Vector& centre, double distance, Visit visit) {
    const double reach = distance / moonRadius / degree;
    const auto [latitude, longitude] = placeOf(centre);
    const double poleward = std::cos(std::min(89.0, std::abs(latitude) + reach) * degree);
    const double width = std::abs(latitude) + reach < 89 ? reach / poleward : 180;
    visitRange(columnOf(longitude - width), columnOf(longitude + width) + 1, rowOf(latitude - reach),
               rowOf(latitude + reach) + 1, visit);
  }

 private:
  static constexpr double edgeLongitude = 100;
  static constexpr int columns = static_cast<int>(2 * edgeLongitude) * cellsPerDegree + 1;
  static constexpr int rows = 180 * cellsPerDegree + 1;

  static int columnOf(double longitude) {
    return std::clamp(static_cast<int>((longitude + edgeLongitude) * cellsPerDegree), 0, columns - 1);
  }
  static int rowOf(double latitude) {
    return std::clamp(static_cast<int>((latitude + 90) * cellsPerDegree), 0, rows - 1);
  }
  float& cell(int column, int row) {
    return _values[static_cast<std::size_t>(row) * columns + static_cast<std::size_t>(column)];
  }
  double cell(int column, int row) const {
    return static_cast<double>(
        _values[static_cast<std::size_t>(row) * columns + static_cast<std::size_t>(column)]);
  }

  template <typename Visit>
  void visitRange(int firstColumn, int endColumn, int firstRow, int endRow, Visit& visit) {
    for (int row = firstRow; row < endRow; ++row) {
      const Vector meridian = directionOf({row / double{cellsPerDegree} - 90, 0});
      for (int column = firstColumn; column < endColumn; ++column) {
        const Vector& equator = _equator[static_cast<std::size_t>(column)];
        visit(Vector{meridian.z * equator.x, meridian.y, meridian.z * equator.z}, cell(column, row));
      }
    }
  }

  std::vector<Vector> _equator;  ///< direction of every column on the equator
  std::vector<float> _values;
};

}  // namespace moonpictures
