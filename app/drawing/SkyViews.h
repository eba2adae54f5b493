#pragma once

#include <memory>
#include <string>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

/// A compass, turned so that the direction which the request faces is at the top. On it lies the Moon's path:
/// a half circle from the azimuth of moonrise to the azimuth of moonset, on the side where the Moon is
/// highest. The Moon stands on the path as high as it is at the request's moment. Where it neither rises nor
/// sets there is no path.
std::shared_ptr<View> makeCompass(const Query& query, Size size);

/// The Moon's path alone, as it is seen by someone who faces its highest point: the zenith is at the top, due
/// east and due west are at the ends.
std::shared_ptr<View> makeElevationArc(const Query& query, Size size);

/// Where the Moon stands: "47° above the horizon, 156° SSE".
std::string moonText(const Query& query);

}  // namespace velmora::app
