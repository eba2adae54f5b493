#pragma once

#include <optional>
#include <string>

#include "Picture.h"

namespace moonpictures {

/// Throws std::runtime_error when the file cannot be written.
void writePng(const Picture& picture, const std::string& path);

/// None when there is no such file or it is not a picture.
std::optional<Picture> readPng(const std::string& path);

}  // namespace moonpictures
