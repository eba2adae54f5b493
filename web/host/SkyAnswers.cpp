#include <web/host/SkyAnswers.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <numbers>
#include <vector>

#include <velmora/almanac/Events.h>
#include <velmora/almanac/Phases.h>
#include <web/host/Json.h>

namespace velmora::web {
namespace {

using almanac::Body;

constexpr std::chrono::hours longerThanALunation{24 * 31};

const char* nameOf(Body body) { return body == Body::sun ? "sun" : "moon"; }

const char* nameOf(almanac::AllDay allDay) {
  static constexpr std::array names = {"rises or sets", "up", "down"};
  return names.at(static_cast<std::size_t>(allDay));
}

const char* nameOf(almanac::EventKind kind) {
  static constexpr std::array names = {
      "rise",         "set",          "transit",          "civilDawn",       "civilDusk",
      "nauticalDawn", "nauticalDusk", "astronomicalDawn", "astronomicalDusk"};
  return names.at(static_cast<std::size_t>(kind));
}

const char* nameOf(almanac::PrincipalPhase phase) {
  static constexpr std::array names = {"new", "firstQuarter", "full", "lastQuarter"};
  return names.at(static_cast<std::size_t>(phase));
}

/// From that principal phase to the next.
const char* nameAfter(almanac::PrincipalPhase phase) {
  static constexpr std::array names = {"waxingCrescent", "waxingGibbous", "waningGibbous", "waningCrescent"};
  return names.at(static_cast<std::size_t>(phase));
}

const char* nameOfElongation(double degrees) {
  constexpr double quarter = 90;
  constexpr int quarters = 4;
  return nameAfter(static_cast<almanac::PrincipalPhase>(static_cast<int>(degrees / quarter) % quarters));
}

std::string jsonOf(const almanac::Event& event) {
  return JsonObject()
      .with("at", milliseconds(event.at))
      .with("body", nameOf(event.body))
      .with("kind", nameOf(event.kind))
      .with("azimuth", event.azimuth)
      .with("altitude", event.altitude)
      .text();
}

std::string jsonOf(const almanac::Position& position) {
  return JsonObject()
      .with("azimuth", position.azimuth)
      .with("altitude", position.apparentAltitude)
      .with("distance", position.topocentricDistance)
      .with("semidiameter", position.semidiameter)
      .text();
}

std::string jsonOf(const almanac::PhaseEvent& event) {
  return JsonObject().with("at", milliseconds(event.at)).with("phase", nameOf(event.phase)).text();
}

std::string jsonOf(const std::vector<almanac::PhaseEvent>& events) {
  std::vector<std::string> values;
  for (const almanac::PhaseEvent& event : events) values.push_back(jsonOf(event));
  return jsonArray(values);
}

/// The principal phase of the instant's civil day at the place, or that between two of them.
const char* phaseAt(Instant at, double elongation) {
  const Session& session = Session::shared();
  if (const auto day = almanac::civilDay(session.zone(), session.dateAt(at))) {
    const auto principal = almanac::phases(day->start, day->end);
    if (!principal.empty()) return nameOf(principal.front().phase);
  }
  return nameOfElongation(elongation);
}

/// Where the northern pole of the ecliptic lies as seen from the Moon's place in the sky, from straight up,
/// counterclockwise. The Moon's axis stands 1.5 degrees from it.
double northOfMoon(const almanac::Position& moon, const almanac::Illumination& lit) {
  constexpr double radians = std::numbers::pi / 180;
  constexpr double obliquity = 23.4393 * radians, hour = 15 * radians;
  const double fromPole = 18 * hour - moon.topocentricRightAscension * hour;
  const double declination = moon.topocentricDeclination * radians;
  const double angle = std::atan2(std::sin(obliquity) * std::sin(fromPole),
                                  std::cos(obliquity) * std::cos(declination) -
                                      std::sin(obliquity) * std::sin(declination) * std::cos(fromPole));
  return angle / radians - lit.parallacticAngle;
}

}  // namespace

double milliseconds(Instant instant) { return std::round(unixSeconds(instant) * 1000); }
Instant instantAt(double milliseconds) { return instantFromUnixSeconds(milliseconds / 1000); }

std::optional<std::string> skyOfDay(Date date) {
  const Session& session = Session::shared();
  const auto day = almanac::day(session.place(), session.zone(), date);
  if (!day) return std::nullopt;
  std::vector<std::string> events;
  for (const almanac::Event& event : day->events) events.push_back(jsonOf(event));
  return JsonObject()
      .with("start", milliseconds(day->start))
      .with("end", milliseconds(day->end))
      .with("sun", nameOf(day->sun))
      .with("moon", nameOf(day->moon))
      .with("daylight", day->daylight.count())
      .with("darkness", day->darkness.count())
      .add("events", jsonArray(events))
      .text();
}

std::optional<std::string> momentInTheSky(Instant at) {
  const almanac::Place place = Session::shared().place();
  const auto sun = almanac::position(place, Body::sun, at), moon = almanac::position(place, Body::moon, at);
  const auto lit = almanac::illumination(place, at);
  if (!sun || !moon || !lit) return std::nullopt;
  return JsonObject()
      .with("at", milliseconds(at))
      .add("sun", jsonOf(*sun))
      .add("moon", jsonOf(*moon))
      .with("fraction", lit->fraction)
      .with("isWaxing", lit->isWaxing)
      .with("elongation", lit->elongation)
      .with("tilt", lit->tilt)
      .with("north", northOfMoon(*moon, *lit))
      .with("phase", phaseAt(at, lit->elongation))
      .text();
}

std::string track(Body body, std::span<const double> milliseconds) {
  std::vector<Instant> instants;
  for (const double at : milliseconds) instants.push_back(instantAt(at));
  std::vector<almanac::Position> found(instants.size());
  almanac::positions(Session::shared().place(), body, instants, found);
  std::vector<std::string> values;
  for (const almanac::Position& position : found) {
    values.push_back(
        JsonObject().with("azimuth", position.azimuth).with("altitude", position.apparentAltitude).text());
  }
  return jsonArray(values);
}

std::string nextPhases(Instant after) {
  constexpr std::size_t principalPhases = 4;
  auto found = almanac::phases(after, after + longerThanALunation);
  if (found.size() > principalPhases) found.resize(principalPhases);
  return jsonOf(found);
}

std::string phasesBetween(Instant from, Instant to) { return jsonOf(almanac::phases(from, to)); }

std::optional<std::string> calendarDay(Date date) {
  const Session& session = Session::shared();
  const auto day = almanac::civilDay(session.zone(), date);
  if (!day) return std::nullopt;
  const auto events = almanac::phases(day->start - longerThanALunation, day->end);
  const auto newMoon = std::find_if(events.rbegin(), events.rend(), [](const almanac::PhaseEvent& event) {
    return event.phase == almanac::PrincipalPhase::newMoon;
  });
  if (newMoon == events.rend()) return std::nullopt;
  const almanac::PhaseEvent& last = events.back();
  const auto age = std::chrono::sys_days(date) - std::chrono::sys_days(session.dateAt(newMoon->at));
  return JsonObject()
      .with("phase", last.at >= day->start ? nameOf(last.phase) : nameAfter(last.phase))
      .with("age", static_cast<double>(age.count() + 1))
      .text();
}

}  // namespace velmora::web
