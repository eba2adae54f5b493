#include <cmath>

#include <app/answers/Days.h>
#include <app/answers/MonthGrid.h>
#include <app/answers/PhaseYear.h>
#include <app/answers/Phases.h>
#include <app/answers/SkyPositions.h>
#include <app/commands/Commands.h>
#include <app/text/LocalDate.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/almanac/Positions.h>
#include <velmora/foundation/DateHelper.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

using std::chrono::year_month;

/// A day of the month as the records have it.
struct RecordedDay {
  CivilDate date;
  PhaseItem record;
  std::optional<std::int32_t> image;
};

/// Without the days that the place's clocks skipped.
std::vector<RecordedDay> recordedDays(const PhaseYear& year, year_month month, const TimeZone& zone) {
  std::vector<RecordedDay> days;
  const auto images = year.images(month.month());
  for (const auto& [number, item] : year.days(month.month())) {
    const CivilDate date = month / std::chrono::day(static_cast<unsigned>(number));
    if (!exists(date, zone)) continue;
    const auto image = images.find(number);
    days.push_back({date, *item, image == images.end() ? std::nullopt : std::optional(image->second)});
  }
  return days;
}

Json dayJson(const RecordedDay& day) {
  const PhaseItem& record = day.record;
  return {{"day", record.day},
          {"month", record.month},
          {"year", record.year},
          {"phase", record.phase},
          {"phaseName", phaseName(record.phase)},
          {"fullFactor", record.fullFactor},
          {"moonAge", record.moonAge},
          {"localDate", record.localDate ? Json(instantText(*record.localDate)) : Json(nullptr)},
          {"image", day.image ? Json(*day.image) : Json(nullptr)}};
}

Json phaseJson(const RecordedPhase& event, const Query& query) {
  return {{"day", static_cast<unsigned>(event.date.day())},
          {"phase", event.phase},
          {"phaseName", phaseName(event.phase)},
          {"time", DateHelper::GetTimeFormattedString(event.instant, query.use24HourClock).value_or("")},
          {"localDate", instantText(event.instant)}};
}

Json json(const Query& query) {
  const year_month month = coveredMonth(query);
  const PhaseYear year(month.year(), query.place);
  Json days = Json::array(), events = Json::array();
  for (const RecordedDay& day : recordedDays(year, month, query.place.zone)) days.push_back(dayJson(day));
  for (const RecordedPhase& event : year.events(month.month())) events.push_back(phaseJson(event, query));
  return {{"year", static_cast<int>(month.year())},
          {"month", static_cast<unsigned>(month.month())},
          {"days", days},
          {"events", events}};
}

std::vector<MoonDay> moonDaysOf(year_month month, const TimeZone& zone) {
  std::vector<CivilDate> dates;
  const auto last = static_cast<unsigned>((month / std::chrono::last).day());
  for (unsigned day = 1; day <= last; ++day) {
    const CivilDate date = month / std::chrono::day(day);
    if (exists(date, zone)) dates.push_back(date);
  }
  return moonDays(dates, zone);
}

/// At the day's event, which a quarter's half belongs to, else at noon.
std::string litText(const MoonDay& day, const Place& place) {
  constexpr std::chrono::hours noon{12};
  const Instant instant = day.event.value_or(instantOn(day.date, noon, place.zone));
  const auto light = almanac::illumination(place.observer(), instant);
  return light ? percentText(light->fraction, 3) : "";
}

std::string listText(const std::vector<MoonDay>& days, const Query& query) {
  TextTable table({"", words("Day"), " " + words("Lit"), words("Age"), words("Time"), words("Phase")});
  const CivilDate today = dayOf(query);
  for (const MoonDay& day : days) {
    table.add({phaseGlyphAt(day.phase, query.place), dayOfMonthText(day.date), litText(day, query.place),
               day.age ? rightAligned(*day.age, 3) : "", day.event ? clockAt(*day.event, query) : "",
               phaseName(day.phase) + (day.date == today ? "  ← " + words("today") : "")});
  }
  return table.text(query.boldHeadings);
}

std::string text(const Query& query) {
  const year_month month = coveredMonth(query);
  PhaseYear(month.year(), query.place).days(month.month());  // names a table that is damaged
  const auto days = moonDaysOf(month, query.place.zone);
  return query.place.heading() + localDate(days.front().date, DateForm::monthAndYear) + "\n\n" +
         (query.request.grid ? monthGrid(days, query) + "\n" : "") + listText(days, query);
}

}  // namespace

const Answer monthAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
