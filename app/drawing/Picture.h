#pragma once

#include <string>

#include <app/answers/Query.h>
#include <app/request/DrawableView.h>
#include <velmora/platform/graphics/Geometry.h>

namespace velmora::app {

/// A picture that has been drawn.
struct Picture {
  const DrawableView& view;
  std::string file;
  Size size;          ///< in pixels of a PNG, else in points
  std::string unit;   ///< "pixels" or "points"
  std::string bytes;  ///< of one that goes to standard output; a file has been written
};

/// Draws what the request asks for into its file. Characters that no installed font has, and a vector picture
/// that had to become pixels, are named in the log.
/// Throws BadInput and Failure; the file is then as it was.
Picture drawPicture(const Query& query);

}  // namespace velmora::app
