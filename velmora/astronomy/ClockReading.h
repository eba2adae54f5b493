#pragma once

#include <string>

namespace [[gnu::visibility("hidden")]] velmora {

// Clock readings that the files of the engine share; not for other folders.

/// A fractional hour rounded to the minute; whole numbers, below zero for an hour below zero.
struct ClockReading {
  double hour = 0.0;
  double minute = 0.0;
};

/// The nearest minute to a time of day in hours, a half rounded up: 13.999 is 14:00, 23.9999 is 24:00.
ClockReading clockReading(double hours);

/// The number cut toward zero, like "7".
std::string wholeText(double number);

/// As above with at least two digits, like "07".
std::string twoDigits(double number);

/// `hours` as "17:05" or "05:05 PM".
/// Kept: in the 12-hour form the hour after midnight is written 00 and 24:00 is written "12:00 PM".
std::string textOfHour(double hours, bool use24Hour);

}  // namespace velmora
