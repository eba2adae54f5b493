#include <velmora/almanac/Positions.h>

#include <algorithm>
#include <array>
#include <span>

#include <velmora/c/Answering.h>

using namespace velmora;
using namespace velmora::c;

namespace {

constexpr std::size_t atOnce = 256;  // so that no list is made however many are asked for

velmora_position positionOf(const almanac::Position& p) {
  return {p.rightAscension,         p.declination,         p.distance, p.topocentricRightAscension,
          p.topocentricDeclination, p.topocentricDistance, p.azimuth,  p.altitude,
          p.apparentAltitude,       p.semidiameter};
}

velmora_illumination illuminationOf(const std::optional<almanac::Illumination>& illumination) {
  if (!illumination) return {none, none, none, none, none, none, 0, 0};
  const almanac::Illumination& i = *illumination;
  return {i.fraction,         i.elongation, i.phaseAngle,       i.brightLimbAngle,
          i.parallacticAngle, i.tilt,       i.isWaxing ? 1 : 0, 0};
}

}  // namespace

extern "C" {

velmora_status velmora_positions(const velmora_place* place, int32_t body, const double* at, size_t count,
                                 velmora_position* positions) {
  return answering([&] {
    const almanac::Place from = placeOf(place);
    const almanac::Body seen = bodyOf(body);
    checkRoom(at, count, "at");
    checkRoom(positions, count, "positions");
    std::array<Instant, atOnce> instants;
    std::array<almanac::Position, atOnce> found;
    for (std::size_t first = 0; first < count; first += atOnce) {
      const std::size_t size = std::min(atOnce, count - first);
      std::transform(at + first, at + first + size, instants.begin(), instantFromUnixSeconds);
      almanac::positions(from, seen, std::span(instants).first(size), std::span(found).first(size));
      std::transform(found.begin(), found.begin() + size, positions + first, positionOf);
    }
    return VELMORA_OK;
  });
}

velmora_status velmora_illuminations(const velmora_place* place, const double* at, size_t count,
                                     velmora_illumination* illuminations) {
  return answering([&] {
    const almanac::Place from = placeOf(place);
    checkRoom(at, count, "at");
    checkRoom(illuminations, count, "illuminations");
    for (std::size_t i = 0; i < count; ++i) {
      illuminations[i] = illuminationOf(almanac::illumination(from, instantFromUnixSeconds(at[i])));
    }
    return VELMORA_OK;
  });
}

}  // extern "C"
