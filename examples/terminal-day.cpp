// A day of the Moon and the Sun in the terminal:
//   terminal-day [YEAR MONTH DAY]
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include <velmora/platform/time/Clock.h>
#include <velmora/service/MoonPhaseData.h>

#include "SelectedDay.h"

namespace {

std::shared_ptr<velmora::GeoLocationData> reykjavik() {
  auto place = std::make_shared<velmora::GeoLocationData>();
  place->SetLocation(64.1466, -21.9426, "Reykjavik", "Atlantic/Reykjavik", 0, false);
  return place;
}

void print(const velmora::RiseSetPhaseItem& day, const std::string& phase) {
  const velmora::RiseSetData& times = *day.riseSetData;
  std::cout << phase << ", day " << day.moonAge << " of the Moon\n"
            << "Sun   " << times.sunRiseText << " to " << times.sunSetText << '\n'
            << "Moon  " << times.moonRiseText << " to " << times.moonSetText << '\n';
}

}  // namespace

int main(int count, char** arguments) {
  velmora::MoonPhaseData& moon = velmora::MoonPhaseData::sharedInstance();
  moon.SetSelectedLocation(reykjavik(), velmora::Clock::now());
  const bool isDayGiven = count == 4;
  const std::int64_t day = isDayGiven ? std::atoi(arguments[3]) : moon.currentDay();
  const std::int64_t month = isDayGiven ? std::atoi(arguments[2]) : moon.currentMonth();
  const std::int64_t year = isDayGiven ? std::atoi(arguments[1]) : moon.currentYear();
  if (!selectDay(moon, day, month, year)) return 1;
  const auto item = moon.GetRiseSetPhaseItemForCurrentDate();
  print(*item, moon.nameForPhase(item->phase).value_or("?"));
}
