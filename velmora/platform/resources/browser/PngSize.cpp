#include <velmora/platform/resources/ImageDecoder.h>

namespace velmora {
namespace {

constexpr std::int64_t maximumSide = 4096;

// Signature, length of the first chunk and its name; width and height follow. (PNG specification, 5.2
// and 11.2.2)
constexpr std::string_view beginning("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
constexpr std::size_t widthAt = beginning.size();
constexpr std::size_t heightAt = widthAt + 4;
constexpr std::size_t headSize = heightAt + 4;

std::int64_t bigEndian(std::string_view bytes) {
  std::int64_t value = 0;
  for (const char byte : bytes) value = value * 256 + static_cast<std::uint8_t>(byte);
  return value;
}

bool isSide(std::int64_t pixels) { return pixels >= 1 && pixels <= maximumSide; }

}  // namespace

std::optional<PixelSize> ImageDecoder::pixelSize(std::string_view encoded) {
  if (encoded.size() < headSize || !encoded.starts_with(beginning)) return std::nullopt;
  const PixelSize size = {.width = bigEndian(encoded.substr(widthAt, 4)),
                          .height = bigEndian(encoded.substr(heightAt, 4))};
  if (!isSide(size.width) || !isSide(size.height)) return std::nullopt;
  return size;
}

/// A browser decodes pictures by itself, from their encoded bytes; here are no pixels.
std::optional<PixelBytes> ImageDecoder::decode(std::string_view) { return std::nullopt; }

}  // namespace velmora
