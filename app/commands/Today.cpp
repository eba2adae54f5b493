#include <app/answers/Days.h>
#include <app/answers/MoonGlance.h>
#include <app/answers/PlaceJson.h>
#include <app/answers/SkyDayJson.h>
#include <app/answers/SkyPositions.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/LocalDate.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

using almanac::Body;
using almanac::EventKind;

SkyDay skyOfDay(const Query& query) { return skyDaysOf(query, {}).at(0); }

Json riseSetJson(const Query& query) {
  JsonText json;
  writeSkyDay(json, skyOfDay(query), query);
  return jsonFromText(json.text());
}

Json json(const Query& query) {
  const Instant present = presentOf(query);
  const Place& place = query.place;
  const CivilDate day = dayOf(query);
  Json today{{"date", dateText(day)}, {"instant", instantText(present)}, {"place", placeJson(place)}};
  today.update(moonGlanceJson(moonGlance(query), place));
  today.update({{"riseSet", riseSetJson(query)},
                {"sun", positionJson(positionAt(present, Body::sun, place), place)},
                {"moon", positionJson(positionAt(present, Body::moon, place), place)}});
  return today;
}

TextTable::Row bodyRow(const SkyDay& day, Body body, Instant present, const Query& query) {
  const std::string name = bodyTitle(body);
  const std::string position = positionText(positionAt(present, body, query.place).position);
  const almanac::AllDay allDay = body == Body::sun ? day.sky.sun : day.sky.moon;
  if (allDay != almanac::AllDay::no) return {name, {allDayText(allDay), 2}, position};
  return {name, eventTimesText(day, body, EventKind::rise, query),
          eventTimesText(day, body, EventKind::set, query), position};
}

std::string bodiesText(const SkyDay& day, Instant present, const Query& query) {
  const bool isNow = !query.request.date && !query.request.time;
  TextTable table({"", words("Rise"), words("Set"), isNow ? words("Now") : words("Then")});
  table.add(bodyRow(day, Body::sun, present, query));
  table.add(bodyRow(day, Body::moon, present, query));
  return table.text(query.boldHeadings);
}

struct TwilightRow {
  Twilight twilight;
  const char* name;
  EventKind dawn, dusk;
};

constexpr TwilightRow twilightRows[] = {
    {Twilight::civil, "Twilight (civil)", EventKind::civilDawn, EventKind::civilDusk},
    {Twilight::nautical, "Twilight (nautical)", EventKind::nauticalDawn, EventKind::nauticalDusk},
    {Twilight::astronomical, "Twilight (astronomical)", EventKind::astronomicalDawn,
     EventKind::astronomicalDusk}};

std::string factsText(const SkyDay& day, const Query& query) {
  TextTable facts({words("Daylight"), daylightText(day)});
  const Twilight wanted = query.request.twilight;
  for (const TwilightRow& row : twilightRows) {
    if (wanted != row.twilight && wanted != Twilight::all) continue;
    facts.add(
        {words(row.name), words("dawn %1, dusk %2", {eventTimesText(day, Body::sun, row.dawn, query),
                                                     eventTimesText(day, Body::sun, row.dusk, query)})});
  }
  return facts.text(false);
}

/// "Thursday 20 June 2024, 14:05 (GMT-07:00)".
std::string presentText(Instant present, const Query& query) {
  const Reading reading = readingAt(std::chrono::floor<std::chrono::minutes>(present), query.place.zone);
  const std::int64_t offset = query.place.zone.secondsFromGMT(present);
  return words("%1, %2",
               {localDate(reading.date, DateForm::whole), clockText(reading.minutes, query.use24HourClock)}) +
         " (" + TimeZone::fixed(offset).name() + ")\n";
}

std::string text(const Query& query) {
  const Instant present = presentOf(query);
  const SkyDay day = skyOfDay(query);
  return query.place.heading() + presentText(present, query) + "\n" +
         moonGlanceText(moonGlance(query), query) + "\n" + bodiesText(day, present, query) + "\n" +
         factsText(day, query);
}

}  // namespace

const Answer todayAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
