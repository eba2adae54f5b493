#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <velmora/foundation/GeoLocationData.h>
#include <velmora/phases/MonthDataItem.h>
#include <velmora/phases/PhaseItem.h>
#include <velmora/phases/YearTable.h>
#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {

/// The phase calendar: what the yearly tables hold, and what follows from it for every day of a month as seen
/// from a place. Operations without state. Months are zero-based here, 0 = January.
class MoonPhaseCalc {
 public:
  /// A month's principal events; phase and picture number by day of the month.
  using MonthEvents = std::vector<std::shared_ptr<MonthDataItem>>;
  using PhaseCalendar = std::map<std::int64_t, std::shared_ptr<PhaseItem>>;
  using ImageCalendar = std::map<std::int64_t, std::int32_t>;

  // Yearly tables (YearTables.cpp)

  /// The yearly table in the library's resource of that name ("Data/2024"); empty if it is missing or
  /// unreadable.
  static std::shared_ptr<const YearTable> GetFileContents(const std::string& resourceName);

  /// Number of days of the month in the Gregorian calendar; 31 for a month outside 0 to 11.
  static std::int64_t GetNumberOfDaysInMonth(std::int64_t month, std::int64_t year);

  /// The English name of a phase 0 to 7; none outside.
  static std::optional<std::string> nameForPhase(std::int64_t phase);

  // Events of a month (MonthEvents.cpp)

  /// The principal phases whose date in the location's zone lies in month `currentMonth` of `currentYear`,
  /// from the lines of month `monthOfData` of the year `yearOfData` and of the months before and after it,
  /// for which the neighbouring year's table is read where the library has one.
  ///
  /// Kept: the order, which is the previous month's events, the month's own, the next month's, and for
  /// January those of the previous December last; `calendar` is left in the location's zone; `secondsFromGMT`
  /// has no effect.
  static MonthEvents GetMoonPhaseDataForMonth(const YearTable& table, std::int64_t yearOfData,
                                              std::int64_t monthOfData, Calendar& calendar,
                                              std::int64_t secondsFromGMT, std::int64_t currentYear,
                                              std::int64_t currentMonth, const GeoLocationData& location,
                                              bool use24HourTimeFormat);

  /// Appends to `processedData` those events of one month's lines whose date in the location's zone lies in
  /// month `currentMonth` of `currentYear`; lines that cannot be read are passed over.
  /// Kept: `calendar` is left in the location's zone; `secondsFromGMT`, `outputFormatter` and `utc` have no
  /// effect.
  static void InternalProcessData(const std::vector<std::string>& lines, std::int64_t yearOfData,
                                  std::int64_t monthOfData, Calendar& calendar, std::int64_t secondsFromGMT,
                                  std::int64_t currentYear, std::int64_t currentMonth,
                                  const DateFormatter& outputFormatter, const TimeZone& utc,
                                  MonthEvents& processedData, const GeoLocationData& location,
                                  bool use24HourTimeFormat);

  // Calendars of a month

  /// The phase, lit fraction and age of each day, 1 to the month's length. `table` is the year's; `date` is
  /// used for the location's offset from GMT alone. (PhaseCalendar.cpp)
  /// Kept: between two principal phases the lit fraction is linear in whole days; a day without an event
  /// before it, where the tables begin, follows a full moon on day 0; after a month without a new moon the
  /// age starts at that month's length + 3.
  static PhaseCalendar GetPhaseCalendar(const YearTable& table, std::int64_t month, std::int64_t year,
                                        Instant date, const GeoLocationData& location,
                                        bool use24HourTimeFormat);

  /// The number of the picture that shows each day, 1 to the month's length: 0 new moon, 15 first quarter, 27
  /// full moon, 40 last quarter, linear between them up to 55. Arguments as above. Empty for a month without
  /// events. (ImageCalendar.cpp)
  /// Kept: the first of January and the last of December take theirs from the event of their own month that
  /// is nearest, which may lie above 55.
  static ImageCalendar GetImageCalendar(const YearTable& table, std::int64_t month, std::int64_t year,
                                        Instant date, const GeoLocationData& location,
                                        bool use24HourTimeFormat);
};

}  // namespace velmora
