#include <app/answers/SkyDayJson.h>

#include <cmath>

#include <app/place/CivilDays.h>
#include <app/text/Csv.h>
#include <app/text/ValueTexts.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora::app {
namespace {

/// The index of the twilight that the record tells of.
int recordTwilight(Twilight twilight) {
  return twilight == Twilight::all ? static_cast<int>(Twilight::civil) : static_cast<int>(twilight);
}

RiseSetData recordOf(const SkyDay& day, const Query& query) {
  constexpr std::chrono::hours awayFromClockChanges{9};
  const Place& place = query.place;
  const Instant morning = instantOn(day.date, awayFromClockChanges, place.zone);
  return RiseAndSetCalc::Compute(morning, place.location, place.zone.secondsFromGMT(morning),
                                 recordTwilight(query.request.twilight));
}

void writeRecord(JsonText& json, const RiseSetData& record) {
  json.name("moonRiseText").plain(record.moonRiseText);
  json.name("moonSetText").plain(record.moonSetText);
  json.name("sunRiseText").plain(record.sunRiseText);
  json.name("sunSetText").plain(record.sunSetText);
  json.name("twilightBeginText").plain(record.twilightBeginText);
  json.name("twilightEndText").plain(record.twilightEndText);
  json.name("sunRiseMinutesFromMidnight").number(record.sunRiseMinutesFromMidnight);
  json.name("sunSetMinutesFromMidnight").number(record.sunSetMinutesFromMidnight);
  json.name("moonRiseMinutesFromMidnight").number(record.moonRiseMinutesFromMidnight);
  json.name("moonSetMinutesFromMidnight").number(record.moonSetMinutesFromMidnight);
  json.name("dayLengthMinutes").number(record.dayLengthMinutes);
}

void writeEvent(JsonText& json, const almanac::Event& event) {
  json.openObject();
  json.name("instant").plain(instantText(event.at));
  json.name("body").plain(bodyName(event.body));
  json.name("event").plain(eventName(event.kind));
  json.name("azimuth").number(event.azimuth);
  if (event.kind == almanac::EventKind::transit) json.name("altitude").number(event.altitude);
  json.closeObject();
}

void writeAllDay(JsonText& json, std::string_view name, almanac::AllDay where) {
  json.name(name);
  if (where == almanac::AllDay::no) {
    json.null();
  } else {
    json.plain(where == almanac::AllDay::up ? "up" : "down");
  }
}

Json allDayRow(const SkyDay& day, almanac::Body body, almanac::AllDay where) {
  return {{"date", dateText(day.date)},
          {"body", bodyName(body)},
          {"event", where == almanac::AllDay::up ? "upAllDay" : "downAllDay"}};
}

Json eventRow(const SkyDay& day, const almanac::Event& event) {
  Json row{{"date", dateText(day.date)},
           {"instant", instantText(event.at)},
           {"body", bodyName(event.body)},
           {"event", eventName(event.kind)},
           {"azimuth", event.azimuth}};
  if (event.kind == almanac::EventKind::transit) row["altitude"] = event.altitude;
  return row;
}

}  // namespace

void writeSkyDay(JsonText& json, const SkyDay& day, const Query& query) {
  json.openObject();
  json.name("date").plain(dateText(day.date));
  writeRecord(json, recordOf(day, query));
  json.name("events").openArray();
  for (const almanac::Event& event : day.sky.events) writeEvent(json, event);
  json.closeArray();
  writeAllDay(json, "sunAllDay", day.sky.sun);
  writeAllDay(json, "moonAllDay", day.sky.moon);
  json.name("daylightSeconds").number(std::int64_t{std::llround(day.sky.daylight.count())});
  json.closeObject();
}

std::string skyDaysCsv(const std::vector<SkyDay>& days) {
  Json rows = Json::array();
  for (const SkyDay& day : days) {
    if (day.sky.sun != almanac::AllDay::no) rows.push_back(allDayRow(day, almanac::Body::sun, day.sky.sun));
    if (day.sky.moon != almanac::AllDay::no)
      rows.push_back(allDayRow(day, almanac::Body::moon, day.sky.moon));
    for (const almanac::Event& event : day.sky.events) rows.push_back(eventRow(day, event));
  }
  return csvTable({"date", "instant", "body", "event", "azimuth", "altitude"}, rows);
}

}  // namespace velmora::app
