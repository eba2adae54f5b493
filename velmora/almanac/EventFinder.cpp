#include <velmora/almanac/EventFinder.h>

#include <algorithm>
#include <array>

#include <velmora/almanac/Course.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

/// What is the same for every place and convention.
struct FixedLevels {
  Level civil{6}, nautical{12}, astronomical{18}, meridian = Level::meridian();
};

const FixedLevels& fixedLevels() {
  static const FixedLevels levels;
  return levels;
}

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
      : _sky(sky),
        _sun(sky, Body::sun, finder._observer),
        _moon(sky, Body::moon, finder._observer),
        _events(findings.events) {
    const FixedLevels& fixed = fixedLevels();
    if (!findings.before) {
      findings.before = {_sun.startsAbove(finder._sun), _moon.startsAbove(finder._moon),
                         !_sun.startsAbove(fixed.astronomical)};
    }
    using enum EventKind;
    const Wanted& wanted = finder._wanted;
    if (wanted.sun) addLine({Body::sun, &finder._sun, rise, set});
    if (wanted.moon) addLine({Body::moon, &finder._moon, rise, set});
    if (wanted.civil) addLine({Body::sun, &fixed.civil, civilDawn, civilDusk});
    if (wanted.nautical) addLine({Body::sun, &fixed.nautical, nauticalDawn, nauticalDusk});
    if (wanted.astronomical) addLine({Body::sun, &fixed.astronomical, astronomicalDawn, astronomicalDusk});
    if (wanted.sunTransit) addLine({Body::sun, &fixed.meridian, transit, transit});
    if (wanted.moonTransit) addLine({Body::moon, &fixed.meridian, transit, transit});
    _passages.reserve(2 * _lines.size());  // of a day, as a rule
  }

  /// A day at a time: its passages are enough to be found side by side, and few to be put into order.
  void run() {
    constexpr std::size_t samplesOfDay = 2 * Sky::samplesPerBlock;
    const std::size_t end = _sky.lastSample();
    for (std::size_t sample = _sky.firstSample(); sample < end; sample += samplesOfDay) {
      addEvents(sample, std::min(sample + samplesOfDay, end));
    }
  }

 private:
  /// A level that a body passes, and what it is called.
  struct Line {
    Body body;
    const Level* level;
    EventKind rising, setting;
  };

  void addLine(const Line& line) { _lines[_lineCount++] = line; }

  void addEvents(std::size_t firstSample, std::size_t lastSample) {
    _passages.clear();
    for (std::size_t k = 0; k < _lineCount; ++k) {
      const Course& course = _lines[k].body == Body::sun ? _sun : _moon;
      course.addPassages(*_lines[k].level, k, firstSample, lastSample, _passages);
    }
    find(_passages);
    const std::size_t first = _events.size();
    for (const Passage& passage : _passages) _events.push_back(eventOf(passage));
    sortFrom(first);
  }

  Event eventOf(const Passage& passage) const {
    const Line& line = _lines[passage.line];
    return {.at = _sky.timeOf(passage.sample) + Seconds(passage.seconds),
            .body = line.body,
            .kind = passage.isRising ? line.rising : line.setting,
            .azimuth = azimuthOf(passage.local),
            .altitude = line.level->apparentAltitudeOf(passage.local)};
  }

  /// By insertion; events of one time keep their order.
  void sortFrom(std::size_t first) {
    const auto isEarlier = [](const Event& a, const Event& b) { return a.at < b.at; };
    const auto begin = _events.begin() + static_cast<std::ptrdiff_t>(first);
    for (auto event = begin; event != _events.end(); ++event) {
      std::rotate(std::upper_bound(begin, event, *event, isEarlier), event, event + 1);
    }
  }

  const Sky& _sky;
  Course _sun, _moon;
  std::vector<Event>& _events;
  std::array<Line, 7> _lines;
  std::size_t _lineCount = 0;
  std::vector<Passage> _passages;
};

EventFinder::EventFinder(const Place& place, const Convention& convention, const Wanted& wanted)
    : _observer(place),
      _sun(horizonOf(Body::sun, place, convention)),
      _moon(horizonOf(Body::moon, place, convention)),
      _wanted(wanted) {}

void EventFinder::add(const Sky& sky, Findings& findings) const { Listing(*this, sky, findings).run(); }

}  // namespace almanac
}  // namespace velmora
