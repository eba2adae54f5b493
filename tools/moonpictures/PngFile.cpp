#include "PngFile.h"

#include <png.h>

#include <stdexcept>

namespace moonpictures {

void writePng(const Picture& picture, const std::string& path) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width);
  image.height = static_cast<png_uint_32>(picture.height);
  image.format = PNG_FORMAT_RGBA;
  if (!png_image_write_to_file(&image, path.c_str(), 0, picture.pixels.data(), 0, nullptr))
    throw std::runtime_error(path + ": " + image.message);
}

std::optional<Picture> readPng(const std::string& path) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_file(&image, path.c_str())) return std::nullopt;
  image.format = PNG_FORMAT_RGBA;
  Picture picture{static_cast<int>(image.width), static_cast<int>(image.height), {}};
  picture.pixels.resize(PNG_IMAGE_SIZE(image));
  if (!png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr)) return std::nullopt;
  return picture;
}

}  // namespace moonpictures
