#include <velmora/views/MoonPhaseYearView.h>

#include <cmath>
#include <utility>

#include <velmora/views/UIControls.h>

namespace velmora {
namespace {

constexpr double farthestCell = 1e9;

/// The number of whole cells in a length, cut toward zero; 0 where cells have next to no size.
std::int64_t wholeCells(double length, double cellSize) {
  const double cells = length / cellSize;
  return std::abs(cells) < farthestCell ? static_cast<std::int64_t>(cells) : 0;
}

}  // namespace

void MoonPhaseYearView::setPhaseDictionary(std::shared_ptr<const YearItems> items) {
  _phaseDictionary = std::move(items);
  setNeedsDisplay();
}

void MoonPhaseYearView::setFilteredPhase(std::int64_t phase) {
  _filteredPhase = phase;
  setNeedsDisplay();
}

void MoonPhaseYearView::setSelectedYear(std::int64_t year) {
  _selectedYear = year;
  setNeedsDisplay();
}

void MoonPhaseYearView::calendarDateChanged() {
  const std::int64_t year = MoonPhaseData::sharedInstance().currentYear();
  if (year != _selectedYear) loadYear(year);
  loadSelectedPhaseItem();
}

void MoonPhaseYearView::calendarLocationChanged() {
  loadYear(MoonPhaseData::sharedInstance().currentYear());
  loadSelectedPhaseItem();
}

void MoonPhaseYearView::loadYear(std::int64_t year) {
  setPhaseDictionary(
      std::make_shared<const YearItems>(MoonPhaseData::sharedInstance().GetRiseSetPhaseItemsForYear(year)));
  _selectedYear = year;
}

void MoonPhaseYearView::loadSelectedPhaseItem() {
  clearSelection();
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  if (!_phaseDictionary || !_phaseDictionary->contains(service.currentMonth())) return;
  for (const auto& item : _phaseDictionary->at(service.currentMonth())) {
    if (item->phase == _filteredPhase && item->day == service.currentDay() &&
        item->month == service.currentMonth() && item->year == service.currentYear()) {
      _selectedPhaseItem = item;
    }
  }
}

void MoonPhaseYearView::clearSelection() {
  _selectedPhaseItem.reset();
  setNeedsDisplay();
}

// An observer may release the view.
void MoonPhaseYearView::changeSelectedItem(std::shared_ptr<RiseSetPhaseItem> item) {
  const auto self = weak_from_this().lock();
  _selectedPhaseItem = item;
  setNeedsDisplay();
  if (!item) return;
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const Instant date = service.calendar().date({.year = item->year, .month = item->month, .day = item->day});
  service.SetSelectedDate(date);
  setSelectedDate(date);
  announce(date);
}

// Moves are handled by the month view, which stores a cell of its own.
void MoonPhaseYearView::touchesBegan(const Touch& touch) {
  iPhoneCalendarView::touchesBegan(touch);
  clearSelection();
  _touchedCell = cellUnder(touch);
}

void MoonPhaseYearView::touchesEnded(const Touch& touch) {
  if (touchCancelled() || cellUnder(touch) != _touchedCell) return;
  const auto found = _displayedEvents.find(_touchedCell);
  changeSelectedItem(found == _displayedEvents.end() ? nullptr : found->second);
}

// Kept: the gap above the first row is not taken off, so that rows are touched that much higher than they are
// drawn.
MoonPhaseYearView::Cell MoonPhaseYearView::cellUnder(const Touch& touch) const {
  const Point point = UIControls::pointForCurrentLayoutDirection(touch.locationIn(*this), bounds());
  return {wholeCells(point.x - grid().leftMargin, grid().cellWidth),
          wholeCells(point.y - grid().topMargin - heightForHeaderView(), grid().cellHeight)};
}

}  // namespace velmora
