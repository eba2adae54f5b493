#include <velmora/phases/MonthQuery.h>
#include <velmora/phases/Months.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/phases/Phase.h>

namespace velmora {
namespace {

using MonthEvents = MoonPhaseCalc::MonthEvents;

constexpr std::int64_t noDay = -1;

/// A principal phase beside a day.
/// Kept: where the tables end there is none; it then counts as a full moon on day 0.
struct EventDay {
  std::int64_t day = 0;
  std::int64_t phase = kFullMoon;
};

/// What the days of a month are worked out from.
struct EventsAroundMonth {
  MonthEvents events;
  EventDay lastOfPreviousMonth;
  EventDay firstOfNextMonth;
  std::int64_t length = 0;
  std::int64_t previousLength = 0;
};

MonthEvents previousMonthEvents(MonthQuery& query, const YearTable& table, std::int64_t month,
                                std::int64_t year) {
  if (month > zeroBasedJanuary) return query.events(table, year, month - 1);
  const auto previousTable = month == zeroBasedJanuary ? tableOfYear(year - 1) : nullptr;
  return previousTable ? query.events(*previousTable, year - 1, zeroBasedDecember) : MonthEvents();
}

MonthEvents nextMonthEvents(MonthQuery& query, const YearTable& table, std::int64_t month,
                            std::int64_t year) {
  if (month < zeroBasedDecember) return query.events(table, year, month + 1);
  const auto nextTable = tableOfYear(year + 1);
  return nextTable ? query.events(*nextTable, year + 1, zeroBasedJanuary) : MonthEvents();
}

/// The latest event before the day; that of the previous month where the month has none.
EventDay eventBefore(std::int64_t day, const MonthEvents& events, EventDay ofPreviousMonth) {
  const MonthDataItem* latest = nullptr;
  for (const auto& event : events) {
    if (event->day < day && (!latest || event->day > latest->day)) latest = event.get();
  }
  return latest ? EventDay{latest->day, latest->phase} : ofPreviousMonth;
}

/// The earliest event after the day; that of the next month where the month has none.
EventDay eventAfter(std::int64_t day, const MonthEvents& events, EventDay ofNextMonth) {
  const MonthDataItem* earliest = nullptr;
  for (const auto& event : events) {
    if (event->day > day && (!earliest || event->day < earliest->day)) earliest = event.get();
  }
  return earliest ? EventDay{earliest->day, earliest->phase} : ofNextMonth;
}

/// The Moon's age on the first of the month, from the previous month's last new moon.
/// Kept: without one the rule applies as if it had fallen on day −1.
std::int64_t ageOnTheFirst(const MonthEvents& previousEvents, std::int64_t previousLength) {
  std::int64_t newMoonDay = noDay;
  for (const auto& event : previousEvents) {
    if (event->phase == kNewMoon && event->day > newMoonDay) newMoonDay = event->day;
  }
  return previousLength - newMoonDay + 2;
}

/// Gives the day the phase of its events, of which the last in the list counts. False if it has none.
bool takeEventsOfDay(const MonthEvents& events, PhaseItem& item) {
  bool found = false;
  for (const auto& event : events) {
    if (event->day != item.day) continue;
    found = true;
    item.phase = event->phase;
    item.localDate = event->localDate;
    if (event->phase != kUnknownPhase) item.fullFactor = event->fullFactor;
    if (event->phase == kNewMoon) item.moonAge = 1;
  }
  return found;
}

/// Phase and lit fraction of a day on the way from the event `before` it, of which the share `f` of half a
/// disc has been covered. Each step is rounded to single precision.
void takeIntermediatePhase(const EventDay& before, float f, PhaseItem& item) {
  switch (before.phase) {
    case kNewMoon:
      item.phase = kWaxingCrescent;
      item.fullFactor = f;
      break;
    case kFirstQuarter:
      item.phase = kWaxingGibbous;
      item.fullFactor = 0.5F + f;
      break;
    case kFullMoon:
      item.phase = kWaningGibbous;
      item.fullFactor = 1.0F - f;
      break;
    default:
      item.phase = kWaningCrescent;
      item.fullFactor = 0.5F - f;
  }
}

void interpolate(const EventsAroundMonth& around, PhaseItem& item) {
  const std::int64_t day = item.day;
  const EventDay before = eventBefore(day, around.events, around.lastOfPreviousMonth);
  const EventDay after = eventAfter(day, around.events, around.firstOfNextMonth);
  const std::int64_t daysToNext = after.day > day ? after.day - day : (around.length - day) + after.day;
  const std::int64_t daysSincePrevious = day + (day <= before.day ? around.previousLength : 0) - before.day;
  const auto f = static_cast<float>((static_cast<double>(daysSincePrevious) / 2.0) /
                                    static_cast<double>(daysSincePrevious + daysToNext));
  takeIntermediatePhase(before, f, item);
}

}  // namespace

MoonPhaseCalc::PhaseCalendar MoonPhaseCalc::GetPhaseCalendar(const YearTable& table, std::int64_t month,
                                                             std::int64_t year, Instant date,
                                                             const GeoLocationData& location,
                                                             bool use24HourTimeFormat) {
  constexpr std::int64_t afterEveryDay = 32;
  MonthQuery query(date, location, use24HourTimeFormat);
  const MonthEvents previousEvents = previousMonthEvents(query, table, month, year);
  const MonthEvents nextEvents = nextMonthEvents(query, table, month, year);
  const EventsAroundMonth around = {
      .events = query.events(table, year, month),
      .lastOfPreviousMonth = eventBefore(afterEveryDay, previousEvents, EventDay()),
      .firstOfNextMonth = eventAfter(0, nextEvents, EventDay()),
      .length = GetNumberOfDaysInMonth(month, year),
      .previousLength = GetNumberOfDaysInMonth(month - 1, month == zeroBasedJanuary ? year - 1 : year)};

  PhaseCalendar calendar;
  std::int64_t age = ageOnTheFirst(previousEvents, around.previousLength);
  for (std::int64_t day = 1; day <= around.length; ++day) {
    const auto item = std::make_shared<PhaseItem>();
    item->day = day;
    item->month = month + 1;
    item->year = year;
    item->moonAge = age;
    if (!takeEventsOfDay(around.events, *item)) interpolate(around, *item);
    age = item->moonAge + 1;
    calendar.emplace_hint(calendar.end(), day, item);
  }
  return calendar;
}

}  // namespace velmora
