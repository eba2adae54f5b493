#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <velmora/astronomy/PositionData.h>
#include <velmora/astronomy/RiseSetData.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/platform/time/Instant.h>

namespace velmora {

/// Apparent equatorial coordinates.
struct EquatorialCoordinates {
  double declination = 0.0;     ///< degrees, −90..90
  double rightAscension = 0.0;  ///< hours, [0, 24)
};

/// The astronomy engine: operations without state, callable from any thread.
class RiseAndSetCalc {
 public:
  // Time and angles (TimeAndAngles.cpp)
  static double _mjd(std::int64_t day, std::int64_t month, std::int64_t year, std::int64_t hour);
  static std::string _caldat(double mjd);
  static double _lmst(double mjd, double longitude);
  static double _frac(double x);
  static std::int64_t _iPart(double x);
  static double _range(double degrees);
  static double _round(double value, std::int64_t noOfDecimals);
  static std::string _hrsmin(double hours);
  static std::int64_t GetDayCountForMonth(std::int64_t month);
  static double FNRange(double radians);
  static double FNatn2(double y, double x);
  static double FNasin(double x);

  // Series of the Sun and the Moon (SunAndMoonSeries.cpp)
  static EquatorialCoordinates _minisun(double centuries);
  static EquatorialCoordinates _minimoon(double centuries);
  static double _sin_alt(double object, double mjd0, double hour, double longitude, double cosLatitude,
                         double sinLatitude);

  // Rise, set and twilight (RiseSetSearch.cpp)
  static RiseSetData Compute(Instant date, const GeoLocationData& location, std::int64_t secondsFromGMT,
                             int twilight);
  static void _find_sun_and_twi_events_for_date(RiseSetData& record, int twilight, double mjd0,
                                                double offsetHours, double longitude, double latitude);
  static void _find_moonrise_set(RiseSetData& record, double mjd0, double offsetHours, double longitude,
                                 double latitude);

  // Positions (HorizontalPosition.cpp)
  static double FNsun(double daysFromJ2000);
  static PositionData CalculateSunPosition(double longitude, double latitude, std::int64_t year,
                                           std::int64_t month, std::int64_t day, double hour,
                                           std::int64_t timezoneInterval);
  static PositionData CalculateMoonPosition(double longitude, double latitude, std::int32_t year,
                                            std::int32_t month, std::int32_t day, double hour,
                                            double timezoneInterval);
  static PositionData ComputeSunPosition(Instant date, const GeoLocationData& location,
                                         std::int64_t secondsFromGMT);
  static PositionData ComputeMoonPosition(Instant date, const GeoLocationData& location,
                                          std::int64_t secondsFromGMT);
  static PositionData _find_moon_position(double mjd0, double hour, double longitude, double cosLatitude,
                                          double sinLatitude);

  // Series of a day and elevation crossings (DaySeries.cpp)
  static std::vector<PositionData> Get24HourMoonPositionsForDate(Instant date,
                                                                 const GeoLocationData& location,
                                                                 std::int64_t secondsFromGMT);
  static std::vector<PositionData> Get24HourSunPositionsForDate(Instant date, const GeoLocationData& location,
                                                                std::int64_t secondsFromGMT);
  static std::vector<PositionData> EventsMatchingSunElevation(double elevation, Instant date,
                                                              const GeoLocationData& location,
                                                              std::int64_t secondsFromGMT,
                                                              bool includeIntermediateValues);
  static std::vector<PositionData> EventsMatchingMoonElevation(double elevation, Instant date,
                                                               const GeoLocationData& location,
                                                               std::int64_t secondsFromGMT,
                                                               bool includeIntermediateValues);
};

}  // namespace velmora
