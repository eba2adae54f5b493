#include <velmora/views/MoonRiseSetMonthView.h>

#include <algorithm>
#include <cmath>
#include <string>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/views/AlternateCalendarType.h>
#include <velmora/views/LayoutConstraintAdditions.h>
#include <velmora/views/MoonRiseSetDayView.h>
#include <velmora/views/OncePerProcess.h>

namespace velmora {
namespace {

constexpr double tabletTextSize = 14, phoneTextSize = 13;
constexpr std::int64_t rowsAboveDay = 3;

TextAttributes labelAttributes(const Color& color) {
  return {.font = Font::systemFont(SettingsModel::isIPad() ? tabletTextSize : phoneTextSize),
          .color = color,
          .alignment = TextAlignment::center,
          .lineBreak = LineBreak::clipping};
}

/// The rows know fewer calendars than the month's grid.
std::optional<AlternateCalendar::Kind> alternateCalendarKind(std::int64_t type) {
  return type <= kJapaneseCalendar ? kindOfAlternateCalendar(type) : std::nullopt;
}

/// The day that the alternate calendar has on that day of the selected month, at the selected place.
std::int64_t alternateDay(AlternateCalendar::Kind kind, std::int64_t day) {
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const Calendar& calendar = service.calendar();
  const Instant midnight =
      calendar.date({.year = service.currentYear(), .month = service.currentMonth(), .day = day});
  return AlternateCalendar(kind, calendar.timeZone()).day(midnight);
}

/// Below the one before it, or at the top.
void layOut(MoonRiseSetDayView& row, View* above) {
  LayoutConstraint::activate(LayoutConstraintAdditions::constraintsToFillSubviewHorizontally(row));
  if (above == nullptr) {
    LayoutConstraint::activate(LayoutConstraintAdditions::constraintsToPinSubviewAtTop(row));
  } else {
    LayoutConstraint::activate({LayoutConstraintAdditions::constraintToStackView(row, *above, 0)});
  }
}

}  // namespace

const TextAttributes& MoonRiseSetMonthView::dateTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] { return labelAttributes(VelmoraTheme::defaultTheme()->defaultTextColor); });
}

const TextAttributes& MoonRiseSetMonthView::selectedDateTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get(
      [] { return labelAttributes(VelmoraTheme::defaultTheme()->selectedBackgroundColor); });
}

void MoonRiseSetMonthView::installDayViews() {
  removeSubviews();
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  _selectedDate = service.currentDate();
  _monthRiseSetPhaseItems = service.GetRiseSetPhaseItemsForCurrentMonth();
  _numberFormatter = NumberFormatter();
  const std::int64_t days =
      MoonPhaseCalc::GetNumberOfDaysInMonth(service.currentMonth() - 1, service.currentYear());
  View* above = nullptr;
  for (std::int64_t day = 1; day <= days; ++day) {
    const auto row = makeDayView(day);
    addSubview(row);
    layOut(*row, above);
    above = row.get();
  }
  invalidateIntrinsicContentSize();
}

Size MoonRiseSetMonthView::intrinsicContentSize() const {
  double height = 0;
  for (const auto& subview : subviews()) height = std::trunc(height + subview->intrinsicContentSize().height);
  return {bounds().width, height};
}

double MoonRiseSetMonthView::offsetForDay(std::int64_t day) const {
  if (_monthRiseSetPhaseItems == nullptr || _monthRiseSetPhaseItems->empty()) return 0;
  const auto row = firstDayView();
  if (row == nullptr) return 0;
  const std::int64_t rowsAbove = std::max(day, rowsAboveDay) - rowsAboveDay;
  return static_cast<double>(rowsAbove) * std::trunc(row->cellSize().height);
}

void MoonRiseSetMonthView::removeSubviews() {
  while (!subviews().empty()) subviews().back()->removeFromSuperview();
}

std::shared_ptr<MoonRiseSetDayView> MoonRiseSetMonthView::makeDayView(std::int64_t day) const {
  const auto item = itemOfDay(day);
  auto row = std::make_shared<MoonRiseSetDayView>();
  row->setLabelText(labelText(day, item.get()));
  row->setIsSelected(isSelected(day));
  row->setPhaseItem(item);
  return row;
}

std::shared_ptr<RiseSetPhaseItem> MoonRiseSetMonthView::itemOfDay(std::int64_t day) const {
  if (_monthRiseSetPhaseItems == nullptr) return nullptr;
  const auto found = _monthRiseSetPhaseItems->find(day);
  return found == _monthRiseSetPhaseItems->end() ? nullptr : found->second;
}

bool MoonRiseSetMonthView::isSelected(std::int64_t day) const {
  if (!_selectedDate) return false;
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const DateComponents selected = service.calendar().components(*_selectedDate);
  return day == selected.day && service.currentMonth() == selected.month &&
         service.currentYear() == selected.year;
}

AttributedText MoonRiseSetMonthView::labelText(std::int64_t day, const RiseSetPhaseItem* item) const {
  const TextAttributes& attributes = isSelected(day) ? selectedDateTextAttributes() : dateTextAttributes();
  const std::string number = _numberFormatter.stringFromNumber(day);
  if (const auto kind = alternateCalendarKind(_alternateCalendarType)) {
    const std::string alternate = _numberFormatter.stringFromNumber(alternateDay(*kind, day));
    AttributedText text(number + " (" + alternate + ")", attributes);
    text.setColor(VelmoraTheme::defaultTheme()->selectedForegroundColor, number.size() + 1,
                  text.text().size());
    return text;
  }
  if (item == nullptr) return AttributedText(number, attributes);
  const auto weekday = static_cast<std::size_t>(item->weekDay - 1);
  return AttributedText(number + " " + VelmoraCalendar::shortWeekdayStrings().at(weekday), attributes);
}

std::shared_ptr<const MoonRiseSetDayView> MoonRiseSetMonthView::firstDayView() const {
  for (const auto& subview : subviews()) {
    if (auto row = std::dynamic_pointer_cast<const MoonRiseSetDayView>(subview)) return row;
  }
  return nullptr;
}

}  // namespace velmora
