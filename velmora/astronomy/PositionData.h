#pragma once

#include <string>

namespace velmora {

/// Where the Sun or the Moon stands at one moment: geometric, without refraction and parallax.
struct PositionData {
  double altitude = 0.0;  ///< degrees above the horizon, −90..90
  /// Degrees, north is zero and east is +90, 0..360. At a pole and in the zenith it has no meaning: the
  /// Moon's may be NaN there, the Sun's −90.
  double azimuth = 0.0;
  double hour = 0.0;         ///< hour of the sample, as each operation sets it
  std::string altitudeText;  ///< `altitude` with one decimal and a degree sign
  std::string azimuthText;   ///< `azimuth` with one decimal and a degree sign

  /// `hour` as a clock text: long "07:05", "07:05 AM"; short "07", "7 am".
  /// Kept: the hour after midnight is written 0 (00:05 AM).
  std::string formattedTimeText(bool use24Hour, bool shortForm) const;

  friend bool operator==(const PositionData&, const PositionData&) = default;
};

}  // namespace velmora
