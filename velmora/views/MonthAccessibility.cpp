#include <array>
#include <string>
#include <utility>

#include <velmora/platform/time/NumberText.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/CalendarCellAccessibilityCustomAction.h>
#include <velmora/views/LocalizedText.h>
#include <velmora/views/SpokenTexts.h>
#include <velmora/views/UIControls.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace velmora {
namespace {

/// Kept: the month in English whatever the language is. The label says the date in the user's own.
const char* monthName(std::int64_t month) {
  static constexpr std::array names = {"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
  return names.at(static_cast<std::size_t>(month - 1));
}

/// ", Total Solar Eclipse" on a day with an eclipse.
std::string eclipseOf(std::int64_t day) {
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const Instant date =
      service.calendar().date({.year = service.currentYear(), .month = service.currentMonth(), .day = day});
  const auto eclipse = service.eventsOnDate(date, service.calendar().timeZone());
  return eclipse && eclipse->title ? ", " + *eclipse->title : "";
}

}  // namespace

void iPhoneCalendarView::setAxElements(std::vector<AccessibilityElement> elements) {
  _axElements = std::move(elements);
  _hasGivenElements = !_axElements.empty();
}

std::vector<AccessibilityElement> iPhoneCalendarView::accessibilityElements() {
  if (!_hasGivenElements) setupAccessibility();
  return _axElements;
}

void iPhoneCalendarView::setupAccessibility() {
  _axElements = currentElements();
  _hasGivenElements = false;
}

std::vector<AccessibilityElement> iPhoneCalendarView::currentElements() {
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const MonthGrid grid = gridOfSelectedMonth();
  const SpokenDays days;
  const auto select = [weakView = weak_from_this()](const AccessibilityCustomAction& action) {
    const auto view = std::static_pointer_cast<iPhoneCalendarView>(weakView.lock());
    if (view) view->accessibilityCellSelected(action);
  };
  std::vector<AccessibilityElement> elements;
  for (std::int64_t day = 1; day <= grid.numberOfDaysInMonth; ++day) {
    elements.push_back({
        .frame = UIControls::rectForCurrentLayoutDirection(grid.cell(day), bounds()),
        .label = days.dateAndPhase(day) + (_hideEclipeInfo ? "" : eclipseOf(day)),
        .value = std::string(monthName(service.currentMonth())) + " " + integerText(day),
        .hint = localizedText("Tap to select date"),
        .traits = AccessibilityTraits::button,
        // Kept: the day before the element's own; of day 1 it is 0, the last day of the month before.
        .customActions = {std::make_shared<CalendarCellAccessibilityCustomAction>(localizedText("Select"),
                                                                                  select, day - 1)},
    });
  }
  return elements;
}

void iPhoneCalendarView::accessibilityCellSelected(const AccessibilityCustomAction& action) {
  const auto* cellAction = dynamic_cast<const CalendarCellAccessibilityCustomAction*>(&action);
  if (cellAction != nullptr) changeSelectedDay(cellAction->selectedDay());
}

}  // namespace velmora
