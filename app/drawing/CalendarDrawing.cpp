#include <app/drawing/CalendarDrawing.h>

#include <app/answers/Days.h>
#include <app/drawing/PosterHosting.h>
#include <app/drawing/libical/HolidayFile.h>
#include <app/text/Errors.h>
#include <velmora/posters/CalendarPoster.h>

namespace velmora::app {
namespace {

using std::chrono::year_month;

year_month monthOf(const Query& query) {
  const Request& request = query.request;
  if (request.month && request.date) throw BadInput("month and date exclude each other: give one of the two");
  if (request.month) return *request.month;
  const CivilDate day = dayOf(query);
  return {day.year(), day.month()};
}

CalendarPosterStyle styleOf(const Query& query, std::chrono::year year) {
  const DrawingRequest& drawing = query.request.drawing;
  const auto weekStart = drawing.weekStartDay.value_or(Locale::current().firstWeekday() - 1);
  CalendarPosterStyle style = {.theme = drawing.theme ? paperThemeOf(query) : PaperTheme::light,
                               .isTilted = drawing.isTilted,
                               .firstWeekday = static_cast<unsigned>(weekStart),
                               .secondCalendar = drawing.calendar};
  if (drawing.holidays) style.notes = holidaysOf(*drawing.holidays, year, query.place.zone);
  return style;
}

}  // namespace

Size calendarSize(const Query& query) { return paperSize(query.request.drawing.paper); }

std::shared_ptr<View> makeCalendar(const Query& query, Size size) {
  const year_month month = monthOf(query);
  return filling(std::make_shared<CalendarPoster>(posterPlaceOf(query), month, styleOf(query, month.year())),
                 size);
}

std::vector<std::shared_ptr<View>> makeCalendarPages(const Query& query, Size size) {
  if (query.request.month) return {makeCalendar(query, size)};
  const std::chrono::year year = monthOf(query).year();
  const CalendarPosterStyle style = styleOf(query, year);
  std::vector<std::shared_ptr<View>> pages;
  for (unsigned month = 1; month <= 12; ++month)
    pages.push_back(filling(
        std::make_shared<CalendarPoster>(posterPlaceOf(query), year / std::chrono::month(month), style),
        size));
  return pages;
}

}  // namespace velmora::app
