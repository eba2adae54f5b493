#include <app/answers/SkyPositions.h>

#include <array>
#include <cmath>

#include <app/answers/SkyDays.h>
#include <app/text/Errors.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

PositionData recordAt(Instant instant, almanac::Body body, const Place& place) {
  const std::int64_t offset = place.zone.secondsFromGMT(instant);
  const auto compute =
      body == almanac::Body::sun ? RiseAndSetCalc::ComputeSunPosition : RiseAndSetCalc::ComputeMoonPosition;
  return compute(instant, place.location, offset);
}

/// The text of a number; without one there is none.
Json textOf(double number, const std::string& text) {
  return std::isnan(number) ? Json(nullptr) : Json(text);
}

}  // namespace

SkyPosition positionAt(Instant instant, almanac::Body body, const Place& place) {
  const auto position = almanac::position(place.observer(), body, instant);
  if (!position)
    throw BadInput("the moment " + instantText(instant) + " is not known; accepted: 1900 to 2100 in UTC");
  return {instant, body, *position,
          body == almanac::Body::moon ? almanac::illumination(place.observer(), instant) : std::nullopt};
}

std::vector<SkyPosition> positionsAt(const std::vector<Instant>& instants, almanac::Body body,
                                     const Place& place) {
  std::vector<almanac::Position> positions(instants.size());
  almanac::positions(place.observer(), body, instants, positions);
  std::vector<SkyPosition> list;
  for (std::size_t i = 0; i < instants.size(); ++i)
    list.push_back({instants[i], body, positions[i], std::nullopt});
  return list;
}

Json positionJson(const SkyPosition& sample, const Place& place) {
  const PositionData record = recordAt(sample.instant, sample.body, place);
  const almanac::Position& position = sample.position;
  Json json{{"instant", instantText(sample.instant)},
            {"altitude", record.altitude},
            {"azimuth", record.azimuth},
            {"hour", record.hour},
            {"altitudeText", textOf(record.altitude, record.altitudeText)},
            {"azimuthText", textOf(record.azimuth, record.azimuthText)},
            {"apparentAltitude", position.apparentAltitude},
            {"apparentAzimuth", position.azimuth},
            {"distance", position.distance},
            {"rightAscension", position.rightAscension},
            {"declination", position.declination},
            {"diameter", 2 * position.semidiameter}};
  if (sample.light) json["tilt"] = sample.light->tilt;
  return json;
}

const std::vector<std::string>& positionColumns() {
  static const std::vector<std::string> names = {"apparentAltitude", "apparentAzimuth", "distance",
                                                 "rightAscension",   "declination",     "diameter"};
  return names;
}

std::string degreesText(double degrees) {
  if (std::isnan(degrees)) return words("none");
  const double tenths = std::round(degrees * 10) / 10;
  return decimalText(tenths == 0 ? 0.0 : tenths, 1) + "°";
}

std::string percentText(double fraction, std::size_t width) {
  return words("%1%", {rightAligned(std::lround(100 * fraction), width)});
}

std::string compassPoint(double azimuth) {
  static const std::array<const char*, 16> points = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                                     "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};
  constexpr double degreesPerPoint = 22.5;
  return words(points[static_cast<std::size_t>(std::lround(azimuth / degreesPerPoint)) % points.size()]);
}

std::string positionText(const almanac::Position& position) {
  const double altitude = position.apparentAltitude;
  const std::string degrees = degreesText(std::abs(altitude)), point = compassPoint(position.azimuth);
  return std::round(altitude * 10) < 0 ? words("%1 below the horizon, %2", {degrees, point})
                                       : words("%1 above the horizon, %2", {degrees, point});
}

std::string tiltText(const almanac::Illumination& light) {
  // Counterclockwise from straight up, so that the left comes first.
  static const std::array<const char*, 8> sides = {
      "lit from above", "lit from the upper left",  "lit from the left",  "lit from the lower left",
      "lit from below", "lit from the lower right", "lit from the right", "lit from the upper right"};
  constexpr double degreesPerSide = 45;
  return words(sides[static_cast<std::size_t>(std::lround(light.tilt / degreesPerSide)) % sides.size()]);
}

}  // namespace velmora::app
