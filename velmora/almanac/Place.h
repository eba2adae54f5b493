#pragma once

namespace velmora::almanac {

/// A point of the Earth to look from.
struct Place {
  double latitude = 0.0;   ///< geodetic, degrees −90..90, north positive
  double longitude = 0.0;  ///< degrees −180..180, east positive
  double height = 0.0;  ///< metres above the horizon around, 0..100000: lowers it by the dip, 1.76′ √height

  friend bool operator==(const Place&, const Place&) = default;
};

/// Whether every number of the place is finite and within its range. For any other place the operations of
/// the almanac return none or an empty list.
bool isValid(const Place& place);

/// What people do not agree on: when a body counts as risen. As it stands, what national almanac offices
/// print.
struct Convention {
  /// The point of the disc that rises.
  enum class Limb { upper, center, lower };

  Limb limb = Limb::upper;                 ///< that point
  double horizonRefraction = 34.0 / 60.0;  ///< degrees, at the horizon; −2..2
  double sunSemidiameter = 16.0 / 60.0;  ///< degrees, the Sun's at every distance, −2..2; the Moon's is true

  friend bool operator==(const Convention&, const Convention&) = default;
};

}  // namespace velmora::almanac
