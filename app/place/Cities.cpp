#include <app/place/Cities.h>

#include <algorithm>

#include <app/text/Errors.h>
#include <app/text/Spelling.h>
#include <velmora/platform/resources/Bundle.h>

namespace velmora::app {
namespace {

constexpr std::size_t mostChoices = 8;
constexpr std::size_t mostNeighbours = 3;
constexpr std::size_t mostOffered = 50;

CityTable wholeTable() {
  CityTable table = CityTable::shipped();
  if (table.size() != 0) return table;
  const std::string file = (Bundle::library().directory() / "cities.table").string();
  throw Failure("the table of cities cannot be read from " + quotePath(file));
}

/// With commas between thousands: 632,309.
std::string inThousands(std::int64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t place = text.size(); place > 3; place -= 3) text.insert(place - 3, 1, ',');
  return text;
}

std::string choices(const std::vector<City>& cities) {
  std::string list;
  for (const City& city : cities) {
    if (&city == &cities[0] + mostChoices)
      return list + "; and " + std::to_string(cities.size() - mostChoices) + " more";
    list += (list.empty() ? "" : "; ") + fullName(city) + " (" + inThousands(city.people) + " people)";
  }
  return list;
}

std::string neighbours(const std::vector<City>& cities) {
  std::string list;
  for (const City& city : cities) list += (list.empty() ? "; nearest: " : "; ") + fullName(city);
  return list;
}

}  // namespace

std::string fullName(const City& city) {
  return city.name + (city.region.empty() ? "" : ", " + city.region) + ", " + city.country;
}

City cityNamed(const std::string& spelling) {
  const CityTable table = wholeTable();
  auto found = table.named(spelling);
  if (found.empty()) found = table.named(searchForm(spelling));
  if (found.size() == 1) return found[0];
  if (found.empty())
    throw BadInput("city " + quote(spelling) + " is not in the table of cities" +
                   neighbours(table.nearest(spelling, mostNeighbours)) + "; any other place: lat and lon");
  throw BadInput("city " + quote(spelling) + " may be " + choices(found) +
                 "; add the region or country, as here");
}

std::vector<std::string> citiesBeginning(const std::string& beginning) {
  const CityTable table = CityTable::shipped();
  const auto nameTaken = [&](const City& city) {
    const auto named = table.named(city.name);
    return named.size() == 1 && named[0] == city ? city.name : fullName(city);
  };
  const auto cities = table.matches(beginning, mostOffered);
  std::vector<std::string> offered;
  for (const City& city : cities)
    if (searchForm(city.name).starts_with(searchForm(beginning))) offered.push_back(nameTaken(city));
  if (offered.empty() && !cities.empty()) return {nameTaken(cities[0])};
  return offered;
}

std::vector<std::string> zonesBeginning(const std::string& beginning) {
  std::vector<std::string> offered = CityTable::shipped().zones();
  std::erase_if(
      offered, [&](const std::string& zone) { return !searchForm(zone).starts_with(searchForm(beginning)); });
  return offered;
}

TimeZone zoneNamed(const std::string& identifier) {
  if (const auto zone = TimeZone::named(identifier)) return *zone;
  const CityTable table = wholeTable();
  if (const auto zone = TimeZone::named(table.zoneToday(identifier))) return *zone;
  auto zones = table.zones();
  if (std::find(zones.begin(), zones.end(), identifier) != zones.end())
    throw Failure("time zone " + quote(identifier) + " is missing in the system's zone database");
  zones.insert(zones.begin(), {"UTC", "GMT"});
  throw BadInput("is not a time zone (nearest: " + nearest(identifier, zones) + ")");
}

}  // namespace velmora::app
