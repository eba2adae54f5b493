// Draws a month of the Moon as a picture; the file's ending says PNG, SVG or PDF:
//   month-picture FILE [YEAR MONTH]
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/iPhoneCalendarView.h>

#include "SelectedDay.h"

namespace {

constexpr velmora::Size size = {390, 540};  // in points
constexpr double pixelsPerPoint = 2;

velmora::PictureFormat formatOf(const std::filesystem::path& file) {
  if (file.extension() == ".svg") return velmora::PictureFormat::svg;
  if (file.extension() == ".pdf") return velmora::PictureFormat::pdf;
  return velmora::PictureFormat::png;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2 && count != 4) {
    std::cerr << "usage: month-picture FILE [YEAR MONTH]\n";
    return 2;
  }
  velmora::MoonPhaseData& moon = velmora::MoonPhaseData::sharedInstance();
  moon.SetSelectedDate(velmora::Clock::now());
  const bool isMonthGiven = count == 4;
  const std::int64_t day = isMonthGiven ? 1 : moon.currentDay();
  const std::int64_t month = isMonthGiven ? std::atoi(arguments[3]) : moon.currentMonth();
  const std::int64_t year = isMonthGiven ? std::atoi(arguments[2]) : moon.currentYear();
  if (!selectDay(moon, day, month, year)) return 1;

  velmora::Device::setCurrent({.screenWidth = size.width, .screenScale = pixelsPerPoint});
  const auto view = std::make_shared<velmora::iPhoneCalendarView>();
  view->setFrame({0, 0, size.width, size.height});

  const std::filesystem::path file = arguments[1];
  velmora::CairoCanvas canvas(formatOf(file), size, pixelsPerPoint, view->calendarTheme()->backgroundColor);
  view->render(canvas);
  const auto error = canvas.writeFile(file);
  if (error) std::cerr << error->message << '\n';
  return error ? 1 : 0;
}
