#include <app/drawing/RiseSetWidth.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include <app/drawing/Hosting.h>
#include <app/drawing/UsualSizes.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/MoonRiseSetDayView.h>

namespace velmora::app {
namespace {

constexpr std::int64_t minutesOfDay = 1440;
constexpr double gap = 5, iconReach = 22;  // of the view, the gap also between two times
constexpr double edge = 2;                 // left free at the picture's end and beside the dates

/// The events of a day and how wide their times are.
class DayOfTimes {
 public:
  explicit DayOfTimes(const RiseSetData& day) : _day(day) {
    _sunRise = widthOfTime(day.sunRiseText), _sunSet = widthOfTime(day.sunSetText);
    _moonRise = widthOfTime(day.moonRiseText), _moonSet = widthOfTime(day.moonSetText);
  }

  /// How many times run over another, or into the dates, on a strip of that width.
  int faults(double strip) const {
    const double sunrise = at(_day.sunRiseMinutesFromMidnight, strip) - gap - _sunRise;
    return (_sunRise > 0 && sunrise < edge ? 1 : 0) + (moonTimesMeet(strip) ? 1 : 0);
  }

  /// How far the sunset's time reaches beyond the strip.
  double beyond(double strip) const {
    const double bar = at(_day.sunRiseMinutesFromMidnight + _day.dayLengthMinutes, strip);
    return _sunSet > 0 ? std::max(bar + gap + _sunSet + edge - strip, 0.0) : 0;
  }

 private:
  static double widthOfTime(const std::string& text) {
    return widthOf(text, MoonRiseSetDayView::labelTextTextAttributes());
  }

  static bool isWithinDay(std::int64_t minutes) { return minutes >= 0 && minutes <= minutesOfDay; }

  /// Each stands beside its bar where there is room, else within it.
  bool moonTimesMeet(double strip) const {
    if (!isWithinDay(_day.moonRiseMinutesFromMidnight) || !isWithinDay(_day.moonSetMinutesFromMidnight))
      return false;
    const double riseBar = at(_day.moonRiseMinutesFromMidnight, strip);
    const double rise =
        riseBar - gap - _moonRise >= 0 ? riseBar - gap - _moonRise : riseBar + iconReach + gap;
    const double setBar = at(_day.moonSetMinutesFromMidnight, strip);
    const double setEnd =
        setBar + gap + _moonSet <= strip ? setBar + gap + _moonSet : setBar - iconReach - gap;
    return rise < setEnd + gap && setEnd - _moonSet < rise + _moonRise + gap;
  }

  static double at(std::int64_t minutes, double strip) {
    return strip * static_cast<double>(minutes) / static_cast<double>(minutesOfDay);
  }

  const RiseSetData& _day;
  double _sunRise, _sunSet, _moonRise, _moonSet;
};

RiseSetWidth widthWith(double rows, const std::vector<DayOfTimes>& days) {
  constexpr double leftOfStrip = 65;
  RiseSetWidth width = {rows, 0, 0};
  for (const DayOfTimes& day : days) {
    width.beside = std::max(width.beside, std::ceil(day.beyond(rows - leftOfStrip)));
    width.faults += day.faults(rows - leftOfStrip);
  }
  return width;
}

}  // namespace

RiseSetWidth riseSetWidth() {
  constexpr double step = 8;
  std::vector<DayOfTimes> days;
  const auto items = MoonPhaseData::sharedInstance().GetRiseSetPhaseItemsForCurrentMonth();
  for (const auto& [day, item] : *items)
    if (item->riseSetData) days.emplace_back(*item->riseSetData);
  RiseSetWidth best = widthWith(tabletWidth, days);
  for (double rows = tabletWidth + step; best.faults > 0; rows += step) {
    const RiseSetWidth width = widthWith(rows, days);
    if (width.rows + width.beside > widestPicture) break;
    if (width.faults < best.faults) best = width;
  }
  return best;
}

}  // namespace velmora::app
