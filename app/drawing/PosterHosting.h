#pragma once

#include <memory>

#include <app/answers/Query.h>
#include <velmora/platform/ui/View.h>
#include <velmora/posters/Poster.h>

namespace velmora::app {

/// The place of the request as posters know it.
PosterPlace posterPlaceOf(const Query& query);

/// The inks that the request wants. Throws BadInput for a theme of the views.
PaperTheme paperThemeOf(const Query& query);

/// The poster, filling the size. Throws BadInput where the almanac does not cover it.
std::shared_ptr<View> filling(std::shared_ptr<Poster> poster, Size size);

}  // namespace velmora::app
