#include <app/drawing/Title.h>

#include <algorithm>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/time/DateFormatter.h>

namespace velmora::app {
namespace {

constexpr double margin = 10;  // on either side
constexpr double lineGap = 4;  // scripts that hang low need it
constexpr double leastFontSize = 9;

std::string dateText(Instant date, std::string_view fields) {
  DateFormatter formatter;
  formatter.setDateFormat(DateFormatter::dateFormatFromTemplate(fields, formatter.locale()));
  return formatter.stringFromDate(date);
}

/// A line that is too wide in smaller letters; where these could not be read any more, its beginning.
TextLayout fitting(const std::string& text, TextAttributes attributes, double width) {
  const TextLayout line(AttributedText(text, attributes));
  if (line.width() <= width) return line;
  attributes.font.size = std::max(leastFontSize, attributes.font.size * width / line.width());
  attributes.lineBreak = LineBreak::clipping;
  return TextLayout(AttributedText(text, attributes));
}

}  // namespace

Title::Title(Instant date, std::string_view fields, const Place& place, const std::string& note)
    : _date(dateText(date, fields)),
      _place(place.location.name.value_or(place.location.locationText) + (note.empty() ? "" : " · ") + note) {
}

void Title::draw(Canvas& canvas, Rect band, const TitleColours& colours) const {
  const double width = band.width - 2 * margin;
  const TextLayout date = fitting(_date,
                                  {.font = Font::boldSystemFont(Font::labelFontSize),
                                   .color = colours.date,
                                   .alignment = TextAlignment::center},
                                  width);
  const TextLayout place = fitting(_place,
                                   {.font = Font::systemFont(Font::systemFontSize),
                                    .color = colours.place,
                                    .alignment = TextAlignment::center},
                                   width);
  const double top = band.midY() - (date.height() + lineGap + place.height()) * 0.5;
  date.drawInRect(canvas, {band.x + margin, top, width, date.height()});
  place.drawInRect(canvas, {band.x + margin, top + date.height() + lineGap, width, place.height()});
}

}  // namespace velmora::app
