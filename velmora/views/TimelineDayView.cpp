#include <velmora/views/TimelineDayView.h>

#include <cstddef>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/LocalizedText.h>
#include <velmora/views/OncePerProcess.h>
#include <velmora/views/UIControls.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora {
namespace {

constexpr int hoursOfDay = 24;
constexpr int labelledHours = 4;  // from one label to the next
constexpr double rulerShare = 0.25;
constexpr double labelGap = 2;
constexpr double lineWidth = 0.5;
constexpr double steps = 24.1;  // of the width, so that the last tick lies inside
constexpr double firstTick = 1;
constexpr double lastTickInset = 2;

constexpr double tabletFontSize = 15;
constexpr double titleFontSize = 12;
constexpr double hourFontSize = 11;
constexpr double narrowHourFontSize = 9;
constexpr double narrowScreenWidth = 320;

TextAttributes boldCentred(double size) {
  return {.font = Font::boldSystemFont(size),
          .color = VelmoraTheme::defaultTheme()->defaultTextColor,
          .alignment = TextAlignment::center,
          .lineBreak = LineBreak::clipping};
}

double fontSizeOfHours() {
  if (SettingsModel::isIPad()) return tabletFontSize;
  return Device::current().screenWidth <= narrowScreenWidth ? narrowHourFontSize : hourFontSize;
}

std::string hourPattern(const Locale& locale) {
  const bool countsTo24 = DateFormatter::dateFormatFromTemplate("j", locale).find('a') == std::string::npos;
  return DateFormatter::dateFormatFromTemplate(countsTo24 ? "H" : "h a", locale);
}

std::vector<std::string> hourTexts() {
  const Calendar& calendar = MoonPhaseData::sharedInstance().calendar();
  DateFormatter formatter;
  formatter.setTimeZone(calendar.timeZone());
  formatter.setDateFormat(hourPattern(formatter.locale()));
  std::vector<std::string> texts;
  for (int hour = 0; hour <= hoursOfDay; hour += labelledHours) {
    texts.push_back(
        formatter.stringFromDate(calendar.date({.year = 2000, .month = 1, .day = 1, .hour = hour})));
  }
  return texts;
}

bool isLabelled(int mark) { return mark == 1 || mark == hoursOfDay || mark % labelledHours == 1; }

bool isOdd(int mark) { return mark % 2 == 1; }

}  // namespace

// The heights and the step of the ruler's ticks.
struct TimelineDayView::Ruler {
  double top, bottom, height, step, labelTop;
};

const std::vector<std::string>& TimelineDayView::timelineLabels() {
  static OncePerProcess<std::vector<std::string>> labels;
  return labels.get(hourTexts);
}

const TextAttributes& TimelineDayView::hourTextTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] { return boldCentred(fontSizeOfHours()); });
}

const TextAttributes& TimelineDayView::headerCenterTitleTextAttributes() {
  static OncePerProcess<TextAttributes> attributes;
  return attributes.get([] { return boldCentred(SettingsModel::isIPad() ? tabletFontSize : titleFontSize); });
}

void TimelineDayView::drawRect(Canvas& canvas, Rect) {
  const auto width = static_cast<float>(bounds().width), height = static_cast<float>(bounds().height);
  const double rulerHeight = height * rulerShare;
  const double top = bounds().y + height - rulerHeight;
  const TextLayout firstLabel(AttributedText(timelineLabels().front(), hourTextTextAttributes()));
  drawTitle(canvas);
  canvas.setLineWidth(lineWidth);
  canvas.setStrokeColor(VelmoraTheme::defaultTheme()->borderColor);
  drawRuler(canvas, {.top = top,
                     .bottom = top + rulerHeight,
                     .height = rulerHeight,
                     .step = width / steps,
                     .labelTop = top - firstLabel.height() - labelGap});
}

// Kept: the title's rectangle is that of the first drawing in the process; later views of another width and
// titles in another language get the same.
void TimelineDayView::drawTitle(Canvas& canvas) const {
  static OncePerProcess<Rect> rect;
  const TextLayout title(AttributedText(localizedText("TIME"), headerCenterTitleTextAttributes()));
  title.drawInRect(canvas, rect.get([&] {
    return Rect{bounds().midX() - title.width() * 0.5, bounds().y, title.width(), title.height()};
  }));
}

void TimelineDayView::drawRuler(Canvas& canvas, const Ruler& ruler) const {
  double x = firstTick;
  for (int mark = 1; mark <= hoursOfDay; ++mark) {
    if (isLabelled(mark)) drawLabel(canvas, mark, x, ruler.labelTop);
    drawTick(canvas, x, isOdd(mark) ? ruler.top : ruler.top + ruler.height * 0.5, ruler.bottom);
    x += ruler.step;
  }
  drawTick(canvas, x - lastTickInset, ruler.top, ruler.bottom);
}

void TimelineDayView::drawLabel(Canvas& canvas, int mark, double x, double top) const {
  const std::string& text = timelineLabels()[static_cast<std::size_t>(mark / labelledHours)];
  const TextLayout label(AttributedText(text, hourTextTextAttributes()));
  const double left = mark == 1 ? x - 1 : x - label.width() * 0.5 - 1;
  const Rect place = {left, top, label.width(), label.height()};
  label.drawInRect(canvas, UIControls::rectForCurrentLayoutDirection(place, bounds()));
}

void TimelineDayView::drawTick(Canvas& canvas, double x, double top, double bottom) const {
  canvas.strokeLine(UIControls::pointForCurrentLayoutDirection({x, top}, bounds()),
                    UIControls::pointForCurrentLayoutDirection({x, bottom}, bounds()));
}

}  // namespace velmora
