#include <cmath>
#include <optional>
#include <utility>

#include <velmora/astronomy/HorizontalCoordinates.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/astronomy/UniversalTime.h>
#include <velmora/platform/time/Calendar.h>

namespace velmora {
namespace {

constexpr double hitTolerance = 0.05;  // degrees
constexpr int mostRefinedEvents = 2;
constexpr std::size_t moonSamples = 25, sunSamples = 24;  // of a day's series
static_assert(sunSamples % FourNumbers::count == 0);
constexpr Seconds oneDay{86400};

double offsetHours(std::int64_t secondsFromGMT) { return static_cast<double>(secondsFromGMT) / 3600; }

PositionData moonPositionAt(const GeoLocationData& location, const DateComponents& day, double hour,
                            double zoneHours) {
  return RiseAndSetCalc::CalculateMoonPosition(
      location.longitude * radiansPerDegree, location.latitude * radiansPerDegree,
      static_cast<std::int32_t>(day.year), static_cast<std::int32_t>(day.month),
      static_cast<std::int32_t>(day.day), hour, zoneHours);
}

PositionData sunPositionAt(const GeoLocationData& location, const DateComponents& day, double hour,
                           std::int64_t zone) {
  return RiseAndSetCalc::CalculateSunPosition(location.longitude * radiansPerDegree,
                                              location.latitude * radiansPerDegree, day.year, day.month,
                                              day.day, hour, zone);
}

bool isHit(double elevation, const PositionData& position) {
  return std::abs(elevation - position.altitude) <= hitTolerance;
}

/// Exactly 0 is neither side.
bool crossesHorizon(const PositionData& from, const PositionData& to) {
  return (from.altitude < 0 && to.altitude > 0) || (from.altitude > 0 && to.altitude < 0);
}

/// Whether the body reaches the elevation on its way from one position to the other.
bool liesBetween(double elevation, const PositionData& from, const PositionData& to) {
  return to.altitude > from.altitude ? elevation < to.altitude : elevation > to.altitude;
}

/// Halves the hour from `lo` to `hi` until a position is at the elevation; none when only neighbouring
/// doubles are left. `positionAt` gives the position of an hour, `from` is that of `lo`.
template <class PositionAt>
std::optional<PositionData> refine(double elevation, double lo, double hi, PositionData from,
                                   const PositionAt& positionAt) {
  for (double mid = (lo + hi) / 2; lo < mid && mid < hi; mid = (lo + hi) / 2) {
    PositionData middle = positionAt(mid);
    if (isHit(elevation, middle)) {
      middle.altitude = elevation;  // the text stays that of the computed altitude
      return middle;
    }
    if (liesBetween(elevation, from, middle)) {
      hi = mid;
    } else {
      lo = mid;
      from = std::move(middle);
    }
  }
  return std::nullopt;
}

/// Hourly positions over a day, of which those at the elevation are kept; in hours that cross the horizon the
/// event is refined, whatever the elevation. `positionAt(day, hour)` gives the position of a universal hour.
template <class PositionAt>
std::vector<PositionData> eventsMatching(double elevation, Instant universalReading, const Calendar& calendar,
                                         bool includeIntermediateValues, const PositionAt& positionAt) {
  std::vector<PositionData> events;
  std::optional<PositionData> previous;
  int refinedEvents = 0;
  DateComponents day = calendar.components(universalReading);
  double hour = static_cast<double>(day.hour) + static_cast<double>(day.minute) / 60;
  // Decided on the doubles as they stand: some starting minutes take a sample more than others.
  for (double end = hour + 24; hour < end && refinedEvents < mostRefinedEvents; hour += 1) {
    if (hour >= 24) {
      hour -= 24;
      end -= 24;
      universalReading += oneDay;
      day = calendar.components(universalReading);
    }
    const auto positionOfDay = [&](double hourOfDay) { return positionAt(day, hourOfDay); };
    const PositionData position = positionOfDay(hour);
    const bool hit = isHit(elevation, position);
    if (!hit && previous && crossesHorizon(*previous, position)) {
      if (auto event = refine(elevation, hour - 1, hour, *previous, positionOfDay)) {
        events.push_back(std::move(*event));
        ++refinedEvents;
      }
    }
    if (hit || (includeIntermediateValues && !events.empty())) events.push_back(position);
    previous = position;
  }
  return events;
}

}  // namespace

std::vector<PositionData> RiseAndSetCalc::Get24HourMoonPositionsForDate(Instant date,
                                                                        const GeoLocationData& location,
                                                                        std::int64_t secondsFromGMT) {
  const DateComponents day = Calendar(location.calendarZone(secondsFromGMT)).components(date);
  const double zoneHours = offsetHours(secondsFromGMT), mjd0 = _mjd(day.day, day.month, day.year, 0);
  const Angle<double> latitude = angleOfRadians(location.latitude * radiansPerDegree);
  const double longitude = location.longitude * radiansPerDegree * degreesPerRadian;

  std::vector<PositionData> positions;
  positions.reserve(moonSamples);
  while (positions.size() < moonSamples) {
    const FourNumbers hours = FourNumbers::from(static_cast<double>(positions.size())) - zoneHours;
    const FourNumbers mjd = mjd0 + hours / 24;
    const Direction<FourNumbers> moon = moonDirectionAt(centuriesSinceJ2000(mjd));
    for (std::size_t i = 0; i < FourNumbers::count && positions.size() < moonSamples; ++i) {
      positions.push_back(positionAt(moonCoordinates(directionOfHour(moon, i), mjd[i], longitude, latitude),
                                     hours[i] + zoneHours));
    }
  }
  return positions;
}

std::vector<PositionData> RiseAndSetCalc::Get24HourSunPositionsForDate(Instant date,
                                                                       const GeoLocationData& location,
                                                                       std::int64_t secondsFromGMT) {
  const Calendar calendar(location.calendarZone(secondsFromGMT));
  const DateComponents first = calendar.components(movedToUniversalReading(date, secondsFromGMT));
  const double firstDay = daysFromJ2000(first.year, first.month, first.day, 0);
  const double longitude = location.longitude * radiansPerDegree;
  const Angle<double> latitude = angleOfRadians(location.latitude * radiansPerDegree);

  std::vector<PositionData> positions;
  positions.reserve(sunSamples);
  while (positions.size() < sunSamples) {
    const FourNumbers hours =
        FourNumbers::from(static_cast<double>(first.hour) + static_cast<double>(positions.size()));
    const auto places = sunCoordinates(firstDay + hours / 24, longitude, latitude);
    // Kept: the zone value is the offset in seconds, so that the records' hours mean nothing here.
    for (std::size_t i = 0; i < FourNumbers::count; ++i) {
      positions.push_back(positionAt(places[i], sunZoneHour(hours[i], secondsFromGMT)));
    }
  }
  return positions;
}

std::vector<PositionData> RiseAndSetCalc::EventsMatchingSunElevation(double elevation, Instant date,
                                                                     const GeoLocationData& location,
                                                                     std::int64_t secondsFromGMT,
                                                                     bool includeIntermediatealues) {
  // Kept: a half-hour zone loses its half hour.
  const std::int64_t zone = secondsFromGMT / 3600;
  return eventsMatching(
      elevation, movedToUniversalReading(date, secondsFromGMT),
      Calendar(location.calendarZone(secondsFromGMT)), includeIntermediatealues,
      [&](const DateComponents& day, double hour) { return sunPositionAt(location, day, hour, zone); });
}

std::vector<PositionData> RiseAndSetCalc::EventsMatchingMoonElevation(double elevation, Instant date,
                                                                      const GeoLocationData& location,
                                                                      std::int64_t secondsFromGMT,
                                                                      bool includeIntermediatealues) {
  const double zoneHours = offsetHours(secondsFromGMT);
  return eventsMatching(
      elevation, movedToUniversalReading(date, secondsFromGMT),
      Calendar(location.calendarZone(secondsFromGMT)), includeIntermediatealues,
      [&](const DateComponents& day, double hour) { return moonPositionAt(location, day, hour, zoneHours); });
}

}  // namespace velmora
