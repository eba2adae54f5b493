#pragma once

#include <velmora/almanac/Positions.h>
#include <velmora/platform/graphics/Path.h>

namespace [[gnu::visibility("hidden")]] velmora {

class Sheet;

/// How a disc is lit: which part of it, 0 to 1, and from where: radians clockwise from straight up.
struct MoonLight {
  double fraction = 0;
  double direction = 0;
};

/// As the Moon hangs in the sky.
MoonLight tilted(const almanac::Illumination& moon);

/// As calendars show it: upright, the waxing Moon lit on the right, and south of the equator on the left.
MoonLight upright(const almanac::Illumination& moon, bool isSouthernHemisphere);

/// The lit part: half of the limb, and the half ellipse in which light ends, across the light.
Path litPart(Point center, double radius, const MoonLight& light);

/// Draws the disc around the place on the sheet.
void drawMoon(Sheet& sheet, Point center, double radius, const MoonLight& light);

/// The ring around the disc of a day with an eclipse.
void drawRing(Sheet& sheet, Point center, double radius);

}  // namespace velmora
