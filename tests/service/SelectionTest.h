#pragma once

#include <tests/service/NotificationRecord.h>
#include <tests/service/ServiceTest.h>

namespace velmora {

using Texts = std::vector<std::string>;
using Days = std::vector<std::int64_t>;

/// What the tests of dates, places and tables share: a look at what the service keeps of the month.
class SelectionTest : public ServiceTest {
 protected:
  static void buildMonth() {
    service().currentMonthPhaseDictionary();
    service().currentMonthImageDictionary();
    service().GetRiseSetPhaseItemsForCurrentMonth();
  }
  static bool hasWholeMonth() {
    return service().currentPhaseDictionary() && service().currentImageDictionary() &&
           service().currentRiseSetPhaseItemDictionary();
  }
  static bool hasNothingOfMonth() {
    return !service().currentPhaseDictionary() && !service().currentImageDictionary() &&
           !service().currentRiseSetPhaseItemDictionary();
  }
  static std::vector<std::int64_t> eventDays() {
    std::vector<std::int64_t> days;
    for (const auto& event : service().currentMonthData()) days.push_back(event->day);
    return days;
  }
};

}  // namespace velmora
