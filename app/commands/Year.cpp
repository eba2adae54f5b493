#include <app/commands/Commands.h>

#include <app/answers/Days.h>
#include <app/answers/PhaseYear.h>
#include <app/answers/Phases.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/LocalDate.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

constexpr unsigned monthsPerYear = 12;

/// The time in the locale's short style.
std::string timeText(Instant instant) {
  DateFormatter times = VelmoraCalendar::calendarDateFormatter();
  times.setTimeStyle(DateFormatter::Style::shortStyle);
  return times.stringFromDate(instant);
}

/// 1 Sunday to 7 Saturday.
unsigned weekDay(CivilDate date) {
  return std::chrono::weekday(std::chrono::local_days(date)).c_encoding() + 1;
}

Json eventJson(const RecordedPhase& event) {
  return {{"day", static_cast<unsigned>(event.date.day())},
          {"month", static_cast<unsigned>(event.date.month())},
          {"year", static_cast<int>(event.date.year())},
          {"phase", event.phase},
          {"phaseName", phaseName(event.phase)},
          {"fullFactor", event.fullFactor},
          {"weekDay", weekDay(event.date)},
          {"timeText", timeText(event.instant)},
          {"instant", instantText(event.instant)}};
}

Json json(const Query& query) {
  const PhaseYear year(coveredYear(query), query.place);
  Json months;
  for (unsigned month = 1; month <= monthsPerYear; ++month) {
    Json& list = months[std::to_string(month)] = Json::array();
    for (const RecordedPhase& event : year.events(std::chrono::month(month)))
      list.push_back(eventJson(event));
  }
  return months;
}

/// The almanac's phases whose day at the place lies in the year.
std::vector<almanac::PhaseEvent> phasesOf(std::chrono::year year, const Query& query) {
  const almanac::Interval days =
      intervalOf({year / std::chrono::January / 1, year / std::chrono::December / 31}, query);
  return almanac::phases(days.start, days.end);
}

std::string text(const Query& query) {
  const std::chrono::year year = coveredYear(query);
  PhaseYear(year, query.place);  // names a table that is damaged
  TextTable table({std::to_string(static_cast<int>(year)), "", words("Day"), words("Time"), words("Phase")});
  std::optional<std::chrono::month> shown;
  for (const almanac::PhaseEvent& event : phasesOf(year, query)) {
    const CivilDate date = readingAt(event.at, query.place.zone).date;
    const std::int64_t phase = phaseNumber(event.phase);
    table.add({shown == date.month() ? "" : localDate(date, DateForm::month),
               phaseGlyphAt(phase, query.place), dayOfMonthText(date), clockAt(event.at, query),
               phaseName(phase)});
    shown = date.month();
  }
  return query.place.heading() + "\n" + table.text(query.boldHeadings);
}

}  // namespace

const Answer yearAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
