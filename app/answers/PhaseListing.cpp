#include <app/answers/PhaseListing.h>

#include <app/text/ClockText.h>
#include <app/text/EnglishDate.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/foundation/DateHelper.h>
#include <velmora/phases/Phase.h>

namespace velmora::app {
namespace {

using std::chrono::minutes;

// The age that a record counts without a new moon to count from is longer.
constexpr std::int64_t greatestAge = 31;

unsigned dayOfMonth(CivilDate date) { return static_cast<unsigned>(date.day()); }

/// The minutes after 00:00 that the place's clocks show.
int clockMinutes(Instant instant, const TimeZone& zone) {
  const LocalTime local = zone.localTime(instant);
  return static_cast<int>(
      std::chrono::floor<minutes>(local - std::chrono::floor<std::chrono::days>(local)).count());
}

std::int64_t intermediatePhase(const Illumination& illumination) {
  const bool isCrescent = illumination.fraction < 0.5;
  if (illumination.isWaxing) return isCrescent ? kWaxingCrescent : kWaxingGibbous;
  return isCrescent ? kWaningCrescent : kWaningGibbous;
}

}  // namespace

Json phaseEventJson(const PhaseEvent& event, const Query& query) {
  return {{"day", dayOfMonth(event.date)},
          {"phase", event.phase},
          {"phaseName", phaseName(event.phase)},
          {"time", DateHelper::GetTimeFormattedString(event.instant, query.use24HourClock).value_or("")},
          {"localDate", instantText(event.instant)}};
}

Json datedPhaseEventsJson(const PhaseEvents& events, const Query& query) {
  Json list = Json::array();
  for (const PhaseEvent& event : events) {
    Json dated{{"day", dayOfMonth(event.date)},
               {"month", static_cast<unsigned>(event.date.month())},
               {"year", static_cast<int>(event.date.year())}};
    dated.update(phaseEventJson(event, query));
    list.push_back(dated);
  }
  return list;
}

std::string phaseGlyphAt(std::int64_t phase, const Place& place) {
  return phaseGlyph(phase, place.location.latitude < 0);
}

ShownPhase shownPhase(const PhaseItem& record, const Illumination& illumination) {
  if (record.moonAge > greatestAge) return {intermediatePhase(illumination), std::nullopt};
  return {record.phase, record.moonAge};
}

std::string phaseClock(Instant instant, const Query& query) {
  return clockText(clockMinutes(instant, query.place.zone), query.use24HourClock);
}

std::string phaseTime(const PhaseEvent& event, const Query& query) {
  return englishDate(event.date, "EEE ") + localText(event.instant, query.place.zone, query.use24HourClock);
}

std::string phaseDay(CivilDate date) { return englishDate(date, "EEE ") + rightAligned(dayOfMonth(date), 2); }

}  // namespace velmora::app
