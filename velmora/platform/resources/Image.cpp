#include <velmora/platform/resources/Image.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <utility>

namespace velmora {
namespace {

constexpr std::size_t bytesPerPixel = 4;

std::uint64_t nextSerial() {
  static std::atomic<std::uint64_t> last = 0;
  return ++last;
}

void exchangeLeftAndRight(PixelBytes& pixels, std::size_t width) {
  const std::size_t rowSize = width * bytesPerPixel;
  for (std::size_t row = 0; row < pixels.size(); row += rowSize) {
    for (std::size_t column = 0; column < width / 2; ++column) {
      std::uint8_t* left = pixels.data() + row + column * bytesPerPixel;
      std::uint8_t* right = pixels.data() + row + (width - 1 - column) * bytesPerPixel;
      std::swap_ranges(left, left + bytesPerPixel, right);
    }
  }
}

}  // namespace

std::shared_ptr<const Image> Image::fromBytes(std::string name, std::string encoded, double scale) {
  const std::optional<PixelSize> size = ImageDecoder::pixelSize(encoded);
  if (!size) return nullptr;
  return std::make_shared<const Image>(
      Key{}, std::move(name), std::make_shared<const std::string>(std::move(encoded)), scale, *size, false);
}

Image::Image(Key, std::string name, std::shared_ptr<const std::string> encoded, double scale,
             PixelSize pixelSize, bool isMirrored)
    : _serial(nextSerial()),
      _name(std::move(name)),
      _encoded(std::move(encoded)),
      _scale(scale),
      _pixelSize(pixelSize),
      _isMirrored(isMirrored) {}

std::shared_ptr<const Image> Image::mirrored() const {
  return std::make_shared<const Image>(Key{}, _name, _encoded, _scale, _pixelSize, !_isMirrored);
}

const PixelBytes& Image::pixels() const {
  std::call_once(_isDecoded, [this] { _pixels = decodedPixels(); });
  return _pixels;
}

PixelBytes Image::decodedPixels() const {
  PixelBytes pixels = ImageDecoder::decode(*_encoded).value_or(PixelBytes());
  if (_isMirrored) exchangeLeftAndRight(pixels, static_cast<std::size_t>(_pixelSize.width));
  return pixels;
}

}  // namespace velmora
