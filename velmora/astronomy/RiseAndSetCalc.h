#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <velmora/astronomy/PositionData.h>
#include <velmora/astronomy/RiseSetData.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/platform/time/Instant.h>

namespace velmora {

/// Equatorial coordinates, referred to the equator and equinox of date.
struct EquatorialCoordinates {
  double declination = 0.0;     ///< degrees, −90..90, north positive
  double rightAscension = 0.0;  ///< hours, [0, 24)

  friend bool operator==(const EquatorialCoordinates&, const EquatorialCoordinates&) = default;
};

/// The astronomy engine: operations without state, callable from any thread.
///
/// `mjd` is a Modified Julian Date of universal time: days from 1858 November 17, 0h. Longitudes are east
/// positive, latitudes north positive, degrees unless an argument says radians. Nothing fails: what cannot be
/// computed is NaN in numbers, "--" or "--:--" in texts, −1 in minutes. Numbers far outside what an argument
/// is made for give a defined but meaningless result.
///
/// Sources: Montenbruck and Pfleger, "Astronomy on the Personal Computer" (calendar, the short series of the
/// Sun and the Moon, the search by parabolas); Meeus, "Astronomical Algorithms", 2nd ed. (sidereal time);
/// "The Astronomical Almanac", low-precision formulas for the Sun (its position).
///
/// Accuracies are differences from a precise ephemeris's geocentric apparent places, 2000 to 2040 unless said
/// otherwise, as root mean square and maximum.
class RiseAndSetCalc {
 public:
  // Time and angles (TimeAndAngles.cpp)

  /// Modified Julian Date of a Gregorian date (month 1..12) at a whole hour of universal time.
  /// 2000-01-01 12h is 51544.5.
  /// Kept: days up to 1582 October 4 are no true Julian-calendar count.
  static double _mjd(std::int64_t day, std::int64_t month, std::int64_t year, std::int64_t hour);

  /// The time of day of a Modified Julian Date, written by `_hrsmin`.
  static std::string _caldat(double mjd);

  /// Local mean sidereal time in hours, as an angle. Meeus, formula 12.4; universal time stands for both of
  /// its time scales.
  /// Kept: it is Greenwich's in [0, 24) plus longitude/15, not reduced again.
  static double _lmst(double mjd, double longitude);

  /// What `x` has above the next whole number below it, [0, 1); a negative x nearer to 0 than a double can
  /// tell from 1 gives 1.
  static double _frac(double x);

  /// The whole part, toward zero; 0 for NaN, the nearest end beyond 64 bits.
  static std::int64_t _iPart(double x);

  /// An angle in degrees reduced to [0, 360), any finite one; a negative one too small to tell from 0 gives
  /// 360.
  static double _range(double degrees);

  /// `value` rounded to that many decimals (negative: tens, hundreds), halves away from zero.
  static double _round(double value, std::int64_t noOfDecimals);

  /// A time of day in hours as a clock text, to the nearest minute: "17:05" where the settings' time format
  /// is 1, else "05:05 PM".
  /// Kept: the hour after midnight is "00:05 AM", and 23.9999 is "24:00" or "12:00 PM".
  static std::string _hrsmin(double hours);

  /// The days of a common year before the month (1..12), 0 for a month outside.
  /// Kept: there is no leap day in any year.
  static std::int64_t GetDayCountForMonth(std::int64_t month);

  /// An angle in radians reduced to [0, 2π) if it is above −2π; a negative one too small to tell from 0 gives
  /// 2π. Whole turns are counted up to 2³² − 1.
  /// Kept: angles from −2π down stay negative: unchanged above −4π, from there down moved away from zero.
  static double FNRange(double radians);

  /// The four-quadrant arctangent in radians, [0, 2π).
  /// Kept: for x = 0 it is ±π/2 with the sign of y.
  static double FNatn2(double y, double x);

  /// The arcsine in radians, −π/2..π/2; NaN outside −1..1.
  static double FNasin(double x);

  // Series of the Sun and the Moon (SunAndMoonSeries.cpp)

  /// The Sun. `centuries`: Julian centuries of 36525 days from 2000 January 1, 12h.
  /// Accuracy: 0.011°, at most 0.022°. Montenbruck and Pfleger, MiniSun.
  static EquatorialCoordinates _minisun(double centuries);

  /// The Moon, geocentric. `centuries` as above. Accuracy: 0.025°, at most 0.094°. Montenbruck and Pfleger,
  /// MiniMoon.
  static EquatorialCoordinates _minimoon(double centuries);

  /// Sine of the geometric altitude of a body's centre, seen from the centre of the Earth, without
  /// refraction. `object`: 1.0 is the Moon, every other value the Sun; `mjd0`: the day's 0h; `hour`: after
  /// it, may lie outside 0..24.
  static double _sin_alt(double object, double mjd0, double hour, double longitude, double cosLatitude,
                         double sinLatitude);

  // Rise, set and twilight (RiseSetSearch.cpp)
  //
  // The altitude is sampled hourly from local midnight on, two hours are joined by a parabola, over at most
  // 48 hours (Montenbruck and Pfleger, SunSet). Altitudes of the centre: Sun −0.833°, Moon +8′.
  // Accuracy of the whole minutes on every day of 2024 at 15 places up to 60.2° of latitude: Sun 0.35 min, at
  // most 0.9 min, Moon 0.36 min, at most 1.3 min. Nearer to the poles, where a body grazes its altitude,
  // more.

  /// Rise, set and twilight of the instant's calendar day at the place; `date` of the record is left alone.
  /// `secondsFromGMT`: the offset in force on that day; it is also the zone of a place without a `timezone`.
  /// `twilight`: 0 civil (Sun at −6°), 1 nautical (−12°), 2 astronomical (−18°); must be one of these, of
  /// others the nearest is taken.
  /// Kept: the Sun's set is the one that follows its rise, the Moon's the first of the day.
  static RiseSetData Compute(Instant date, const GeoLocationData& location, std::int64_t secondsFromGMT,
                             int twilight);

  /// The part of `Compute` for the Sun: writes its minutes, the day length, and the texts of what happens; a
  /// pair of texts of which neither event happens is left as it is. `mjd0`: 0h of the local date taken as
  /// universal time; `offsetHours`: of local time, east of Greenwich positive.
  static void _find_sun_and_twi_events_for_date(RiseSetData& record, int twilight, double mjd0,
                                                double offsetHours, double longitude, double latitude);

  /// The part of `Compute` for the Moon: writes its texts and minutes. Arguments as above.
  static void _find_moonrise_set(RiseSetData& record, double mjd0, double offsetHours, double longitude,
                                 double latitude);

  // Positions (HorizontalPosition.cpp, the Sun's longitude HorizontalCoordinates.cpp)
  //
  // All are those of the centre, seen from the centre of the Earth, without refraction. Azimuth: north is
  // zero and east is +90°. Accuracy: Sun 0.004°, at most 0.012°, Moon 0.025°, at most 0.094°.

  /// The Sun's ecliptic longitude of date in radians, [0, 2π) from 2000 on; before, `FNRange` may leave it
  /// negative. Astronomical Almanac.
  static double FNsun(double daysFromJ2000);

  /// The Sun at `hour` (may exceed 24) of a universal date, 1901 to 2099. Longitude and latitude in radians.
  /// Kept: the record's `hour` is hour + `timezoneInterval`, plus 24 once if that is below zero.
  static PositionData CalculateSunPosition(double longitude, double latitude, std::int64_t year,
                                           std::int64_t month, std::int64_t day, double hour,
                                           std::int64_t timezoneInterval);

  /// The Moon at `hour` of universal time, counted from 0h of the date, below 0 and above 24 too. Longitude
  /// and latitude in radians. The record's `hour` is hour + `timezoneInterval` (hours). The azimuth has no
  /// meaning at the poles and the zenith and may be NaN there.
  static PositionData CalculateMoonPosition(double longitude, double latitude, std::int32_t year,
                                            std::int32_t month, std::int32_t day, double hour,
                                            double timezoneInterval);

  /// The Sun at the instant, to the minute. `secondsFromGMT`: the offset in force. The record's `hour` is the
  /// whole hour of universal time.
  /// Kept: within the offset of a clock change the Sun is an hour off, since the instant moved by the offset
  /// is read on the place's clocks.
  static PositionData ComputeSunPosition(Instant date, const GeoLocationData& location,
                                         std::int64_t secondsFromGMT);

  /// The Moon at the instant, to the minute. `secondsFromGMT`: the offset in force. The record's `hour` is
  /// the local one with minutes as a fraction.
  static PositionData ComputeMoonPosition(Instant date, const GeoLocationData& location,
                                          std::int64_t secondsFromGMT);

  /// The Moon at `hour` of universal time after `mjd0`; the record's `hour` is that hour. Azimuth as in
  /// `CalculateMoonPosition`.
  static PositionData _find_moon_position(double mjd0, double hour, double longitude, double cosLatitude,
                                          double sinLatitude);

  // Series of a day and elevation crossings (DaySeries.cpp)

  /// The Moon at the local hours 0 to 24 of the instant's calendar day: 25 records, `hour` 0 to 24.
  static std::vector<PositionData> Get24HourMoonPositionsForDate(Instant date,
                                                                 const GeoLocationData& location,
                                                                 std::int64_t secondsFromGMT);

  /// The Sun at 24 hours from the whole universal hour of the instant on. A sample's time is its index.
  /// Kept: the records' `hour` has no clock meaning: the hour of universal time plus the offset in seconds.
  static std::vector<PositionData> Get24HourSunPositionsForDate(Instant date, const GeoLocationData& location,
                                                                std::int64_t secondsFromGMT);

  /// The moments in the 24 hours from the instant on at which the Sun reaches `elevation` (degrees), in time
  /// order. Hourly samples within 0.05° of it count. A refined record's `altitude` is exactly `elevation`;
  /// its texts are those of the altitude computed. `includeIntermediatealues` adds the hourly samples after
  /// the first event. Kept: between samples the moment is refined only in hours in which the Sun crosses the
  /// horizon, since this is made for elevations near 0; it ends with the second refined event; the records'
  /// `hour` is that of universal time plus the whole hours of the offset, plus 24 once if that is below zero;
  /// the spelling of the last argument.
  static std::vector<PositionData> EventsMatchingSunElevation(double elevation, Instant date,
                                                              const GeoLocationData& location,
                                                              std::int64_t secondsFromGMT,
                                                              bool includeIntermediatealues);

  /// The same of the Moon. The records' `hour` is the local one, below 0 or above 24 where the day changes.
  static std::vector<PositionData> EventsMatchingMoonElevation(double elevation, Instant date,
                                                               const GeoLocationData& location,
                                                               std::int64_t secondsFromGMT,
                                                               bool includeIntermediatealues);
};

}  // namespace velmora
