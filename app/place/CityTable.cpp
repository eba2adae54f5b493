#include <app/place/CityTable.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <system_error>

#include <app/text/Errors.h>
#include <app/text/Spelling.h>
#include <app/text/ValueTexts.h>

namespace velmora::app {
namespace {

constexpr std::size_t longestSpelling = 100;  // bytes; no city of the table comes near it

constexpr std::uintmax_t largestTable = std::uintmax_t{1} << 20;  // bytes; the system's has some 20,000

bool isSign(char c) { return c == '+' || c == '-'; }

/// "+DDMM", "+DDDMMSS" and the like: degrees of two or three digits by the length, in degrees.
std::optional<double> angle(std::string_view text, std::size_t degreeDigits, double largest) {
  const std::size_t withSeconds = 1 + degreeDigits + 4;
  if (text.size() != withSeconds && text.size() != withSeconds - 2) return std::nullopt;
  if (!isSign(text.front()) || text.find_first_not_of("0123456789", 1) != std::string_view::npos)
    return std::nullopt;
  const auto part = [&](std::size_t at, std::size_t size) { return numberFromText(text.substr(at, size)); };
  const auto degrees = part(1, degreeDigits), minutes = part(1 + degreeDigits, 2);
  const auto seconds = text.size() == withSeconds ? part(3 + degreeDigits, 2) : 0.0;
  if (!degrees || !minutes || !seconds) return std::nullopt;
  const double size = *degrees + *minutes / 60 + *seconds / 3600;
  if (size > largest) return std::nullopt;
  return text.front() == '-' ? -size : size;
}

std::string nameOfCity(const std::string& zone) {
  std::string name = zone.substr(zone.rfind('/') + 1);
  std::replace(name.begin(), name.end(), '_', ' ');
  return name;
}

std::optional<City> cityOfRow(const std::string& row) {
  std::istringstream fields(row);
  std::string country, coordinates, zone;
  std::getline(fields, country, '\t');
  std::getline(fields, coordinates, '\t');
  std::getline(fields, zone, '\t');
  const std::size_t split = coordinates.find_first_of("+-", 1);
  if (split == std::string::npos) return std::nullopt;
  const auto latitude = angle(std::string_view(coordinates).substr(0, split), 2, 90);
  const auto longitude = angle(std::string_view(coordinates).substr(split), 3, 180);
  const std::string name = nameOfCity(zone);
  if (!latitude || !longitude || name.empty()) return std::nullopt;
  return City{name, zone, *latitude, *longitude};
}

/// Open if it is an ordinary file of a size that such a table may have.
std::ifstream openedTable(const std::string& path) {
  std::error_code error;
  const bool isOrdinary = std::filesystem::is_regular_file(path, error);
  if (!isOrdinary || std::filesystem::file_size(path, error) > largestTable) return {};
  return std::ifstream(path);
}

std::string pathOfSystemTable() {
  const char* folder = std::getenv("TZDIR");
  return std::string(folder && *folder ? folder : "/usr/share/zoneinfo") + "/zone.tab";
}

}  // namespace

const CityTable& CityTable::system() {
  static const CityTable table = fromFile(pathOfSystemTable());
  return table;
}

CityTable CityTable::fromFile(const std::string& path) {
  std::ifstream file = openedTable(path);
  CityTable table(file);
  if (table.cities().empty()) throw Failure("the system's time zones cannot be read from " + quotePath(path));
  return table;
}

CityTable::CityTable(std::istream& table) {
  for (std::string row; std::getline(table, row);) {
    if (row.starts_with('#')) continue;
    auto city = cityOfRow(row);
    if (!city) continue;
    _indexBySearchForm.emplace(searchForm(city->name), _cities.size());
    _indexBySearchForm.emplace(searchForm(city->zone), _cities.size());
    _cities.push_back(std::move(*city));
  }
}

const City* CityTable::find(std::string_view spelling) const {
  if (spelling.size() > longestSpelling) return nullptr;
  const auto found = _indexBySearchForm.find(searchForm(spelling));
  return found == _indexBySearchForm.end() ? nullptr : &_cities[found->second];
}

std::string CityTable::nearestCities(std::string_view spelling) const {
  std::vector<std::string> names;
  for (const City& city : _cities) names.push_back(city.name);
  return nearest(spelling, names);
}

std::string CityTable::nearestZones(std::string_view spelling) const {
  std::vector<std::string> zones = {"UTC", "GMT"};
  for (const City& city : _cities) zones.push_back(city.zone);
  return nearest(spelling, zones);
}

}  // namespace velmora::app
