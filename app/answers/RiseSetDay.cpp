#include <app/answers/RiseSetDay.h>

#include <algorithm>

#include <app/answers/Days.h>
#include <app/answers/Positions.h>
#include <app/answers/RequestScope.h>
#include <app/text/ValueTexts.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora::app {
namespace {

using std::chrono::hours;

constexpr int minutesPerDay = 24 * 60;

/// Where a body is for most of a day, which also decides the days on which it only grazes the horizon.
AllDay mostly(const std::vector<PositionData>& hourly, Body body) {
  const auto up = std::count_if(hourly.begin(), hourly.end(),
                                [body](const PositionData& sample) { return isRisen(sample, body); });
  return 2 * static_cast<std::size_t>(up) > hourly.size() ? AllDay::up : AllDay::down;
}

/// Whether a record's text names an event of the day itself.
bool isOnTheDay(const std::string& text) { return !text.starts_with("--") && !text.ends_with("**"); }

std::optional<AllDay> sunAllDay(const RiseSetDay& day, const Place& place) {
  if (isOnTheDay(day.record.sunRiseText) || isOnTheDay(day.record.sunSetText)) return std::nullopt;
  const Instant start = instantOn(day.date, hours(0), place.zone);
  return mostly(
      RiseAndSetCalc::Get24HourSunPositionsForDate(start, place.location, place.zone.secondsFromGMT(start)),
      Body::sun);
}

std::optional<AllDay> moonAllDay(const RiseSetDay& day, const Place& place) {
  if (isOnTheDay(day.record.moonRiseText) || isOnTheDay(day.record.moonSetText)) return std::nullopt;
  const Instant morning = day.record.date;
  return mostly(RiseAndSetCalc::Get24HourMoonPositionsForDate(morning, place.location,
                                                              place.zone.secondsFromGMT(morning)),
                Body::moon);
}

Json allDayJson(std::optional<AllDay> where) {
  if (!where) return nullptr;
  return *where == AllDay::up ? "up" : "down";
}

}  // namespace

RiseSetDay riseSetDay(CivilDate date, const Place& place, Twilight twilight) {
  const Instant morning = instantOn(date, hours(9), place.zone);
  RiseSetDay day{date,
                 RiseAndSetCalc::Compute(morning, place.location, place.zone.secondsFromGMT(morning),
                                         static_cast<int>(twilight)),
                 std::nullopt, std::nullopt};
  day.record.date = morning;
  day.sun = sunAllDay(day, place);
  day.moon = moonAllDay(day, place);
  return day;
}

RiseSetDay riseSetDayIn24Hours(CivilDate date, const Place& place, Twilight twilight) {
  const ScopedTimeFormat form(true);
  return riseSetDay(date, place, twilight);
}

Json riseSetJson(const RiseSetDay& day) {
  const RiseSetData& record = day.record;
  return {{"date", dateText(day.date)},
          {"moonRiseText", record.moonRiseText},
          {"moonSetText", record.moonSetText},
          {"sunRiseText", record.sunRiseText},
          {"sunSetText", record.sunSetText},
          {"twilightBeginText", record.twilightBeginText},
          {"twilightEndText", record.twilightEndText},
          {"sunRiseMinutesFromMidnight", record.sunRiseMinutesFromMidnight},
          {"sunSetMinutesFromMidnight", record.sunSetMinutesFromMidnight},
          {"moonRiseMinutesFromMidnight", record.moonRiseMinutesFromMidnight},
          {"moonSetMinutesFromMidnight", record.moonSetMinutesFromMidnight},
          {"dayLengthMinutes", record.dayLengthMinutes},
          {"sunAllDay", allDayJson(day.sun)},
          {"moonAllDay", allDayJson(day.moon)}};
}

std::string allDayText(AllDay where) { return where == AllDay::up ? "up all day" : "down all day"; }

int daylightMinutes(const RiseSetDay& day) {
  if (day.sun) return *day.sun == AllDay::up ? minutesPerDay : 0;
  const auto rise = dayEvent(day.record.sunRiseText), set = dayEvent(day.record.sunSetText);
  const int begin = rise ? rise->minutes : 0;
  const int end = set ? set->minutes + (set->isNextDay ? minutesPerDay : 0) : minutesPerDay;
  return end >= begin ? end - begin : end - begin + minutesPerDay;
}

std::string twilightName(Twilight twilight) {
  switch (twilight) {
    case Twilight::civil:
      return "civil";
    case Twilight::nautical:
      return "nautical";
    case Twilight::astronomical:
      return "astronomical";
  }
  return "";
}

}  // namespace velmora::app
