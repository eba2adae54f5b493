#include <velmora/almanac/DayRecord.h>

#include <algorithm>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

bool isOfDarkness(const Event& event) {
  return event.kind == EventKind::astronomicalDawn || event.kind == EventKind::astronomicalDusk;
}

bool isHorizon(const Event& event, Body body) {
  return event.body == body && (event.kind == EventKind::rise || event.kind == EventKind::set);
}

}  // namespace

Day DayRecord::day(Interval interval) {
  while (_next < _events.size() && _events[_next].at < interval.start) _state.take(_events[_next++]);
  std::size_t past = _next;
  while (past < _events.size() && _events[past].at < interval.end) ++past;

  Day day;
  day.start = interval.start;
  day.end = interval.end;
  day.events.reserve(past - _next);
  bool sunPasses = false, moonPasses = false;
  Instant since = interval.start;
  const auto spend = [&](Instant until) {
    if (_state.isSunUp) day.daylight += until - since;
    if (_state.isDark) day.darkness += until - since;
    since = until;
  };
  for (; _next < past; ++_next) {
    const Event& event = _events[_next];
    spend(event.at);
    _state.take(event);
    sunPasses |= isHorizon(event, Body::sun);
    moonPasses |= isHorizon(event, Body::moon);
    if (_choice.twilight || !isOfDarkness(event)) day.events.push_back(event);
  }
  spend(interval.end);
  if (!sunPasses) day.sun = _state.isSunUp ? AllDay::up : AllDay::down;
  if (!moonPasses) day.moon = _state.isMoonUp ? AllDay::up : AllDay::down;
  return day;
}

}  // namespace almanac
}  // namespace velmora
