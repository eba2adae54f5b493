#include <velmora/service/AlmanacRecords.h>

#include <algorithm>
#include <optional>

#include <velmora/almanac/Events.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora {
namespace {

using almanac::AllDay;
using almanac::Body;
using almanac::EclipseKind;
using almanac::EventKind;

constexpr std::int64_t minutesPerDay = 1440;
/// No eclipse lasts longer from its greatest moment to its end.
constexpr std::chrono::hours longestHalf{6};

almanac::Place placeOf(const GeoLocationData& location, double height) {
  return {location.latitude, location.longitude, height};
}

std::chrono::year_month_day dateAt(Instant date, const TimeZone& zone) {
  return std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(zone.localTime(date)));
}

/// A day that is not known: nothing happens, and nothing is up.
almanac::Day emptyDay() {
  almanac::Day day;
  day.sun = day.moon = AllDay::down;
  return day;
}

/// The minute of the day that the clocks show, the nearest one but none of the next day.
std::int64_t minuteOf(Instant instant, const TimeZone& zone) {
  const LocalTime local = zone.localTime(instant);
  const Seconds ofDay = local - std::chrono::floor<std::chrono::days>(local);
  return std::min<std::int64_t>(std::chrono::round<std::chrono::minutes>(ofDay).count(), minutesPerDay - 1);
}

/// An event of the day as a record has it.
struct Entry {
  std::int64_t minutes = AlmanacRecords::afterTheDay;
  std::string text;
};

/// Writes a day's events into a record.
class RecordOfDay {
 public:
  RecordOfDay(almanac::Day day, const TimeZone& zone) : _day(std::move(day)), _zone(zone) {}

  RiseSetData record(int twilight) const {
    RiseSetData record;
    writeSun(record);
    writeMoon(record);
    writeTwilight(record, twilight);
    return record;
  }

 private:
  void writeSun(RiseSetData& record) const {
    const auto rise = first(Body::sun, EventKind::rise);
    auto set = rise ? first(Body::sun, EventKind::set, rise->at) : std::nullopt;
    if (!set) set = first(Body::sun, EventKind::set);
    Entry up = entryOf(rise, _day.sun, AlmanacRecords::beforeTheDay);
    Entry down = entryOf(set, _day.sun, AlmanacRecords::afterTheDay);
    // The bar of daylight is one: of a Sun that sets and rises again it lasts beyond the day.
    if (set && rise && set->at < rise->at) down.minutes += minutesPerDay;
    record.sunRiseText = up.text;
    record.sunSetText = down.text;
    record.sunRiseMinutesFromMidnight = up.minutes;
    record.sunSetMinutesFromMidnight = down.minutes;
    record.dayLengthMinutes = _day.sun == AllDay::no ? down.minutes - up.minutes : minutesPerDay;
  }

  void writeMoon(RiseSetData& record) const {
    const Entry rise = entryOf(first(Body::moon, EventKind::rise), _day.moon, AlmanacRecords::beforeTheDay);
    const Entry set = entryOf(first(Body::moon, EventKind::set), _day.moon, AlmanacRecords::afterTheDay);
    record.moonRiseText = rise.text;
    record.moonSetText = set.text;
    record.moonRiseMinutesFromMidnight = rise.minutes;
    record.moonSetMinutesFromMidnight = set.minutes;
  }

  void writeTwilight(RiseSetData& record, int twilight) const {
    constexpr EventKind dawns[] = {EventKind::civilDawn, EventKind::nauticalDawn,
                                   EventKind::astronomicalDawn};
    constexpr EventKind dusks[] = {EventKind::civilDusk, EventKind::nauticalDusk,
                                   EventKind::astronomicalDusk};
    if (twilight < 0 || twilight > 2) return;
    const auto dawn = first(Body::sun, dawns[twilight]);
    auto dusk = dawn ? first(Body::sun, dusks[twilight], dawn->at) : std::nullopt;
    if (!dusk) dusk = first(Body::sun, dusks[twilight]);
    record.twilightBeginText = dawn ? textOf(*dawn) : "";
    record.twilightEndText = dusk ? textOf(*dusk) : "";
  }

  std::optional<almanac::Event> first(Body body, EventKind kind, std::optional<Instant> after = {}) const {
    const auto& events = _day.events;
    const auto found = std::find_if(events.begin(), events.end(), [&](const almanac::Event& event) {
      return event.body == body && event.kind == kind && (!after || event.at > *after);
    });
    return found == events.end() ? std::nullopt : std::optional(*found);
  }

  /// The event, or where it lies that does not happen: outside the day on which the body is up.
  Entry entryOf(const std::optional<almanac::Event>& event, AllDay allDay, std::int64_t whereItIsUp) const {
    if (event) return {minuteOf(event->at, _zone), textOf(*event)};
    return {allDay == AllDay::down ? AlmanacRecords::afterTheDay : whereItIsUp, ""};
  }

  std::string textOf(const almanac::Event& event) const {
    constexpr double minutesPerHour = 60;
    return RiseAndSetCalc::_hrsmin(static_cast<double>(minuteOf(event.at, _zone)) / minutesPerHour);
  }

  almanac::Day _day;
  const TimeZone& _zone;
};

RiseSetData riseSetOf(Instant date, const GeoLocationData& location, std::int64_t secondsFromGMT,
                      int twilight, double height) {
  const TimeZone zone = location.calendarZone(secondsFromGMT);
  const auto day = almanac::day(placeOf(location, height), zone, dateAt(date, zone), {.transits = false});
  return RecordOfDay(day.value_or(emptyDay()), zone).record(twilight);
}

std::shared_ptr<const EclipseInfo> recordOf(const almanac::LocalEclipse& local) {
  auto record = std::make_shared<EclipseInfo>();
  record->key = AlmanacRecords::eclipseCode(local.body, almanac::seenKind(local));
  record->title = titleOfEclipse(record->key);
  record->datetime = local.best.at;
  record->isLunarEvent = local.body == Body::moon;
  return record;
}

std::shared_ptr<const EclipseInfo> eclipseOf(Instant date, const TimeZone& zone,
                                             const GeoLocationData& location, double height) {
  const auto day = almanac::civilDay(zone, dateAt(date, zone));
  if (!day) return nullptr;
  for (const almanac::Eclipse& eclipse :
       almanac::eclipses(day->start - longestHalf, day->end + longestHalf)) {
    const auto local = almanac::seenFrom(eclipse, placeOf(location, height));
    if (local && almanac::isSeenWithin(*local, day->start, day->end)) return recordOf(*local);
  }
  return nullptr;
}

}  // namespace

RiseSetSource AlmanacRecords::riseSetSource(double height) {
  return [height](Instant date, const GeoLocationData& location, std::int64_t secondsFromGMT, int twilight) {
    return riseSetOf(date, location, secondsFromGMT, twilight, height);
  };
}

EclipseSource AlmanacRecords::eclipseSource(double height) {
  return [height](Instant date, const TimeZone& zone, const GeoLocationData& location) {
    return eclipseOf(date, zone, location, height);
  };
}

std::string AlmanacRecords::eclipseCode(Body body, EclipseKind kind) {
  const std::string ending = body == Body::sun ? "SE" : "LE";
  switch (kind) {
    case EclipseKind::total:
      return "T" + ending;
    case EclipseKind::annular:
      return "A" + ending;
    case EclipseKind::hybrid:
      return "H" + ending;
    case EclipseKind::partial:
      return "P" + ending;
    case EclipseKind::penumbral:
      return "N" + ending;
  }
  return ending;
}

}  // namespace velmora
