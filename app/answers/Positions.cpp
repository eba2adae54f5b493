#include <app/answers/Positions.h>

#include <array>
#include <cmath>

#include <app/text/ClockText.h>
#include <app/text/ValueTexts.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

// The centre's altitude in degrees at which a body counts as risen: of the Sun less refraction and
// semi-diameter, of the Moon with its parallax besides.
constexpr double sunriseAltitude = -0.833;
constexpr double moonriseAltitude = 0.1333;

/// One decimal and a degree sign, without the sign of a zero.
std::string degreesText(double degrees) {
  const double tenths = std::round(degrees * 10) / 10;
  return decimalText(tenths == 0 ? 0.0 : tenths, 1) + "°";
}

/// The point of the compass, of sixteen; straight up or down there is none.
std::string compassPoint(double azimuth) {
  static const std::array<const char*, 16> points = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                                     "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};
  if (std::isnan(azimuth)) return "none";
  return points[static_cast<std::size_t>(std::lround(azimuth / 22.5)) % points.size()];
}

std::string azimuthText(double azimuth) { return std::isnan(azimuth) ? "none" : degreesText(azimuth); }

}  // namespace

TimedPosition positionAt(Instant instant, Body body, const Place& place) {
  const std::int64_t offset = place.zone.secondsFromGMT(instant);
  const auto compute =
      body == Body::sun ? RiseAndSetCalc::ComputeSunPosition : RiseAndSetCalc::ComputeMoonPosition;
  return {instant, compute(instant, place.location, offset)};
}

bool isRisen(const PositionData& position, Body body) {
  return position.altitude > (body == Body::sun ? sunriseAltitude : moonriseAltitude);
}

Json positionJson(const TimedPosition& sample) {
  return {{"instant", instantText(sample.instant)},       {"altitude", sample.position.altitude},
          {"azimuth", sample.position.azimuth},           {"hour", sample.position.hour},
          {"altitudeText", sample.position.altitudeText}, {"azimuthText", sample.position.azimuthText}};
}

std::string positionTable(const std::vector<TimedPosition>& samples, const Query& query) {
  TextTable table({"Time", "Elevation", "Azimuth", "Direction"});
  for (const auto& [instant, position] : samples) {
    table.add({localText(instant, query.place.zone, query.use24HourClock), degreesText(position.altitude),
               azimuthText(position.azimuth), compassPoint(position.azimuth)});
  }
  return table.text(query.boldHeadings);
}

std::string bodyName(Body body) { return body == Body::sun ? "sun" : "moon"; }

std::string bodyTitle(Body body) { return body == Body::sun ? "Sun" : "Moon"; }

std::string positionText(const PositionData& position) {
  const bool below = std::round(position.altitude * 10) < 0;
  return degreesText(std::abs(position.altitude)) + (below ? " below" : " above") + " the horizon, " +
         compassPoint(position.azimuth);
}

}  // namespace velmora::app
