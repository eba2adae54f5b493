#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <velmora/almanac/Executor.h>
#include <velmora/almanac/Place.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

/// What happens in the sky of a place. Start here: `day`.
///
/// Instants are UTC, before 1972 UT1; after 2030 they suppose that the Earth keeps turning with UTC, no leap
/// second inserted. Up to 66° of latitude events agree with the Swiss Ephemeris within 0.21 s (RMS 0.010 s of
/// 58,701), nearer to the poles, where a body passes its altitude at a flat angle, within 5.2 s (RMS 0.08 s
/// of 11,834). The air over a real horizon makes minutes.
namespace velmora::almanac {

using ephemeris::Body;

/// What a body does: rise, set or pass the meridian; for the Sun, twilight begins or ends.
enum class EventKind {
  rise,
  set,
  transit,
  civilDawn,
  civilDusk,
  nauticalDawn,
  nauticalDusk,
  astronomicalDawn,
  astronomicalDusk,
};

/// Something that a body does at an instant. Twilight is the Sun's.
struct Event {
  Instant at{};  ///< when
  Body body = Body::sun;
  EventKind kind = EventKind::rise;
  double azimuth = 0.0;   ///< degrees [0, 360), north is zero and east is +90°
  double altitude = 0.0;  ///< apparent (refracted) altitude of the centre, degrees; as `Position`'s

  friend bool operator==(const Event&, const Event&) = default;
};

/// Whether a body stays on one side of the horizon, for all of an interval.
enum class AllDay { no, up, down };

/// What happens in the half-open interval [start, end).
struct Day {
  Instant start{};            ///< the first instant of it
  Instant end{};              ///< the first after it
  std::vector<Event> events;  ///< in time order, of the kinds asked for
  AllDay sun = AllDay::no;
  AllDay moon = AllDay::no;
  Seconds daylight{};  ///< how long the Sun is up
  Seconds darkness{};  ///< how long the Sun's centre is below −18°

  friend bool operator==(const Day&, const Day&) = default;
};

/// Which events to find besides rise and set of both bodies; those left out cost little. A day's darkness is
/// right without twilight, too.
struct EventChoice {
  bool twilight = true;  ///< the three of them
  bool transits = true;

  friend bool operator==(const EventChoice&, const EventChoice&) = default;
};

/// The events of [start, end), of any length up to 201 years; none for a place or an interval that is not
/// valid or not covered.
std::optional<Day> day(const Place& place, Instant start, Instant end, const EventChoice& choice = {},
                       const Convention& convention = {});

/// The events of a civil day: from its first instant in the zone to the next day's, 23, 24, 24.5 or 25 hours.
/// None for a day that the zone's clocks skipped whole, too.
std::optional<Day> day(const Place& place, const TimeZone& zone, std::chrono::year_month_day date,
                       const EventChoice& choice = {}, const Convention& convention = {});

/// The days from `first` to `last`, both included, quicker for each than one alone; days that the zone's
/// clocks skipped are left out. Empty where one is not covered.
std::vector<Day> days(const Place& place, const TimeZone& zone, std::chrono::year_month_day first,
                      std::chrono::year_month_day last, const EventChoice& choice = {},
                      const Convention& convention = {});

/// The same over paths that were prepared before, for many questions about one stretch of time; none where
/// they do not cover the interval.
std::optional<Day> day(const ephemeris::Paths& paths, const Place& place, Instant start, Instant end,
                       const EventChoice& choice = {}, const Convention& convention = {});

/// Is given a place's number in the list and its day, a reference that is valid until this returns.
using DayVisitor = std::function<void(std::size_t place, const Day& day)>;

/// The events of [start, end) at many places, a map of the world for instance, on the threads of `run`, which
/// call `use` for each place, in no certain order and several at a time. Places that are not valid are left
/// out. Returns whether the interval and the convention are valid and covered; if not, `use` is not called.
bool forEachPlace(std::span<const Place> places, Instant start, Instant end, const DayVisitor& use,
                  const Executor& run = {}, const EventChoice& choice = {},
                  const Convention& convention = {});

/// The half-open [start, end).
struct Interval {
  Instant start{};  ///< the first instant of it
  Instant end{};    ///< the first after it
  friend bool operator==(const Interval&, const Interval&) = default;
};

/// The civil day in the zone: from the first instant at which its clocks show the date, until they show the
/// next. None for a day that they skip whole.
std::optional<Interval> civilDay(const TimeZone& zone, std::chrono::year_month_day date);

/// When the centre of a body passes an altitude.
struct Crossing {
  Instant at{};           ///< when
  double azimuth = 0.0;   ///< degrees [0, 360)
  bool isRising = false;  ///< upward
  friend bool operator==(const Crossing&, const Crossing&) = default;
};

/// Every passage of the apparent (refracted) altitude, degrees −90..90, in [from, to), in time order; empty
/// for what is not valid or not covered.
std::vector<Crossing> crossings(const Place& place, Body body, double altitude, Instant from, Instant to);

/// The first such event after the instant, within 366 days and the years covered; none if there is none.
std::optional<Event> next(const Place& place, Body body, EventKind kind, Instant after,
                          const Convention& convention = {});

}  // namespace velmora::almanac
