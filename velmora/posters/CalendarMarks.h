#pragma once

#include <velmora/platform/graphics/Path.h>

namespace [[gnu::visibility("hidden")]] velmora {

class Sheet;

/// The signs of a calendar's page, gathered and then drawn as one figure a kind. Each kind has a shape of its
/// own, so that no colour is needed to tell them apart.
class CalendarMarks {
 public:
  enum class Kind { sun, moon, rise, set };

  /// In the middle of the room, that many points wide.
  void add(Kind kind, Rect room, double width);

  void draw(Sheet& sheet) const;

 private:
  Path _sun, _moon, _arrows;
};

}  // namespace velmora
