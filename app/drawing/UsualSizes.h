#pragma once

#include <string>

#include <app/answers/Query.h>
#include <velmora/platform/graphics/AttributedText.h>
#include <velmora/platform/graphics/Geometry.h>

namespace velmora::app {

/// The widest that a picture becomes for its texts, in points.
constexpr double widestPicture = 1600;

/// Of the text on one line.
double widthOf(const std::string& text, const TextAttributes& attributes);

/// As wide as a phone; as a tablet where two calendars' numbers stand side by side, which a phone would cut.
Size monthSize(const Query& query);

/// So wide that every date of the selected year fits its column in the language.
Size yearSize(const Query& query);

/// Of the selected month's whole list, as wide as `riseSetWidth` says. Times that run over another even so
/// are counted in the log.
Size riseSetSize(const Query& query);

}  // namespace velmora::app
