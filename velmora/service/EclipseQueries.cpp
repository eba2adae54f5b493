#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/system/FileReading.h>
#include <velmora/service/EclipseCatalogue.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora {
namespace {

/// Whether the instant lies between two minutes of the day, both included.
bool isBetween(Instant instant, Instant startOfDay, std::int64_t fromMinute, std::int64_t toMinute) {
  const auto atMinute = [&](std::int64_t minute) { return startOfDay + std::chrono::minutes(minute); };
  return atMinute(fromMinute) <= instant && instant <= atMinute(toMinute);
}

constexpr std::int64_t minutesPerDay = 1440;
constexpr std::chrono::hours twoDays{48};  // no day of a calendar is longer

bool isMoonUp(Instant instant, Instant startOfDay, const RiseSetData& day) {
  const std::int64_t rise = day.moonRiseMinutesFromMidnight, set = day.moonSetMinutesFromMidnight;
  if (rise <= set) return isBetween(instant, startOfDay, rise, set);
  return isBetween(instant, startOfDay, rise, minutesPerDay) || isBetween(instant, startOfDay, 0, set);
}

bool isSunUp(Instant instant, Instant startOfDay, const RiseSetData& day) {
  return isBetween(instant, startOfDay, day.sunRiseMinutesFromMidnight, day.sunSetMinutesFromMidnight);
}

}  // namespace

void MoonPhaseData::loadEventsFromFile() {
  const auto path = Bundle::library().pathForResource("Data/events", "txt");
  if (!path) return;
  if (const auto text = readTextFile(*path))
    _eventsData = std::make_shared<const EclipseCatalogue>(readEclipseCatalogue(*text));
}

std::shared_ptr<const EclipseInfo> MoonPhaseData::eventsOnDate(Instant date, const TimeZone& inTimezone) {
  if (_eclipseSource) return _eclipseSource(date, inTimezone, place());
  if (!_eventsData) loadEventsFromFile();
  if (!_eventsData) return nullptr;

  const Calendar calendar(inTimezone);
  const Instant startOfDay = calendar.startOfDay(date);
  const auto end = _eventsData->upper_bound(date + twoDays);
  for (auto entry = _eventsData->lower_bound(date - twoDays); entry != end; ++entry) {
    const auto& [instant, eclipse] = *entry;
    if (!calendar.isSameDay(instant, date)) continue;
    const RiseSetData day = GetRiseSetDataForDate(date);
    const bool isUp =
        eclipse->isLunarEvent ? isMoonUp(instant, startOfDay, day) : isSunUp(instant, startOfDay, day);
    if (isUp) return eclipse;
  }
  return nullptr;
}

}  // namespace velmora
