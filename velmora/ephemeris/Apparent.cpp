#include <algorithm>
#include <limits>

#include <velmora/ephemeris/Evaluation.h>
#include <velmora/ephemeris/Geocentric.h>
#include <velmora/ephemeris/TimeScales.h>

namespace velmora::ephemeris {
namespace {

/// The fields of `Apparent`.
template <class Number>
struct Fields {
  Number rightAscension, declination, longitude, latitude, distance;
};

template <class Number>
Number positive(const Number& angle) {
  const Number zero{};
  return selectLess(angle, zero, angle + radiansOfTurn, angle);
}

template <class Number>
Fields<Number> fieldsAt(Body body, const Number& centuries) {
  const auto place = geocentric(body, centuries);
  const Number inEquator = squareRoot(place.x * place.x + place.y * place.y);
  return {positive(angleOf(place.y, place.x)), angleOf(place.z, inEquator),
          positive((place.longitude - nearestWhole(place.longitude)) * radiansOfTurn),
          place.latitude * radiansOfTurn, place.distance};
}

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

}  // namespace

std::optional<Apparent> apparent(Body body, Instant instant) {
  if (!covers(instant)) return std::nullopt;
  const auto fields = fieldsAt(body, terrestrialCenturies(instant));
  return Apparent{fields.rightAscension, fields.declination, fields.longitude, fields.latitude,
                  fields.distance};
}

void apparent(Body body, std::span<const Instant> instants, std::span<Apparent> out) {
  while (!instants.empty()) {
    const std::size_t count = std::min(instants.size(), laneCount);
    std::array<double, laneCount> centuries{};
    for (std::size_t i = 0; i < count; ++i) {
      if (covers(instants[i])) centuries[i] = terrestrialCenturies(instants[i]);
    }
    const auto fields = fieldsAt(body, doublesOf(centuries));
    for (std::size_t i = 0; i < count; ++i) {
      out[i] = covers(instants[i])
                   ? Apparent{lane(fields.rightAscension, i), lane(fields.declination, i),
                              lane(fields.longitude, i), lane(fields.latitude, i), lane(fields.distance, i)}
                   : Apparent{nan, nan, nan, nan, nan};
    }
    instants = instants.subspan(count);
    out = out.subspan(count);
  }
}

Nutation nutation(Instant instant) {
  const double centuries = terrestrialCenturies(instant);
  const auto tilted = tilt(centuries, anglesAt(centuries));
  return {tilted.longitude * radiansOfTurn, tilted.obliquity * radiansOfTurn,
          tilted.trueObliquity * radiansOfTurn};
}

}  // namespace velmora::ephemeris
