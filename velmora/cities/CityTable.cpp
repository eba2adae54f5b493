#include <velmora/cities/CityTable.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>
#include <utility>

#include <velmora/cities/CityFile.h>
#include <velmora/cities/EditDistance.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/system/MappedFile.h>

namespace velmora {
namespace {

constexpr std::size_t longestSpelling = 200;  // bytes; no name comes near it

/// How many times the people of the next a city needs to be the one that is meant.
constexpr std::int64_t clearlyLarger = 10;

/// How many times the people of a city the most populous may have for it still to be a choice.
constexpr std::int64_t outOfTheQuestion = 100;

/// How many letters a city's other name counts as farther from a misspelt one than its own.
constexpr std::size_t otherNameFarther = 2;

/// What the people of a city with that name of its own count, against those of one with that other name.
constexpr std::int64_t ownNameWeight = 100;

std::string_view afterLast(std::string_view text, char separator) {
  return text.substr(text.rfind(separator) + 1);  // npos + 1 is 0
}

std::vector<std::string_view> parts(std::string_view text, char separator) {
  std::vector<std::string_view> list;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = text.find(separator);
    list.push_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return list;
}

std::size_t difference(std::size_t a, std::size_t b) { return a < b ? b - a : a - b; }

}  // namespace

/// The file's bytes, mapped or held, and what is looked up in them.
class [[gnu::visibility("hidden")]] CityTable::Contents {
 public:
  explicit Contents(const std::filesystem::path& path) : _mapped(path), file(_mapped->bytes()) {}
  explicit Contents(std::string bytes) : _held(std::move(bytes)), file(_held) {}

  City city(std::size_t number) const;

  std::vector<std::size_t> named(std::string_view spelling) const;
  std::vector<std::size_t> matches(std::string_view prefix, std::size_t limit) const;
  std::vector<std::size_t> nearest(std::string_view spelling, std::size_t limit) const;

 private:
  struct Candidate {
    std::size_t city;
    bool isOwnName;
  };

  std::optional<MappedFile> _mapped;
  std::string _held;

 public:
  const CityFile file;

 private:
  std::vector<Candidate> candidates(const std::string& key) const;
  std::vector<std::size_t> cityOfZone(std::string_view spelling, const std::string& key) const;
  bool isNamedByItsZone(std::size_t city, const std::string& key) const;
  std::int64_t weight(const Candidate& candidate) const;
  std::vector<std::size_t> meant(std::vector<Candidate> candidates, const std::string& key) const;
  std::vector<std::size_t> mostPopulous(std::size_t limit) const;
  bool isCalled(std::string_view name, std::string_view spelling, bool isWhole) const;
  bool isInCountry(const CityFile::Region& region, std::string_view spelling, bool isWhole) const;
  bool liesIn(std::size_t city, const std::vector<std::string_view>& places, bool isWhole) const;
};

City CityTable::Contents::city(std::size_t number) const {
  if (number >= file.cities()) return {};
  const CityFile::Row row = file.city(number);
  const CityFile::Region region = file.region(row.region);
  return {std::string(row.name),
          std::string(region.name),
          std::string(region.country),
          std::string(file.zone(row.zone).name),
          row.latitude,
          row.longitude,
          row.people};
}

std::vector<CityTable::Contents::Candidate> CityTable::Contents::candidates(const std::string& key) const {
  std::vector<Candidate> found;
  for (CityFile::Keys keys(file, key); !keys.atEnd() && keys->bytes == key; keys.next())
    if (keys->city < file.cities()) found.push_back({keys->city, keys->isOwnName});
  return found;
}

/// The city of the zone with that name, or with that key, which takes longer to tell.
std::vector<std::size_t> CityTable::Contents::cityOfZone(std::string_view spelling,
                                                         const std::string& key) const {
  for (std::size_t i = 0; i < file.zones(); ++i) {
    const CityFile::Zone zone = file.zone(i);
    if (zone.city < file.cities() && zone.name == spelling) return {zone.city};
  }
  for (std::size_t i = 0; i < file.zones(); ++i) {
    const CityFile::Zone zone = file.zone(i);
    if (zone.city < file.cities() && file.folded(zone.name) == key) return {zone.city};
  }
  return {};
}

bool CityTable::Contents::isNamedByItsZone(std::size_t city, const std::string& key) const {
  const CityFile::Zone zone = file.zone(file.city(city).zone);
  return zone.city == city && file.folded(afterLast(zone.name, '/')) == key;
}

std::int64_t CityTable::Contents::weight(const Candidate& candidate) const {
  const std::int64_t people = file.city(candidate.city).people;
  return candidate.isOwnName ? people * ownNameWeight : people;
}

/// The one of the cities with that name that is meant; all of them if that is not clear.
std::vector<std::size_t> CityTable::Contents::meant(std::vector<Candidate> candidates,
                                                    const std::string& key) const {
  for (const Candidate& candidate : candidates)
    if (isNamedByItsZone(candidate.city, key)) return {candidate.city};
  std::stable_sort(candidates.begin(), candidates.end(),
                   [&](const auto& a, const auto& b) { return weight(a) > weight(b); });
  if (candidates.size() > 1 && weight(candidates[0]) >= clearlyLarger * weight(candidates[1]))
    return {candidates[0].city};

  std::vector<std::size_t> cities;
  for (const Candidate& candidate : candidates)
    if (weight(candidate) * outOfTheQuestion >= weight(candidates[0])) cities.push_back(candidate.city);
  std::sort(cities.begin(), cities.end());
  return cities;
}

/// Whether a region or country of that name is meant, or, where the spelling is not whole, may be meant.
bool CityTable::Contents::isCalled(std::string_view name, std::string_view spelling, bool isWhole) const {
  const std::string key = file.folded(name), wanted = file.folded(spelling);
  return !key.empty() && (isWhole ? key == wanted : key.starts_with(wanted));
}

bool CityTable::Contents::isInCountry(const CityFile::Region& region, std::string_view spelling,
                                      bool isWhole) const {
  if (isCalled(region.country, spelling, isWhole)) return true;
  for (std::size_t i = 0; i < file.countries(); ++i) {
    const CityFile::Country country = file.country(i);
    if (country.code == region.country && isCalled(country.name, spelling, isWhole)) return true;
  }
  return false;
}

/// Whether a city lies where the places after its name say: in regions, the last of them perhaps a country.
/// Only the last may not be whole.
bool CityTable::Contents::liesIn(std::size_t city, const std::vector<std::string_view>& places,
                                 bool isWhole) const {
  const CityFile::Region region = file.region(file.city(city).region);
  for (std::size_t i = 1; i < places.size(); ++i) {
    const bool isLast = i + 1 == places.size();
    const bool isWholeHere = isWhole || !isLast;
    if (isCalled(region.name, places[i], isWholeHere) || isCalled(region.code, places[i], isWholeHere))
      continue;
    if (!isLast || !isInCountry(region, places[i], isWhole)) return false;
  }
  return true;
}

std::vector<std::size_t> CityTable::Contents::named(std::string_view spelling) const {
  const std::string whole = file.folded(spelling);
  if (whole.empty()) return {};
  if (const auto found = candidates(whole); !found.empty()) return meant(found, whole);

  const std::vector<std::string_view> places = parts(spelling, ',');
  if (places.size() == 1) return cityOfZone(spelling, whole);
  auto found = candidates(file.folded(places[0]));
  std::erase_if(found, [&](const Candidate& candidate) { return !liesIn(candidate.city, places, true); });
  const auto first = std::max_element(found.begin(), found.end(),
                                      [&](const auto& a, const auto& b) { return weight(a) < weight(b); });
  if (first == found.end()) return {};
  return {first->city};
}

std::vector<std::size_t> CityTable::Contents::mostPopulous(std::size_t limit) const {
  std::vector<std::size_t> cities(std::min(limit, file.cities()));
  std::iota(cities.begin(), cities.end(), std::size_t{0});
  return cities;
}

std::vector<std::size_t> CityTable::Contents::matches(std::string_view prefix, std::size_t limit) const {
  const std::vector<std::string_view> places = parts(prefix, ',');
  const std::string key = file.folded(places[0]);
  if (key.empty()) return mostPopulous(limit);
  const auto fits = [&](const CityKey& found) {
    if (found.city >= file.cities() || (places.size() > 1 && found.bytes != key)) return false;
    return liesIn(found.city, places, false);
  };
  std::set<std::size_t> cities;
  for (CityFile::Keys keys(file, key); !keys.atEnd() && keys->bytes.starts_with(key); keys.next()) {
    if (cities.size() >= limit && (limit == 0 || keys->city >= *cities.rbegin())) continue;
    if (!fits(*keys)) continue;
    cities.insert(keys->city);
    if (cities.size() > limit) cities.erase(std::prev(cities.end()));
  }
  return {cities.begin(), cities.end()};
}

std::vector<std::size_t> CityTable::Contents::nearest(std::string_view spelling, std::size_t limit) const {
  const std::string wanted = file.folded(parts(spelling, ',')[0]);
  std::set<std::pair<std::size_t, std::size_t>> ranked;  // distance, city
  std::size_t best = std::string::npos - 1;
  for (CityFile::Keys keys(file, ""); !keys.atEnd(); keys.next()) {
    if (keys->city >= file.cities() || difference(keys->bytes.size(), wanted.size()) > best + 1) continue;
    const std::size_t edits = editDistance(wanted, keys->bytes);
    const std::size_t distance = edits + (keys->isOwnName ? 0 : otherNameFarther);
    if (edits >= wanted.size() || distance > best + 1) continue;
    best = std::min(best, distance);
    ranked.emplace(distance, keys->city);
  }
  std::vector<std::size_t> cities;
  for (const auto& [distance, city] : ranked) {
    if (distance > best + 1 || cities.size() == limit) break;
    if (std::find(cities.begin(), cities.end(), city) == cities.end()) cities.push_back(city);
  }
  return cities;
}

CityTable::CityTable(std::shared_ptr<const Contents> contents) : _contents(std::move(contents)) {}

CityTable CityTable::shipped() {
  return fromFile(Bundle::library().pathForResource("cities", "table").value_or(""));
}

CityTable CityTable::fromFile(const std::filesystem::path& path) {
  return CityTable(std::make_shared<const Contents>(path));
}

CityTable CityTable::fromBytes(std::string bytes) {
  return CityTable(std::make_shared<const Contents>(std::move(bytes)));
}

std::size_t CityTable::size() const { return _contents->file.cities(); }

City CityTable::city(std::size_t number) const { return _contents->city(number); }

std::vector<City> CityTable::named(std::string_view spelling) const {
  return cities(_contents->named(spelling.substr(0, longestSpelling)));
}

std::vector<City> CityTable::matches(std::string_view prefix, std::size_t limit) const {
  return cities(_contents->matches(prefix.substr(0, longestSpelling), limit));
}

std::vector<City> CityTable::nearest(std::string_view spelling, std::size_t limit) const {
  return cities(_contents->nearest(spelling.substr(0, longestSpelling), limit));
}

std::vector<City> CityTable::cities(const std::vector<std::size_t>& numbers) const {
  std::vector<City> list;
  for (const std::size_t number : numbers) list.push_back(city(number));
  return list;
}

std::vector<std::string> CityTable::zones() const {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < _contents->file.zones(); ++i) names.emplace_back(_contents->file.zone(i).name);
  return names;
}

std::string CityTable::zoneToday(std::string_view identifier) const {
  const CityFile& file = _contents->file;
  for (std::size_t i = 0; i < file.zones(); ++i)
    if (const auto zone = file.zone(i); zone.name == identifier)
      return std::string(file.zone(zone.today).name);
  return std::string(identifier);
}

}  // namespace velmora
