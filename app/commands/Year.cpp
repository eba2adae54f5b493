#include <app/commands/Commands.h>

#include <app/answers/PhaseListing.h>
#include <app/text/EnglishDate.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/foundation/VelmoraCalendar.h>

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

Json eventJson(const PhaseEvent& event) {
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
    for (const PhaseEvent& event : year.events(std::chrono::month(month))) list.push_back(eventJson(event));
  }
  return months;
}

void addMonth(TextTable& table, const PhaseEvents& events, const Query& query) {
  for (const PhaseEvent& event : events) {
    const bool isFirst = &event == &events.front();
    table.add({isFirst ? englishDate(event.date, "MMMM") : "", phaseGlyphAt(event.phase, query.place),
               phaseDay(event.date), phaseClock(event.instant, query), phaseName(event.phase)});
  }
}

std::string text(const Query& query) {
  const std::chrono::year number = coveredYear(query);
  const PhaseYear year(number, query.place);
  TextTable table({std::to_string(static_cast<int>(number)), "", "Day", "Time", "Phase"});
  for (unsigned month = 1; month <= monthsPerYear; ++month)
    addMonth(table, year.events(std::chrono::month(month)), query);
  return query.place.heading() + "\n" + table.text(query.boldHeadings);
}

}  // namespace

const Answer yearAnswer{json, text};

}  // namespace velmora::app
