#include <velmora/platform/resources/libplist/ListLimits.h>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr std::size_t maximumExpandedSize = std::size_t{4} << 20;

std::size_t occurrences(std::string_view text, std::string_view word) {
  std::size_t count = 0;
  for (auto at = text.find(word); at != text.npos; at = text.find(word, at + word.size())) ++count;
  return count;
}

/// The references between the objects of a binary list: header, objects, table of their offsets, trailer.
class BinaryList {
 public:
  explicit BinaryList(std::string_view bytes) : _bytes(bytes) {}

  /// Whether each container is referenced once at most and the root never, which makes what hangs under the
  /// root a finite tree; whether its values, copied for each reference, stay small; and whether keys are
  /// texts.
  bool isSmallTree() {
    if (!readTrailer()) return false;
    _referenced.assign(_objectCount, false);
    _referenced[_root] = true;
    for (std::size_t object = 0; object < _objectCount; ++object) {
      if (!followReferences(object)) return false;
    }
    return _containers <= maximumContainers && _expandedSize <= maximumExpandedSize;
  }

 private:
  static constexpr std::size_t trailerSize = 32;

  /// What an object's first bytes say: its kind, and how many bytes, units or references follow them.
  struct Head {
    std::uint8_t kind;
    std::size_t count;
    std::size_t contentOffset;
  };

  static constexpr std::uint8_t data = 0x4;
  static constexpr std::uint8_t textType = 0x5;
  static constexpr std::uint8_t wideText = 0x6;
  static constexpr std::uint8_t firstContainer = 0xA;
  static constexpr std::uint8_t dictionary = 0xD;

  static bool isContainer(const Head& head) { return head.kind >= firstContainer; }

  bool readTrailer() {
    if (_bytes.size() < trailerSize) return false;
    const std::size_t trailer = _bytes.size() - trailerSize;
    const auto offsetSize = number(trailer + 6, 1);
    const auto referenceSize = number(trailer + 7, 1);
    const auto objectCount = number(trailer + 8, 8);
    const auto root = number(trailer + 16, 8);
    const auto offsetTable = number(trailer + 24, 8);
    if (!offsetSize || !referenceSize || !objectCount || !root || !offsetTable) return false;
    _offsetSize = *offsetSize;
    _referenceSize = *referenceSize;
    _objectCount = *objectCount;
    _root = *root;
    _offsetTable = *offsetTable;
    return isSize(_offsetSize) && isSize(_referenceSize) && _objectCount <= _bytes.size() &&
           _root < _objectCount && _offsetTable <= _bytes.size();
  }

  static bool isSize(std::size_t size) { return size >= 1 && size <= 8; }

  /// The big-endian number at that place, if it lies within the list and is a size that memory can have.
  std::optional<std::size_t> number(std::size_t offset, std::size_t size) const {
    if (offset > _bytes.size() || _bytes.size() - offset < size) return std::nullopt;
    std::uint64_t value = 0;
    for (const char byte : _bytes.substr(offset, size)) value = value << 8 | static_cast<std::uint8_t>(byte);
    if (!std::in_range<std::size_t>(value)) return std::nullopt;
    return static_cast<std::size_t>(value);
  }

  std::optional<Head> head(std::size_t object) const {
    const auto offset = number(_offsetTable + object * _offsetSize, _offsetSize);
    if (!offset || *offset >= _bytes.size()) return std::nullopt;
    const auto marker = static_cast<std::uint8_t>(_bytes[*offset]);
    const auto kind = static_cast<std::uint8_t>(marker >> 4);
    const std::size_t count = marker & 0xFU;
    if (kind < data || count < 0xF) return Head{kind, count, *offset + 1};
    return longHead(kind, *offset + 1);
  }

  /// The head of an object whose count stands after the first byte, as an integer object of its own.
  std::optional<Head> longHead(std::uint8_t kind, std::size_t offset) const {
    if (offset >= _bytes.size()) return std::nullopt;
    const auto marker = static_cast<std::uint8_t>(_bytes[offset]);
    if (marker < 0x10 || marker > 0x13) return std::nullopt;
    const std::size_t size = std::size_t{1} << (marker & 0xFU);
    const auto count = number(offset + 1, size);
    if (!count || *count > _bytes.size()) return std::nullopt;
    return Head{kind, *count, offset + 1 + size};
  }

  bool followReferences(std::size_t object) {
    const std::optional<Head> from = head(object);
    if (!from) return false;
    if (!isContainer(*from)) return true;
    ++_containers;
    const bool isDictionary = from->kind == dictionary;
    const std::size_t references = isDictionary ? 2 * from->count : from->count;
    for (std::size_t i = 0; i < references; ++i) {
      const auto target = number(from->contentOffset + i * _referenceSize, _referenceSize);
      if (!target || *target >= _objectCount || !enter(*target)) return false;
      if (isDictionary && i < from->count && !isTextWithoutZeros(*target)) return false;
    }
    return true;
  }

  bool enter(std::size_t target) {
    const std::optional<Head> to = head(target);
    if (!to || (isContainer(*to) && _referenced[target])) return false;
    _referenced[target] = true;
    _expandedSize += 1 + to->count;
    return _expandedSize <= maximumExpandedSize;
  }

  bool isTextWithoutZeros(std::size_t object) const {
    const std::optional<Head> text = head(object);
    if (!text || (text->kind != textType && text->kind != wideText)) return false;
    const std::size_t unitSize = text->kind == textType ? 1 : 2;
    for (std::size_t i = 0; i < text->count; ++i) {
      const auto unit = number(text->contentOffset + i * unitSize, unitSize);
      if (!unit || *unit == 0) return false;
    }
    return true;
  }

  std::string_view _bytes;
  std::size_t _offsetSize = 0;
  std::size_t _referenceSize = 0;
  std::size_t _objectCount = 0;
  std::size_t _root = 0;
  std::size_t _offsetTable = 0;
  std::size_t _containers = 0;
  std::size_t _expandedSize = 0;
  std::vector<bool> _referenced;
};

bool isXmlWithinLimits(std::string_view bytes) {
  const bool hasZeros = bytes.find('\0') != bytes.npos;
  return !hasZeros && occurrences(bytes, "<array") + occurrences(bytes, "<dict") <= maximumContainers;
}

}  // namespace

bool isWithinListLimits(std::string_view bytes) {
  if (bytes.size() > maximumListSize) return false;
  return bytes.starts_with("bplist") ? BinaryList(bytes).isSmallTree() : isXmlWithinLimits(bytes);
}

}  // namespace velmora
