#pragma once

#include <vector>

#include <velmora/platform/events/NotificationCenter.h>
#include <velmora/platform/ui/View.h>

namespace velmora {

/// The selected month of the shared service as a grid of pictures of the Moon with day numbers, today's in
/// yellow. Weeks begin on Sunday, on the left in every language; the upper 90 points stay free for a title.
/// Nothing is drawn for a month without pictures. Another date and another place ask for a drawing.
class MoonCalendarView : public View {
 public:
  MoonCalendarView();

  /// One element a picture, in day order: date and phase.
  std::vector<AccessibilityElement> accessibilityElements() override;

  void drawRect(Canvas& canvas, Rect rect) override;

 private:
  NotificationCenter::Subscription _dateChanges, _placeChanges;
};

}  // namespace velmora
