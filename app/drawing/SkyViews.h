#pragma once

#include <memory>
#include <string>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

/// A compass with the direction up that the request faces. On it lies the Moon's path, a half circle from the
/// azimuth of moonrise to that of moonset by the side on which the Moon is highest, and the Moon as it stands
/// at the request's moment. There is no path where the Moon neither rises nor sets.
std::shared_ptr<View> makeCompass(const Query& query, Size size);

/// The Moon's path alone, as seen facing its highest point: the zenith at the top, due east and due west at
/// the ends.
std::shared_ptr<View> makeElevationArc(const Query& query, Size size);

/// Where the Moon stands: "47° above the horizon, 156° SSE".
std::string moonText(const Query& query);

}  // namespace velmora::app
