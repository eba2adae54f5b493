#pragma once

#include <memory>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>

namespace velmora::app {

/// Of the sheet, standing.
Size darknessSize(const Query& query);
/// The nights of the day's year. Throws BadInput where one is not covered.
std::shared_ptr<View> makeDarkness(const Query& query, Size size);

}  // namespace velmora::app
