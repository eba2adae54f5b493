#include <velmora/platform/system/FileReading.h>

#include <cstdint>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// What the first byte of a sequence says of the rest.
struct Utf8Lead {
  std::size_t continuationBytes;
  std::uint32_t leadBits;
  std::uint32_t smallestCodePoint;
};

std::optional<Utf8Lead> utf8Lead(std::uint8_t byte) {
  if (byte < 0x80) return Utf8Lead{0, byte, 0};
  if ((byte & 0xE0) == 0xC0) return Utf8Lead{1, byte & 0x1FU, 0x80};
  if ((byte & 0xF0) == 0xE0) return Utf8Lead{2, byte & 0x0FU, 0x800};
  if ((byte & 0xF8) == 0xF0) return Utf8Lead{3, byte & 0x07U, 0x10000};
  return std::nullopt;
}

bool isScalarValue(std::uint32_t codePoint) {
  return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

}  // namespace

std::optional<std::string> readTextFile(const std::filesystem::path& path, std::size_t maximumSize) {
  std::optional<std::string> bytes = readFile(path, maximumSize);
  if (bytes && !isUtf8(*bytes)) bytes.reset();
  return bytes;
}

bool isUtf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    const std::optional<Utf8Lead> lead = utf8Lead(static_cast<std::uint8_t>(bytes[i++]));
    if (!lead || bytes.size() - i < lead->continuationBytes) return false;
    std::uint32_t codePoint = lead->leadBits;
    for (const std::size_t end = i + lead->continuationBytes; i < end; ++i) {
      const auto byte = static_cast<std::uint8_t>(bytes[i]);
      if ((byte & 0xC0) != 0x80) return false;
      codePoint = codePoint << 6 | (byte & 0x3FU);
    }
    if (codePoint < lead->smallestCodePoint || !isScalarValue(codePoint)) return false;
  }
  return true;
}

}  // namespace velmora
