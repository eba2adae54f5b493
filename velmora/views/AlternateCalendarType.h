#pragma once

#include <cstdint>
#include <optional>

#include <velmora/platform/time/AlternateCalendar.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {

/// The numbers by which hosts choose the calendar that a month view shows beside the Gregorian one. Any other
/// number means none.
enum AlternateCalendarType : std::int64_t {
  kNoAlternateCalendar = 0,
  kHebrewCalendar = 1,
  kIslamicUmmAlQuraCalendar = 2,
  kBuddhistCalendar = 3,
  kJapaneseCalendar = 4,
  kChineseCalendar = 5,
  kIndianCalendar = 6,
};

/// The calendar of that number; none for any other.
std::optional<AlternateCalendar::Kind> kindOfAlternateCalendar(std::int64_t type);

/// The locale whose digits write the calendar's days; none where they are written as the user's own.
std::optional<Locale> localeOfAlternateDays(std::int64_t type);

}  // namespace velmora
