#include <cmath>

#include <app/answers/Days.h>
#include <app/answers/SkyDays.h>
#include <app/answers/SkyPositions.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/TextTable.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

SkyPosition answer(const Query& query) {
  return positionAt(presentOf(query), query.request.body, query.place);
}

Json json(const Query& query) {
  Json position{{"body", bodyName(query.request.body)}};
  position.update(positionJson(answer(query), query.place));
  return position;
}

/// "5h 07.3m", of 24.
std::string hoursText(double hours) {
  constexpr double minutesPerHour = 60;
  const double minutes = std::round(hours * minutesPerHour * 10) / 10;
  const double whole = std::floor(minutes / minutesPerHour);
  const double rest = minutes - whole * minutesPerHour;
  return std::to_string(static_cast<int>(whole) % 24) + "h " + (rest < 10 ? "0" : "") + decimalText(rest, 1) +
         "m";
}

std::string minutesOfArcText(double degrees) { return decimalText(degrees * 60, 1) + "′"; }

std::string litText(const almanac::Illumination& light) {
  return words("%1, %2", {percentText(light.fraction), tiltText(light)});
}

/// To the kilometre, of the Sun to the thousand, as exactly as it is known.
std::string distanceText(double kilometres) {
  constexpr double ofTheMoonAtMost = 1e6;
  const std::int64_t step = kilometres > ofTheMoonAtMost ? 1000 : 1;
  return std::to_string(std::llround(kilometres / static_cast<double>(step)) * step) + " km";
}

std::string text(const Query& query) {
  const SkyPosition found = answer(query);
  const almanac::Position& position = found.position;
  const bool isSun = found.body == almanac::Body::sun;
  TextTable facts({words("Time"), localText(found.instant, query.place.zone, query.use24HourClock)});
  facts.add({words("Elevation"), degreesText(position.apparentAltitude)});
  facts.add({words("Azimuth"), degreesText(position.azimuth) + " " + compassPoint(position.azimuth)});
  facts.add({words("Distance"), distanceText(position.distance)});
  facts.add({words("Diameter"), minutesOfArcText(2 * position.semidiameter)});
  facts.add({words("Right ascension"), hoursText(position.rightAscension)});
  facts.add({words("Declination"), degreesText(position.declination)});
  if (found.light) facts.add({words("Lit"), litText(*found.light)});
  return query.place.heading() + (isSun ? words("Position of the Sun") : words("Position of the Moon")) +
         "\n\n" + facts.text(false);
}

}  // namespace

const Answer positionAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
