#include <velmora/views/TodayInSelectedMonth.h>

#include <velmora/platform/time/Clock.h>
#include <velmora/service/MoonPhaseData.h>

namespace [[gnu::visibility("hidden")]] velmora {

std::int64_t todayInSelectedMonth(const MoonPhaseData& service) {
  const DateComponents now = Calendar::currentCalendar().components(Clock::now());
  const bool isThisMonth = now.month == service.currentMonth() && now.year == service.currentYear();
  return isThisMonth ? now.day : 0;
}

}  // namespace velmora
