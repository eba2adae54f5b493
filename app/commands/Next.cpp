#include <algorithm>
#include <array>

#include <app/answers/Days.h>
#include <app/answers/Phases.h>
#include <app/answers/SeenEclipses.h>
#include <app/answers/SkyDays.h>
#include <app/commands/Commands.h>
#include <app/text/PhaseText.h>
#include <app/text/ValueTexts.h>
#include <velmora/almanac/Events.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/Clock.h>

namespace velmora::app {
namespace {

using almanac::Body;
using almanac::EventKind;
using std::chrono::local_days;

constexpr std::chrono::days longestLunation{30};

struct Next {
  std::vector<almanac::PhaseEvent> phases;  ///< one of each
  std::vector<almanac::Event> events;       ///< rise and set of both bodies, in order
  std::optional<SeenEclipse> eclipse;
};

std::vector<almanac::PhaseEvent> nextPhases(Instant now) {
  std::vector<almanac::PhaseEvent> next;
  for (const almanac::PhaseEvent& event : almanac::phases(now, now + longestLunation)) {
    const bool isKnown =
        std::any_of(next.begin(), next.end(), [&](const auto& known) { return known.phase == event.phase; });
    if (event.at > now && !isKnown) next.push_back(event);
  }
  return next;
}

std::vector<almanac::Event> nextEvents(Instant now, const Place& place) {
  std::vector<almanac::Event> events;
  for (const Body body : {Body::sun, Body::moon}) {
    for (const EventKind kind : {EventKind::rise, EventKind::set}) {
      if (const auto event = almanac::next(place.observer(), body, kind, now)) events.push_back(*event);
    }
  }
  std::sort(events.begin(), events.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
  return events;
}

Next answer(const Query& query) {
  intervalOf({dayOf(query)}, query);
  const Instant now = Clock::now();
  return {nextPhases(now), nextEvents(now, query.place), nextVisibleEclipse(now, query.place)};
}

Json eventJson(const almanac::Event& event) {
  return {{"instant", instantText(event.at)},
          {"body", bodyName(event.body)},
          {"event", eventName(event.kind)},
          {"azimuth", event.azimuth}};
}

Json json(const Query& query) {
  const Next next = answer(query);
  Json list = Json::array();
  for (const almanac::PhaseEvent& phase : next.phases) list.push_back(phaseJson(phase, query));
  for (const almanac::Event& event : next.events) list.push_back(eventJson(event));
  if (next.eclipse) list.push_back(eclipseJson(next.eclipse));
  return list;
}

std::string waitText(Instant instant, const Query& query) {
  const TimeZone& zone = query.place.zone;
  const auto wait = (local_days(dateAt(instant, zone)) - local_days(dayOf(query))).count();
  if (wait == 0) return words("today");
  return wait == 1 ? words("tomorrow") : wordsForCount("in %1 days", wait);
}

std::string nameOf(const almanac::Event& event) {
  const bool isRise = event.kind == EventKind::rise;
  if (event.body == Body::sun) return isRise ? words("Sunrise") : words("Sunset");
  return isRise ? words("Moonrise") : words("Moonset");
}

struct Line {
  Instant instant;
  std::string glyph, what;
  std::vector<std::string> details = {};  ///< below it, one a line; mostly none
};

/// What comes next, in order.
std::vector<Line> linesOf(const Next& next, const Query& query) {
  std::vector<Line> lines;
  for (const almanac::PhaseEvent& event : next.phases) {
    const std::int64_t phase = phaseNumber(event.phase);
    lines.push_back({event.at, phaseGlyphAt(phase, query.place), phaseName(phase)});
  }
  for (const almanac::Event& event : next.events) lines.push_back({event.at, "", nameOf(event)});
  if (next.eclipse) {
    const std::string most = words("Maximum") + " " + clockAt(bestMoment(*next.eclipse), query);
    lines.push_back({next.eclipse->local->visibleFrom,
                     "",
                     eclipseTitle(next.eclipse->eclipse),
                     {seenText(*next.eclipse), most}});
  }
  std::stable_sort(lines.begin(), lines.end(),
                   [](const Line& a, const Line& b) { return a.instant < b.instant; });
  return lines;
}

std::string text(const Query& query) {
  TextTable table({"", words("Time"), words("When"), ""});
  const auto lines = linesOf(answer(query), query);
  for (const Line& line : lines) {
    table.add({line.glyph, momentText(line.instant, query), waitText(line.instant, query), line.what});
    for (const std::string& detail : line.details) table.add({"", "", "", detail});
  }
  return query.place.heading() + "\n" +
         (lines.empty() ? words("What is known ends with 2100.") + "\n"
                        : table.text(query.boldHeadings) + noteOnTimeToCome(lines.back().instant));
}

}  // namespace

const Answer nextAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
