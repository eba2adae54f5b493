#pragma once

#include <array>
#include <cstddef>

#include <velmora/astronomy/FourNumbers.h>
#include <velmora/astronomy/SunAndMoonSeries.h>

namespace [[gnu::visibility("hidden")]] velmora {

// The series of the Sun and the Moon hour by hour; not for other folders.

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
  HourlyAngle(const MeanArgument& argument, const ArgumentValue<double>& start);

  const ArgumentValue<FourNumbers>& value() const { return _value; }
  const Angle<FourNumbers>& angle() const { return _value.angle; }

  /// Moves on to the hours that follow.
  void step();

 private:
  ArgumentValue<FourNumbers> _value;
  HourlyGrowth _growth;
  Angle<FourNumbers> _perStep;
};

/// The Sun's direction at consecutive hours.
class HourlySun {
 public:
  explicit HourlySun(double centuries);
  Direction<FourNumbers> direction() const { return sunDirection(_longitude.value(), _anomaly.angle()); }
  void step();

 private:
  HourlyAngle _longitude, _anomaly;
};

/// The Moon's direction at consecutive hours.
class HourlyMoon {
 public:
  explicit HourlyMoon(double centuries);
  Direction<FourNumbers> direction() const {
    return moonDirection(_longitude.value(), _anomaly.angle(), _sunAnomaly.angle(), _elongation.angle(),
                         _latitudeArgument.angle());
  }
  void step();

 private:
  using Values = std::array<ArgumentValue<double>, FourNumbers::count>;

  HourlyMoon(const ArgumentValue<double>& longitude, const Values& starts);

  HourlyAngle _longitude, _anomaly, _sunAnomaly, _elongation, _latitudeArgument;
};

}  // namespace velmora
