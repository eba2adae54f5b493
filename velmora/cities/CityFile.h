#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace [[gnu::visibility("hidden")]] velmora {

/// A key of the table: the bytes of a folded name, and the city it names.
struct CityKey {
  std::string bytes;
  std::size_t city = 0;
  bool isOwnName = false;
};

/// The table's file as docs/data.md describes it. Looks at its bytes only when asked, and never beyond them:
/// what lies there reads as zeros, empty texts and no keys.
class CityFile {
 public:
  struct Country {
    std::string_view code, name;
  };
  struct Region {
    std::string_view country, code, name;
  };
  struct Zone {
    std::string_view name;
    std::size_t today;  ///< the zone it stands for
    std::size_t city;   ///< its principal city; `none` if it has none
  };
  struct Row {
    double latitude, longitude;  ///< degrees
    std::uint32_t people;
    std::size_t zone, region;
    std::string_view name;
  };

  static constexpr std::size_t none = 0xFFFF;

  explicit CityFile(std::string_view bytes);

  std::size_t countries() const { return count(countrySection); }
  std::size_t regions() const { return count(regionSection); }
  std::size_t zones() const { return count(zoneSection); }
  std::size_t cities() const { return count(citySection); }

  Country country(std::size_t number) const;
  Region region(std::size_t number) const;
  Zone zone(std::size_t number) const;
  Row city(std::size_t number) const;

  /// A text as the bytes of a key: without case, accents and whatever no key has.
  std::string folded(std::string_view text) const;

  /// Goes through the keys in order, from the first that is not less than the given bytes.
  class Keys {
   public:
    Keys(const CityFile& file, std::string_view from);

    bool atEnd() const { return _atEnd; }
    const CityKey& operator*() const { return _key; }
    const CityKey* operator->() const { return &_key; }
    void next();

   private:
    /// The first key of a block, and `_place` after it.
    void begin(std::size_t block);

    const CityFile& _file;
    std::size_t _place = 0;
    CityKey _key;
    bool _atEnd = false;
  };

 private:
  enum Section {
    foldSection,
    countrySection,
    regionSection,
    zoneSection,
    citySection,
    blockSection,
    keySection,
    textSection,
    sectionCount
  };

  struct Extent {
    std::size_t place = 0, count = 0;
  };

  std::size_t count(Section section) const { return _sections[section].count; }
  std::size_t place(Section section, std::size_t number, std::size_t recordSize) const;
  std::uint32_t unsignedAt(std::size_t place, std::size_t size) const;
  std::int32_t signedAt(std::size_t place) const;
  std::string_view bytesAt(std::size_t place, std::size_t size) const;
  std::string_view textAt(std::size_t place) const;
  std::string_view fold(std::uint32_t character) const;

  std::string_view _bytes;
  std::array<Extent, sectionCount> _sections;
};

}  // namespace velmora
