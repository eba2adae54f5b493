#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace velmora {

/// Pixels of a picture: rows from the top, in each row from the left red, green, blue, alpha of 8 bits, the
/// colours premultiplied by alpha.
using PixelBytes = std::vector<std::uint8_t>;

/// The size of a picture in pixels.
struct PixelSize {
  /// Pixels across and down.
  std::int64_t width = 0;
  std::int64_t height = 0;

  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// What Image needs of a picture format; the adapter in png/ implements it.
class ImageDecoder {
 public:
  /// The size that the encoded picture's head states; none if it is no picture, or above 4096 pixels a side.
  static std::optional<PixelSize> pixelSize(std::string_view encoded);

  /// The picture's pixels; none if it cannot be decoded to its end.
  static std::optional<PixelBytes> decode(std::string_view encoded);
};

}  // namespace velmora
