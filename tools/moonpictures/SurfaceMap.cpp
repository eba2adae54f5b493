#include "SurfaceMap.h"

namespace moonpictures {

SurfaceMap::SurfaceMap(float value) : _values(static_cast<std::size_t>(columns) * rows, value) {
  for (int column = 0; column < columns; ++column)
    _equator.push_back(directionOf({0, column / double{cellsPerDegree} - edgeLongitude}));
}

double SurfaceMap::valueAt(const Place& place) const {
  const double x = (place.longitude + edgeLongitude) * cellsPerDegree;
  const double y = (place.latitude + 90) * cellsPerDegree;
  const int column = std::clamp(static_cast<int>(x), 0, columns - 2);
  const int row = std::clamp(static_cast<int>(y), 0, rows - 2);
  const double right = x - column;
  const double up = y - row;
  return mix(mix(cell(column, row), cell(column + 1, row), right),
             mix(cell(column, row + 1), cell(column + 1, row + 1), right), up);
}

}  // namespace moonpictures
