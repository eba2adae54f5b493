#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A city and where it lies.
struct City {
  std::string name;         ///< its own: "Portland"
  std::string region;       ///< state or province, in English: "Maine"; may be empty
  std::string country;      ///< two letters of ISO 3166: "US"
  std::string zone;         ///< of its clocks: "America/New_York"
  double latitude = 0;      ///< degrees, north positive; to 0.0001
  double longitude = 0;     ///< degrees, east positive; to 0.0001
  std::int64_t people = 0;  ///< how many live there; 0 where that is unknown

  bool operator==(const City&) const = default;
};

/// The world's cities of more than 15,000 people, its capitals and the principal cities of time zones, with
/// their other names; from GeoNames (CC BY 4.0) and the time zone database. What is asked for is looked up in
/// the file: nothing is read in advance. Case, blanks, accents and punctuation of a spelling are ignored. A
/// file that is cut or no table has no cities, a damaged one fewer or other ones. A cheap value, usable from
/// any thread.
class CityTable {
 public:
  /// The library's table, "cities.table"; without any city if it is missing.
  static CityTable shipped();

  /// The table in a file, or in bytes; without any city if these are no such table.
  static CityTable fromFile(const std::filesystem::path& path);
  static CityTable fromBytes(std::string bytes);

  /// How many cities it has; the first is the most populous.
  std::size_t size() const;

  /// The city of that number; an empty record from `size()` on.
  City city(std::size_t number) const;

  /// The city of that name or time zone: "Munich", "MÜNCHEN", "東京", "Asia/Saigon"; after commas may come
  /// its region and country, in English or by their letters: "Portland, Maine", "Portland, US", which is the
  /// most populous there.
  ///
  /// Of several cities with one name it is the one that a time zone is named after, else the one with ten
  /// times the people of the next; else all those with at least a hundredth of the first one's people, most
  /// populous first. In this comparison a city counts a hundredth of its people where the name is another one
  /// than its own. Empty if unknown.
  std::vector<City> named(std::string_view spelling) const;

  /// The most populous cities with a name that begins so, at most that many, most populous first: "Portl",
  /// "Portland, M". All cities for an empty one.
  std::vector<City> matches(std::string_view prefix, std::size_t limit) const;

  /// The cities with the names nearest to a misspelt one, nearest first, then most populous: at most that
  /// many, none more than a letter worse than the first; another name of a city counts as two letters worse
  /// than its own. None where no letter of the spelling would be left. Reads the whole table.
  std::vector<City> nearest(std::string_view spelling, std::size_t limit) const;

  /// The identifiers of all time zones with a city, those of old among them, in alphabetical order.
  std::vector<std::string> zones() const;

  /// The identifier today of a time zone of old ("Asia/Calcutta": "Asia/Kolkata"); that itself if it is of
  /// today or unknown.
  std::string zoneToday(std::string_view identifier) const;

 private:
  class Contents;

  explicit CityTable(std::shared_ptr<const Contents> contents);

  std::vector<City> cities(const std::vector<std::size_t>& numbers) const;

  std::shared_ptr<const Contents> _contents;
};

}  // namespace velmora
