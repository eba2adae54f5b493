#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <velmora/platform/time/Instant.h>

namespace velmora {

/// The library's date tests, day arithmetic and display formats. Everything is in the process's default zone;
/// no date gives no result.
class DateHelper {
 public:
  /// Whether the tables cover the date: its year is 2000 to 2040.
  static bool IsDateValid(std::optional<Instant> date);

  /// Whether day and month of both dates are the same.
  /// Kept: the year plays no part; 5 March 2020 and 5 March 2021 are equal.
  static bool AreEqual(std::optional<Instant> date1, std::optional<Instant> date2);

  /// The start of the date's day plus that many seconds of elapsed time.
  static std::optional<Instant> AddSecondsToDateFromMidnight(std::optional<Instant> date,
                                                             std::int64_t secondsFromMidnight);

  /// The date moved by that many days, at the same time on the clock.
  static std::optional<Instant> AdjustDaysToDate(std::optional<Instant> date, std::int64_t days);

  /// "Thu June 20, 2024".
  static std::optional<std::string> GetDateFormattedString(std::optional<Instant> date);

  /// The date in the caller's Unicode pattern.
  static std::optional<std::string> GetTimeFormattedStringWithFormat(std::optional<Instant> date,
                                                                     const std::string& formatString);

  /// "10 hrs 05 mins" for 605 minutes; hours and minutes are cut toward zero, each with at least two digits.
  /// Of the hours the low 32 bits count.
  static std::string GetDayLengthString(std::int64_t minutes);

  /// "17:05" or "05:05 PM".
  static std::optional<std::string> GetTimeFormattedString(std::optional<Instant> date, bool use24Hour);

  /// "Thu Jun 20, 2024  17:05" or "Thu Jun 20, 2024  05:05 PM".
  /// Kept: two blanks before the time, here and in the short form.
  static std::optional<std::string> GetDateAndTimeFormattedString(std::optional<Instant> date,
                                                                  bool use24Hour);

  /// "Jun 20, 2024  05:05 PM".
  /// Kept: in the 12-hour form whatever the flag says, unlike the long form.
  static std::optional<std::string> GetDateAndTimeFormattedShortString(std::optional<Instant> date,
                                                                       bool use24Hour);
};

}  // namespace velmora
