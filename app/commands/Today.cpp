#include <app/commands/Commands.h>

#include <app/answers/Days.h>
#include <app/answers/MoonGlance.h>
#include <app/answers/Positions.h>
#include <app/answers/RiseSetDay.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/DateFormatter.h>

namespace velmora::app {
namespace {

const std::string none = "none";

Json placeJson(const Place& place) {
  const GeoLocationData& location = place.location;
  return {{"name", location.name ? Json(*location.name) : Json(nullptr)},
          {"latitude", location.latitude},
          {"longitude", location.longitude},
          {"timezone", place.zone.name()}};
}

Json json(const Query& query) {
  const Instant present = presentOf(query);
  const Place& place = query.place;
  const CivilDate day = dayOf(query);
  Json today{{"date", dateText(day)}, {"instant", instantText(present)}, {"place", placeJson(place)}};
  today.update(moonGlanceJson(moonGlance(query)));
  today.update({{"riseSet", riseSetJson(riseSetDay(day, place, query.request.twilight))},
                {"sun", positionJson(positionAt(present, Body::sun, place))},
                {"moon", positionJson(positionAt(present, Body::moon, place))}});
  return today;
}

std::string eventText(const std::string& recordText, const Query& query) {
  const auto event = dayEvent(recordText);
  if (!event) return none;
  return clockText(event->minutes, query.use24HourClock) + (event->isNextDay ? " next day" : "");
}

TextTable::Row bodyRow(const std::string& name, const std::string& rise, const std::string& set,
                       std::optional<AllDay> allDay, const PositionData& position, const Query& query) {
  if (allDay) return {name, {allDayText(*allDay), 2}, positionText(position)};
  return {name, eventText(rise, query), eventText(set, query), positionText(position)};
}

std::string bodiesText(const RiseSetDay& day, Instant present, const Query& query) {
  const bool isNow = !query.request.date && !query.request.time;
  const auto position = [&](Body body) { return positionAt(present, body, query.place).position; };
  const RiseSetData& record = day.record;
  TextTable table({"", "Rise", "Set", isNow ? "Now" : "Then"});
  table.add(bodyRow("Sun", record.sunRiseText, record.sunSetText, day.sun, position(Body::sun), query));
  table.add(bodyRow("Moon", record.moonRiseText, record.moonSetText, day.moon, position(Body::moon), query));
  return table.text(query.boldHeadings);
}

std::string twilightText(const RiseSetDay& day, const Query& query) {
  const std::string begin = eventText(day.record.twilightBeginText, query);
  const std::string end = eventText(day.record.twilightEndText, query);
  if (begin == none && end == none) return "neither begins nor ends";
  if (end == none) return "from " + begin;
  return (begin == none ? "until " : "from " + begin + " to ") + end;
}

/// "Thursday 20 June 2024, 14:05 (GMT-07:00)".
std::string momentText(Instant present, const Query& query) {
  DateFormatter formatter;
  formatter.setLocale(Locale("en_US"));
  formatter.setDateFormat(query.use24HourClock ? "EEEE d MMMM yyyy, HH:mm" : "EEEE d MMMM yyyy, hh:mm a");
  const std::int64_t offset = query.place.zone.secondsFromGMT(present);
  return formatter.stringFromDate(present) + " (" + TimeZone::fixed(offset).name() + ")\n";
}

std::string text(const Query& query) {
  const Instant present = presentOf(query);
  const RiseSetDay day = riseSetDayIn24Hours(dayOf(query), query.place, query.request.twilight);
  TextTable facts({"Daylight", lengthText(daylightMinutes(day))});
  facts.add({"Twilight (" + twilightName(query.request.twilight) + ")", twilightText(day, query)});
  return query.place.heading() + momentText(present, query) + "\n" +
         moonGlanceText(moonGlance(query), query) + "\n" + bodiesText(day, present, query) + "\n" +
         facts.text(false);
}

}  // namespace

const Answer todayAnswer{json, text};

}  // namespace velmora::app
