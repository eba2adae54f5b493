#pragma once

#include <string>
#include <vector>

#include <velmora/platform/time/Instant.h>

/// The phase tables and the eclipse catalogue as they lie in the source tree, read by their grammar alone.
namespace velmora::shipped {

struct Event {
  Instant time;
  std::string code;
  std::string source;  ///< file name and text of the line, for a failing test to name
};

/// The events of all tables, in the order in which they stand there. Throws std::runtime_error naming the
/// line where a table breaks its form: keys "1" to "12" in order, events "d HH:mm CODE" of existing dates.
std::vector<Event> phases();

/// The records of the catalogue, in their order. Throws likewise.
std::vector<Event> eclipses();

}  // namespace velmora::shipped
