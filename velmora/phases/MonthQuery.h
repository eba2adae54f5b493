#pragma once

#include <cstdint>

#include <velmora/phases/MoonPhaseCalc.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Asks for the events of one month after another as seen from a place.
class MonthQuery {
 public:
  /// `date` is used for the location's offset from GMT alone.
  MonthQuery(Instant date, const GeoLocationData& location, bool use24HourTimeFormat)
      : _location(location),
        _secondsFromGMT(location.GetTimezoneIntervalFromGMT(date)),
        _calendar(location.calendarZone(_secondsFromGMT)),
        _use24HourTimeFormat(use24HourTimeFormat) {}

  /// The events of the month (0 = January) of the year whose table is given.
  MoonPhaseCalc::MonthEvents events(const YearTable& table, std::int64_t year, std::int64_t month) {
    return MoonPhaseCalc::GetMoonPhaseDataForMonth(table, year, month, _calendar, _secondsFromGMT, year,
                                                   month, _location, _use24HourTimeFormat);
  }

 private:
  const GeoLocationData& _location;
  std::int64_t _secondsFromGMT;
  Calendar _calendar;
  bool _use24HourTimeFormat;
};

}  // namespace velmora
