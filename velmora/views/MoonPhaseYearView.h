#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <velmora/platform/graphics/AttributedText.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace velmora {

/// The full or the new moons of a year: a row a month, a column a weekday from Sunday on, and a header that
/// says the selected one's time and elevation. A tap on a moon selects its day in the service. The colours
/// are those of the shared default theme, except for the dark part of crescents.
///
/// The host calls `calendarDateChanged` and `calendarLocationChanged` when the service posts so; until the
/// first of these there is nothing to draw.
/// Kept: `weekStartDay` moves the weekdays' names and not the moons.
///
/// Source files: MoonPhaseYearView.cpp (selection and touches), YearDrawing.cpp, YearAccessibility.cpp.
class MoonPhaseYearView : public iPhoneCalendarView {
 public:
  /// As the service returns them.
  using YearItems = MoonPhaseData::YearItems;

  /// The year's principal events by month, 1 to 12; none before they are loaded.
  const std::shared_ptr<const YearItems>& phaseDictionary() const { return _phaseDictionary; }
  void setPhaseDictionary(std::shared_ptr<const YearItems> items);

  /// The phase that is shown: 0 full moon, 3 new moon.
  /// Kept: texts call every other value than 0 a new moon.
  std::int64_t filteredPhase() const { return _filteredPhase; }
  void setFilteredPhase(std::int64_t phase);

  /// The year that `phaseDictionary` was loaded for; 0 before.
  std::int64_t selectedYear() const { return _selectedYear; }
  void setSelectedYear(std::int64_t year);

  /// The selected event; none without one.
  const std::shared_ptr<RiseSetPhaseItem>& selectedPhaseItem() const { return _selectedPhaseItem; }

  /// Loads the service's year where it is another than `selectedYear`, and selects the event of the
  /// service's day. The service's post alone does not lead here: the host passes it on.
  void calendarDateChanged();
  /// Loads the service's year for its place, and selects the event of the service's day.
  void calendarLocationChanged();

  /// Selects the event of the service's day.
  void didMoveToSuperview() override { loadSelectedPhaseItem(); }

  /// Selects the shown event of the service's day, or none; of several the last.
  void loadSelectedPhaseItem();
  /// Ends the selection; the service keeps its day.
  void clearSelection();
  /// Selects the event, and its day in the service, and announces the date; none clears the selection alone.
  void changeSelectedItem(std::shared_ptr<RiseSetPhaseItem> item);

  void drawRect(Canvas& canvas, Rect rect) override;

  using iPhoneCalendarView::drawWeekdaysHeaders;
  /// Draws the line under the weekday band and the short weekday names in its columns.
  void drawWeekdaysHeaders(Canvas& context, Rect inRect, double columnWidth);
  /// Draws the rules between the columns, from the rectangle's top as far down as it is high.
  void drawWeekdaysBorders(Canvas& context, Rect inRect, double columnWidth);

  /// Height of the header above the grid, in points.
  static double heightForHeaderView() { return 40; }

  // Text attributes: centred, cut at their rectangle, made once per process.
  /// Of the day numbers, and of the header's and the grid's titles.
  static const TextAttributes& dateTextAttributes();
  static const TextAttributes& selectedDateTextAttributes();
  static const TextAttributes& headerCenterTitleTextAttributes();
  static const TextAttributes& headerTitleTextAttributes();
  static const TextAttributes& headerTextAttributes();

  void touchesBegan(const Touch& touch) override;
  void touchesEnded(const Touch& touch) override;

 protected:
  /// One element an event of the shown phase, in order of time. Its action selects the event as a touch does.
  std::vector<AccessibilityElement> currentElements() override;

 private:
  /// A column and a row, counted from 0.
  struct Cell {
    std::int64_t x = 0, y = 0;
    friend auto operator<=>(const Cell&, const Cell&) = default;
  };

  /// An event of the shown phase, and where it lies in the current direction of layout.
  struct ShownEvent {
    std::shared_ptr<RiseSetPhaseItem> item;
    Cell cell;
    Rect disc;
    Rect label;  ///< of the date, under the disc
  };

  void loadYear(std::int64_t year);
  Cell cellUnder(const Touch& touch) const;

  MonthGrid gridOfYear() const;
  std::vector<ShownEvent> shownEvents() const;
  void drawEvents(Canvas& canvas);
  void drawEvent(Canvas& canvas, const ShownEvent& event);
  void drawOuterFrame(Canvas& canvas);
  void drawHeader(Canvas& canvas);
  void drawSelection(Canvas& canvas, const RiseSetPhaseItem& item);
  void drawTitle(Canvas& canvas);

  std::shared_ptr<const YearItems> _phaseDictionary;
  std::int64_t _filteredPhase = 0;
  std::int64_t _selectedYear = 0;
  std::shared_ptr<RiseSetPhaseItem> _selectedPhaseItem;
  std::map<Cell, std::shared_ptr<RiseSetPhaseItem>> _displayedEvents;
  std::int64_t _yearOfLastEvent = 0;
  Cell _touchedCell;
  std::optional<NumberFormatter> _decimalFormatter;
};

}  // namespace velmora
