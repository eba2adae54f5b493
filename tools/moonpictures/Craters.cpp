#include "Craters.h"

#include "Noise.h"

namespace moonpictures {
namespace {

constexpr double simpleCraterLimit = 15;  // kilometres of diameter; larger craters have flat floors
constexpr double peakCraterLimit = 28;    // kilometres of diameter; larger fresh craters have central peaks

double freshDepth(double diameter) {
  return diameter < simpleCraterLimit ? 0.196 * std::pow(diameter, 1.010) : 1.044 * std::pow(diameter, 0.301);
}

double freshRimHeight(double diameter) {
  return diameter < simpleCraterLimit ? 0.036 * std::pow(diameter, 1.014) : 0.236 * std::pow(diameter, 0.399);
}

double freshFloorShare(double diameter) {
  return diameter < simpleCraterLimit ? 0.1 : std::fmin(0.75, 0.187 * std::pow(diameter, 0.249));
}

double peakHeight(const Crater& crater) {
  const bool hasPeak = crater.diameter > peakCraterLimit && crater.freshness > 0.6;
  return hasPeak ? 0.032 * std::pow(crater.diameter, 0.900) : 0;
}

}  // namespace

std::vector<Crater> smallCraters(const SurfaceMap& mareCover) {
  constexpr int attempts = 9000;
  constexpr double smallest = 9, largest = 55;  // kilometres of diameter
  constexpr double mareShare = 0.05;            // of the craters that a highland would show
  Random random(2024);
  std::vector<Crater> craters;
  for (int attempt = 0; attempt < attempts; ++attempt) {
    const Place place{std::asin(random.between(-1, 1)) / degree, random.between(-100, 100)};
    // As many craters larger than D as D to the power −2.
    const double diameter =
        smallest / std::sqrt(random.between(smallest * smallest / (largest * largest), 1));
    const double freshness = random.between(0.15, 1);
    const bool survives =
        random.between(0, 1) < mix(1, mareShare, std::fmin(1, 2 * mareCover.valueAt(place)));
    const double tone = freshness > 0.9 ? random.between(0.1, 0.6) : 0;
    if (survives) craters.push_back({"", directionOf(place), diameter, freshness, tone});
  }
  return craters;
}

double distanceInRadii(const Crater& crater, const Vector& place) {
  constexpr std::uint64_t rimSeed = 23;
  constexpr double rimGrain = 2.5, rimUnevenness = 0.07;  // waves and excursion a crater radius
  const double radius = crater.diameter / 2;
  const double uneven = rimUnevenness * noise((rimGrain * moonRadius / radius) * place, rimSeed);
  return distanceBetween(crater.centre, place) / radius * (1 + uneven);
}

double floorShare(const Crater& crater) {
  return mix(0.86, freshFloorShare(crater.diameter), crater.freshness);
}

double craterHeight(const Crater& crater, double distance) {
  constexpr double peakShare = 0.13;  // of the radius
  const double rim = crater.freshness * freshRimHeight(crater.diameter);
  const double floor = rim - crater.freshness * freshDepth(crater.diameter);
  if (distance > 1) return rim * std::pow(distance, -3) * (1 - smoothStep(1, ejectaReach, distance));
  const double upTheWall = std::fmax(0, (distance - floorShare(crater)) / (1 - floorShare(crater)));
  const double peak = peakHeight(crater) * std::exp(-std::pow(distance / peakShare, 2));
  return mix(floor, rim, std::pow(upTheWall, 1.5)) + peak;
}

}  // namespace moonpictures
