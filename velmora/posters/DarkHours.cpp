#include <velmora/posters/DarkHours.h>

#include <algorithm>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using almanac::Event;
using almanac::EventKind;
using almanac::Interval;
using ephemeris::Body;

bool isOf(const Event& event, Body body, EventKind kind) { return event.body == body && event.kind == kind; }

/// Whether what the one event ends and the other begins holds at the start of the day; as given where neither
/// happens.
bool holdsAtStart(const almanac::Day& day, Body body, EventKind begin, EventKind end, bool otherwise) {
  const auto first = std::find_if(day.events.begin(), day.events.end(), [&](const Event& event) {
    return isOf(event, body, begin) || isOf(event, body, end);
  });
  return first == day.events.end() ? otherwise : first->kind == end;
}

Seconds lengthOf(const Interval& interval) { return interval.end - interval.start; }

}  // namespace

std::vector<Interval> darkHours(const almanac::Day& day) {
  bool isDark = holdsAtStart(day, Body::sun, EventKind::astronomicalDusk, EventKind::astronomicalDawn,
                             day.darkness > Seconds(0));
  bool isMoonDown =
      holdsAtStart(day, Body::moon, EventKind::set, EventKind::rise, day.moon == almanac::AllDay::down);
  std::vector<Interval> stretches;
  Instant since = day.start;
  const auto endAt = [&](Instant at) {
    if (isDark && isMoonDown && since < at) stretches.push_back({since, at});
    since = at;
  };
  for (const Event& event : day.events) {
    const bool changesMoon =
        isOf(event, Body::moon, EventKind::rise) || isOf(event, Body::moon, EventKind::set);
    const bool changesSun =
        event.kind == EventKind::astronomicalDusk || event.kind == EventKind::astronomicalDawn;
    if (!changesMoon && !changesSun) continue;
    endAt(event.at);
    if (changesMoon) isMoonDown = event.kind == EventKind::set;
    if (changesSun) isDark = event.kind == EventKind::astronomicalDusk;
  }
  endAt(day.end);
  return stretches;
}

std::optional<Interval> longest(const std::vector<Interval>& stretches) {
  const auto found =
      std::max_element(stretches.begin(), stretches.end(),
                       [](const auto& one, const auto& other) { return lengthOf(one) < lengthOf(other); });
  return found == stretches.end() ? std::nullopt : std::optional(*found);
}

std::vector<Interval> within(const std::vector<Interval>& stretches, const Interval& interval) {
  std::vector<Interval> parts;
  for (const Interval& stretch : stretches) {
    const Interval part = {std::max(stretch.start, interval.start), std::min(stretch.end, interval.end)};
    if (part.start < part.end) parts.push_back(part);
  }
  return parts;
}

}  // namespace velmora
