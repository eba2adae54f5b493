#include <velmora/posters/CalendarPoster.h>

#include <algorithm>

#include <velmora/posters/CalendarDays.h>
#include <velmora/posters/CalendarHead.h>
#include <velmora/posters/CalendarLayout.h>
#include <velmora/posters/CalendarMonth.h>
#include <velmora/posters/Sheet.h>

namespace velmora {
namespace {

bool isOf(const CalendarNote& note, std::chrono::year_month month) {
  return note.date.year() == month.year() && note.date.month() == month.month();
}

CalendarLayout::Contents contentsOf(const CalendarMonth& month, const CalendarPosterStyle& style) {
  CalendarLayout::Contents contents = {.weeks = month.weekCount(), .phases = 0};
  for (const CalendarDay& day : month.days) {
    contents.phases += day.moon.phase ? 1U : 0U;
    contents.eclipses += day.moon.eclipse ? 1U : 0U;
  }
  contents.hasNotes = std::any_of(style.notes.begin(), style.notes.end(),
                                  [&](const CalendarNote& note) { return isOf(note, month.month); });
  contents.hasWeekNumbers = month.hasIsoWeeks();
  return contents;
}

}  // namespace

bool CalendarPoster::isCovered() const {
  const auto first = almanac::civilDay(place().zone, _month / 1);
  const auto last = almanac::civilDay(place().zone, std::chrono::year_month_day(_month / std::chrono::last));
  return first && last && first->start >= ephemeris::firstInstant() && last->end <= ephemeris::endInstant();
}

void CalendarPoster::compose(Sheet& sheet) const {
  const auto month = CalendarMonth::of(place(), _month, _style.firstWeekday);
  if (!month) return;
  const CalendarLayout layout = CalendarLayout::of(sheet.size(), sheet.unit(), contentsOf(*month, _style));
  const MoonPicture picture;
  CalendarHead(sheet, layout, *month, place(), picture).draw(_style.isTilted);
  CalendarDays(sheet, layout, *month, place(), picture).draw(_style);
}

}  // namespace velmora
