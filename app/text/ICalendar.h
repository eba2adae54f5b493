#pragma once

#include <optional>
#include <string>
#include <vector>

#include <app/text/CivilTime.h>
#include <velmora/platform/time/Instant.h>

namespace velmora::app {

/// An event of no length, or a whole day, in a calendar that other programs read.
struct CalendarEvent {
  std::string kind;  ///< letters and digits; names the event together with its instant
  Instant instant;
  std::string summary;
  std::optional<std::string> location = std::nullopt;
  std::optional<std::string> description = std::nullopt;
  std::string place = "";                       ///< in the UID of what depends on it: letters, digits, . - _
  std::optional<CivilDate> day = std::nullopt;  ///< the event is that day, not the instant
};

/// The events as an iCalendar object (RFC 5545, its name by RFC 7986) in UTF-8: every instant in universal
/// time, each event under a UID that stays the same from one writing to the next. `stamp`: when it is
/// written.
std::string iCalendar(const std::string& name, const std::vector<CalendarEvent>& events, Instant stamp);

}  // namespace velmora::app
