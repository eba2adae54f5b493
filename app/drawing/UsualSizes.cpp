#include <app/drawing/UsualSizes.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <app/drawing/Hosting.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/MoonRiseSetDayView.h>

namespace velmora::app {
namespace {

constexpr Size phoneMonth = {phoneWidth, 540}, tabletMonth = {tabletWidth, 850};
constexpr Size phoneYear = {460, 650}, tabletYear = {tabletWidth, 940};
constexpr double sidesOfYear = 16, columnsOfYear = 7, gapOfLabels = 2;

double widthOf(const std::string& text, const TextAttributes& attributes) {
  return TextLayout(AttributedText(text, attributes)).width();
}

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

/// A time beside its bar, on a strip of 24 hours.
struct Stretch {
  double begin, end;
};

/// The events of a day and how wide their times are.
class DayOfTimes {
 public:
  explicit DayOfTimes(const RiseSetData& day) : _day(day) {
    const auto width = [](const std::string& text) {
      return widthOf(text, MoonRiseSetDayView::labelTextTextAttributes());
    };
    _sunRise = width(day.sunRiseText), _sunSet = width(day.sunSetText);
    _moonRise = width(day.moonRiseText), _moonSet = width(day.moonSetText);
  }

  /// How many times are cut or run over another on a strip of that width.
  int faults(double strip) const { return faults(sunTimes(strip), strip) + faults(moonTimes(strip), strip); }

 private:
  static constexpr std::int64_t minutesOfDay = 1440;
  static constexpr double gap = 5, iconReach = 22, edge = 2;  // of the view

  static bool isWithinDay(std::int64_t minutes) { return minutes >= 0 && minutes <= minutesOfDay; }

  static int faults(const std::vector<Stretch>& times, double strip) {
    int count = 0;
    for (const Stretch& time : times) count += time.begin < edge || time.end > strip - edge ? 1 : 0;
    const bool areTwo = times.size() == 2;
    return count + (areTwo && times[0].begin < times[1].end && times[1].begin < times[0].end ? 1 : 0);
  }

  std::vector<Stretch> sunTimes(double strip) const {
    std::vector<Stretch> times;
    const double rise = at(_day.sunRiseMinutesFromMidnight, strip) - gap;
    const double set = at(_day.sunRiseMinutesFromMidnight + _day.dayLengthMinutes, strip) + gap;
    if (_sunRise > 0) times.push_back({rise - _sunRise, rise});
    if (_sunSet > 0) times.push_back({set, set + _sunSet});
    return times;
  }

  /// Beside the bar where there is room, else within it.
  std::vector<Stretch> moonTimes(double strip) const {
    std::vector<Stretch> times;
    if (isWithinDay(_day.moonRiseMinutesFromMidnight)) {
      const double bar = at(_day.moonRiseMinutesFromMidnight, strip);
      const double begin = bar - gap - _moonRise >= 0 ? bar - gap - _moonRise : bar + iconReach + gap;
      times.push_back({begin, begin + _moonRise});
    }
    if (isWithinDay(_day.moonSetMinutesFromMidnight)) {
      const double bar = at(_day.moonSetMinutesFromMidnight, strip);
      const double end = bar + gap + _moonSet <= strip ? bar + gap + _moonSet : bar - iconReach - gap;
      times.push_back({end - _moonSet, end});
    }
    return times;
  }

  static double at(std::int64_t minutes, double strip) {
    return strip * static_cast<double>(minutes) / static_cast<double>(minutesOfDay);
  }

  const RiseSetData& _day;
  double _sunRise, _sunSet, _moonRise, _moonSet;
};

double widthOfRiseSet() {
  constexpr double leftOfStrip = 65, step = 8;
  std::vector<DayOfTimes> days;
  const auto items = MoonPhaseData::sharedInstance().GetRiseSetPhaseItemsForCurrentMonth();
  for (const auto& [day, item] : *items)
    if (item->riseSetData) days.emplace_back(*item->riseSetData);
  double best = tabletWidth;
  int fewest = std::numeric_limits<int>::max();
  for (double width = tabletWidth; width <= widestPicture && fewest > 0; width += step) {
    int faults = 0;
    for (const DayOfTimes& day : days) faults += day.faults(width - leftOfStrip);
    if (faults < fewest) fewest = faults, best = width;
  }
  return best;
}

}  // namespace

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
  return {widthOfRiseSet(), static_cast<double>(days) * MoonRiseSetDayView().cellSize().height};
}

}  // namespace velmora::app
