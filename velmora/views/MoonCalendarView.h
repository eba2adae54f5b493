#pragma once

#include <velmora/platform/ui/View.h>

namespace velmora {

/// The selected month of the shared service as a grid of pictures of the Moon with day numbers, today's in
/// yellow. Weeks begin on Sunday, on the left in every language; the upper 90 points stay free for a title.
/// Nothing is drawn for a month without pictures. It does not listen for changes: the host asks for drawing.
class MoonCalendarView : public View {
 public:
  void drawRect(Canvas& canvas, Rect rect) override;
};

}  // namespace velmora
