#include <cmath>
#include <memory>
#include <optional>
#include <string>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/PhaseDisc.h>
#include <velmora/views/TodayInSelectedMonth.h>
#include <velmora/views/UIControls.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace velmora {
namespace {

constexpr double headerInset = 4;
constexpr Size headerRadii = {4, 0};
constexpr double eclipseRingWidth = 3;
constexpr double frameRadius = 8;
constexpr double frameLineWidth = 1;
constexpr double frameDash = 3;  // and its gaps
constexpr Color alternateDayColor = {0.4, 0.6, 1, 1};

bool isPrincipal(std::int64_t phase) {
  return phase == kFullMoon || phase == kNewMoon || phase == kFirstQuarter || phase == kLastQuarter;
}

/// How far the number moves to the right beside the marker of a principal phase.
double labelShift(std::int64_t day, bool isTablet) { return (day < 10 ? 4 : 6) + (isTablet ? 2 : 0); }

TextAttributes dayTextAttributes(const Color& color) {
  return {.font = Font::systemFont(std::trunc(Font::labelFontSize)),
          .color = color,
          .alignment = TextAlignment::center,
          .lineBreak = LineBreak::clipping};
}

double heightOfDayLabels() { return TextLayout(AttributedText("99", dayTextAttributes({}))).height(); }

/// The days of the selected month, drawn one by one.
class MonthDays {
 public:
  MonthDays(iPhoneCalendarView& view, const MonthGrid& grid, const NumberFormatter& numbers,
            const NumberFormatter& alternateNumbers, Canvas& canvas)
      : _view(view),
        _grid(grid),
        _numbers(numbers),
        _alternateNumbers(alternateNumbers),
        _canvas(canvas),
        _phases(_service.currentMonthPhaseDictionary()) {
    if (const auto kind = kindOfAlternateCalendar(view.alternateCalendarType())) {
      _alternate.emplace(*kind, _service.calendar().timeZone());
    }
  }

  void draw() {
    for (std::int64_t day = 1; day <= _grid.numberOfDaysInMonth; ++day) drawDay(day);
  }

 private:
  void drawDay(std::int64_t day) {
    const bool isSelected = day == _service.currentDay(), isToday = day == _today;
    MonthDayCell cell = MonthDayCell(_grid, day, _labelHeight, _isTablet).mirroredIn(_view.bounds());
    const PhaseItem* item = phaseItem(day);
    if (item != nullptr) drawDisc(*item, cell.disc, colorOf(isSelected));
    if (item != nullptr && isPrincipal(item->phase) && !_alternate) {
      drawDisc(*item, cell.marker(), _theme.selectedBackgroundColor);
      cell.label.x += labelShift(day, _isTablet);
    }
    if (!_view.hideEclipeInfo()) drawEclipseRing(day, cell.disc);
    TextLayout(numberText(day, isSelected)).drawInRect(_canvas, cell.label);
    if (isSelected) drawFrame(isToday ? cell.frameOfToday() : cell.frame);
    if (isToday) drawTodayBar(cell.todayBar());
  }

  const PhaseItem* phaseItem(std::int64_t day) const {
    if (_phases == nullptr) return nullptr;
    const auto found = _phases->find(day);
    return found == _phases->end() ? nullptr : found->second.get();
  }

  const Color& colorOf(bool isSelected) const {
    return isSelected ? _theme.selectedBackgroundColor : _theme.lightTextColor;
  }

  Instant dateOf(std::int64_t day) const {
    return _service.calendar().date(
        {.year = _service.currentYear(), .month = _service.currentMonth(), .day = day});
  }

  void drawDisc(const PhaseItem& item, Rect rect, const Color& color) {
    _canvas.setStrokeColor(color);
    _canvas.setFillColor(color);
    _view.drawMoonPhaseInRect(rect, item, _canvas);
  }

  void drawEclipseRing(std::int64_t day, Rect disc) {
    const auto eclipse = _service.eventsOnDate(dateOf(day), _service.calendar().timeZone());
    if (eclipse == nullptr) return;
    const Color color = eclipse->isLunarEvent ? Color::cyan() : Color::orange();
    _view.strokeCircleIn(disc, color, eclipseRingWidth, _canvas);
  }

  AttributedText numberText(std::int64_t day, bool isSelected) const {
    const std::string number = _numbers.stringFromNumber(day);
    const TextAttributes attributes = dayTextAttributes(colorOf(isSelected));
    if (!_alternate) return AttributedText(number, attributes);

    const std::string alternate = _alternateNumbers.stringFromNumber(_alternate->day(dateOf(day)));
    AttributedText both(number + " (" + alternate + ")", attributes);
    const Color color = isSelected ? _theme.selectedBackgroundColor : alternateDayColor;
    both.setColor(color, both.text().find('('), both.text().size());
    return both;
  }

  void drawFrame(Rect frame) {
    _canvas.setStrokeColor(_theme.lightTextColor);
    _canvas.setLineWidth(frameLineWidth);
    _canvas.setLineDash({frameDash, frameDash});
    _canvas.stroke(Path::roundedRect(frame, frameRadius));
    _canvas.setLineDash({});
  }

  void drawTodayBar(Rect bar) {
    _canvas.setFillColor(_theme.selectedBackgroundColor);
    _canvas.fillRect(bar);
  }

  iPhoneCalendarView& _view;
  const MonthGrid& _grid;
  const NumberFormatter& _numbers;
  const NumberFormatter& _alternateNumbers;
  Canvas& _canvas;
  MoonPhaseData& _service = MoonPhaseData::sharedInstance();
  const VelmoraTheme& _theme = *_view.calendarTheme();
  const bool _isTablet = SettingsModel::isIPad();
  const double _labelHeight = heightOfDayLabels();
  const std::int64_t _today = todayInSelectedMonth(_service);
  std::shared_ptr<const MoonPhaseData::PhaseCalendar> _phases;
  std::optional<AlternateCalendar> _alternate;
};

}  // namespace

void iPhoneCalendarView::drawRect(Canvas& canvas, Rect rect) {
  View::drawRect(canvas, rect);
  _selectedDate = MoonPhaseData::sharedInstance().currentDate();
  _grid = gridOfSelectedMonth();
  drawHeader(canvas);
  MonthDays(*this, _grid, _numberFormatter, _altNumberFormatter, canvas).draw();
}

// Before a day is selected there is no month, and only the header is drawn.
MonthGrid iPhoneCalendarView::gridOfSelectedMonth() const {
  const MoonPhaseData& service = MoonPhaseData::sharedInstance();
  if (!service.currentDate()) return MonthGrid::inView(bounds().size(), 0, 0);
  const std::int64_t year = service.currentYear(), month = service.currentMonth();
  const Instant first = service.calendar().date({.year = year, .month = month, .day = 1});
  const std::int64_t weekday = service.calendar().components(first).weekday;
  return MonthGrid::inView(bounds().size(), MonthGrid::columnOfWeekday(weekday, _weekStartDay),
                           MoonPhaseCalc::GetNumberOfDaysInMonth(month - 1, year));
}

void iPhoneCalendarView::drawHeader(Canvas& canvas) {
  const Rect header = {_grid.leftMargin, 0, bounds().width - _grid.leftMargin - _grid.rightMargin,
                       _grid.topMargin};
  canvas.setFillColor(calendarTheme()->headerBackgroundColor);
  canvas.fill(
      Path::roundedRect(header.inset(0, headerInset), Corners::topLeft | Corners::topRight, headerRadii));
  drawWeekdaysHeaders(canvas, header, std::trunc(_grid.cellWidth + _grid.cellPaddingX), 0);
}

void iPhoneCalendarView::drawWeekdaysHeaders(Canvas& context, Rect inRect, double columnWidth,
                                             double labelOffset) {
  static OncePerProcess<TextAttributes> headerTextAttributes;
  const TextAttributes& attributes = headerTextAttributes.get([this] {
    return TextAttributes{.font = Font::named("AvenirNext-Medium", SettingsModel::isIPad() ? 17 : 13),
                          .color = calendarTheme()->lightTextColor,
                          .alignment = TextAlignment::center};
  });
  const auto& names = VelmoraCalendar::shortWeekdayStrings();
  double x = std::trunc(inRect.x + labelOffset - 1);
  for (std::int64_t column = 0; column < MonthGrid::columns; ++column) {
    const auto weekday = static_cast<std::size_t>(MonthGrid::weekdayInColumn(column, _weekStartDay));
    const TextLayout name(AttributedText(names.at(weekday), attributes));
    const Rect label = {x, std::trunc((inRect.height - name.height()) * 0.5), columnWidth, inRect.height};
    name.drawInRect(context, UIControls::rectForCurrentLayoutDirection(label, bounds()));
    x += columnWidth;
  }
}

void iPhoneCalendarView::drawMoonPhaseInRect(Rect rect, const PhaseItem& withPhaseItem, Canvas& context) {
  PhaseDisc::inCalendarCell(rect, _padding)
      .draw(context, withPhaseItem, isSouthernHemisphere(), calendarTheme()->backgroundColor);
}

void iPhoneCalendarView::strokeCircleIn(Rect rect, const Color& withColor, double lineWidth,
                                        Canvas& context) const {
  context.save();
  context.setStrokeColor(withColor);
  context.setLineWidth(lineWidth);
  context.strokeEllipse(PhaseDisc::inCalendarCell(rect, _padding).square());
  context.restore();
}

}  // namespace velmora
