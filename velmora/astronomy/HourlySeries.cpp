#include <velmora/astronomy/HourlySeries.h>

#include <velmora/astronomy/UniversalTime.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double hoursPerCentury = 24 * daysPerCentury;

/// Lets the angle grow; a turn that it completes starts the next one from 0.
template <class Number>
ArgumentValue<Number> grown(const ArgumentValue<Number>& value, double turns, const Angle<Number>& growth,
                            double radiansPerTurn) {
  const Number sum = value.turns + turns;
  const Number wholeTurns = selectLess(sum, 1, 0, 1);
  const Angle<Number> startingAnew{1, wholeTurns * shortfallOfTurn(radiansPerTurn)};
  return {sum - wholeTurns, value.angle + growth + startingAnew};
}

}  // namespace

HourlyAngle::HourlyAngle(const ArgumentValue<double>& start, const HourlyGrowth& growth,
                         const Angle<double>& perHour)
    : _growth(growth) {
  ArgumentValue<double> value = start;
  Angle<double> perStep{1, 0};
  for (std::size_t i = 0; i < FourNumbers::count; ++i) {
    setHour(_value, i, value);
    value = grown(value, growth.turnsPerHour, perHour, growth.radiansPerTurn);
    perStep = perStep + perHour;
  }
  _perStep = {cos(perStep), sin(perStep)};
}

HourlyAngle::HourlyAngle(const MeanArgument& argument, const ArgumentValue<double>& start)
    : HourlyAngle(start, {argument.perCentury / hoursPerCentury, seriesTwoPi},
                  smallAngle(seriesTwoPi * argument.perCentury / hoursPerCentury)) {}

void HourlyAngle::step() {
  _value = grown(_value, FourNumbers::count * _growth.turnsPerHour, _perStep, _growth.radiansPerTurn);
}

HourlySun::HourlySun(double centuries)
    : _longitude(sunLongitude, valueAt(sunLongitude, centuries)),
      _anomaly(sunAnomaly, valueAt(sunAnomaly, centuries)) {}

void HourlySun::step() {
  _longitude.step();
  _anomaly.step();
}

HourlyMoon::HourlyMoon(double centuries)
    : HourlyMoon(valueAt(moonLongitude, centuries),
                 valuesAt({moonAnomaly, sunAnomaly, moonElongation, moonLatitudeArgument}, centuries)) {}

HourlyMoon::HourlyMoon(const ArgumentValue<double>& longitude, const Values& starts)
    : _longitude(moonLongitude, longitude),
      _anomaly(moonAnomaly, starts[0]),
      _sunAnomaly(sunAnomaly, starts[1]),
      _elongation(moonElongation, starts[2]),
      _latitudeArgument(moonLatitudeArgument, starts[3]) {}

void HourlyMoon::step() {
  for (HourlyAngle* angle : {&_longitude, &_anomaly, &_sunAnomaly, &_elongation, &_latitudeArgument}) {
    angle->step();
  }
}

}  // namespace velmora
