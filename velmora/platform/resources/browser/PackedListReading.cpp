#include <charconv>
#include <cstddef>

#include <velmora/platform/resources/PropertyList.h>
#include <velmora/platform/system/FileReading.h>

namespace velmora {
namespace {

constexpr std::size_t maximumListSize = std::size_t{1} << 20;
constexpr std::size_t maximumContainers = 1024;

/// Reads a property list as building packs it, in bencoding: a text is its length, a colon and its bytes, an
/// array is its values between "l" and "e", a dictionary its keys and values between "d" and "e".
class PackedList {
 public:
  explicit PackedList(std::string_view bytes) : _rest(bytes) {}

  /// The value that makes up the whole; none if it is malformed.
  std::optional<PropertyList> whole() {
    std::optional<PropertyList> value = readValue();
    return _rest.empty() ? value : std::nullopt;
  }

 private:
  bool take(char mark) {
    if (!_rest.starts_with(mark)) return false;
    _rest.remove_prefix(1);
    return true;
  }

  std::optional<PropertyList> readValue() {
    if (take('l')) return readArray();
    if (take('d')) return readDictionary();
    std::optional<std::string> text = readText();
    return text ? std::optional<PropertyList>(*std::move(text)) : std::nullopt;
  }

  std::optional<std::string> readText() {
    std::size_t size = 0;
    const auto [end, error] = std::from_chars(_rest.data(), _rest.data() + _rest.size(), size);
    if (error != std::errc()) return std::nullopt;
    _rest.remove_prefix(static_cast<std::size_t>(end - _rest.data()));
    if (!take(':') || _rest.size() < size) return std::nullopt;
    std::string text(_rest.substr(0, size));
    _rest.remove_prefix(size);
    return isUtf8(text) ? std::optional(std::move(text)) : std::nullopt;
  }

  std::optional<PropertyList> readArray() {
    if (++_containers > maximumContainers) return std::nullopt;
    PropertyList::Array array;
    while (!take('e')) {
      std::optional<PropertyList> value = readValue();
      if (!value) return std::nullopt;
      array.push_back(*std::move(value));
    }
    return PropertyList(std::move(array));
  }

  std::optional<PropertyList> readDictionary() {
    if (++_containers > maximumContainers) return std::nullopt;
    PropertyList::Dictionary dictionary;
    while (!take('e')) {
      std::optional<std::string> key = readText();
      std::optional<PropertyList> value = key ? readValue() : std::nullopt;
      if (!value) return std::nullopt;
      dictionary.insert_or_assign(*std::move(key), *std::move(value));
    }
    return PropertyList(std::move(dictionary));
  }

  std::string_view _rest;
  std::size_t _containers = 0;
};

}  // namespace

std::optional<PropertyList> PropertyList::fromBytes(std::string_view bytes) {
  if (bytes.size() > maximumListSize) return std::nullopt;
  return PackedList(bytes).whole();
}

}  // namespace velmora
