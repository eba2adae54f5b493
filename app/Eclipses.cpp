#include <app/Eclipses.h>

#include <app/Days.h>
#include <app/Errors.h>
#include <app/request/ValueTexts.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora::app {
namespace {

/// The service at the place, with the catalogue read.
MoonPhaseData& serviceAt(const Place& place) {
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  service.SetSelectedLocation(std::make_shared<GeoLocationData>(place.location));
  if (!service.eventsData()) service.loadEventsFromFile();
  if (!service.eventsData() || service.eventsData()->empty())
    throw Failure("the catalogue of eclipses cannot be read");
  return service;
}

}  // namespace

std::shared_ptr<const EclipseInfo> visibleEclipse(CivilDate day, const Place& place) {
  const Instant noon = instantOn(day, std::chrono::hours(12), place.zone);
  return serviceAt(place).eventsOnDate(noon, place.zone);
}

std::vector<SeenEclipse> eclipsesOfYear(std::chrono::year year, const Place& place) {
  MoonPhaseData& service = serviceAt(place);
  std::vector<SeenEclipse> eclipses;
  for (const auto& [instant, eclipse] : *service.eventsData()) {
    if (dateAt(instant, place.zone).year() != year) continue;
    eclipses.push_back({eclipse, service.eventsOnDate(instant, place.zone) == eclipse});
  }
  return eclipses;
}

Json eclipseJson(const EclipseInfo* eclipse) {
  if (!eclipse) return nullptr;
  return {{"key", eclipse->key},
          {"title", eclipse->title ? Json(*eclipse->title) : Json(nullptr)},
          {"datetime", instantText(eclipse->datetime)},
          {"isLunarEvent", eclipse->isLunarEvent}};
}

std::string eclipseTitle(const EclipseInfo& eclipse) { return eclipse.title.value_or(eclipse.key); }

}  // namespace velmora::app
