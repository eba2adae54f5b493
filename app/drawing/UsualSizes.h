#pragma once

#include <app/answers/Query.h>
#include <velmora/platform/graphics/Geometry.h>

namespace velmora::app {

/// The widest that a picture becomes for its texts, in points.
constexpr double widestPicture = 1600;

/// A phone's width, or where two calendars' numbers stand side by side a tablet's: they would be cut.
Size monthSize(const Query& query);

/// So wide that every date of the selected year fits its column in the language.
Size yearSize(const Query& query);

/// Of the selected month's whole list: the least width from a tablet's on at which as few times as possible
/// are cut at an edge or run over another.
Size riseSetSize(const Query& query);

}  // namespace velmora::app
