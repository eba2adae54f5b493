#pragma once

#include <app/drawing/Picture.h>

namespace velmora::app {

/// The part of the program that draws. It is a library of its own: those for displays under it take longer to
/// load than most answers take to compute.
struct Drawing {
  Picture (*picture)(const Query&);  ///< `drawPicture`
};

/// Loads that part when first asked for. Throws Failure if it cannot be loaded.
const Drawing& drawing();

}  // namespace velmora::app

/// What the library shows.
extern "C" const velmora::app::Drawing velmoraDrawing;
