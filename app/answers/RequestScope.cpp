#include <app/answers/RequestScope.h>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora::app {
namespace {

Locale localeOf(const Request& request) {
  const Locale locale = request.locale.value_or(Locale::current());
  return request.clock ? locale.withHourCycle(*request.clock) : locale;
}

}  // namespace

ScopedTimeFormat::ScopedTimeFormat(bool use24HourClock)
    : _former(SettingsModel::sharedInstance().timeFormat()) {
  SettingsModel::sharedInstance().setTimeFormat(use24HourClock ? 1 : 0);
}

ScopedTimeFormat::~ScopedTimeFormat() { SettingsModel::sharedInstance().setTimeFormat(_former); }

RequestScope::RequestScope(const Request& request)
    : _locale(localeOf(request)),
      _use24HourClock(Locale::current().uses24HourClock()),
      _timeFormat(_use24HourClock) {
  if (request.now) _now.emplace(*request.now);
  VelmoraCalendar::resetSymbols();
  MoonPhaseData::resetSharedInstance();
  MoonPhaseData::sharedInstance().setUse24HrTimeFormat(_use24HourClock);
}

RequestScope::~RequestScope() { MoonPhaseData::resetSharedInstance(); }

}  // namespace velmora::app
