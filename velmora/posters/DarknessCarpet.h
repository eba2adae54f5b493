#pragma once

#include <vector>

#include <velmora/posters/DarknessLayout.h>
#include <velmora/posters/DarknessYear.h>
#include <velmora/posters/Sheet.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// The nights of a year as areas and lines.
void drawCarpet(Sheet& sheet, const DarknessLayout& layout, const DarknessYear& year);

/// The colour of the carpet's moonrises, and of its moonsets.
Color moonriseColor(const Palette& palette);
Color moonsetColor(const Palette& palette);

/// How the moonsets' lines are broken, so that a grey print tells them from the moonrises'.
std::vector<double> moonsetDash(double unit);

/// The sky under the brightest moonlight that the carpet tells apart.
Color brightestMoonlight(const Palette& palette);

}  // namespace velmora
