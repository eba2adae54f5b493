#include <cmath>
#include <string>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/views/LocalizedText.h>
#include <velmora/views/MoonPhaseYearView.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/UIControls.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora {
namespace {

constexpr double topMargin = 30, bottomMargin = 15, sideMargin = 8;
constexpr double gapAboveRows = 8;
constexpr std::int64_t columns = MonthGrid::columns, months = 12;
constexpr double discPaddingShare = 0.4;  // of a cell's width
constexpr double labelOverlap = 2;        // of a label with its disc's rectangle
constexpr double lineWidth = 0.5;
constexpr double frameRadius = 10;
constexpr double frameNarrowing = 7;
constexpr double narrowScreenWidth = 320;

double forDevice(double tablet, double phone) { return SettingsModel::isIPad() ? tablet : phone; }

TextAttributes centred(const Font& font, const Color& color) {
  return {.font = font, .color = color, .alignment = TextAlignment::center, .lineBreak = LineBreak::clipping};
}

Font dateFont() {
  const bool isNarrow = Device::current().screenWidth <= narrowScreenWidth;
  return Font::systemFont(forDevice(17, isNarrow ? 11 : 13));
}

TextAttributes boldTitle(double tabletSize, double phoneSize) {
  return centred(Font::boldSystemFont(forDevice(tabletSize, phoneSize)),
                 VelmoraTheme::defaultTheme()->defaultTextColor);
}

void useBorderLine(Canvas& canvas) {
  canvas.setLineWidth(lineWidth);
  canvas.setStrokeColor(VelmoraTheme::defaultTheme()->borderColor);
}

}  // namespace

const TextAttributes& MoonPhaseYearView::dateTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] { return centred(dateFont(), VelmoraTheme::defaultTheme()->defaultTextColor); });
}

const TextAttributes& MoonPhaseYearView::selectedDateTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get(
      [] { return centred(dateFont(), VelmoraTheme::defaultTheme()->selectedBackgroundColor); });
}

const TextAttributes& MoonPhaseYearView::headerCenterTitleTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] { return boldTitle(21, 16); });
}

const TextAttributes& MoonPhaseYearView::headerTitleTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] { return boldTitle(19, 15); });
}

const TextAttributes& MoonPhaseYearView::headerTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] { return boldTitle(17, 13); });
}

void MoonPhaseYearView::drawRect(Canvas& canvas, Rect rect) {
  if (!_phaseDictionary) return;
  grid() = gridOfYear();
  usePadding(grid().cellWidth * discPaddingShare);
  canvas.clearRect(rect);
  const double columnWidth = std::trunc((bounds().width - 2 * sideMargin) / columns);
  const Rect band = {sideMargin, heightForHeaderView(), bounds().width - 2 * sideMargin, topMargin};
  drawWeekdaysHeaders(canvas, band, columnWidth);
  drawWeekdaysBorders(canvas, {band.x, band.y, band.width, bounds().height}, columnWidth);
  drawEvents(canvas);
  drawOuterFrame(canvas);
  drawHeader(canvas);
}

MonthGrid MoonPhaseYearView::gridOfYear() const {
  const double gridHeight = bounds().height - topMargin - bottomMargin - heightForHeaderView() - gapAboveRows;
  MonthGrid grid;
  grid.topMargin = topMargin;
  grid.bottomMargin = bottomMargin;
  grid.leftMargin = grid.rightMargin = sideMargin;
  grid.cellWidth = (bounds().width - 2 * sideMargin) / columns;
  grid.cellHeight = gridHeight / months;
  return grid;
}

std::vector<MoonPhaseYearView::ShownEvent> MoonPhaseYearView::shownEvents() const {
  const MonthGrid grid = gridOfYear();
  const double columnWidth = std::trunc(grid.cellWidth);
  std::vector<ShownEvent> events;
  if (!_phaseDictionary) return events;
  for (const auto& [month, items] : *_phaseDictionary) {
    if (month < 1 || month > months) continue;
    for (const auto& item : items) {
      if (item->phase != _filteredPhase) continue;
      const Cell cell = {item->weekDay - 1, month - 1};
      const Rect disc = {
          sideMargin + static_cast<double>(cell.x) * columnWidth,
          topMargin + heightForHeaderView() + gapAboveRows + static_cast<double>(cell.y) * grid.cellHeight,
          grid.cellWidth, grid.cellHeight};
      const Rect label = {disc.x, disc.maxY() - labelOverlap, columnWidth, forDevice(21, 16)};
      events.push_back({item, cell, UIControls::rectForCurrentLayoutDirection(disc, bounds()),
                        UIControls::rectForCurrentLayoutDirection(label, bounds())});
    }
  }
  return events;
}

void MoonPhaseYearView::drawWeekdaysHeaders(Canvas& context, Rect inRect, double columnWidth) {
  useBorderLine(context);
  context.strokeLine({inRect.x, inRect.maxY()}, {inRect.x + columns * columnWidth, inRect.maxY()});
  const auto& names = VelmoraCalendar::shortWeekdayStrings();
  for (std::int64_t column = 0; column < columns; ++column) {
    const auto weekday = static_cast<std::size_t>(MonthGrid::weekdayInColumn(column, weekStartDay()));
    const TextLayout name(AttributedText(names.at(weekday), headerTextAttributes()));
    const Rect label = {std::trunc(inRect.x) + static_cast<double>(column) * columnWidth,
                        std::trunc(inRect.y + (inRect.height - name.height()) * 0.5), columnWidth,
                        name.height()};
    name.drawInRect(context, UIControls::rectForCurrentLayoutDirection(label, bounds()));
  }
}

void MoonPhaseYearView::drawWeekdaysBorders(Canvas& context, Rect inRect, double columnWidth) {
  useBorderLine(context);
  double x = std::trunc(inRect.x + columnWidth);
  for (std::int64_t rule = 0; rule < columns - 1; ++rule, x += columnWidth) {
    context.strokeLine({x, inRect.y}, {x, inRect.maxY()});
  }
}

void MoonPhaseYearView::drawEvents(Canvas& canvas) {
  _displayedEvents.clear();
  _yearOfLastEvent = _selectedYear;
  for (const ShownEvent& event : shownEvents()) {
    drawEvent(canvas, event);
    _displayedEvents[event.cell] = event.item;
    _yearOfLastEvent = event.item->year;
  }
}

void MoonPhaseYearView::drawEvent(Canvas& canvas, const ShownEvent& event) {
  const bool isSelected = event.item == _selectedPhaseItem;
  const VelmoraTheme& theme = *VelmoraTheme::defaultTheme();
  const Color& color = isSelected ? theme.selectedBackgroundColor : theme.defaultTextColor;
  canvas.setStrokeColor(color);
  canvas.setFillColor(color);
  drawMoonPhaseInRect(event.disc, *event.item, canvas);

  const std::string& month = VelmoraCalendar::shortMonthStrings().at(static_cast<std::size_t>(event.cell.y));
  const std::string date = month + " " + numberFormatter().stringFromNumber(event.item->day);
  TextLayout(AttributedText(date, isSelected ? selectedDateTextAttributes() : dateTextAttributes()))
      .drawInRect(canvas, event.label);
}

// Kept: the left margin counts into the frame's width.
void MoonPhaseYearView::drawOuterFrame(Canvas& canvas) {
  useBorderLine(canvas);
  const double width = sideMargin + columns * grid().cellWidth - frameNarrowing;
  const double height = bounds().height - lineWidth - heightForHeaderView();
  canvas.stroke(Path::roundedRect({sideMargin, heightForHeaderView(), width, height}, frameRadius));
}

void MoonPhaseYearView::drawHeader(Canvas& canvas) {
  if (_selectedPhaseItem) {
    drawSelection(canvas, *_selectedPhaseItem);
  } else {
    drawTitle(canvas);
  }
}

// Kept: the elevation is that at the item's own instant, which is shifted by the place's offset.
void MoonPhaseYearView::drawSelection(Canvas& canvas, const RiseSetPhaseItem& item) {
  if (!_decimalFormatter) {
    _decimalFormatter.emplace();
    _decimalFormatter->setStyle(NumberFormatter::Style::decimal);
    _decimalFormatter->setMaximumFractionDigits(1);
  }
  const auto position = MoonPhaseData::sharedInstance().GetMoonPositionDataForDate(item.localDate);
  const std::string elevation = _decimalFormatter->stringFromNumber(position ? position->altitude : 0.0);
  const std::string phase = localizedText(_filteredPhase == kFullMoon ? "FULL MOON" : "NEW MOON");

  const auto top = [](const TextLayout& text) { return (heightForHeaderView() - text.height()) * 0.5; };
  const TextLayout left(
      AttributedText(phase + " " + localizedText("at") + " " + item.timeText, headerTextAttributes()));
  left.drawAtPoint(canvas, {sideMargin, top(left)});
  const TextLayout right(AttributedText(localizedText("ELEVATION: %@", elevation), headerTextAttributes()));
  right.drawAtPoint(canvas, {bounds().width - sideMargin - right.width(), top(right)});
}

void MoonPhaseYearView::drawTitle(Canvas& canvas) {
  const std::string year = numberFormatter().stringFromNumber(_yearOfLastEvent);
  const bool isFull = _filteredPhase == kFullMoon;
  const TextLayout title(AttributedText(
      localizedText(isFull ? "Full Moon - Year Calendar (%@)" : "New Moon - Year Calendar (%@)", year),
      headerCenterTitleTextAttributes()));
  title.drawInRect(canvas,
                   {0, (heightForHeaderView() - title.height()) * 0.5, bounds().width, title.height()});
}

}  // namespace velmora
