// Any bytes are a picture or none: its pixels are as many as its head says, or none where the rest is
// damaged, and mirroring changes their order alone.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <velmora/platform/resources/Image.h>

static void require(bool condition) {
  if (!condition) std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto image = velmora::Image::fromBytes("", std::string(reinterpret_cast<const char*>(data), size));
  if (!image) return 0;
  const auto [width, height] = image->pixelSize();
  require(width > 0 && height > 0);
  const velmora::PixelBytes& pixels = image->pixels();
  require(pixels.empty() || pixels.size() == static_cast<std::size_t>(width * height * 4));
  const auto mirrored = image->mirrored();
  require(mirrored->pixels().size() == pixels.size());
  require(std::equal(pixels.begin(), pixels.begin() + (pixels.empty() ? 0 : 4),
                     mirrored->pixels().begin() + (pixels.empty() ? 0 : (width - 1) * 4)));
  return 0;
}
