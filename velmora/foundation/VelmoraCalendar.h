#pragma once

#include <string>
#include <vector>

#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/DateFormatter.h>

namespace velmora {

/// The one calendar and the one kind of date formatter that the whole library uses.
class VelmoraCalendar {
 public:
  /// A new Gregorian calendar in the process's default zone.
  static Calendar applicationCalendar();

  /// A new formatter in the current locale and the process's default zone, without a pattern.
  static DateFormatter calendarDateFormatter();

  /// The short weekday names, Sunday first.
  /// Kept: they are those of the locale of the first call in the process.
  static const std::vector<std::string>& shortWeekdayStrings();

  /// The short month names, January first.
  /// Kept: they are those of the locale of the first call in the process.
  static const std::vector<std::string>& shortMonthStrings();

  /// Forgets these names: for tests, and for a host between requests in different languages.
  static void resetSymbols();
};

}  // namespace velmora
