#pragma once

#include <string>

#include <app/answers/Query.h>
#include <app/request/DrawableView.h>
#include <velmora/platform/graphics/Geometry.h>

namespace velmora::app {

/// A picture that has been written.
struct Picture {
  const DrawableView& view;
  std::string file;
  Size size;         ///< in pixels of a PNG, else in points
  std::string unit;  ///< "pixels" or "points"
};

/// Draws what the request asks for into its file. Characters that no installed font has are named in the log.
/// Throws BadInput and Failure; the file is then as it was.
Picture drawPicture(const Query& query);

}  // namespace velmora::app
