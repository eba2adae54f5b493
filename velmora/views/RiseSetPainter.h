#pragma once

#include <string>

#include <velmora/astronomy/RiseSetData.h>
#include <velmora/platform/graphics/Canvas.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/views/RiseSetStrip.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Draws a day on its strip of 24 hours, mirrored where the layout runs from right to left.
class RiseSetPainter {
 public:
  RiseSetPainter(Canvas& canvas, RiseSetStrip strip) : _canvas(canvas), _strip(strip) {}

  /// The Moon's bar or bars; icon and time of a rise and of a set within the day.
  void drawMoon(const RiseSetData& day);
  /// The bar of daylight with both icons and times, whatever the Sun does that day.
  void drawDaylight(const RiseSetData& day);
  /// The dotted line between Moon and Sun.
  void drawMidline(const Color& color);

 private:
  Rect mirrored(Rect rect) const;
  void fillBar(Rect bar);
  void fillSegments(Rect untilSet, Rect fromRise);
  void fillSegment(Rect segment, unsigned corners);
  void drawMoonrise(Rect bar, const std::string& time);
  void drawMoonset(Rect bar, const std::string& time);
  void drawMoonIcon(const char* name, Rect place);
  void drawIcon(const char* name, Rect place, double alpha);

  Canvas& _canvas;
  RiseSetStrip _strip;
};

}  // namespace velmora
