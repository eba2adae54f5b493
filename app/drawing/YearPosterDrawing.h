#pragma once

#include <memory>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

Size yearPosterSize(const Query& query);
/// The Moons of the day's year. Throws BadInput where one is not covered.
std::shared_ptr<View> makeYearPoster(const Query& query, Size size);

}  // namespace velmora::app
