#include <tests/astronomy/reference/Reference.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <vector>

namespace velmora::reference {
namespace {

constexpr double moon = 1.0, sun = 2.0;  // objects of sinAlt
constexpr double radiansPerDegree = 0.0174532925;
constexpr int hours = 48;  // that are searched from local midnight on
constexpr std::int64_t minutesPerDay = 1440;

// Sines of the altitudes at which the centre rises and sets.
constexpr double sunriseThreshold = -0.01453808048588594;  // −0.833°: refraction 34′ and semi-diameter 16′
constexpr double moonriseThreshold = 0.00232710356629117;  // +8′: parallax less refraction and semi-diameter
constexpr std::array twilightThresholds = {-0.1045284631486492, -0.20791169058366948,
                                           -0.3090169940335378};  // −6°, −12°, −18°

/// The sine of a body's altitude at the whole hours after local midnight.
using Altitudes = std::array<double, hours + 1>;

Altitudes altitudesOf(double body, double localMidnight, double longitude, double latitude) {
  const double phi = latitude * radiansPerDegree;
  Altitudes sines{};
  for (std::size_t hour = 0; hour < sines.size(); ++hour) {
    sines[hour] =
        sinAlt(body, localMidnight, static_cast<double>(hour), longitude, std::cos(phi), std::sin(phi));
  }
  return sines;
}

/// The parabola through (−1, before), (0, middle), (+1, after), as Lagrange wrote it.
struct Parabola {
  double before, middle, after;

  double at(double x) const {
    return before * x * (x - 1) / 2 + middle * (1 - x) * (1 + x) + after * x * (x + 1) / 2;
  }
  double slopeAt(double x) const { return before * (x - 0.5) - middle * 2 * x + after * (x + 0.5); }
};

/// Where a function that is negative at one end of the span alone changes its sign, by halving the span until
/// nothing is left between its ends.
template <class Function>
double signChange(double low, double high, const Function& function) {
  const bool isNegativeAtLow = function(low) < 0;
  for (double middle = (low + high) / 2; low < middle && middle < high; middle = (low + high) / 2) {
    ((function(middle) < 0) == isNegativeAtLow ? low : high) = middle;
  }
  return high;
}

struct Crossing {
  double time;  ///< in hours after local midnight
  bool isRise;
  bool isPaired;  ///< with another of the same parabola
};

/// Those of one parabola around the hour: one if its ends differ in sign, else two if it turns beyond zero.
void addCrossings(const Parabola& parabola, double hour, std::vector<Crossing>& found) {
  const auto altitude = [&](double x) { return parabola.at(x); };
  const bool beginsBelow = parabola.before < 0;
  if (beginsBelow != (parabola.after < 0)) {
    found.push_back({hour + signChange(-1, 1, altitude), beginsBelow, false});
    return;
  }
  if ((parabola.slopeAt(-1) < 0) == (parabola.slopeAt(1) < 0)) return;
  const double turn = signChange(-1, 1, [&](double x) { return parabola.slopeAt(x); });
  if ((parabola.at(turn) < 0) == beginsBelow) return;
  found.push_back({hour + signChange(-1, turn, altitude), beginsBelow, true});
  found.push_back({hour + signChange(turn, 1, altitude), !beginsBelow, true});
}

/// Those of the two days, one parabola for each two hours.
std::vector<Crossing> crossings(const Altitudes& altitudes, double threshold) {
  std::vector<Crossing> found;
  for (std::size_t hour = 1; hour < hours; hour += 2) {
    addCrossings(
        {altitudes[hour - 1] - threshold, altitudes[hour] - threshold, altitudes[hour + 1] - threshold},
        static_cast<double>(hour), found);
  }
  return found;
}

/// In hours after local midnight.
struct Events {
  std::optional<double> rise, set;
};

/// The first rise of the day, and the first set, be it of the next day: of the Sun and its twilight the first
/// after the rise, if there is a rise. A pair is no event, but lends its times to an event before it for as
/// long as the other event is looked for.
Events eventsOf(const std::vector<Crossing>& found, bool isSetAfterRise) {
  const auto end = found.end();
  const auto rise = std::find_if(found.begin(), end, [](const Crossing& crossing) {
    return crossing.isRise && !crossing.isPaired && crossing.time <= 24;
  });
  const auto set =
      std::find_if(isSetAfterRise && rise != end ? rise : found.begin(), end,
                   [](const Crossing& crossing) { return !crossing.isRise && !crossing.isPaired; });
  const auto last = std::max(rise, set);
  const auto timeOf = [&](auto event) -> std::optional<double> {
    if (event == end) return std::nullopt;
    double time = event->time;
    for (auto later = event; later != last; ++later) {
      if (later->isPaired && later->isRise == event->isRise) time = later->time;
    }
    return time;
  };
  return {timeOf(rise), timeOf(set)};
}

std::int64_t minutesOf(double time) { return static_cast<std::int64_t>(std::floor(time * 60 + 0.5)); }

bool isNextDay(double time) { return time > 24; }

/// On the clock of its day.
double onItsDay(double time) { return isNextDay(time) ? time - 24 : time; }

/// Marked where the event falls on the next day; "--:--" when only the other one is there.
std::string text(const std::optional<double>& time, double onClock) {
  if (!time) return "--:--";
  const std::int64_t minutes = minutesOf(onClock);
  std::array<char, 32> clock{};
  std::snprintf(clock.data(), clock.size(), "%02d:%02d%s", static_cast<int>(minutes / 60),
                static_cast<int>(minutes % 60), isNextDay(*time) ? " **" : "");
  return clock.data();
}

/// A rise of the next day keeps its hours above 24.
void writeTexts(const Events& events, std::string& riseText, std::string& setText) {
  const bool isNever = !events.rise && !events.set;
  riseText = isNever ? "--" : text(events.rise, events.rise.value_or(0));
  setText = isNever ? "--" : text(events.set, onItsDay(events.set.value_or(0)));
}

/// −1 for none. The clock decides whether a sunset belongs to the next day: one that reads earlier than the
/// sunrise does.
void writeSunMinutes(RiseSetData& record, const Events& events) {
  std::int64_t rise = events.rise ? minutesOf(*events.rise) : -1;
  std::int64_t set = events.set ? minutesOf(onItsDay(*events.set)) : -1;
  if (events.set && set < rise) set += minutesPerDay;
  record.sunRiseMinutesFromMidnight = rise;
  record.sunSetMinutesFromMidnight = set;
  record.dayLengthMinutes = (events.set ? set : minutesPerDay) - (events.rise ? rise : 0);
}

void writeMoonMinutes(RiseSetData& record, const Events& events) {
  record.moonRiseMinutesFromMidnight = events.rise ? minutesOf(*events.rise) : -1;
  record.moonSetMinutesFromMidnight = -1;
  if (!events.set) return;
  record.moonSetMinutesFromMidnight =
      minutesOf(onItsDay(*events.set)) + (isNextDay(*events.set) ? minutesPerDay : 0);
}

}  // namespace

RiseSetData compute(double mjd0, double offsetHours, double longitude, double latitude, int twilight) {
  const double localMidnight = mjd0 - offsetHours / 24;
  const Altitudes ofSun = altitudesOf(sun, localMidnight, longitude, latitude);
  const Altitudes ofMoon = altitudesOf(moon, localMidnight, longitude, latitude);
  const Events sunEvents = eventsOf(crossings(ofSun, sunriseThreshold), true);
  const double dusk = twilightThresholds[static_cast<std::size_t>(twilight)];
  const Events moonEvents = eventsOf(crossings(ofMoon, moonriseThreshold), false);

  RiseSetData record;
  writeTexts(sunEvents, record.sunRiseText, record.sunSetText);
  writeTexts(eventsOf(crossings(ofSun, dusk), true), record.twilightBeginText, record.twilightEndText);
  writeTexts(moonEvents, record.moonRiseText, record.moonSetText);
  writeSunMinutes(record, sunEvents);
  writeMoonMinutes(record, moonEvents);
  return record;
}

}  // namespace velmora::reference
