#include <velmora/views/MoonCalendarView.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/NumberText.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/SpokenTexts.h>
#include <velmora/views/TodayInSelectedMonth.h>

namespace velmora {
namespace {

constexpr std::int64_t columns = 7;
constexpr int mostRows = 6;
constexpr double leftMargin = 5;
constexpr double topMargin = 90;
constexpr double heightOutsideRows = 85;
constexpr double labelSide = 18;

/// Where the pictures lie: square cells in rows that are as far apart as six of them fill the view.
struct PictureGrid {
  double cellSide;
  double rowPitch;

  explicit PictureGrid(Size view)
      : cellSide(std::trunc(view.width / columns)),
        rowPitch(std::trunc((view.height - heightOutsideRows) / mostRows)) {}

  Rect picture(std::int64_t cell) const {
    const auto column = static_cast<double>(cell % columns), row = static_cast<double>(cell / columns);
    return {leftMargin + column * cellSide, topMargin + row * rowPitch, cellSide, cellSide};
  }

  /// Under the picture, its left edge where a number of one or two digits begins to look centred.
  Rect label(std::int64_t day, Rect picture) const {
    const double offset = std::trunc(cellSide / 2) - (day < 10 ? 0 : 4);
    return {picture.x + offset, picture.y + cellSide, labelSide, labelSide};
  }
};

/// The column, 0 to 6, of the month's first day. None before a month is selected.
/// Kept: of its midnight in the process's zone, as the selected place's calendar sees it.
std::optional<std::int64_t> columnOfFirstDay(const MoonPhaseData& service) {
  DateFormatter reader;
  reader.setDateFormat("yyyy-MM-dd");
  reader.setLocale(Locale("en_US"));
  const std::string text =
      integerText(service.currentYear()) + "-" + integerText(service.currentMonth(), 2) + "-01";
  const auto first = reader.dateFromString(text);
  if (!first) return std::nullopt;
  return service.calendar().components(*first).weekday - 1;
}

// Kept: the number stays at the left of its label. It is midway between top and bottom.
void drawDayNumber(Canvas& canvas, std::int64_t day, Rect label, const Color& color) {
  const TextLayout number(AttributedText(
      integerText(day),
      {.font = Font::named("Helvetica", 10), .color = color, .alignment = TextAlignment::left}));
  canvas.setFillColor(Color::black());
  canvas.fillRect(label);
  number.drawInRect(canvas, label.inset(0, (labelSide - number.height()) * 0.5));
}

/// A day's picture, and where it lies in the view with the number under it.
struct DayPicture {
  std::int64_t day;
  std::int32_t number;
  Rect picture;
  Rect label;

  Rect withLabel() const { return {picture.x, picture.y, picture.width, label.maxY() - picture.y}; }
};

/// Those of the selected month; none where it has no pictures.
std::vector<DayPicture> picturesIn(Size view) {
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const auto numbers = service.currentMonthImageDictionary();
  const auto firstColumn = columnOfFirstDay(service);
  std::vector<DayPicture> pictures;
  if (numbers == nullptr || !firstColumn) return pictures;
  const PictureGrid grid(view);
  for (const auto& [day, number] : *numbers) {
    const Rect cell = grid.picture(*firstColumn + day - 1);
    pictures.push_back({day, number, cell, grid.label(day, cell)});
  }
  return pictures;
}

}  // namespace

MoonCalendarView::MoonCalendarView()
    : _dateChanges(NotificationCenter::defaultCenter().subscribe(kCalenderDateChangedNotification,
                                                                 [this] { setNeedsDisplay(); })),
      _placeChanges(NotificationCenter::defaultCenter().subscribe(kCalenderLocationChangedNotification,
                                                                  [this] { setNeedsDisplay(); })) {}

std::vector<AccessibilityElement> MoonCalendarView::accessibilityElements() {
  const SpokenDays days;
  std::vector<AccessibilityElement> elements;
  for (const DayPicture& picture : picturesIn(bounds().size())) {
    elements.push_back({.frame = picture.withLabel(), .label = days.dateAndPhase(picture.day)});
  }
  return elements;
}

void MoonCalendarView::drawRect(Canvas& canvas, Rect rect) {
  View::drawRect(canvas, rect);
  const std::int64_t today = todayInSelectedMonth(MoonPhaseData::sharedInstance());
  const Bundle bundle = Bundle::library();
  for (const DayPicture& day : picturesIn(bounds().size())) {
    if (const auto picture = bundle.image("IMG_" + integerText(day.number))) {
      canvas.drawImage(*picture, day.picture);
    }
    drawDayNumber(canvas, day.day, day.label, day.day == today ? Color::yellow() : Color::white());
  }
}

}  // namespace velmora
