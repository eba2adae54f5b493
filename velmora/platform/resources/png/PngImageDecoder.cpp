#include <png.h>

#include <cstddef>

#include <velmora/platform/resources/ImageDecoder.h>

namespace velmora {
namespace {

constexpr png_uint_32 maximumSide = 4096;
constexpr unsigned opaque = 255;

/// A picture whose head has been read; freed with the object.
class PngReader {
 public:
  explicit PngReader(std::string_view encoded) {
    _image.version = PNG_IMAGE_VERSION;
    _isOpen = png_image_begin_read_from_memory(&_image, encoded.data(), encoded.size()) != 0 &&
              _image.width <= maximumSide && _image.height <= maximumSide;
    _image.format = PNG_FORMAT_RGBA;
  }
  ~PngReader() { png_image_free(&_image); }
  PngReader(const PngReader&) = delete;
  PngReader& operator=(const PngReader&) = delete;

  bool isOpen() const { return _isOpen; }
  PixelSize size() const { return {.width = _image.width, .height = _image.height}; }

  std::optional<PixelBytes> readPixels() {
    PixelBytes pixels(PNG_IMAGE_SIZE(_image));
    if (!png_image_finish_read(&_image, nullptr, pixels.data(), 0, nullptr)) return std::nullopt;
    return pixels;
  }

 private:
  png_image _image{};
  bool _isOpen = false;
};

void premultiply(PixelBytes& pixels) {
  for (std::size_t pixel = 0; pixel < pixels.size(); pixel += 4) {
    const unsigned alpha = pixels[pixel + 3];
    for (std::size_t colour = pixel; colour < pixel + 3; ++colour) {
      pixels[colour] = static_cast<std::uint8_t>((pixels[colour] * alpha + opaque / 2) / opaque);
    }
  }
}

}  // namespace

std::optional<PixelSize> ImageDecoder::pixelSize(std::string_view encoded) {
  const PngReader reader(encoded);
  if (!reader.isOpen()) return std::nullopt;
  return reader.size();
}

std::optional<PixelBytes> ImageDecoder::decode(std::string_view encoded) {
  PngReader reader(encoded);
  if (!reader.isOpen()) return std::nullopt;
  std::optional<PixelBytes> pixels = reader.readPixels();
  if (pixels) premultiply(*pixels);
  return pixels;
}

}  // namespace velmora
