#include <velmora/almanac/Events.h>

#include <velmora/c/Answering.h>
#include <velmora/c/Zone.h>

using namespace velmora;
using namespace velmora::c;

namespace {

constexpr int kindsOfEvents = 9;
constexpr int mostThreads = 1024;

almanac::EventChoice choiceOfEvents(std::uint32_t choice) {
  constexpr std::uint32_t known = VELMORA_WITH_TWILIGHT | VELMORA_WITH_TRANSITS;
  if ((choice & ~known) != 0) endWith(VELMORA_BAD_ARGUMENT, {"choice holds more than twilight and transits"});
  return {.twilight = (choice & VELMORA_WITH_TWILIGHT) != 0,
          .transits = (choice & VELMORA_WITH_TRANSITS) != 0};
}

almanac::Convention conventionOf(const velmora_convention* convention) {
  if (!convention) return {};
  constexpr double most = 2.0;
  const auto isAngle = [](double degrees) { return degrees >= 0.0 && degrees <= most; };
  if (!isAngle(convention->horizon_refraction) || !isAngle(convention->sun_semidiameter)) {
    endWith(VELMORA_BAD_ARGUMENT, {"an angle of the convention lies outside 0 to 2 degrees"});
  }
  return {.limb = static_cast<almanac::Convention::Limb>(choiceOf(convention->limb, 3, "limb")),
          .horizonRefraction = convention->horizon_refraction,
          .sunSemidiameter = convention->sun_semidiameter};
}

velmora_event eventOf(const almanac::Event& event) {
  return {secondsOf(event.at), static_cast<std::int32_t>(event.body), static_cast<std::int32_t>(event.kind),
          event.azimuth, event.altitude};
}

velmora_day dayOf(const almanac::Day& day, std::size_t firstEvent) {
  return {secondsOf(day.start),
          secondsOf(day.end),
          static_cast<std::int32_t>(day.sun),
          static_cast<std::int32_t>(day.moon),
          day.daylight.count(),
          day.darkness.count(),
          firstEvent,
          day.events.size()};
}

double firstOf(const almanac::Day& day, almanac::Body body, almanac::EventKind kind) {
  for (const almanac::Event& event : day.events) {
    if (event.body == body && event.kind == kind) return secondsOf(event.at);
  }
  return none;
}

velmora_place_day placeDayOf(const almanac::Day& day) {
  using enum almanac::EventKind;
  return {firstOf(day, almanac::Body::sun, rise),
          firstOf(day, almanac::Body::sun, set),
          firstOf(day, almanac::Body::moon, rise),
          firstOf(day, almanac::Body::moon, set),
          day.daylight.count(),
          day.darkness.count(),
          static_cast<std::int32_t>(day.sun),
          static_cast<std::int32_t>(day.moon)};
}

}  // namespace

extern "C" {

velmora_status velmora_events(const velmora_place* place, double from, double to, uint32_t choice,
                              const velmora_convention* convention, velmora_day* day, velmora_event* events,
                              size_t capacity, size_t* count) {
  return answering([&] {
    const auto [start, end] = coveredInterval(from, to);
    const auto answer =
        almanac::day(placeOf(place), start, end, choiceOfEvents(choice), conventionOf(convention));
    if (!answer) endWith(VELMORA_BAD_ARGUMENT, {"the interval is empty"});
    const velmora_status status = fill(answer->events, events, capacity, count, "events", eventOf);
    if (day) *day = dayOf(*answer, 0);
    return status;
  });
}

velmora_status velmora_days(const velmora_place* place, const velmora_zone* zone, velmora_date first,
                            velmora_date last, uint32_t choice, const velmora_convention* convention,
                            velmora_day* days, size_t day_capacity, size_t* day_count, velmora_event* events,
                            size_t event_capacity, size_t* event_count) {
  return answering([&] {
    const auto from = dateOf(first, "first"), to = dateOf(last, "last");
    if (to < from) endWith(VELMORA_BAD_ARGUMENT, {"last lies before first"});
    const auto answers = almanac::days(placeOf(place), zoneOf(zone), from, to, choiceOfEvents(choice),
                                       conventionOf(convention));
    if (answers.empty() && almanac::civilDay(zoneOf(zone), from)) {
      endWith(VELMORA_OUT_OF_YEARS, {"a day lies outside the years 1900 to 2100 of UTC"});
    }
    std::vector<velmora_day> made;
    std::vector<velmora_event> happening;
    made.reserve(answers.size());
    for (const almanac::Day& answer : answers) {
      made.push_back(dayOf(answer, happening.size()));
      for (const almanac::Event& event : answer.events) happening.push_back(eventOf(event));
    }
    const auto same = [](const auto& item) { return item; };
    checkRoom(events, event_capacity, "events");
    given(event_count, "event_count");
    const velmora_status ofDays = fill(made, days, day_capacity, day_count, "days", same);
    const velmora_status ofEvents = fill(happening, events, event_capacity, event_count, "events", same);
    return ofDays == VELMORA_OK ? ofEvents : ofDays;
  });
}

velmora_status velmora_at_places(const velmora_place* places, size_t count, double from, double to,
                                 const velmora_convention* convention, uint32_t threads,
                                 velmora_place_day* days) {
  return answering([&] {
    const auto [start, end] = coveredInterval(from, to);
    checkRoom(places, count, "places");
    checkRoom(days, count, "days");
    checkRange(threads, 1, mostThreads, "threads");
    std::vector<almanac::Place> taken;
    taken.reserve(count);
    for (std::size_t i = 0; i < count; ++i) taken.push_back(placeOf(places + i));
    const auto keep = [&](std::size_t place, const almanac::Day& day) { days[place] = placeDayOf(day); };
    const almanac::EventChoice riseAndSet = {.twilight = false, .transits = false};
    if (!almanac::forEachPlace(taken, start, end, keep, almanac::onThreads(threads), riseAndSet,
                               conventionOf(convention))) {
      endWith(VELMORA_BAD_ARGUMENT, {"the interval is empty"});
    }
    return VELMORA_OK;
  });
}

velmora_status velmora_next(const velmora_place* place, int32_t body, int32_t kind, double after,
                            const velmora_convention* convention, velmora_event* event) {
  return answering([&] {
    velmora_event& found = given(event, "event");
    const auto wanted = static_cast<almanac::EventKind>(choiceOf(kind, kindsOfEvents, "kind"));
    const auto answer = almanac::next(placeOf(place), bodyOf(body), wanted, coveredInstant(after, "after"),
                                      conventionOf(convention));
    if (!answer) endWith(VELMORA_NONE, {"there is no such event within a year"});
    found = eventOf(*answer);
    return VELMORA_OK;
  });
}

velmora_status velmora_crossings(const velmora_place* place, int32_t body, double altitude, double from,
                                 double to, velmora_crossing* crossings, size_t capacity, size_t* count) {
  return answering([&] {
    checkRange(altitude, -90, 90, "altitude");
    const auto [start, end] = coveredInterval(from, to);
    const auto answer = almanac::crossings(placeOf(place), bodyOf(body), altitude, start, end);
    return fill(answer, crossings, capacity, count, "crossings", [](const almanac::Crossing& crossing) {
      return velmora_crossing{secondsOf(crossing.at), crossing.azimuth, crossing.isRising ? 1 : 0, 0};
    });
  });
}

}  // extern "C"
