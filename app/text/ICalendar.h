#pragma once

#include <optional>
#include <string>
#include <vector>

#include <velmora/platform/time/Instant.h>

namespace velmora::app {

/// An event of no length in a calendar that other programs read.
struct CalendarEvent {
  std::string kind;  ///< letters and digits; names the event together with its instant
  Instant instant;
  std::string summary;
  std::optional<std::string> location = std::nullopt;
  std::optional<std::string> description = std::nullopt;
};

/// The events as an iCalendar object (RFC 5545) in UTF-8: every instant in universal time, each event under a
/// UID that stays the same from one writing to the next. `stamp`: when it is written.
std::string iCalendar(const std::vector<CalendarEvent>& events, Instant stamp);

}  // namespace velmora::app
