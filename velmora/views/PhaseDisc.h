#pragma once

#include <velmora/phases/PhaseItem.h>
#include <velmora/platform/graphics/Canvas.h>
#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Geometry.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The Moon as views draw it: a circle whose lit part is shaped by a day's phase and lit fraction. The views
/// differ in where the disc lies in the rectangle they are given and in the colour of its dark part.
struct PhaseDisc {
  double x = 0;  ///< of the left edge
  double y = 0;  ///< of the upper edge
  double diameter = 0;

  /// MoonPhaseIconView: as high as the rectangle without a point above and below.
  /// Kept: one point right of the middle.
  static PhaseDisc inIcon(Rect rect);
  /// iPhoneCalendarView and MoonPhaseYearView: as wide as the cell without the padding, at its top.
  static PhaseDisc inCalendarCell(Rect rect, double padding);
  /// MoonRiseSetDayView: as high as the rectangle without 8 points, at its top.
  static PhaseDisc inRiseSetDay(Rect rect);

  Rect square() const { return {x, y, diameter, diameter}; }

  /// Draws the day's disc: the lit part in the canvas's fill colour, the outline in its stroke colour, the
  /// dark part of a crescent in `darkColor`. Phase and `fullFactor` (0 to 1) are read, nothing else. South of
  /// the equator left and right change places. A phase outside 0 to 7 draws nothing.
  ///
  /// Full and new moon leave the line width at 1; everything else comes back as it was.
  void draw(Canvas& canvas, const PhaseItem& day, bool isSouthernHemisphere, const Color& darkColor) const;
};

}  // namespace velmora
