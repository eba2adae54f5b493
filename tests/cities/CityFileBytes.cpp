#include "tests/cities/CityFileBytes.h"

#include <cmath>

namespace velmora::testing {
namespace {

std::string number(std::int64_t value, std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
  return bytes;
}

std::string placeOfText(std::string& texts, const std::string& text) {
  const std::string place = number(static_cast<std::int64_t>(texts.size()), 3);
  texts += number(static_cast<std::int64_t>(text.size()), 1) + text;
  return place;
}

std::int64_t tenThousandths(double degrees) { return std::llround(degrees * 1e4); }

}  // namespace

std::string bytesOfCityTable(const std::vector<RowOfCity>& cities) {
  std::string folds, texts, rows, keys;
  for (char letter = 'A'; letter <= 'z'; ++letter) {
    if (letter > 'Z' && letter < 'a') continue;
    const char small = letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    folds += number(letter, 2) + number(1, 1) + small + std::string(3, '\0');
  }
  const std::string country = placeOfText(texts, "US") + placeOfText(texts, "United States");
  const std::string region =
      placeOfText(texts, "US") + placeOfText(texts, "ME") + placeOfText(texts, "Maine");
  const std::string zones = placeOfText(texts, "Area/Old") + number(1, 2) + number(0xFFFF, 2) +
                            placeOfText(texts, "Area/Town") + number(1, 2) + number(0, 2);
  for (std::size_t i = 0; i < cities.size(); ++i) {
    rows += number(tenThousandths(cities[i].latitude), 3) + number(tenThousandths(cities[i].longitude), 3) +
            number(cities[i].people, 4) + number(1, 2) + number(0, 2) + placeOfText(texts, cities[i].name);
    const auto size = static_cast<std::int64_t>(cities[i].key.size());
    keys += size < 15 ? number(size, 1) : number(15, 1) + number(size - 15, 1);
    keys += cities[i].key + number(static_cast<std::int64_t>(i) | 0x8000, 2);
  }

  struct Section {
    std::int64_t count;
    std::string bytes;
  };
  const std::vector<Section> sections = {{52, folds},
                                         {1, country},
                                         {1, region},
                                         {2, zones},
                                         {static_cast<std::int64_t>(cities.size()), rows},
                                         {1, number(0, 3)},
                                         {static_cast<std::int64_t>(keys.size()), keys},
                                         {static_cast<std::int64_t>(texts.size()), texts}};
  std::string header("VMCT\1\0\0\0", 8), data;
  const auto headerSize = static_cast<std::int64_t>(8 + 8 * sections.size());
  for (const Section& section : sections) {
    header += number(headerSize + static_cast<std::int64_t>(data.size()), 4) + number(section.count, 4);
    data += section.bytes;
  }
  return header + data;
}

}  // namespace velmora::testing
