#pragma once

namespace velmora::meeus {

/// The slowly changing angles of a lunation that both chapters build their terms from, in radians.
struct LunationArguments {
  explicit LunationArguments(double k);

  double meanPhase;  ///< Julian date in Terrestrial Time
  double T;          ///< Julian centuries from 2000
  double E;          ///< factor for the shrinking eccentricity of the Earth's orbit
  double sun;        ///< M, the Sun's mean anomaly
  double moon;       ///< M', the Moon's mean anomaly
  double latitude;   ///< F, the Moon's argument of latitude
  double node;       ///< Ω, the longitude of the Moon's ascending node
};

double radians(double degrees);

}  // namespace velmora::meeus
