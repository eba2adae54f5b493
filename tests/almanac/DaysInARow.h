#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>

#include <velmora/almanac/Events.h>

namespace velmora::testing {

/// Looks at one day of a place after another for what holds of every day.
class DaysInARow {
 public:
  /// What is wrong with the next day; empty if nothing is.
  std::string fault(const almanac::Day& day) {
    if (_end && *_end != day.start) return "a gap between days";
    _end = day.end;
    Instant last = day.start;
    std::array<int, 2> horizons{};
    for (const almanac::Event& event : day.events) {
      if (event.at < last || event.at >= day.end) return "an event out of its time";
      last = event.at;
      if (std::string fault = faultOf(event); !fault.empty()) return fault;
      if (isHorizon(event.kind)) ++horizons[static_cast<std::size_t>(event.body)];
    }
    return faultOf(day, horizons);
  }

 private:
  using EventKind = almanac::EventKind;
  using AllDay = almanac::AllDay;

  static bool isHorizon(EventKind kind) { return kind == EventKind::rise || kind == EventKind::set; }

  static bool isUpward(EventKind kind) {
    return kind == EventKind::rise || kind == EventKind::civilDawn || kind == EventKind::nauticalDawn ||
           kind == EventKind::astronomicalDawn;
  }

  /// The altitude that the event passes, one number each.
  static std::size_t levelOf(const almanac::Event& event) {
    switch (event.kind) {
      case EventKind::rise:
      case EventKind::set:
        return event.body == almanac::Body::sun ? 0 : 1;
      case EventKind::civilDawn:
      case EventKind::civilDusk:
        return 2;
      case EventKind::nauticalDawn:
      case EventKind::nauticalDusk:
        return 3;
      default:
        return 4;
    }
  }

  std::string faultOf(const almanac::Event& event) {
    if (!(event.azimuth >= 0 && event.azimuth < 360)) return "an azimuth that is none";
    if (!(event.altitude >= -90 && event.altitude <= 90)) return "an altitude that is none";
    if (event.kind == EventKind::transit) return faultOfTransit(event);
    std::optional<bool>& wasUpward = _wasUpward[levelOf(event)];
    if (wasUpward == isUpward(event.kind)) return "two rises or two sets after each other";
    wasUpward = isUpward(event.kind);
    return "";
  }

  std::string faultOfTransit(const almanac::Event& event) {
    std::optional<Instant>& last = _transits[static_cast<std::size_t>(event.body)];
    const double hours = last                               ? (event.at - *last).count() / 3600
                         : event.body == almanac::Body::sun ? 24
                                                            : 24.8;
    last = event.at;
    const bool isWell =
        event.body == almanac::Body::sun ? hours > 23.98 && hours < 24.02 : hours > 24.5 && hours < 25.3;
    return isWell ? "" : "transits " + std::to_string(hours) + " hours apart";
  }

  static std::string faultOf(const almanac::Day& day, const std::array<int, 2>& horizons) {
    const Seconds length = day.end - day.start;
    if ((day.sun == AllDay::no) != (horizons[0] > 0))
      return "a Sun up or down all day that passes the horizon";
    if ((day.moon == AllDay::no) != (horizons[1] > 0))
      return "a Moon up or down all day that passes the horizon";
    if (day.sun == AllDay::up && day.daylight != length) return "a polar day without its light";
    if (day.sun == AllDay::down && day.daylight != Seconds(0)) return "a polar night with light";
    if (day.daylight < Seconds(0) || day.darkness < Seconds(0)) return "less than nothing";
    if (day.darkness > length - day.daylight) return "more darkness than night";
    return "";
  }

  std::optional<Instant> _end;
  std::array<std::optional<bool>, 5> _wasUpward;
  std::array<std::optional<Instant>, 2> _transits;
};

/// A place and its zone.
struct Town {
  const char* zone;
  almanac::Place place;
};

inline constexpr Town towns[] = {
    {"Europe/London", {51.5083, -0.1253}},        {"America/Anchorage", {61.2181, -149.9003}},
    {"Europe/Oslo", {69.6492, 18.9553}},          {"Arctic/Longyearbyen", {78.2232, 15.6267}},
    {"Pacific/Apia", {-13.8333, -171.7667}},      {"Australia/Lord_Howe", {-31.55, 159.0833}},
    {"America/St_Johns", {47.5615, -52.7126}},    {"Pacific/Chatham", {-43.95, -176.56}},
    {"America/Guayaquil", {-0.1807, -78.4678}},   {"Antarctica/McMurdo", {-77.85, 166.67}},
    {"Pacific/Kiritimati", {1.87, -157.33, 3.0}}, {"UTC", {90, 0}},
};

}  // namespace velmora::testing
