#pragma once

#include <string>
#include <vector>

#include <velmora/platform/events/NotificationCenter.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora {

/// Writes down each notification and what the service shows to an observer while it is being told.
class NotificationRecord {
 public:
  std::vector<std::string> texts;

 private:
  void note(const std::string& name) {
    MoonPhaseData& service = MoonPhaseData::sharedInstance();
    const auto phases = service.currentMonthPhaseDictionary();
    texts.push_back(name + " " + std::to_string(service.currentYear()) + "-" +
                    std::to_string(service.currentMonth()) + "-" + std::to_string(service.currentDay()) +
                    ", events " + std::to_string(service.currentMonthPhases().size()) + ", days " +
                    std::to_string(phases ? phases->size() : 0) + ", in " +
                    service.calendar().timeZone().name());
  }
  NotificationCenter::Subscription subscribe(const char* name) {
    return NotificationCenter::defaultCenter().subscribe(name, [this, name] { note(name); });
  }

  NotificationCenter::Subscription _dates = subscribe(kCalenderDateChangedNotification);
  NotificationCenter::Subscription _places = subscribe(kCalenderLocationChangedNotification);
};

}  // namespace velmora
