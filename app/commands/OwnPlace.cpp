#include <app/answers/PlaceJson.h>
#include <app/commands/Commands.h>
#include <app/place/OwnPlace.h>
#include <app/text/Errors.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

/// Whether the request says anything of a place.
bool changesPlace(const PlaceChoice& choice) {
  return choice.isSomewhere() || choice.zone || choice.gmtOffset || choice.name || choice.height;
}

bool isToForget(const Query& query) {
  if (!query.request.forgets) return false;
  if (changesPlace(query.request.place))
    throw BadInput("forget and a place exclude each other: give one of the two");
  return true;
}

/// The place of commands that name none, which is the one that is given from here on.
Place usualPlaceOf(const Query& query) {
  if (!changesPlace(query.request.place)) return query.place;
  keepOwnPlace(query.place);
  Place place = query.place;
  place.origin = PlaceOrigin::own;
  return place;
}

const char* nameOf(PlaceOrigin origin) {
  switch (origin) {
    case PlaceOrigin::own:
      return "own";
    case PlaceOrigin::zone:
      return "zone";
    case PlaceOrigin::usual:
    case PlaceOrigin::asked:
      break;
  }
  return "default";
}

Json json(const Query& query) {
  if (isToForget(query)) return {{"forgotten", forgetOwnPlace()}};
  const Place place = usualPlaceOf(query);
  Json json = placeJson(place);
  json["origin"] = nameOf(place.origin);
  return json;
}

std::string text(const Query& query) {
  if (!isToForget(query)) return usualPlaceOf(query).heading();
  return (forgetOwnPlace() ? words("Your own place is forgotten.") : words("There was no own place.")) + "\n";
}

}  // namespace

const Answer ownPlaceAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
