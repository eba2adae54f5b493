#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>

namespace velmora::testing {

/// A small picture of one pixel a point to draw on and look at.
struct Pixels {
  explicit Pixels(Size pictureSize, double pictureScale = 1)
      : canvas(PictureFormat::png, pictureSize, pictureScale),
        width(static_cast<std::size_t>(pictureSize.width * pictureScale)) {}

  /// The pixel's colour as "#RRGGBBAA", premultiplied.
  std::string at(std::size_t x, std::size_t y) const {
    const std::vector<std::uint8_t> bytes = canvas.pixels();
    const std::size_t i = (y * width + x) * 4;
    return Color{bytes.at(i) / 255.0, bytes.at(i + 1) / 255.0, bytes.at(i + 2) / 255.0,
                 bytes.at(i + 3) / 255.0}
        .text();
  }

  /// The smallest rectangle of pixels that are not fully transparent; of no size when all are.
  Rect inkBox() const {
    const std::vector<std::uint8_t> bytes = canvas.pixels();
    Rect box;
    for (std::size_t i = 0; i * 4 < bytes.size(); ++i) {
      if (bytes[i * 4 + 3] == 0) continue;
      const Rect pixel = {static_cast<double>(i % width), static_cast<double>(i / width), 1, 1};
      const Rect former = box.isEmpty() ? pixel : box;
      const double left = std::min(former.x, pixel.x), top = std::min(former.y, pixel.y);
      box = {left, top, std::max(former.maxX(), pixel.maxX()) - left,
             std::max(former.maxY(), pixel.maxY()) - top};
    }
    return box;
  }

  /// The sum of all alphas in units of one opaque pixel.
  double coverage() const {
    const std::vector<std::uint8_t> bytes = canvas.pixels();
    double sum = 0;
    for (std::size_t i = 3; i < bytes.size(); i += 4) sum += bytes[i] / 255.0;
    return sum;
  }

  CairoCanvas canvas;
  std::size_t width;
};

}  // namespace velmora::testing
