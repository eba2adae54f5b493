// A day of the Moon and the Sun in the terminal:
//   terminal-day [YEAR MONTH DAY]
#include <cstdlib>
#include <iostream>
#include <memory>

#include <velmora/platform/time/Clock.h>
#include <velmora/service/MoonPhaseData.h>

namespace {

std::shared_ptr<velmora::GeoLocationData> reykjavik() {
  auto place = std::make_shared<velmora::GeoLocationData>();
  place->SetLocation(64.1466, -21.9426, "Reykjavik", "Atlantic/Reykjavik", 0, false);
  return place;
}

void print(velmora::MoonPhaseData& moon) {
  const auto day = moon.GetRiseSetPhaseItemForCurrentDate();
  if (!day) {
    std::cout << "The tables do not reach that day.\n";
    return;
  }
  const velmora::RiseSetData& times = *day->riseSetData;
  std::cout << moon.nameForPhase(day->phase).value_or("?") << ", day " << day->moonAge << " of the Moon\n"
            << "Sun   " << times.sunRiseText << " to " << times.sunSetText << '\n'
            << "Moon  " << times.moonRiseText << " to " << times.moonSetText << '\n';
}

}  // namespace

int main(int count, char** arguments) {
  velmora::MoonPhaseData& moon = velmora::MoonPhaseData::sharedInstance();
  moon.SetSelectedLocation(reykjavik(), velmora::Clock::now());
  if (count == 4) {
    moon.changeSelectedDay(std::atoi(arguments[3]), std::atoi(arguments[2]), std::atoi(arguments[1]));
  }
  print(moon);
}
