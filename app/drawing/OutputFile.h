#pragma once

#include <filesystem>
#include <string>

#include <app/request/DrawingRequest.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>

namespace velmora::app {

/// Where a picture goes.
struct OutputFile {
  std::string name;            ///< as the request gives it
  std::filesystem::path path;  ///< empty for standard output
  PictureFormat format;

  bool isStandardOutput() const { return path.empty(); }
};

/// What the request asks for. Throws BadInput if that is nothing, has no known format, is a pipe, or lies
/// outside the folder that the request must stay in.
OutputFile outputFileOf(const DrawingRequest& drawing);

}  // namespace velmora::app
