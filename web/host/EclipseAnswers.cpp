#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include <velmora/almanac/Eclipses.h>
#include <web/host/Json.h>
#include <web/host/SkyAnswers.h>

namespace velmora::web {
namespace {

using almanac::Body;

constexpr double degree = std::numbers::pi / 180;
constexpr double degreesPerHour = 15;

/// What covers the eclipsed disc, in radii of it; x to the right and y downwards, the zenith up.
struct Discs {
  double x, y, radius;
  std::optional<double> penumbra;
};

/// The Moon before the Sun.
Discs solarDiscs(const almanac::Position& sun, const almanac::Position& moon) {
  const double right = std::remainder(moon.azimuth - sun.azimuth, 360) * std::cos(sun.altitude * degree);
  return {right / sun.semidiameter, (sun.altitude - moon.altitude) / sun.semidiameter,
          moon.semidiameter / sun.semidiameter, std::nullopt};
}

/// The Earth's shadow on the Moon, by Danjon's rule, as from the centre of the Earth.
Discs lunarDiscs(const almanac::Position& sun, const almanac::Position& moon, double parallacticAngle) {
  constexpr double earth = 6378.137, sunRadius = 695989, moonRadius = 1737.5, air = 1.01;
  const double shadowToEast =
      std::remainder((sun.rightAscension + 12 - moon.rightAscension) * degreesPerHour, 360) *
      std::cos(moon.declination * degree);
  const double shadowToNorth = -sun.declination - moon.declination;
  const double distance = std::hypot(shadowToEast, shadowToNorth);
  const double fromZenith = std::atan2(shadowToEast, shadowToNorth) - parallacticAngle * degree;
  const double parallaxes =
      (air * std::asin(earth / moon.distance) + std::asin(earth / sun.distance)) / degree;
  const double sunSize = std::asin(sunRadius / sun.distance) / degree;
  const double unit = std::asin(moonRadius / moon.distance) / degree;
  return {-distance * std::sin(fromZenith) / unit, -distance * std::cos(fromZenith) / unit,
          (parallaxes - sunSize) / unit, (parallaxes + sunSize) / unit};
}

std::optional<Discs> discsAt(Body eclipsed, Instant at) {
  const almanac::Place place = Session::shared().place();
  const auto sun = almanac::position(place, Body::sun, at), moon = almanac::position(place, Body::moon, at);
  const auto lit = almanac::illumination(place, at);
  if (!sun || !moon || !lit) return std::nullopt;
  return eclipsed == Body::sun ? solarDiscs(*sun, *moon) : lunarDiscs(*sun, *moon, lit->parallacticAngle);
}

std::string jsonOf(const Discs& discs) {
  JsonObject object;
  object.with("x", discs.x).with("y", discs.y).with("radius", discs.radius);
  if (discs.penumbra) object.with("penumbra", *discs.penumbra);
  return object.text();
}

std::string jsonOf(const almanac::Contact& contact) {
  static constexpr std::array names = {"C1", "C2", "C3", "C4", "P1", "U1", "U2", "U3", "U4", "P4"};
  return JsonObject()
      .with("name", names.at(static_cast<std::size_t>(contact.name)))
      .with("at", milliseconds(contact.moment.at))
      .with("isUp", contact.moment.isUp)
      .text();
}

const char* nameOf(almanac::EclipseKind kind) {
  static constexpr std::array names = {"total", "annular", "hybrid", "partial", "penumbral"};
  return names.at(static_cast<std::size_t>(kind));
}

std::string jsonOf(const almanac::LocalEclipse& eclipse, const Discs& discs) {
  std::vector<std::string> contacts;
  for (const almanac::Contact& contact : eclipse.contacts) contacts.push_back(jsonOf(contact));
  return JsonObject()
      .with("body", eclipse.body == Body::sun ? "sun" : "moon")
      .with("kind", nameOf(almanac::seenKind(eclipse)))
      .with("begin", milliseconds(eclipse.visibleFrom))
      .with("best", milliseconds(eclipse.best.at))
      .with("end", milliseconds(eclipse.visibleTo))
      .with("maximum", milliseconds(eclipse.maximum.at))
      .with("altitude", eclipse.best.altitude)
      .with("azimuth", eclipse.best.azimuth)
      .with("magnitude", eclipse.bestMagnitude)
      .with("obscuration", eclipse.obscuration)
      .add("contacts", jsonArray(contacts))
      .add("discs", jsonOf(discs))
      .text();
}

}  // namespace

std::string nextEclipses(Instant after, std::size_t count) {
  constexpr std::chrono::hours longestHalf{6}, step{24 * 365};
  constexpr int mostSteps = 20;
  std::vector<std::string> seen;
  Instant from = after - longestHalf;
  for (int i = 0; i < mostSteps && seen.size() < count; ++i, from += step) {
    for (const almanac::Eclipse& eclipse : almanac::eclipses(from, from + step)) {
      const auto local = almanac::seenFrom(eclipse, Session::shared().place());
      if (!local || !local->isVisible || local->visibleTo <= after || seen.size() == count) continue;
      if (const auto discs = discsAt(local->body, local->best.at)) seen.push_back(jsonOf(*local, *discs));
    }
  }
  return jsonArray(seen);
}

}  // namespace velmora::web
