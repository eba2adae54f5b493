#include <algorithm>
#include <array>
#include <cmath>

#include <velmora/astronomy/ClockReading.h>
#include <velmora/astronomy/HourlyAltitudes.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/time/Calendar.h>

namespace velmora {
namespace {

constexpr double hoursPerDay = 24.0;
constexpr double minutesPerDay = 1440.0;
constexpr double noEvent = -1.0;
constexpr const char* neverText = "--";       // neither of the two events
constexpr const char* missingText = "--:--";  // only the other event

// Sines of the altitudes at which the centre rises and sets.
constexpr double sunriseThreshold = -0.01453808048588594;  // −0.833°: refraction 34′ and semi-diameter 16′
constexpr double moonriseThreshold = 0.00232710356629117;  // +8′: parallax less refraction and semi-diameter
constexpr std::array twilightThresholds = {-0.1045284631486492, -0.20791169058366948,
                                           -0.3090169940335378};  // −6°, −12°, −18°

/// Where the parabola through (−1, before), (0, middle), (+1, after) is zero within that span.
struct Crossings {
  int count = 0;
  double first = 0.0, second = 0.0;
  bool extremumBelow = false;  ///< whether the parabola turns below zero
};

Crossings crossings(double before, double middle, double after) {
  const double a = 0.5 * (before + after) - middle;
  const double b = 0.5 * (after - before);
  const double discriminant = b * b - 4 * a * middle;
  if (!(discriminant > 0)) return {};

  const double xe = -b / (2 * a);
  const double dx = 0.5 * std::sqrt(discriminant) / std::abs(a);
  Crossings found{.first = xe - dx, .second = xe + dx};
  found.count = (std::abs(found.first) <= 1 ? 1 : 0) + (std::abs(found.second) <= 1 ? 1 : 0);
  if (found.first < -1) found.first = found.second;
  found.extremumBelow = (a * xe + b) * xe + middle < 0;
  return found;
}

/// One rise and one set, in hours after local midnight; a time without its flag is no event.
struct Events {
  bool hasRise = false, hasSet = false;
  double rise = 0.0, set = 0.0;

  bool none() const { return !hasRise && !hasSet; }
  bool complete() const { return hasRise && hasSet; }
};

/// Which set belongs to a rise.
enum class SetRule {
  first,      ///< the first of the day, even before the rise
  afterRise,  ///< a rise makes the search forget the set before it
};

void keepRise(Events& events, double time, SetRule rule) {
  if (events.hasRise || time > hoursPerDay) return;
  events.rise = time;
  events.hasRise = true;
  if (rule == SetRule::afterRise) events.hasSet = false;
}

void keepSet(Events& events, double time) {
  if (events.hasSet) return;
  events.set = time;
  events.hasSet = true;
}

/// Kept: two crossings within one step are stored but not flagged, so that a grazing pass counts only through
/// a later single crossing.
void storePair(Events& events, int hour, const Crossings& found) {
  events.rise = hour + (found.extremumBelow ? found.second : found.first);
  events.set = hour + (found.extremumBelow ? found.first : found.second);
}

/// Steps of two hours, each with a parabola through its three samples, until both events are found.
template <class HourlyBody>
Events search(HourlyAltitudes<HourlyBody>& altitudes, double threshold, SetRule rule) {
  Events events;
  double before = altitudes.at(0) - threshold;
  for (int hour = 1; hour < HourlyAltitudes<HourlyBody>::lastHour && !events.complete(); hour += 2) {
    const double middle = altitudes.at(hour) - threshold;
    const double after = altitudes.at(hour + 1) - threshold;
    const Crossings found = crossings(before, middle, after);
    if (found.count == 1 && before < 0) keepRise(events, hour + found.first, rule);
    if (found.count == 1 && !(before < 0)) keepSet(events, hour + found.first);
    if (found.count == 2) storePair(events, hour, found);
    before = after;
  }
  return events;
}

bool isNextDay(double time) { return time > hoursPerDay; }

double onItsDay(double time) { return isNextDay(time) ? time - hoursPerDay : time; }

double minutesFromMidnight(double time) {
  const ClockReading reading = clockReading(time);
  return reading.hour * 60 + reading.minute;
}

/// The clock text, marked where the event falls on the next day.
std::string eventText(double clockTime, bool nextDay) {
  std::string text = RiseAndSetCalc::_hrsmin(clockTime);
  if (nextDay) text += " **";
  return text;
}

/// A rise beyond hour 24 keeps its hours ("24:37 **"), a set does not; both as intended.
void writeTexts(const Events& events, std::string& riseText, std::string& setText) {
  if (events.none()) return;
  riseText = events.hasRise ? eventText(events.rise, isNextDay(events.rise)) : missingText;
  setText = events.hasSet ? eventText(onItsDay(events.set), isNextDay(events.set)) : missingText;
}

/// A sunset before its sunrise on the clock is one of the next day.
/// Kept: the clock decides here, so that a set of the next day at a later time than the rise counts as one of
/// the same day.
void writeSunMinutes(RiseSetData& record, const Events& sunEvents) {
  const double rise = sunEvents.hasRise ? minutesFromMidnight(sunEvents.rise) : noEvent;
  double set = sunEvents.hasSet ? minutesFromMidnight(onItsDay(sunEvents.set)) : noEvent;
  if (set < rise && set != noEvent) set += minutesPerDay;
  record.sunRiseMinutesFromMidnight = static_cast<std::int64_t>(rise);
  record.sunSetMinutesFromMidnight = static_cast<std::int64_t>(set);
  record.dayLengthMinutes =
      static_cast<std::int64_t>((set == noEvent ? minutesPerDay : set) - (rise == noEvent ? 0 : rise));
}

double moonSetMinutes(double time) {
  return minutesFromMidnight(onItsDay(time)) + (isNextDay(time) ? minutesPerDay : 0);
}

}  // namespace

RiseSetData RiseAndSetCalc::Compute(Instant date, const GeoLocationData& location,
                                    std::int64_t secondsFromGMT, int twilight) {
  const Calendar calendar(location.calendarZone(secondsFromGMT));
  const DateComponents day = calendar.components(date);
  const double mjd0 = _mjd(day.day, day.month, day.year, 0);
  const double offsetHours = static_cast<double>(secondsFromGMT) / 3600;

  RiseSetData record;
  record.sunRiseText = record.sunSetText = neverText;
  record.twilightBeginText = record.twilightEndText = neverText;
  record.moonRiseText = record.moonSetText = neverText;
  _find_sun_and_twi_events_for_date(record, twilight, mjd0, offsetHours, location.longitude,
                                    location.latitude);
  _find_moonrise_set(record, mjd0, offsetHours, location.longitude, location.latitude);
  return record;
}

void RiseAndSetCalc::_find_sun_and_twi_events_for_date(RiseSetData& record, int twilight, double mjd0,
                                                       double offsetHours, double longitude,
                                                       double latitude) {
  const auto kind = static_cast<std::size_t>(std::clamp(twilight, 0, 2));
  HourlyAltitudes<HourlySun> altitudes(mjd0 - offsetHours / 24, longitude, latitude);
  const Events sunEvents = search(altitudes, sunriseThreshold, SetRule::afterRise);
  const Events twilightEvents = search(altitudes, twilightThresholds[kind], SetRule::afterRise);
  writeTexts(sunEvents, record.sunRiseText, record.sunSetText);
  writeTexts(twilightEvents, record.twilightBeginText, record.twilightEndText);
  writeSunMinutes(record, sunEvents);
}

void RiseAndSetCalc::_find_moonrise_set(RiseSetData& record, double mjd0, double offsetHours,
                                        double longitude, double latitude) {
  HourlyAltitudes<HourlyMoon> altitudes(mjd0 - offsetHours / 24, longitude, latitude);
  const Events events = search(altitudes, moonriseThreshold, SetRule::first);
  record.moonRiseText = record.moonSetText = neverText;
  writeTexts(events, record.moonRiseText, record.moonSetText);
  record.moonRiseMinutesFromMidnight =
      static_cast<std::int64_t>(events.hasRise ? minutesFromMidnight(events.rise) : noEvent);
  record.moonSetMinutesFromMidnight =
      static_cast<std::int64_t>(events.hasSet ? moonSetMinutes(events.set) : noEvent);
}

}  // namespace velmora
