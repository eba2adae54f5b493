#pragma once

#include <string>
#include <vector>

#include "Geometry.h"

namespace moonpictures {

struct Mare {
  Vector centre;
  double halfWidth, halfHeight;  ///< kilometres
  double rotation;               ///< degrees from east to north
  double darkness;               ///< 0 highland … 1 the darkest mare
};

struct Crater {
  std::string name;
  Vector centre;
  double diameter;   ///< kilometres
  double freshness;  ///< 0 worn down … 1 sharp
  double tone;       ///< of the floor: below 0 darker, above 0 brighter
};

struct MountainPiece {
  Vector from, to;
  double halfWidth, height;  ///< kilometres
};

struct Ray {
  Vector origin;
  double azimuth;    ///< degrees from north over east
  double reach;      ///< degrees of arc
  double halfWidth;  ///< kilometres near the crater
  double strength;   ///< 0 none … 1 pure brightness
};

struct Catalogue {
  std::vector<Mare> maria;
  std::vector<Crater> craters;
  std::vector<MountainPiece> mountains;
  std::vector<Ray> rays;
};

/// Reads maria.csv, craters.csv, mountains.csv and rays.csv; throws std::runtime_error naming file and line.
Catalogue readCatalogue(const std::string& folder);

}  // namespace moonpictures
