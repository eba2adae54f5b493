#pragma once

#include <array>
#include <cstddef>

#include <velmora/astronomy/Hours.h>
#include <velmora/astronomy/SunAndMoonSeries.h>

namespace velmora {

// The samples of the rise and set search; not for other folders.

/// How an angle grows.
struct HourlyGrowth {
  double turnsPerHour;
  double radiansPerTurn;  ///< after which the printed formulas let the angle start anew from 0
};

/// An angle that grows evenly, at consecutive hours: stepped by additions instead of new sines.
class HourlyAngle {
 public:
  /// `perHour`: the growth as an angle.
  HourlyAngle(const ArgumentValue<double>& start, const HourlyGrowth& growth, const Angle<double>& perHour);
  HourlyAngle(const MeanArgument& argument, double centuries);

  const ArgumentValue<Hours>& value() const { return _value; }
  const Angle<Hours>& angle() const { return _value.angle; }

  /// Moves on to the hours that follow.
  void step();

 private:
  ArgumentValue<Hours> _value;
  HourlyGrowth _growth;
  Angle<Hours> _perStep;
};

/// The Sun's direction at consecutive hours.
class HourlySun {
 public:
  explicit HourlySun(double centuries);
  Direction<Hours> direction() const { return sunDirection(_longitude.value(), _anomaly.angle()); }
  void step();

 private:
  HourlyAngle _longitude, _anomaly;
};

/// The Moon's direction at consecutive hours.
class HourlyMoon {
 public:
  explicit HourlyMoon(double centuries);
  Direction<Hours> direction() const {
    return moonDirection(_longitude.value(), _anomaly.angle(), _sunAnomaly.angle(), _elongation.angle(),
                         _latitudeArgument.angle());
  }
  void step();

 private:
  HourlyAngle _longitude, _anomaly, _sunAnomaly, _elongation, _latitudeArgument;
};

/// The sine of a body's altitude at local midnight and at the 48 hours after it, each computed when it or a
/// neighbour is first asked for. They are those of `_sin_alt` within 2e-10, which is what the rounding of its
/// sidereal time leaves certain.
template <class HourlyBody>
class HourlyAltitudes {
 public:
  static constexpr int lastHour = 48;

  /// `localMidnight`: a Modified Julian Date of universal time. Longitude and latitude in degrees.
  HourlyAltitudes(double localMidnight, double longitude, double latitude);

  double at(int hour) {
    const auto wanted = static_cast<std::size_t>(hour);
    while (_known <= wanted) sampleHours();
    return _sines[wanted];
  }

 private:
  static constexpr std::size_t capacity = (lastHour / Hours::count + 1) * Hours::count;

  void sampleHours();

  HourlyBody _body;
  HourlyAngle _siderealAngle;  ///< local
  Angle<double> _latitude;
  std::array<double, capacity> _sines;
  std::size_t _known = 0;
};

}  // namespace velmora
