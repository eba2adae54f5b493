#pragma once

#include <vector>

#include "Photometry.h"
#include "Picture.h"
#include "SurfaceMap.h"

namespace moonpictures {

/// The near side as the Earth sees it from straight above its centre, north up, ready to be lit.
class Globe {
 public:
  Globe(const SurfaceMap& relief, const SurfaceMap& albedo);

  /// The disc in 256 × 256 pixels, transparent around it; relief throws shadows.
  Picture litBy(const Illumination& lamps) const;

 private:
  struct Sample {
    Spot spot;
    Vector ground;  ///< the place with its height
  };
  /// One line of samples from west to east. The Sun stands over the equator, so its rays stay within a line.
  struct Row {
    int first = 0;  ///< column of the first sample on the disc
    std::vector<Sample> samples;
  };

  static Row rowAt(int row, const SurfaceMap& relief, const SurfaceMap& albedo);
  /// 1 for each sample in full sunlight, 0 in the shadow of ground between it and the Sun.
  static std::vector<double> sunlitShares(const Row& row, const Vector& sun);

  std::vector<Row> _rows;
};

}  // namespace moonpictures
