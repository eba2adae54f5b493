#include <velmora/astronomy/HorizontalCoordinates.h>
#include <velmora/astronomy/PrintedDegrees.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/astronomy/UniversalTime.h>
#include <velmora/platform/time/Calendar.h>

namespace velmora {

PositionData RiseAndSetCalc::CalculateSunPosition(double longitude, double latitude, std::int64_t year,
                                                  std::int64_t month, std::int64_t day, double hour,
                                                  std::int64_t timezoneInterval) {
  return positionAt(
      sunCoordinates(daysFromJ2000(year, month, day, hour), longitude, angleOfRadians(latitude)),
      sunZoneHour(hour, timezoneInterval));
}

PositionData RiseAndSetCalc::CalculateMoonPosition(double longitude, double latitude, std::int32_t year,
                                                   std::int32_t month, std::int32_t day, double hour,
                                                   double timezoneInterval) {
  return positionAt(moonCoordinates(_mjd(day, month, year, 0) + hour / 24, longitude * degreesPerRadian,
                                    angleOfRadians(latitude)),
                    hour + timezoneInterval);
}

PositionData RiseAndSetCalc::ComputeSunPosition(Instant date, const GeoLocationData& location,
                                                std::int64_t secondsFromGMT) {
  const Calendar calendar(location.calendarZone(secondsFromGMT));
  const DateComponents c = calendar.components(movedToUniversalReading(date, secondsFromGMT));
  const auto hour = static_cast<double>(c.hour), minute = static_cast<double>(c.minute);
  return positionAt(sunCoordinates(daysFromJ2000(c.year, c.month, c.day, hour + minute / 60),
                                   location.longitude * radiansPerDegree,
                                   angleOfRadians(location.latitude * radiansPerDegree)),
                    hour);
}

PositionData RiseAndSetCalc::ComputeMoonPosition(Instant date, const GeoLocationData& location,
                                                 std::int64_t secondsFromGMT) {
  const Calendar calendar(location.calendarZone(secondsFromGMT));
  const DateComponents c = calendar.components(date);
  const double offsetHours = static_cast<double>(secondsFromGMT) / 3600;
  const double hour = static_cast<double>(c.minute) / 60 + static_cast<double>(c.hour) - offsetHours;
  return CalculateMoonPosition(location.longitude * printedRadiansPerDegree,
                               location.latitude * printedRadiansPerDegree, static_cast<std::int32_t>(c.year),
                               static_cast<std::int32_t>(c.month), static_cast<std::int32_t>(c.day), hour,
                               offsetHours);
}

PositionData RiseAndSetCalc::_find_moon_position(double mjd0, double hour, double longitude,
                                                 double cosLatitude, double sinLatitude) {
  return positionAt(moonCoordinates(mjd0 + hour / 24, longitude, {cosLatitude, sinLatitude}), hour);
}

}  // namespace velmora
