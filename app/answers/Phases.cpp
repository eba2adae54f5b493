#include <app/answers/Phases.h>

#include <app/place/CivilDays.h>
#include <app/text/ClockText.h>
#include <app/text/LocalDate.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/almanac/Events.h>
#include <velmora/foundation/DateHelper.h>
#include <velmora/phases/Phase.h>

namespace velmora::app {
namespace {

using almanac::PrincipalPhase;
using std::chrono::local_days;

constexpr std::chrono::days longestLunation{30};

unsigned dayOfMonth(CivilDate date) { return static_cast<unsigned>(date.day()); }

std::string timeText(Instant instant, const Query& query) {
  return DateHelper::GetTimeFormattedString(nearestMinute(instant, query.place.zone), query.use24HourClock)
      .value_or("");
}

/// What follows the principal phase until the next.
std::int64_t phaseAfter(PrincipalPhase phase) {
  switch (phase) {
    case PrincipalPhase::newMoon:
      return kWaxingCrescent;
    case PrincipalPhase::firstQuarter:
      return kWaxingGibbous;
    case PrincipalPhase::fullMoon:
      return kWaningGibbous;
    case PrincipalPhase::lastQuarter:
      return kWaningCrescent;
  }
  return kUnknownPhase;
}

/// What comes before the principal phase.
std::int64_t phaseBefore(PrincipalPhase phase) {
  switch (phase) {
    case PrincipalPhase::newMoon:
      return kWaningCrescent;
    case PrincipalPhase::firstQuarter:
      return kWaxingCrescent;
    case PrincipalPhase::fullMoon:
      return kWaxingGibbous;
    case PrincipalPhase::lastQuarter:
      return kWaningGibbous;
  }
  return kUnknownPhase;
}

}  // namespace

std::int64_t phaseNumber(PrincipalPhase phase) {
  switch (phase) {
    case PrincipalPhase::newMoon:
      return kNewMoon;
    case PrincipalPhase::firstQuarter:
      return kFirstQuarter;
    case PrincipalPhase::fullMoon:
      return kFullMoon;
    case PrincipalPhase::lastQuarter:
      return kLastQuarter;
  }
  return kUnknownPhase;
}

Json phaseJson(const almanac::PhaseEvent& event, const Query& query) {
  const CivilDate date = dateAt(event.at, query.place.zone);
  const std::int64_t phase = phaseNumber(event.phase);
  return {{"day", dayOfMonth(date)},
          {"month", static_cast<unsigned>(date.month())},
          {"year", static_cast<int>(date.year())},
          {"phase", phase},
          {"phaseName", phaseName(phase)},
          {"time", timeText(event.at, query)},
          {"localDate", instantText(event.at)}};
}

std::string phaseGlyphAt(std::int64_t phase, const Place& place) {
  return phaseGlyph(phase, place.location.latitude < 0);
}

std::string momentText(Instant instant, const Query& query) {
  const Reading reading = readingAt(instant, query.place.zone);
  return localDate(reading.date, DateForm::weekday) + " " + dateText(reading.date) + " " +
         clockText(reading.minutes, query.use24HourClock);
}

std::string clockAt(Instant instant, const Query& query) {
  return clockText(readingAt(instant, query.place.zone).minutes, query.use24HourClock);
}

std::string dayOfMonthText(CivilDate date) {
  return localDate(date, DateForm::weekday) + " " + rightAligned(dayOfMonth(date), 2);
}

std::vector<MoonDay> moonDays(const std::vector<CivilDate>& dates, const TimeZone& zone) {
  if (dates.empty()) return {};
  const auto first = almanac::civilDay(zone, dates.front()), last = almanac::civilDay(zone, dates.back());
  if (!first || !last) return {};
  const auto events = almanac::phases(first->start - longestLunation, last->end + longestLunation);

  std::vector<MoonDay> moons;
  auto next = events.begin();
  std::optional<CivilDate> newMoon;
  for (const CivilDate date : dates) {
    MoonDay moon{date, kUnknownPhase, std::nullopt, std::nullopt};
    for (; next != events.end() && dateAt(next->at, zone) <= date; ++next) {
      if (next->phase == PrincipalPhase::newMoon) newMoon = dateAt(next->at, zone);
    }
    if (next != events.begin() && dateAt(std::prev(next)->at, zone) == date) {
      moon.event = std::prev(next)->at;
      moon.phase = phaseNumber(std::prev(next)->phase);
    } else if (next != events.begin()) {
      moon.phase = phaseAfter(std::prev(next)->phase);
    } else if (next != events.end()) {
      moon.phase = phaseBefore(next->phase);
    }
    if (newMoon) moon.age = (local_days(date) - local_days(*newMoon)).count() + 1;
    moons.push_back(moon);
  }
  return moons;
}

}  // namespace velmora::app
