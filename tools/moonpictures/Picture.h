#pragma once

#include <cstdint>
#include <vector>

namespace moonpictures {

/// 8-bit pixels, row by row from the top: red, green, blue and opacity, the colour not multiplied by the
/// opacity.
struct Picture {
  int width = 0, height = 0;
  std::vector<std::uint8_t> pixels;

  friend bool operator==(const Picture&, const Picture&) = default;
};

}  // namespace moonpictures
