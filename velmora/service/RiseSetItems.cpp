#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/foundation/TableYears.h>
#include <velmora/phases/Months.h>
#include <velmora/phases/TableLine.h>
#include <velmora/service/LocalizedClockText.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/service/ShortTimeText.h>

namespace velmora {
namespace {

constexpr int civilTwilight = 0;

// A day without an event of its own is described for 03:00.
constexpr std::int64_t hourOfQuietDays = 3;

std::shared_ptr<RiseSetPhaseItem> itemOfDay(const PhaseItem& day) {
  auto item = std::make_shared<RiseSetPhaseItem>();
  item->day = day.day;
  item->month = day.month;
  item->year = day.year;
  item->moonAge = day.moonAge;
  item->phase = day.phase;
  item->fullFactor = day.fullFactor;
  return item;
}

Instant quietHour(const PhaseItem& day, const Calendar& calendar) {
  return calendar.date({.year = day.year, .month = day.month, .day = day.day, .hour = hourOfQuietDays});
}

}  // namespace

void MoonPhaseData::setRiseSetSource(RiseSetSource source) {
  _riseSetSource = std::move(source);
  _currentRiseSetPhaseItemDictionary = nullptr;
}

RiseSetData MoonPhaseData::riseSetOf(Instant date, std::int64_t secondsFromGMT) const {
  if (_riseSetSource) return _riseSetSource(date, place(), secondsFromGMT, civilTwilight);
  return RiseAndSetCalc::Compute(date, place(), secondsFromGMT, civilTwilight);
}

RiseSetData MoonPhaseData::GetRiseSetDataForDate(Instant date) const {
  return riseSetOf(date, zoneOfPlace().secondsFromGMT(date));
}

std::vector<RiseSetData> MoonPhaseData::getRiseSetDataFrom(Instant from, Instant to) const {
  std::vector<RiseSetData> days;
  Instant day, next = from;
  do {
    day = next;
    days.push_back(GetRiseSetDataForDate(day));
    days.back().date = day;
    next = _calendar.dateByAddingDays(1, day);
  } while (day < next && next <= to);
  return days;
}

std::shared_ptr<const MoonPhaseData::RiseSetItems> MoonPhaseData::GetRiseSetPhaseItemsForCurrentMonth() {
  if (!_rawDataDictionary || _currentRiseSetPhaseItemDictionary) return _currentRiseSetPhaseItemDictionary;
  const auto days = phasesOfMonth();
  const Calendar localCalendar(zoneOfPlace());

  auto items = std::make_shared<RiseSetItems>();
  for (const auto& [number, day] : *days) {
    const Instant instant = day->localDate ? *day->localDate : quietHour(*day, localCalendar);
    (*items)[number] = riseSetItem(*day, instant, localCalendar);
  }
  _currentRiseSetPhaseItemDictionary = std::move(items);
  return _currentRiseSetPhaseItemDictionary;
}

// Kept: unlike in the current month, every day is described for 03:00, also one with an event, and that
// instant's text is the device's clock, not the place's.
std::shared_ptr<const MoonPhaseData::RiseSetItems> MoonPhaseData::GetRiseSetPhaseItemsForNextMonth() const {
  if (!_rawDataDictionary) return nullptr;
  const bool inNextYear = _currentMonth == monthsOfYear;
  const std::int64_t year = inNextYear ? _currentYear + 1 : _currentYear;
  if (year > lastTableYear) return nullptr;
  const auto table = inNextYear ? getDataForYear(year) : _rawDataDictionary;
  if (!table) return nullptr;
  const std::int64_t zeroBasedMonth = inNextYear ? 0 : _currentMonth;
  const Instant reference = _calendar.dateByAddingMonths(1, _currentDate.value_or(Instant()));

  const PhaseCalendar days =
      MoonPhaseCalc::GetPhaseCalendar(*table, zeroBasedMonth, year, reference, place(), _use24HrTimeFormat);
  const Calendar localCalendar(zoneOfPlace());
  const Calendar deviceCalendar;
  auto items = std::make_shared<RiseSetItems>();
  for (const auto& [number, day] : days) {
    (*items)[number] = riseSetItem(*day, quietHour(*day, localCalendar), deviceCalendar);
  }
  return items;
}

MoonPhaseData::YearItems MoonPhaseData::GetRiseSetPhaseItemsForYear(std::int64_t year) const {
  YearItems items;
  const auto table = getDataForYear(year);
  if (!table) return items;
  const Calendar localCalendar(zoneOfPlace());
  for (std::int64_t month = 1; month <= monthsOfYear; ++month) {
    const auto lines = table->find(std::to_string(month));
    if (lines == table->end()) continue;
    for (const std::string& line : lines->second) {
      const auto event = readTableLine(line, year, month);
      if (!event) continue;
      auto item = eventItem(*event, localCalendar);
      items[item->month].push_back(std::move(item));
    }
  }
  return items;
}

std::shared_ptr<RiseSetPhaseItem> MoonPhaseData::GetRiseSetPhaseItemForCurrentDate() {
  const auto items = GetRiseSetPhaseItemsForCurrentMonth();
  if (!items) return nullptr;
  const auto found = items->find(_currentDay);
  return found == items->end() ? nullptr : found->second;
}

void MoonPhaseData::localizeDateTimeStringsForRiseSetPhaseItem(RiseSetPhaseItem* item,
                                                               const std::optional<TimeZone>&) const {
  if (item == nullptr || !item->riseSetData) return;
  RiseSetData& data = *item->riseSetData;
  for (std::string* text : {&data.moonRiseText, &data.moonSetText}) *text = localizedClockText(*text);
  for (std::string* text : {&data.sunRiseText, &data.sunSetText}) *text = localizedUnmarkedText(*text);
}

std::shared_ptr<RiseSetPhaseItem> MoonPhaseData::riseSetItem(const PhaseItem& day, Instant instant,
                                                             const Calendar& timeCalendar) const {
  auto item = itemOfDay(day);
  item->localDate = instant;
  item->riseSetData = GetRiseSetDataForDate(instant);
  item->timeText = shortTimeText(instant, timeCalendar);
  item->weekDay = _calendar.components(instant).weekday;
  localizeDateTimeStringsForRiseSetPhaseItem(item.get(), place().timezone);
  return item;
}

// Kept: the instant shifted by the place's offset is stored in the item and handed to the search. The item
// then stands for the event's reading on the place's clock.
std::shared_ptr<RiseSetPhaseItem> MoonPhaseData::eventItem(const TableEvent& event,
                                                           const Calendar& localCalendar) const {
  const std::int64_t offset = place().GetTimezoneIntervalFromGMT(event.instant);
  const Instant shifted = event.instant + std::chrono::seconds(offset);
  const DateComponents local = _calendar.components(event.instant);
  auto item = std::make_shared<RiseSetPhaseItem>();
  item->day = local.day;
  item->month = local.month;
  item->year = local.year;
  item->weekDay = local.weekday;
  item->phase = event.phase;
  item->fullFactor = fullFactorForPrincipalPhase(event.phase);
  item->timeText = shortTimeText(event.instant, localCalendar);
  item->localDate = shifted;
  item->riseSetData = riseSetOf(shifted, zoneOfPlace().secondsFromGMT(event.instant));
  localizeDateTimeStringsForRiseSetPhaseItem(item.get(), place().timezone);
  return item;
}

}  // namespace velmora
