#pragma once

#include <memory>
#include <string>
#include <utility>

#include <velmora/phases/Phase.h>
#include <velmora/views/MoonPhaseYearView.h>

#include "tests/views/MonthViewTesting.h"

namespace velmora::testing {

/// A year view of an English phone in Greenwich: cells of 50 by 40 points from (8, 70) on.
class YearViewTest : public MonthViewTest {
 protected:
  YearViewTest() { useNewView(); }

  void useNewView() {
    year = std::make_shared<MoonPhaseYearView>();
    year->setFrame({0, 0, 366, 573});
    view = year;
  }

  /// Selects the date in the service and shows its year.
  void show(Instant date, std::shared_ptr<GeoLocationData> place = placeAt(greenwichLatitude)) {
    select(date, std::move(place));
    year->calendarLocationChanged();
  }

  /// Shows the item alone, in January's row.
  void showAlone(std::shared_ptr<RiseSetPhaseItem> item) {
    year->setPhaseDictionary(
        std::make_shared<const MoonPhaseYearView::YearItems>(MoonPhaseYearView::YearItems{{1, {item}}}));
  }

  static std::shared_ptr<RiseSetPhaseItem> moon(std::int64_t onYear, std::int64_t month, std::int64_t day,
                                                std::int64_t weekDay, std::int64_t phase = kFullMoon) {
    auto item = std::make_shared<RiseSetPhaseItem>();
    item->year = onYear;
    item->month = month;
    item->day = day;
    item->weekDay = weekDay;
    item->phase = phase;
    return item;
  }

  /// Draws the view as a host does, so that it needs no drawing.
  void render() {
    RecordingCanvas canvas;
    year->render(canvas);
    ASSERT_FALSE(year->needsDisplay());
  }

  void tap(Point point) {
    year->touchesBegan(Touch(point));
    year->touchesEnded(Touch(point));
  }

  std::shared_ptr<MoonPhaseYearView> year;
};

}  // namespace velmora::testing
