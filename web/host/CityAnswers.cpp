#include <web/host/CityAnswers.h>

#include <cmath>
#include <numbers>
#include <vector>

#include <velmora/cities/CityTable.h>
#include <web/host/Json.h>

namespace velmora::web {
namespace {

std::optional<CityTable>& table() {
  static std::optional<CityTable> shipped;
  return shipped;
}

std::string jsonOf(const City& city) {
  return JsonObject()
      .with("name", std::string_view(city.name))
      .with("region", std::string_view(city.region))
      .with("country", std::string_view(city.country))
      .with("zone", std::string_view(city.zone))
      .with("latitude", city.latitude)
      .with("longitude", city.longitude)
      .text();
}

/// Kilometres along the ground, for places that are near to each other.
double distance(const City& city, double latitude, double longitude) {
  constexpr double kilometresPerDegree = 111.2, degree = std::numbers::pi / 180;
  const double north = city.latitude - latitude;
  const double east = std::remainder(city.longitude - longitude, 360) * std::cos(latitude * degree);
  return std::hypot(north, east) * kilometresPerDegree;
}

}  // namespace

void takeCities(std::string bytes) { table() = CityTable::fromBytes(std::move(bytes)); }

std::string citiesNamed(const std::string& prefix, std::size_t limit) {
  if (!table()) return jsonArray({});
  std::vector<std::string> values;
  for (const City& city : table()->matches(prefix, limit)) values.push_back(jsonOf(city));
  return jsonArray(values);
}

std::optional<std::string> cityNear(double latitude, double longitude) {
  constexpr double farthest = 50;
  if (!table()) return std::nullopt;
  std::optional<City> nearest;
  double least = farthest;
  for (std::size_t number = 0; number < table()->size(); ++number) {
    const City city = table()->city(number);
    const double away = distance(city, latitude, longitude);
    if (away > least) continue;
    least = away;
    nearest = city;
  }
  return nearest ? std::optional(jsonOf(*nearest)) : std::nullopt;
}

}  // namespace velmora::web
