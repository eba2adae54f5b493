#pragma once

#include <velmora/posters/CalendarPart.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// What stands above and below a month's days: its name, its principal phases, the meaning of the signs, its
/// eclipses.
class CalendarHead final : private CalendarPart {
 public:
  using CalendarPart::CalendarPart;

  /// With the discs as they hang in the sky, or upright.
  void draw(bool isTilted) const;

 private:
  void drawTitle() const;
  void drawPhases(bool isTilted) const;
  void drawKeys() const;
  void drawNotes() const;
  std::vector<const CalendarDay*> eclipseDays() const;
  std::string eclipseText(const almanac::LocalEclipse& eclipse) const;
};

}  // namespace velmora
