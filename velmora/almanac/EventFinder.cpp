#include <velmora/almanac/EventFinder.h>

#include <algorithm>
#include <cmath>

#include <velmora/almanac/Refraction.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

const Mark civil(6), nautical(12), astronomical(18);

}  // namespace

void SkyState::take(const Event& event) {
  bool& isUp = event.body == Body::sun ? isSunUp : isMoonUp;
  switch (event.kind) {
    case EventKind::rise:
      isUp = true;
      break;
    case EventKind::set:
      isUp = false;
      break;
    case EventKind::astronomicalDawn:
      isDark = false;
      break;
    case EventKind::astronomicalDusk:
      isDark = true;
      break;
    default:
      break;
  }
}

/// The events of one sky as they are found.
class EventFinder::Listing {
 public:
  Listing(const EventFinder& finder, const Sky& sky, Findings& findings)
      : _finder(finder),
        _sky(sky),
        _sun(sky, Body::sun, finder._observer),
        _moon(sky, Body::moon, finder._observer),
        _events(findings.events) {
    if (findings.before) return;
    findings.before = {_sun.startsAbove(finder._sun), _moon.startsAbove(finder._moon),
                       !_sun.startsAbove(astronomical)};
  }

  void run() {
    const Wanted& wanted = _finder._wanted;
    using enum EventKind;
    for (_block = 0; _block < _sky.blockCount(); ++_block) {
      const std::size_t first = _events.size();
      if (wanted.sun) addPassages(_sun, Body::sun, _finder._sun, rise, set);
      if (wanted.moon) addPassages(_moon, Body::moon, _finder._moon, rise, set);
      if (wanted.civil) addPassages(_sun, Body::sun, civil, civilDawn, civilDusk);
      if (wanted.nautical) addPassages(_sun, Body::sun, nautical, nauticalDawn, nauticalDusk);
      if (wanted.astronomical) addPassages(_sun, Body::sun, astronomical, astronomicalDawn, astronomicalDusk);
      if (wanted.sunTransit) addTransits(_sun, Body::sun);
      if (wanted.moonTransit) addTransits(_moon, Body::moon);
      sortFrom(first);
    }
  }

 private:
  void addPassages(const Course& course, Body body, const Mark& mark, EventKind rising, EventKind setting) {
    _passages.clear();
    course.addPassages(_block, mark, _passages);
    for (const Passage& passage : _passages) {
      add(passage, body, passage.isRising ? rising : setting, mark.altitude(passage.local.distance()));
    }
  }

  void addTransits(const Course& course, Body body) {
    _passages.clear();
    course.addTransits(_block, _passages);
    for (const Passage& passage : _passages) {
      add(passage, body, EventKind::transit, std::asin(passage.local.up / passage.local.distance()) / degree);
    }
  }

  void add(const Passage& passage, Body body, EventKind kind, double altitude) {
    _events.push_back({.at = _sky.startOf(_block) + Seconds(passage.seconds),
                       .body = body,
                       .kind = kind,
                       .azimuth = azimuthOf(passage.local),
                       .altitude = apparentAltitude(altitude)});
  }

  /// A block has few events, mostly in order, and those of one time keep theirs.
  void sortFrom(std::size_t first) {
    const auto isEarlier = [](const Event& a, const Event& b) { return a.at < b.at; };
    const auto begin = _events.begin() + static_cast<std::ptrdiff_t>(first);
    for (auto event = begin; event != _events.end(); ++event) {
      std::rotate(std::upper_bound(begin, event, *event, isEarlier), event, event + 1);
    }
  }

  const EventFinder& _finder;
  const Sky& _sky;
  Course _sun, _moon;
  std::vector<Event>& _events;
  std::vector<Passage> _passages;
  std::size_t _block = 0;
};

EventFinder::EventFinder(const Place& place, const Convention& convention, const Wanted& wanted)
    : _observer(place),
      _sun(horizonMark(Body::sun, place, convention)),
      _moon(horizonMark(Body::moon, place, convention)),
      _wanted(wanted) {}

void EventFinder::add(const Sky& sky, Findings& findings) const { Listing(*this, sky, findings).run(); }

}  // namespace almanac
}  // namespace velmora
