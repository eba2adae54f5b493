#pragma once

#include <memory>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora::app {

/// Of a screen, in points.
constexpr double phoneWidth = 390, tabletWidth = 768;

/// The colours that the request wants.
std::shared_ptr<VelmoraTheme> themeOf(const Query& query);

/// A view that fills the size and holds nothing yet.
std::shared_ptr<View> makeHost(Size size);

/// The largest square in the middle of the size.
Rect squareIn(Size size);

}  // namespace velmora::app
