#include <app/answers/SkyDays.h>

#include <cmath>

#include <app/answers/Days.h>
#include <app/text/ClockText.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {

std::vector<SkyDay> skyDaysOf(const Query& query, const almanac::EventChoice& choice) {
  const std::vector<CivilDate> dates = daysOf(query);
  if (dates.empty()) return {};
  intervalOf(dates, query);
  auto skies = almanac::days(query.place.observer(), query.place.zone, dates.front(), dates.back(), choice);
  std::vector<SkyDay> days;
  days.reserve(dates.size());
  for (std::size_t i = 0; i < dates.size(); ++i) days.push_back({dates[i], std::move(skies.at(i))});
  return days;
}

std::vector<std::string> eventTimes(const SkyDay& day, almanac::Body body, almanac::EventKind kind,
                                    const Query& query) {
  std::vector<std::string> times;
  for (const almanac::Event& event : day.sky.events) {
    if (event.body != body || event.kind != kind) continue;
    times.push_back(clockText(readingAt(event.at, query.place.zone).minutes, query.use24HourClock));
  }
  return times;
}

std::string eventTimesText(const SkyDay& day, almanac::Body body, almanac::EventKind kind,
                           const Query& query) {
  std::string text;
  for (const std::string& time : eventTimes(day, body, kind, query))
    text = text.empty() ? time : words("%1, %2", {text, time});
  return text.empty() ? words("none") : text;
}

std::string allDayText(almanac::AllDay where) {
  return where == almanac::AllDay::up ? words("up all day") : words("down all day");
}

std::string daylightText(const SkyDay& day) {
  constexpr double secondsPerMinute = 60;
  return lengthText(static_cast<int>(std::lround(day.sky.daylight.count() / secondsPerMinute)));
}

std::string_view eventName(almanac::EventKind kind) {
  switch (kind) {
    case almanac::EventKind::rise:
      return "rise";
    case almanac::EventKind::set:
      return "set";
    case almanac::EventKind::transit:
      return "transit";
    case almanac::EventKind::civilDawn:
      return "civilDawn";
    case almanac::EventKind::civilDusk:
      return "civilDusk";
    case almanac::EventKind::nauticalDawn:
      return "nauticalDawn";
    case almanac::EventKind::nauticalDusk:
      return "nauticalDusk";
    case almanac::EventKind::astronomicalDawn:
      return "astronomicalDawn";
    case almanac::EventKind::astronomicalDusk:
      return "astronomicalDusk";
  }
  return "";
}

std::string_view bodyName(almanac::Body body) { return body == almanac::Body::sun ? "sun" : "moon"; }

std::string bodyTitle(almanac::Body body) {
  return body == almanac::Body::sun ? words("Sun") : words("Moon");
}

}  // namespace velmora::app
