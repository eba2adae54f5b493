// Selects every day from 2000 on in thirty places, reads what an application shows of it and draws a view
// each month, in one process; fails if its memory grows:
//   selection-soak [YEARS [PLACES]]      (41 years in 30 places unless told otherwise)
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonCalendarView.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/MoonRiseSetMonthView.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace {

using namespace velmora;

constexpr int firstYear = 2000, allYears = 41;
constexpr Size pictureSize = {390, 540};  // in points
constexpr double mebibyte = 1024.0 * 1024.0;
constexpr double mostGrowth =
    8;  // in mebibytes, after the first of at least three parts has filled the caches

struct Spot {
  const char* zone;
  double latitude, longitude;
};

constexpr Spot spots[] = {
    {"UTC", 51.48, 0},
    {"America/Los_Angeles", 37.79, -122.39},
    {"America/Denver", 39.74, -104.98},
    {"America/Chicago", 41.85, -87.65},
    {"America/New_York", 40.71, -74.01},
    {"America/St_Johns", 47.57, -52.72},
    {"America/Sao_Paulo", -23.53, -46.62},
    {"America/Anchorage", 61.22, -149.9},
    {"Pacific/Honolulu", 21.31, -157.86},
    {"Pacific/Apia", -13.83, -171.73},
    {"Pacific/Kiritimati", 1.87, -157.33},
    {"Pacific/Chatham", -43.95, -176.55},
    {"Pacific/Auckland", -36.87, 174.77},
    {"Australia/Lord_Howe", -31.55, 159.08},
    {"Australia/Sydney", -33.87, 151.22},
    {"Australia/Adelaide", -34.92, 138.58},
    {"Asia/Tokyo", 35.65, 139.74},
    {"Asia/Shanghai", 31.23, 121.47},
    {"Asia/Kathmandu", 27.72, 85.32},
    {"Asia/Kolkata", 22.53, 88.37},
    {"Asia/Tehran", 35.67, 51.43},
    {"Asia/Jerusalem", 31.78, 35.22},
    {"Africa/Cairo", 30.05, 31.25},
    {"Africa/Nairobi", -1.28, 36.82},
    {"Africa/Johannesburg", -26.25, 28},
    {"Europe/Kyiv", 50.43, 30.52},
    {"Europe/Helsinki", 60.17, 24.97},
    {"Europe/London", 51.51, -0.13},
    {"Arctic/Longyearbyen", 78, 16},
    {"Antarctica/Troll", -72.01, 2.53},
};

/// What of the process lies in memory, in mebibytes.
double residentMemory() {
  std::ifstream file("/proc/self/statm");
  double pages = 0;
  file >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / mebibyte;
}

/// The day as an application shows it; the count of texts and numbers found keeps the reading from being for
/// nothing.
std::size_t readDay(MoonPhaseData& moon) {
  const auto phase = moon.currentMonthPhaseDictionary()->at(moon.currentDay());
  const auto item = moon.GetRiseSetPhaseItemForCurrentDate();
  const auto position = moon.GetMoonPositionDataForDate(*moon.currentDate(), 12 * 60);
  const auto eclipse = moon.eventsOnDate(*moon.currentDate(), moon.calendar().timeZone());
  return moon.nameForPhase(phase->phase).value_or("").size() + item->riseSetData->sunSetText.size() +
         (position ? position->altitudeText.size() : 0) + (eclipse ? eclipse->key.size() : 0) +
         (moon.phaseImageForCurrentDate() ? 1 : 0);
}

std::shared_ptr<View> viewOfMonth(std::int64_t month) {
  switch (month % 4) {
    case 0:
      return std::make_shared<MoonPhaseYearView>();
    case 1:
      return std::make_shared<MoonCalendarView>();
    case 2: {
      const auto list = std::make_shared<MoonRiseSetMonthView>();
      list->installDayViews();
      return list;
    }
    default:
      return std::make_shared<iPhoneCalendarView>();
  }
}

std::size_t drawMonth(std::int64_t month) {
  const auto view = viewOfMonth(month);
  view->setFrame({0, 0, pictureSize.width, pictureSize.height});
  CairoCanvas canvas(PictureFormat::png, pictureSize, 1, Color::black());
  view->render(canvas);
  return canvas.pixels().size();
}

std::size_t walkYear(MoonPhaseData& moon, int year) {
  std::size_t found = 0;
  for (std::int64_t month = 1; month <= 12; ++month) {
    const std::int64_t days = MoonPhaseCalc::GetNumberOfDaysInMonth(month - 1, year);
    for (std::int64_t day = 1; day <= days; ++day) {
      moon.changeSelectedDay(day, month, year);
      found += readDay(moon);
    }
    found += drawMonth(month);
  }
  return found;
}

std::size_t walkYearEverywhere(int year, std::size_t places) {
  std::size_t found = 0;
  for (std::size_t place = 0; place < places; ++place) {
    const Spot& spot = spots[place];
    auto location = std::make_shared<GeoLocationData>();
    location->SetLocation(spot.latitude, spot.longitude, spot.zone, spot.zone, 0, false);
    MoonPhaseData& moon = MoonPhaseData::sharedInstance();
    moon.SetSelectedLocation(location);
    found += walkYear(moon, year);
  }
  return found;
}

}  // namespace

int main(int count, char** arguments) {
  const int years = count > 1 ? std::clamp(std::atoi(arguments[1]), 3, allYears) : allYears;
  const std::size_t places = std::min(
      count > 2 ? static_cast<std::size_t>(std::atoi(arguments[2])) : std::size(spots), std::size(spots));
  const ScopedLocale locale{"en_US"};
  Device::setCurrent({.screenWidth = pictureSize.width});

  const auto start = std::chrono::steady_clock::now();
  double warm = 0, resident = 0;
  for (int year = 0; year < years; ++year) {
    const std::size_t found = walkYearEverywhere(firstYear + year, places);
    resident = residentMemory();
    if (year == std::max(years / 10, 1) - 1) warm = resident;
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    std::cout << firstYear + year << ": " << resident << " MiB after " << passed.count() << " s, read "
              << found << std::endl;
  }
  std::cout << "memory grew by " << resident - warm << " MiB, at most " << mostGrowth << " allowed\n";
  return resident - warm <= mostGrowth ? 0 : 1;
}
