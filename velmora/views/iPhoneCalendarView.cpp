#include <velmora/views/iPhoneCalendarView.h>

#include <utility>

#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/platform/ui/Announcements.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/UIControls.h>

namespace velmora {

iPhoneCalendarView::iPhoneCalendarView()
    : _dateChanges(NotificationCenter::defaultCenter().subscribe(kCalenderDateChangedNotification,
                                                                 [this] { followSelectedDate(); })),
      _placeChanges(NotificationCenter::defaultCenter().subscribe(kCalenderLocationChangedNotification,
                                                                  [this] { setNeedsDisplay(); })) {
  awakeFromNib();
}

void iPhoneCalendarView::awakeFromNib() {
  setAccessibilityTraits(AccessibilityTraits::allowsDirectInteraction);
  setIsAccessibilityElement(true);
}

void iPhoneCalendarView::setPadding(double padding) {
  usePadding(padding);
  setNeedsDisplay();
}

void iPhoneCalendarView::setWeekStartDay(std::int64_t index) {
  _weekStartDay = index;
  setNeedsDisplay();
}

void iPhoneCalendarView::setColorTheme(std::shared_ptr<VelmoraTheme> theme) {
  _colorTheme = std::move(theme);
  setNeedsDisplay();
}

void iPhoneCalendarView::setHideEclipeInfo(bool isHidden) {
  _hideEclipeInfo = isHidden;
  setNeedsDisplay();
}

void iPhoneCalendarView::setAlternateCalendarType(std::int64_t type) {
  _alternateCalendarType = type;
  _altNumberFormatter.setLocale(localeOfAlternateDays(type).value_or(_numberFormatter.locale()));
  setNeedsDisplay();
}

const std::shared_ptr<VelmoraTheme>& iPhoneCalendarView::calendarTheme() {
  if (_colorTheme == nullptr) _colorTheme = VelmoraTheme::calendarTheme();
  return _colorTheme;
}

bool iPhoneCalendarView::isSouthernHemisphere() const {
  return MoonPhaseData::sharedInstance().isSouthernHemisphere();
}

void iPhoneCalendarView::followSelectedDate() {
  const auto& date = MoonPhaseData::sharedInstance().currentDate();
  if (date == _selectedDate) return;
  _selectedDate = date;
  setNeedsDisplay();
}

// An observer may release the view, or replace the service.
void iPhoneCalendarView::changeSelectedDay(std::int64_t day) {
  const auto self = weak_from_this().lock();
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  service.changeSelectedDay(day, service.currentMonth(), service.currentYear());
  _selectedDate = MoonPhaseData::sharedInstance().currentDate();
  setNeedsDisplay();
  if (_selectedDate) announce(*_selectedDate);
  NotificationCenter::defaultCenter().post(kCalenderDateChangedNotification);
}

void iPhoneCalendarView::announce(Instant date) {
  static OncePerProcess<DateFormatter> formatter;
  const DateFormatter& mediumDates = formatter.get([] {
    DateFormatter made = VelmoraCalendar::calendarDateFormatter();
    made.setTimeZone(MoonPhaseData::sharedInstance().calendar().timeZone());
    made.setDateStyle(DateFormatter::Style::mediumStyle);
    return made;
  });
  Announcements::post(mediumDates.stringFromDate(date));
}

void iPhoneCalendarView::touchesBegan(const Touch& touch) {
  _touchCancelled = false;
  _lastSelectedCell = cellUnder(touch);
}

void iPhoneCalendarView::touchesMoved(const Touch& touch) {
  if (cellUnder(touch) != _lastSelectedCell) _touchCancelled = true;
}

void iPhoneCalendarView::touchesEnded(const Touch& touch) {
  touchesMoved(touch);  // a finger may lift elsewhere without having been seen to move
  if (_touchCancelled || !_lastSelectedCell) return;
  if (const auto day = _grid.dayInCell(*_lastSelectedCell)) changeSelectedDay(*day);
}

std::optional<std::int64_t> iPhoneCalendarView::cellUnder(const Touch& touch) const {
  return _grid.cellAt(UIControls::pointForCurrentLayoutDirection(touch.locationIn(*this), bounds()));
}

}  // namespace velmora
