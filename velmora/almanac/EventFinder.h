#pragma once

#include <optional>
#include <vector>

#include <velmora/almanac/Events.h>
#include <velmora/almanac/Level.h>
#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Place.h>
#include <velmora/almanac/Sky.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// What the sky of a place is like at a moment.
struct SkyState {
  bool isSunUp = false, isMoonUp = false, isDark = false;

  /// Becomes what it is after the event.
  void take(const Event& event);
};

/// What was found in skies that follow one another.
struct Findings {
  std::optional<SkyState> before;  ///< when the first one began; none where there was none
  std::vector<Event> events;       ///< in time order
};

/// Finds the events of a place.
class EventFinder {
 public:
  /// What is looked for; rise and set go together, as do dawn and dusk.
  struct Wanted {
    bool sun = false, moon = false;
    bool civil = false, nautical = false, astronomical = false;
    bool sunTransit = false, moonTransit = false;
  };

  EventFinder(const Place& place, const Convention& convention, const Wanted& wanted);

  /// Appends what there is in a sky, from its first sample to its last.
  void add(const Sky& sky, Findings& findings) const;

 private:
  class Listing;

  Observer _observer;
  Level _sun, _moon;
  Wanted _wanted;
};

}  // namespace almanac
}  // namespace velmora
