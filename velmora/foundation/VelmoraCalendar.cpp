#include <velmora/foundation/VelmoraCalendar.h>

#include <mutex>

namespace velmora {
namespace {

using Names = std::vector<std::string>;

std::mutex namesMutex;
Names weekdayNames;
Names monthNames;

const Names& keptNames(Names& names, Names (*read)(const Locale&)) {
  const std::lock_guard lock(namesMutex);
  if (names.empty()) names = read(Locale::current());
  return names;
}

}  // namespace

Calendar VelmoraCalendar::applicationCalendar() { return Calendar(); }

DateFormatter VelmoraCalendar::calendarDateFormatter() { return DateFormatter(); }

const Names& VelmoraCalendar::shortWeekdayStrings() {
  return keptNames(weekdayNames, &DateFormatter::shortWeekdaySymbols);
}

const Names& VelmoraCalendar::shortMonthStrings() {
  return keptNames(monthNames, &DateFormatter::shortMonthSymbols);
}

void VelmoraCalendar::resetSymbols() {
  const std::lock_guard lock(namesMutex);
  weekdayNames.clear();
  monthNames.clear();
}

}  // namespace velmora
