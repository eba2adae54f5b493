#pragma once

#include <cstddef>
#include <vector>

#include <velmora/almanac/EventFinder.h>
#include <velmora/almanac/Events.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// Deals the events of a stretch of time out to the days in it.
class DayRecord {
 public:
  /// What was found, in one sky at least, must outlive it.
  DayRecord(const Findings& found, const EventChoice& choice)
      : _events(found.events), _state(*found.before), _choice(choice) {}

  /// The next day; one after another in time.
  Day day(Interval interval);

 private:
  const std::vector<Event>& _events;
  SkyState _state;
  EventChoice _choice;
  std::size_t _next = 0;  ///< the first event that lies after the days dealt out
};

}  // namespace almanac
}  // namespace velmora
