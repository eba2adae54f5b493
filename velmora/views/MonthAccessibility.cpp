#include <array>
#include <string>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/NumberText.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/CalendarCellAccessibilityCustomAction.h>
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

/// The date, then the phase and the eclipse as far as there are any: "Mar 25, 2024, Full Moon".
std::string label(Instant date, std::int64_t day, bool withEclipse) {
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const TimeZone& zone = service.calendar().timeZone();
  DateFormatter dates;
  dates.setTimeZone(zone);
  dates.setDateStyle(DateFormatter::Style::mediumStyle);
  std::string text = dates.stringFromDate(date);

  if (const auto phases = service.currentMonthPhaseDictionary(); phases && phases->contains(day)) {
    const auto name = service.nameForPhase(phases->at(day)->phase);
    if (name) text += ", " + Bundle::library().localizedString(*name);
  }
  const auto eclipse = withEclipse ? service.eventsOnDate(date, zone) : nullptr;
  if (eclipse && eclipse->title) text += ", " + *eclipse->title;
  return text;
}

}  // namespace

std::vector<AccessibilityElement> iPhoneCalendarView::accessibilityElements() {
  if (_axElements.empty()) setupAccessibility();
  return _axElements;
}

void iPhoneCalendarView::setupAccessibility() {
  _axElements.clear();
  // A view may outlive the selection that it drew.
  if (MoonPhaseData::sharedInstance().currentMonth() == 0) return;
  for (std::int64_t day = 1; day <= _grid.numberOfDaysInMonth; ++day) {
    _axElements.push_back(elementOfDay(day));
  }
}

AccessibilityElement iPhoneCalendarView::elementOfDay(std::int64_t day) {
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const Instant date =
      service.calendar().date({.year = service.currentYear(), .month = service.currentMonth(), .day = day});
  const auto select = [weakView = weak_from_this()](const AccessibilityCustomAction& action) {
    const auto view = std::static_pointer_cast<iPhoneCalendarView>(weakView.lock());
    if (view) view->accessibilityCellSelected(action);
  };
  const Bundle bundle = Bundle::library();
  return {
      .frame = UIControls::rectForCurrentLayoutDirection(_grid.cell(day), bounds()),
      .label = label(date, day, !_hideEclipeInfo),
      .value = std::string(monthName(service.currentMonth())) + " " + integerText(day),
      .hint = bundle.localizedString("Tap to select date"),
      .traits = AccessibilityTraits::button,
      // Kept: the day before the element's own; of day 1 it is 0, the last day of the month before.
      .customActions = {std::make_shared<CalendarCellAccessibilityCustomAction>(
          bundle.localizedString("Select"), select, day - 1)},
  };
}

void iPhoneCalendarView::accessibilityCellSelected(const AccessibilityCustomAction& action) {
  const auto* cellAction = dynamic_cast<const CalendarCellAccessibilityCustomAction*>(&action);
  if (cellAction != nullptr) changeSelectedDay(cellAction->selectedDay());
}

}  // namespace velmora
