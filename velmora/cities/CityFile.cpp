#include <velmora/cities/CityFile.h>

#include <algorithm>
#include <optional>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

// Sizes of the file's records, in bytes.
constexpr std::size_t headerSize = 8;
constexpr std::size_t extentSize = 8;
constexpr std::size_t foldSize = 7;
constexpr std::size_t countrySize = 6;
constexpr std::size_t regionSize = 9;
constexpr std::size_t zoneSize = 7;
constexpr std::size_t citySize = 17;
constexpr std::size_t textPlaceSize = 3;
constexpr std::size_t blockPlaceSize = 3;

constexpr std::size_t longestFold = 4;
constexpr double degree = 1e4;

constexpr std::string_view signature("VMCT\1\0\0\0", headerSize);

std::uint8_t byte(char c) { return static_cast<std::uint8_t>(c); }

/// The character at the text's beginning, which is then taken off; none, with a byte taken off, if that is
/// not UTF-8.
std::optional<std::uint32_t> takeCharacter(std::string_view& text) {
  const std::uint8_t lead = byte(text.front());
  const std::size_t size = lead < 0x80 ? 1 : lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  text.remove_prefix(1);
  if (size == 0 || text.size() < size - 1) return std::nullopt;
  std::uint32_t character = size == 1 ? lead : lead & (0x7FU >> size);
  for (std::size_t i = 0; i + 1 < size; ++i) {
    if ((byte(text[i]) & 0xC0U) != 0x80U) return std::nullopt;
    character = character << 6 | (byte(text[i]) & 0x3FU);
  }
  text.remove_prefix(size - 1);
  return character;
}

}  // namespace

CityFile::CityFile(std::string_view bytes) : _bytes(bytes) {
  constexpr std::array<std::size_t, sectionCount> recordSizes = {
      foldSize, countrySize, regionSize, zoneSize, citySize, blockPlaceSize, 1, 1};
  if (!bytes.starts_with(signature)) return;
  for (std::size_t i = 0; i < sectionCount; ++i) {
    const std::size_t at = headerSize + i * extentSize;
    const Extent extent = {unsignedAt(at, 4), unsignedAt(at + 4, 4)};
    if (extent.place > bytes.size() || extent.count > (bytes.size() - extent.place) / recordSizes[i]) {
      _sections = {};  // cut
      return;
    }
    _sections[i] = extent;
  }
}

std::string_view CityFile::bytesAt(std::size_t place, std::size_t size) const {
  if (place > _bytes.size() || _bytes.size() - place < size) return {};
  return _bytes.substr(place, size);
}

std::uint32_t CityFile::unsignedAt(std::size_t place, std::size_t size) const {
  std::uint32_t value = 0;
  const std::string_view bytes = bytesAt(place, size);
  for (std::size_t i = bytes.size(); i > 0; --i) value = value << 8 | byte(bytes[i - 1]);
  return value;
}

std::int32_t CityFile::signedAt(std::size_t place) const {
  const auto value = static_cast<std::int32_t>(unsignedAt(place, 3));
  return value < 0x800000 ? value : value - 0x1000000;
}

std::string_view CityFile::textAt(std::size_t place) const {
  if (bytesAt(place, textPlaceSize).empty()) return {};
  const std::size_t text = _sections[textSection].place + unsignedAt(place, textPlaceSize);
  return bytesAt(text + 1, unsignedAt(text, 1));
}

std::size_t CityFile::place(Section section, std::size_t number, std::size_t recordSize) const {
  return number < count(section) ? _sections[section].place + number * recordSize : _bytes.size();
}

CityFile::Country CityFile::country(std::size_t number) const {
  const std::size_t at = place(countrySection, number, countrySize);
  return {textAt(at), textAt(at + textPlaceSize)};
}

CityFile::Region CityFile::region(std::size_t number) const {
  const std::size_t at = place(regionSection, number, regionSize);
  return {textAt(at), textAt(at + textPlaceSize), textAt(at + 2 * textPlaceSize)};
}

CityFile::Zone CityFile::zone(std::size_t number) const {
  const std::size_t at = place(zoneSection, number, zoneSize);
  return {textAt(at), unsignedAt(at + textPlaceSize, 2), unsignedAt(at + textPlaceSize + 2, 2)};
}

CityFile::Row CityFile::city(std::size_t number) const {
  const std::size_t at = place(citySection, number, citySize);
  return {signedAt(at) / degree,  signedAt(at + 3) / degree, unsignedAt(at + 6, 4),
          unsignedAt(at + 10, 2), unsignedAt(at + 12, 2),    textAt(at + 14)};
}

std::string_view CityFile::fold(std::uint32_t character) const {
  std::size_t low = 0, high = count(foldSection);
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    const std::size_t at = place(foldSection, middle, foldSize);
    const std::uint32_t here = unsignedAt(at, 2);
    if (here == character) return bytesAt(at + 3, std::min<std::size_t>(unsignedAt(at + 2, 1), longestFold));
    (here < character ? low : high) = here < character ? middle + 1 : middle;
  }
  return {};
}

std::string CityFile::folded(std::string_view text) const {
  std::string key;
  while (!text.empty())
    if (const auto character = takeCharacter(text)) key += fold(*character);
  return key;
}

CityFile::Keys::Keys(const CityFile& file, std::string_view from) : _file(file) {
  std::size_t low = 0, high = file.count(blockSection);  // the last block that begins before it is at low - 1
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    begin(middle);
    (_key.bytes < from ? low : high) = _key.bytes < from ? middle + 1 : middle;
  }
  _atEnd = false;
  begin(low > 0 ? low - 1 : 0);
  while (!_atEnd && _key.bytes < from) next();
}

void CityFile::Keys::begin(std::size_t block) {
  const std::size_t at = _file.place(blockSection, block, blockPlaceSize);
  _place = _file.unsignedAt(at, blockPlaceSize);
  _key.bytes.clear();
  next();
}

void CityFile::Keys::next() {
  constexpr std::uint32_t half = 0xF;
  constexpr std::uint32_t ownNameBit = 0x8000;
  const Extent& keys = _file._sections[keySection];
  const std::size_t end = keys.place + keys.count;
  std::size_t at = keys.place + _place;

  const std::uint32_t sizes = _file.unsignedAt(at++, 1);
  const std::size_t shared = sizes >> 4;
  std::size_t rest = sizes & half;
  if (rest == half) rest += _file.unsignedAt(at++, 1);
  if (at + rest + 2 > end || shared > _key.bytes.size()) {
    _atEnd = true;
    return;
  }
  _key.bytes.resize(shared);
  _key.bytes += _file.bytesAt(at, rest);
  const std::uint32_t city = _file.unsignedAt(at + rest, 2);
  _key.city = city & ~ownNameBit;
  _key.isOwnName = (city & ownNameBit) != 0;
  _place = at + rest + 2 - keys.place;
}

}  // namespace velmora
