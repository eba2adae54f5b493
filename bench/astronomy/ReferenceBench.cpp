#include <tests/astronomy/reference/Reference.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace velmora {
namespace {

// The slow way of the same answers: every term with its own sine, every sample from its own arguments.

constexpr double latitude = 37.78549082, longitude = -122.39184303, offsetHours = -7;
constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double phi = latitude * radiansPerDegree, lambda = longitude * radiansPerDegree;
constexpr double firstDay = 60310, mjdOfJ2000 = 51544.5;

void computeDaysByReference(benchmark::State& state) {
  double mjd = firstDay;
  for (auto _ : state) {
    benchmark::DoNotOptimize(reference::compute(mjd, offsetHours, longitude, latitude, 0));
    mjd += 1;
  }
}
BENCHMARK(computeDaysByReference);

void pairOfCoordinatesByReference(benchmark::State& state) {
  const double cosLatitude = std::cos(phi), sinLatitude = std::sin(phi);
  double mjd = firstDay;
  for (auto _ : state) {
    benchmark::DoNotOptimize(reference::moonPosition(mjd, longitude, cosLatitude, sinLatitude));
    benchmark::DoNotOptimize(reference::sunPosition(mjd - mjdOfJ2000, lambda, phi));
    mjd += 0.04;
  }
}
BENCHMARK(pairOfCoordinatesByReference);

PositionData recordOf(const reference::Horizontal& place, double hour) {
  return {place.altitude, place.azimuth, hour, reference::degreesText(place.altitude),
          reference::degreesText(place.azimuth)};
}

void trackOfADayByReference(benchmark::State& state) {
  const double cosLatitude = std::cos(phi), sinLatitude = std::sin(phi);
  double mjd = firstDay;
  for (auto _ : state) {
    std::vector<PositionData> moon, sun;
    for (int hour = 0; hour <= 24; ++hour) {
      const double moment = mjd + (hour - offsetHours) / 24;
      moon.push_back(recordOf(reference::moonPosition(moment, longitude, cosLatitude, sinLatitude), hour));
    }
    for (int hour = 0; hour < 24; ++hour) {
      sun.push_back(recordOf(reference::sunPosition(mjd + hour / 24.0 - mjdOfJ2000, lambda, phi), hour));
    }
    benchmark::DoNotOptimize(moon.data());
    benchmark::DoNotOptimize(sun.data());
    mjd += 1;
  }
}
BENCHMARK(trackOfADayByReference);

}  // namespace
}  // namespace velmora
