#include <app/place/Place.h>

#include <app/place/Cities.h>
#include <app/text/Errors.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

struct Spot {
  double latitude, longitude;
  std::optional<std::string> name;
  TimeZone zone;
};

TimeZone zoneOf(const std::string& identifier) {
  const auto zone = TimeZone::named(identifier);
  if (!zone) throw Failure("time zone " + quote(identifier) + " is missing in the system's zone database");
  return *zone;
}

Spot spotOf(const PlaceChoice& choice) {
  if (choice.latitude) {
    return {*choice.latitude, *choice.longitude, std::nullopt, TimeZone::defaultZone()};
  }
  if (choice.city) {
    const City city = cityNamed(*choice.city);
    return {city.latitude, city.longitude, city.name, zoneOf(city.zone)};
  }
  const GeoLocationData& home = *GeoLocationData::DefaultLocation();
  return {home.latitude, home.longitude, home.name, zoneOf(home.timezoneId.value_or("GMT"))};
}

void checkTogether(const PlaceChoice& choice) {
  if (choice.latitude.has_value() != choice.longitude.has_value())
    throw BadInput("lat and lon come together: give both, or a city");
  if (choice.latitude && choice.city)
    throw BadInput("a city and lat, lon exclude each other: give one of the two");
  if (choice.zone && choice.gmtOffset)
    throw BadInput("tz and gmt-offset exclude each other: give one of the two");
}

/// How the place can be changed, where it was not asked for.
std::string originLine(PlaceOrigin origin) {
  switch (origin) {
    case PlaceOrigin::own:
      return words("Your own place; change it with velmora place.") + "\n";
    case PlaceOrigin::zone:
      return words("The city of the system's time zone; keep another with velmora place.") + "\n";
    case PlaceOrigin::usual:
      return words("The default place; keep another with velmora place.") + "\n";
    case PlaceOrigin::asked:
      break;
  }
  return "";
}

/// What is chosen, upon the usual place where it does not say where.
PlaceChoice upon(const PlaceChoice& usual, PlaceChoice choice) {
  if (choice.isSomewhere()) return choice;
  choice.latitude = usual.latitude;
  choice.longitude = usual.longitude;
  choice.city = usual.city;
  if (!choice.name) choice.name = usual.name;
  if (!choice.height) choice.height = usual.height;
  if (!choice.zone && !choice.gmtOffset) choice.zone = usual.zone;
  return choice;
}

}  // namespace

std::string Place::heading() const {
  const std::string above = height > 0 ? ", " + decimalText(height, 0) + " m" : "";
  return (location.name ? *location.name + "\n" : "") + location.locationText + above + ", " + zone.name() +
         "\n" + originLine(origin);
}

Place placeOf(const PlaceChoice& asked, const UsualPlace& usual) {
  checkTogether(asked);
  const PlaceChoice choice = upon(usual.choice, asked);
  Spot spot = spotOf(choice);
  if (choice.name) spot.name = choice.name;
  if (choice.zone) spot.zone = *choice.zone;
  if (choice.gmtOffset) spot.zone = TimeZone::fixed(*choice.gmtOffset);

  Place place{GeoLocationData(), spot.zone, choice.height.value_or(0),
              asked.isSomewhere() ? PlaceOrigin::asked : usual.origin};
  place.location.SetLocation(spot.latitude, spot.longitude, spot.name, spot.zone.name(),
                             choice.gmtOffset.value_or(0), false);
  return place;
}

}  // namespace velmora::app
