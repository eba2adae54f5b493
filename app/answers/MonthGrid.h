#pragma once

#include <string>
#include <vector>

#include <app/answers/Phases.h>

namespace velmora::app {

/// The days of a month as a calendar of weeks, the locale's first weekday at the left: each day's number, the
/// glyph of a principal phase, and a star where an eclipse is seen; under it what the marks mean.
std::string monthGrid(const std::vector<MoonDay>& days, const Query& query);

}  // namespace velmora::app
