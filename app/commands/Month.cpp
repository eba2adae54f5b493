#include <app/commands/Commands.h>

#include <cmath>

#include <app/answers/Days.h>
#include <app/answers/Illumination.h>
#include <app/answers/PhaseListing.h>
#include <app/text/EnglishDate.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>

namespace velmora::app {
namespace {

using std::chrono::hours;
using std::chrono::year_month;

/// A day of the month as the records have it.
struct MonthDay {
  CivilDate date;
  PhaseItem record;
  std::optional<std::int32_t> image;
};

struct Month {
  year_month month;
  std::vector<MonthDay> days;  ///< without those that the place's clocks skipped
  PhaseEvents events;
};

year_month monthOf(const Query& query) {
  if (query.request.month) return *query.request.month;
  const CivilDate today = coveredToday(query);
  return {today.year(), today.month()};
}

Month answer(const Query& query) {
  Month answer{monthOf(query), {}, {}};
  const PhaseYear year(answer.month.year(), query.place);
  const auto images = year.images(answer.month.month());
  for (const auto& [number, item] : year.days(answer.month.month())) {
    const CivilDate date = answer.month / std::chrono::day(static_cast<unsigned>(number));
    if (!exists(date, query.place.zone)) continue;
    const auto image = images.find(number);
    answer.days.push_back({date, *item, image == images.end() ? std::nullopt : std::optional(image->second)});
  }
  answer.events = year.events(answer.month.month());
  return answer;
}

Json dayJson(const MonthDay& day) {
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

Json json(const Query& query) {
  const Month month = answer(query);
  Json days = Json::array(), events = Json::array();
  for (const MonthDay& day : month.days) days.push_back(dayJson(day));
  for (const PhaseEvent& event : month.events) events.push_back(phaseEventJson(event, query));
  return {{"year", static_cast<int>(month.month.year())},
          {"month", static_cast<unsigned>(month.month.month())},
          {"days", days},
          {"events", events}};
}

/// At the day's event, which a quarter's half belongs to, else at noon.
Illumination illuminationOf(const MonthDay& day, const TimeZone& zone) {
  return illuminationAt(day.record.localDate.value_or(instantOn(day.date, hours(12), zone)));
}

std::string litText(const Illumination& illumination) {
  return rightAligned(std::lround(100 * illumination.fraction), 3) + "%";
}

std::string clockOf(const MonthDay& day, const Query& query) {
  if (!day.record.localDate) return "";
  return phaseClock(*day.record.localDate, query);
}

std::string text(const Query& query) {
  TextTable table({"", "Day", " Lit", "Age", "Time", "Phase"});
  const Month month = answer(query);
  const CivilDate today = dayOf(query);
  for (const MonthDay& day : month.days) {
    const Illumination illumination = illuminationOf(day, query.place.zone);
    const ShownPhase shown = shownPhase(day.record, illumination);
    table.add({phaseGlyphAt(shown.phase, query.place), phaseDay(day.date), litText(illumination),
               shown.age ? rightAligned(*shown.age, 3) : "", clockOf(day, query),
               phaseName(shown.phase) + (day.date == today ? "  ← today" : "")});
  }
  return query.place.heading() + englishDate(month.days.front().date, "MMMM yyyy") + "\n\n" +
         table.text(query.boldHeadings);
}

}  // namespace

const Answer monthAnswer{json, text};

}  // namespace velmora::app
