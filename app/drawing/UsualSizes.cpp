#include <app/drawing/UsualSizes.h>

#include <algorithm>
#include <cmath>

#include <app/drawing/Hosting.h>
#include <app/drawing/RiseSetWidth.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/system/Log.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/MoonRiseSetDayView.h>

namespace velmora::app {
namespace {

constexpr Size phoneMonth = {phoneWidth, 540}, tabletMonth = {tabletWidth, 850};
constexpr Size phoneYear = {460, 650}, tabletYear = {tabletWidth, 940};
constexpr double sidesOfYear = 16, columnsOfYear = 7, gapOfLabels = 2;

/// Of the dates below the discs and of the weekdays above.
double widestLabelOfYear() {
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const auto& months = VelmoraCalendar::shortMonthStrings();
  const NumberFormatter numbers;
  double widest = 0;
  for (const auto& [month, items] : service.GetRiseSetPhaseItemsForYear(service.currentYear())) {
    for (const auto& item : items) {
      const std::string date =
          months.at(static_cast<std::size_t>(month - 1)) + " " + numbers.stringFromNumber(item->day);
      widest = std::max(widest, widthOf(date, MoonPhaseYearView::dateTextAttributes()));
    }
  }
  for (const std::string& name : VelmoraCalendar::shortWeekdayStrings())
    widest = std::max(widest, widthOf(name, MoonPhaseYearView::headerTextAttributes()));
  return widest;
}

}  // namespace

double widthOf(const std::string& text, const TextAttributes& attributes) {
  return TextLayout(AttributedText(text, attributes)).width();
}

Size monthSize(const Query& query) {
  const DrawingRequest& drawing = query.request.drawing;
  const bool isWide = drawing.isTablet || drawing.calendar != kNoAlternateCalendar;
  return isWide ? tabletMonth : phoneMonth;
}

Size yearSize(const Query& query) {
  const Size usual = query.request.drawing.isTablet ? tabletYear : phoneYear;
  const double needed = sidesOfYear + columnsOfYear * std::ceil(widestLabelOfYear() + gapOfLabels);
  return {std::clamp(needed, usual.width, widestPicture), usual.height};
}

Size riseSetSize(const Query&) {
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const auto days = MoonPhaseCalc::GetNumberOfDaysInMonth(service.currentMonth() - 1, service.currentYear());
  const RiseSetWidth width = riseSetWidth();
  if (width.faults > 0)
    Log::write(
        "velmora: times that run over another or over the dates, as they are too close even for the "
        "widest list: " +
        std::to_string(width.faults));
  return {width.rows + width.beside, static_cast<double>(days) * MoonRiseSetDayView().cellSize().height};
}

}  // namespace velmora::app
