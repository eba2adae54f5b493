#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include <velmora/platform/ui/AccessibilityElement.h>

namespace velmora {

/// The action of a day's element in a month view.
class CalendarCellAccessibilityCustomAction final : public AccessibilityCustomAction {
 public:
  /// An action of that name for the day.
  CalendarCellAccessibilityCustomAction(std::string name, Handler handler, std::int64_t selectedDay)
      : AccessibilityCustomAction(std::move(name), std::move(handler)), _selectedDay(selectedDay) {}

  /// The day number that the view is asked to select.
  std::int64_t selectedDay() const { return _selectedDay; }

 private:
  std::int64_t _selectedDay;
};

}  // namespace velmora
