#include <app/place/OwnPlace.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>

#include <app/text/Errors.h>
#include <app/text/Json.h>
#include <app/text/Utf8.h>
#include <velmora/cities/CityTable.h>
#include <velmora/platform/system/Log.h>
#include <velmora/platform/system/ReplacedFile.h>

namespace velmora::app {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t largestFile = 4096;  // bytes; a place is far below

std::optional<fs::path> folderOf(const char* variable) {
  const char* value = std::getenv(variable);
  if (!value || fs::path(value).is_relative()) return std::nullopt;
  return fs::path(value);
}

std::optional<std::string> contentOf(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error) || fs::file_size(file, error) > largestFile) return std::nullopt;
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

std::optional<double> number(const Json& object, const char* name, double least, double most) {
  const auto found = object.find(name);
  if (found == object.end() || !found->is_number()) return std::nullopt;
  const double value = found->get<double>();
  return value >= least && value <= most ? std::optional(value) : std::nullopt;
}

std::optional<std::string> text(const Json& object, const char* name) {
  const auto found = object.find(name);
  if (found == object.end() || !found->is_string()) return std::nullopt;
  const auto& value = found->get_ref<const std::string&>();
  return hasControls(value) ? std::nullopt : std::optional(value);
}

/// What `keepOwnPlace` has written; none of anything else.
std::optional<PlaceChoice> placeFrom(const std::string& content) {
  const Json object = jsonFromText(content);
  if (!object.is_object()) return std::nullopt;
  const auto zone = TimeZone::named(text(object, "tz").value_or(""));
  const PlaceChoice place{.latitude = number(object, "lat", -90, 90),
                          .longitude = number(object, "lon", -180, 180),
                          .zone = zone,
                          .name = text(object, "name"),
                          .height = number(object, "height", 0, greatestHeight)};
  const bool isNamed = place.name || !object.contains("name");
  const bool isWhole = place.latitude && place.longitude && place.zone && place.height && isNamed;
  return isWhole ? std::optional(place) : std::nullopt;
}

std::optional<PlaceChoice> ownPlace() {
  const auto file = ownPlaceFile();
  std::error_code error;
  if (!file || !fs::exists(*file, error)) return std::nullopt;
  const auto content = contentOf(*file);
  auto place = content ? placeFrom(*content) : std::nullopt;
  if (!place)
    Log::write("velmora: your own place in " + quotePath(file->string()) +
               " is damaged and passed over; velmora place keeps a new one, or forgets it");
  return place;
}

/// The principal city of the process's time zone.
std::optional<PlaceChoice> cityOfZone() {
  const TimeZone zone = TimeZone::defaultZone();
  const bool isOfAPlace = zone.name().find('/') != std::string::npos && !zone.name().starts_with("Etc/");
  if (!isOfAPlace) return std::nullopt;  // which takes longest to find out from the table
  for (const City& city : CityTable::shipped().named(zone.name())) {
    if (city.zone != zone.name()) continue;
    return PlaceChoice{
        .latitude = city.latitude, .longitude = city.longitude, .zone = zone, .name = city.name};
  }
  return std::nullopt;
}

}  // namespace

std::optional<fs::path> ownPlaceFile() {
  constexpr const char* name = "velmora/place.json";
  if (const auto folder = folderOf("XDG_CONFIG_HOME")) return *folder / name;
  if (const auto home = folderOf("HOME")) return *home / ".config" / name;
  return std::nullopt;
}

UsualPlace usualPlace() {
  if (const auto own = ownPlace()) return {*own, PlaceOrigin::own};
  if (const auto city = cityOfZone()) return {*city, PlaceOrigin::zone};
  return {};
}

void keepOwnPlace(const Place& place) {
  const auto file = ownPlaceFile();
  if (!file) throw Failure("your own place cannot be kept: neither XDG_CONFIG_HOME nor HOME names a folder");
  Json object;
  if (place.location.name) object["name"] = *place.location.name;
  object["lat"] = place.location.latitude;
  object["lon"] = place.location.longitude;
  object["tz"] = place.zone.name();
  object["height"] = place.height;
  std::error_code error;
  fs::create_directories(file->parent_path(), error);
  const auto failure =
      replaceFile(*file, [&](std::ostream& out) { return bool(out << jsonLine(object) << '\n'); });
  if (failure)
    throw Failure("your own place cannot be written to " + quotePath(file->string()) + ": " + *failure);
}

bool forgetOwnPlace() {
  const auto file = ownPlaceFile();
  if (!file) return false;
  std::error_code error;
  const bool wasThere = fs::remove(*file, error);
  if (error) throw Failure("your own place cannot be removed from " + quotePath(file->string()));
  return wasThere;
}

}  // namespace velmora::app
