#include <algorithm>
#include <limits>

#include <velmora/foundation/TableYears.h>
#include <velmora/phases/Months.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora {
namespace {

using Item = std::shared_ptr<RiseSetPhaseItem>;

std::int64_t phaseThatFollows(std::int64_t principalPhase) {
  switch (principalPhase) {
    case kNewMoon:
      return kWaxingCrescent;
    case kFirstQuarter:
      return kWaxingGibbous;
    case kFullMoon:
      return kWaningGibbous;
    case kLastQuarter:
      return kWaningCrescent;
    default:
      return kUnknownPhase;
  }
}

const std::vector<Item>& itemsOfMonth(const MoonPhaseData::YearItems& year, std::int64_t month) {
  static const std::vector<Item> none;
  const auto found = year.find(month);
  return found == year.end() ? none : found->second;
}

/// The first item of the phase later than the instant; none if there is none.
Item firstLater(const std::vector<Item>& items, std::int64_t phase, Instant instant) {
  const auto found = std::find_if(items.begin(), items.end(), [&](const Item& item) {
    return item->phase == phase && item->localDate > instant;
  });
  return found == items.end() ? nullptr : *found;
}

/// Appends the month's items of the phase in (from, to]; false when a later item ended the walk.
bool appendMatching(std::vector<Item>& found, const std::vector<Item>& items, std::int64_t phase,
                    Instant from, Instant to) {
  for (const Item& item : items) {
    if (item->phase == phase && item->localDate > from && item->localDate <= to) {
      found.push_back(item);
    } else if (item->localDate > to) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::shared_ptr<RiseSetPhaseItem> MoonPhaseData::nextEventSince(std::int64_t day,
                                                                const RiseSetItems& withEvents) const {
  const auto found = std::find_if(withEvents.lower_bound(day), withEvents.end(), [](const auto& entry) {
    return entry.second->phase == kFullMoon || entry.second->phase == kNewMoon;
  });
  return found == withEvents.end() ? nullptr : found->second;
}

// Kept: "today" is the selected day, not the device's date.
std::shared_ptr<RiseSetPhaseItem> MoonPhaseData::nextEventSinceToday() {
  if (const auto items = GetRiseSetPhaseItemsForCurrentMonth()) {
    if (const auto next = nextEventSince(_currentDay, *items)) {
      next->moonAge = next->day - _currentDay;
      return next;
    }
  }
  const auto items = GetRiseSetPhaseItemsForNextMonth();
  const auto next = items ? nextEventSince(std::numeric_limits<std::int64_t>::min(), *items) : nullptr;
  if (next) {
    const std::int64_t days = MoonPhaseCalc::GetNumberOfDaysInMonth(_currentMonth - 1, _currentYear);
    next->moonAge = days - _currentDay + next->day;
  }
  return next;
}

std::shared_ptr<RiseSetPhaseItem> MoonPhaseData::nextEventSinceTodayWithPhase(std::int64_t phase) const {
  const Instant now = Clock::now();
  const YearItems year = GetRiseSetPhaseItemsForYear(_currentYear);
  if (auto next = firstLater(itemsOfMonth(year, _currentMonth), phase, now)) return next;
  if (_currentMonth < monthsOfYear) return firstLater(itemsOfMonth(year, _currentMonth + 1), phase, now);
  return firstLater(itemsOfMonth(GetRiseSetPhaseItemsForYear(_currentYear + 1), 1), phase, now);
}

std::vector<std::shared_ptr<RiseSetPhaseItem>> MoonPhaseData::matchingEventsWithPhase(
    std::int64_t phase, std::optional<Instant> from, std::optional<Instant> to) const {
  std::vector<Item> found;
  if (!from || !to || *from > *to) return found;
  const DateComponents first = _calendar.components(*from), last = _calendar.components(*to);
  if (first.year > lastTableYear) return found;

  // A start before the tables keeps its month: July 1995 starts the walk in July 2000.
  std::int64_t year = std::max(first.year, firstTableYear), month = first.month;
  const std::int64_t endYear = std::min(last.year, lastTableYear);
  const std::int64_t endMonth = last.year > lastTableYear ? monthsOfYear : last.month;
  for (; year <= endYear; ++year, month = 1) {
    const YearItems items = GetRiseSetPhaseItemsForYear(year);
    if (items.empty()) break;
    for (const std::int64_t end = year < endYear ? monthsOfYear : endMonth; month <= end; ++month) {
      if (!appendMatching(found, itemsOfMonth(items, month), phase, *from, *to)) return found;
    }
  }
  return found;
}

std::int64_t MoonPhaseData::phaseEventForDate(Instant date) const {
  if (const auto today = monthDataItemForCurrentDay()) return today->phase;
  const MonthDataItem* latest = nullptr;
  for (const auto& event : sharedInstance().currentMonthPhases()) {
    if (event->localDate <= date && (latest == nullptr || event->localDate >= latest->localDate)) {
      latest = event.get();
    }
  }
  return latest == nullptr ? kUnknownPhase : phaseThatFollows(latest->phase);
}

}  // namespace velmora
