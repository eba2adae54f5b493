#include <utility>

#include <velmora/foundation/DateHelper.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/platform/events/NotificationCenter.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora {
namespace {

std::unique_ptr<MoonPhaseData>& shared() {
  static std::unique_ptr<MoonPhaseData> instance;
  return instance;
}

void post(const char* name) { NotificationCenter::defaultCenter().post(name); }

}  // namespace

const char kCalenderDateChangedNotification[] = "CalenderDateChanged";
const char kCalenderLocationChangedNotification[] = "CalenderLocationChanged";

MoonPhaseData& MoonPhaseData::sharedInstance() {
  if (!shared()) shared() = std::make_unique<MoonPhaseData>();
  return *shared();
}

void MoonPhaseData::resetSharedInstance() { shared().reset(); }

MoonPhaseData::MoonPhaseData() : _calendar(VelmoraCalendar::applicationCalendar()) {}

void MoonPhaseData::SetSelectedDate(std::optional<Instant> date) {
  if (date == _currentDate || !DateHelper::IsDateValid(date)) return;
  dateWillChangeTo(date);
  _currentDate = date;
  updateCacheForDate(date);
  post(kCalenderDateChangedNotification);
}

void MoonPhaseData::changeSelectedDay(std::int64_t day, std::int64_t month, std::int64_t year) {
  if (day == _currentDay && month == _currentMonth && year == _currentYear) return;
  useZoneOfPlace();
  SetSelectedDate(_calendar.date({.year = year, .month = month, .day = day}));
}

void MoonPhaseData::SetSelectedLocation(std::shared_ptr<GeoLocationData> location) {
  setPlace(std::move(location));
  updateCacheForDate(_currentDate);
  post(kCalenderLocationChangedNotification);
}

void MoonPhaseData::SetSelectedLocation(std::shared_ptr<GeoLocationData> location,
                                        std::optional<Instant> date) {
  setPlace(std::move(location));
  _currentDate = date;
  updateCacheForDate(_currentDate);
  post(kCalenderLocationChangedNotification);
}

void MoonPhaseData::dateWillChangeTo(std::optional<Instant> date) {
  if (!date) return;
  if (_currentDate) {
    const DateComponents next = _calendar.components(*date), current = _calendar.components(*_currentDate);
    if (next.month == current.month && next.year == current.year) return;
  }
  forgetMonth();
}

void MoonPhaseData::updateCacheForDate(std::optional<Instant> date) {
  if (!date) return;
  const DateComponents split = _calendar.components(*date);
  _currentDay = split.day;
  const bool yearChanges = split.year != _currentYear;
  if (!yearChanges && split.month == _currentMonth) return;

  _currentYear = split.year;
  _currentMonth = split.month;
  if (yearChanges) loadDataForYear(_currentYear);
  calculateMoonPhases();
}

void MoonPhaseData::loadDataForYear(std::int64_t year) { _rawDataDictionary = getDataForYear(year); }

std::shared_ptr<const YearTable> MoonPhaseData::getDataForYear(std::int64_t year) const {
  return tableOfYear(static_cast<std::int32_t>(year));  // Kept: the low 32 bits name a table.
}

// Kept: the offset of the month's first midnight goes with the whole month; a change of the clocks within it
// does not matter to the query.
void MoonPhaseData::calculateMoonPhases() {
  if (!_rawDataDictionary) return;
  const Instant firstOfMonth = _calendar.date({.year = _currentYear, .month = _currentMonth});
  const std::int64_t offset = place().GetTimezoneIntervalFromGMT(firstOfMonth);
  const std::int64_t zeroBasedMonth = _currentMonth - 1;
  Calendar calendar = _calendar;  // the query moves its own even where there is no place to move to
  _currentMonthData = MoonPhaseCalc::GetMoonPhaseDataForMonth(*_rawDataDictionary, _currentYear,
                                                              zeroBasedMonth, calendar, offset, _currentYear,
                                                              zeroBasedMonth, place(), _use24HrTimeFormat);
  useZoneOfPlace();  // the caller may have moved the place's record to another zone
}

/// The selected place; before one is selected, a place without coordinates and zone.
const GeoLocationData& MoonPhaseData::place() const {
  static const GeoLocationData nowhere;
  return _currentLocation ? *_currentLocation : nowhere;
}

/// The place's named zone; without one the fixed zone of its offset, which is the same at every instant.
TimeZone MoonPhaseData::zoneOfPlace() const {
  return place().calendarZone(place().GetTimezoneIntervalFromGMT(Instant()));
}

void MoonPhaseData::useZoneOfPlace() {
  if (!_currentLocation) return;
  _calendar.setTimeZone(zoneOfPlace());
}

void MoonPhaseData::forgetMonth() {
  _currentImageDictionary.reset();
  _currentRiseSetPhaseItemDictionary.reset();
  _currentPhaseDictionary.reset();
}

void MoonPhaseData::setPlace(std::shared_ptr<GeoLocationData> location) {
  forgetMonth();
  _currentLocation = std::move(location);
  useZoneOfPlace();
}

}  // namespace velmora
