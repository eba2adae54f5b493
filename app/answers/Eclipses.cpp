#include <app/answers/Eclipses.h>

#include <algorithm>

#include <app/answers/Days.h>
#include <app/answers/Positions.h>
#include <app/answers/ShippedData.h>
#include <app/text/ValueTexts.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora::app {
namespace {

constexpr std::chrono::hours oneDay{24};

/// The catalogue of the whole Earth.
const MoonPhaseData::Eclipses& catalogue() {
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  if (!service.eventsData()) service.loadEventsFromFile();
  checkCatalogue(service.eventsData().get());
  return *service.eventsData();
}

/// By the altitude at its instant: the service's query goes by the minutes of rise and set, and so knows no
/// body that stays up all day.
bool isVisible(const EclipseInfo& eclipse, const Place& place) {
  const Body body = eclipse.isLunarEvent ? Body::moon : Body::sun;
  return isRisen(positionAt(eclipse.datetime, body, place).position, body);
}

}  // namespace

std::shared_ptr<const EclipseInfo> visibleEclipse(CivilDate day, const Place& place) {
  const Instant noon = instantOn(day, std::chrono::hours(12), place.zone);
  const auto& eclipses = catalogue();
  const auto end = eclipses.upper_bound(noon + oneDay);
  const auto found = std::find_if(eclipses.lower_bound(noon - oneDay), end, [&](const auto& entry) {
    return dateAt(entry.first, place.zone) == day && isVisible(*entry.second, place);
  });
  return found == end ? nullptr : found->second;
}

std::vector<SeenEclipse> eclipsesOfYear(std::chrono::year year, const Place& place) {
  std::vector<SeenEclipse> eclipses;
  for (const auto& [instant, eclipse] : catalogue()) {
    if (dateAt(instant, place.zone).year() == year) eclipses.push_back({eclipse, isVisible(*eclipse, place)});
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

const char* const shadowNote =
    "Whether the Moon's shadow reaches the place in a solar eclipse is not computed.\n";

std::string eclipseTitle(const EclipseInfo& eclipse) { return eclipse.title.value_or(eclipse.key); }

}  // namespace velmora::app
