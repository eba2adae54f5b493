#include <app/answers/MonthGrid.h>

#include <algorithm>

#include <app/answers/Days.h>
#include <app/answers/SeenEclipses.h>
#include <app/text/DisplayWidth.h>
#include <app/text/LocalDate.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/Locale.h>

namespace velmora::app {
namespace {

constexpr unsigned daysPerWeek = 7;
constexpr std::size_t glyphWidth = 2;  // columns of a terminal, as many as an eclipse's mark with a blank
constexpr const char* eclipseMark = "*";

/// 0 for the locale's first weekday.
unsigned columnOf(CivilDate date) {
  const unsigned weekday = std::chrono::weekday(std::chrono::local_days(date)).c_encoding();
  const auto first = static_cast<unsigned>(Locale::current().firstWeekday() - 1);
  return (weekday + daysPerWeek - first) % daysPerWeek;
}

std::string padded(const std::string& text, std::size_t width) {
  return text + std::string(width - std::min(width, displayWidth(text)), ' ');
}

/// "12 🌕*": the number, the glyph of a principal phase, the mark of an eclipse.
std::string cellOf(const MoonDay& day, bool hasEclipse, const Query& query) {
  const std::string glyph = day.event ? phaseGlyphAt(day.phase, query.place) : "";
  return rightAligned(static_cast<unsigned>(day.date.day()), 2) + " " + padded(glyph, glyphWidth) +
         (hasEclipse ? eclipseMark : " ");
}

std::string marksText(const std::vector<std::pair<CivilDate, SeenEclipse>>& eclipses, const Query& query) {
  std::string lines;
  for (const auto& [date, eclipse] : eclipses) {
    const std::string when = clockAt(bestMoment(eclipse), query);
    lines += std::string(eclipseMark) + " " + dayOfMonthText(date) + "  " +
             words("%1, %2", {eclipseTitle(eclipse.eclipse), when}) + ": " + seenText(eclipse) + "\n";
  }
  return lines;
}

/// The eclipses that are seen, each under every day on which it is.
std::vector<std::pair<CivilDate, SeenEclipse>> eclipsesOf(const std::vector<MoonDay>& days,
                                                          const Query& query) {
  const almanac::Interval month = intervalOf({days.front().date, days.back().date}, query);
  std::vector<std::pair<CivilDate, SeenEclipse>> found;
  for (const SeenEclipse& eclipse : eclipsesSeenIn(month, query.place)) {
    for (const MoonDay& day : days) {
      if (isSeenWithin(eclipse, intervalOf({day.date}, query))) found.emplace_back(day.date, eclipse);
    }
  }
  return found;
}

}  // namespace

std::string monthGrid(const std::vector<MoonDay>& days, const Query& query) {
  if (days.empty()) return "";
  const auto eclipses = eclipsesOf(days, query);
  const auto hasEclipse = [&](CivilDate date) {
    return std::any_of(eclipses.begin(), eclipses.end(),
                       [&](const auto& seen) { return seen.first == date; });
  };
  std::vector<std::string> headings(daysPerWeek);
  std::vector<TextTable::Row> weeks;
  for (const MoonDay& day : days) {
    const unsigned column = columnOf(day.date);
    headings[column] = localDate(day.date, DateForm::weekday);
    if (weeks.empty() || column < weeks.back().size()) weeks.emplace_back();
    while (weeks.back().size() < column) weeks.back().emplace_back("");
    weeks.back().emplace_back(cellOf(day, hasEclipse(day.date), query));
  }
  TextTable table(headings);
  for (TextTable::Row& week : weeks) table.add(std::move(week));
  const std::string marks = marksText(eclipses, query);
  return table.text(query.boldHeadings) + (marks.empty() ? "" : "\n" + marks);
}

}  // namespace velmora::app
