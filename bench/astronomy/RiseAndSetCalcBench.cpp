#include <velmora/astronomy/RiseAndSetCalc.h>

#include <benchmark/benchmark.h>

#include <velmora/astronomy/HorizontalCoordinates.h>
#include <velmora/platform/time/Calendar.h>

namespace velmora {
namespace {

using Calc = RiseAndSetCalc;

constexpr std::int64_t offset = -25200;

GeoLocationData sanFrancisco() {
  GeoLocationData place;
  place.SetLocation(37.78549082, -122.39184303, "San Francisco, CA", "America/Los_Angeles", 0, false);
  return place;
}

Instant firstNoon() { return Calendar(TimeZone::fixed(offset)).date({2024, 1, 1, 12, 0, 0, 0}); }

void computeDays(benchmark::State& state) {
  const GeoLocationData place = sanFrancisco();
  const Instant first = firstNoon();
  const auto days = static_cast<int>(state.range(0));
  for (auto _ : state) {
    for (int day = 0; day < days; ++day) {
      benchmark::DoNotOptimize(Calc::Compute(first + Seconds(86400.0 * day), place, offset, 0));
    }
  }
  state.counters["per day"] = benchmark::Counter(
      static_cast<double>(days), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(computeDays)->ArgName("days")->Arg(1)->Arg(31)->Arg(366);

void sunPart(benchmark::State& state) {
  for (auto _ : state) {
    RiseSetData record;
    Calc::_find_sun_and_twi_events_for_date(record, 0, 60482, -7, -122.39184303, 37.78549082);
    benchmark::DoNotOptimize(record);
  }
}
BENCHMARK(sunPart);

void moonPart(benchmark::State& state) {
  for (auto _ : state) {
    RiseSetData record;
    Calc::_find_moonrise_set(record, 60482, -7, -122.39184303, 37.78549082);
    benchmark::DoNotOptimize(record);
  }
}
BENCHMARK(moonPart);

void sineOfAltitude(benchmark::State& state) {
  const auto object = static_cast<double>(state.range(0));
  double hour = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Calc::_sin_alt(object, 60482, hour, -122.39184303, 0.79, 0.61));
    hour += 0.01;
  }
}
BENCHMARK(sineOfAltitude)->ArgName("object")->Arg(1)->Arg(2);

template <auto compute>
void one(benchmark::State& state) {
  const GeoLocationData place = sanFrancisco();
  Instant instant = firstNoon();
  for (auto _ : state) {
    benchmark::DoNotOptimize(compute(instant, place, offset));
    instant += Seconds(3600);
  }
}
/// The Moon and the Sun of one moment as numbers, without texts.
void pairOfCoordinates(benchmark::State& state) {
  const Angle<double> latitude = angleOfRadians(0.66);
  double mjd = 60310;
  for (auto _ : state) {
    benchmark::DoNotOptimize(moonCoordinates(mjd, -122.39184303, latitude));
    benchmark::DoNotOptimize(sunCoordinates(mjd - 51544.5, -2.1361, latitude));
    mjd += 0.04;
  }
}
BENCHMARK(pairOfCoordinates);

/// A day's track: 25 records of the Moon and 24 of the Sun.
void trackOfADay(benchmark::State& state) {
  const GeoLocationData place = sanFrancisco();
  Instant instant = firstNoon();
  for (auto _ : state) {
    benchmark::DoNotOptimize(Calc::Get24HourMoonPositionsForDate(instant, place, offset));
    benchmark::DoNotOptimize(Calc::Get24HourSunPositionsForDate(instant, place, offset));
    instant += Seconds(86400);
  }
}
BENCHMARK(trackOfADay);

BENCHMARK(one<Calc::ComputeSunPosition>)->Name("sunPosition");
BENCHMARK(one<Calc::ComputeMoonPosition>)->Name("moonPosition");
BENCHMARK(one<Calc::Get24HourSunPositionsForDate>)->Name("sunTrackOfADay");
BENCHMARK(one<Calc::Get24HourMoonPositionsForDate>)->Name("moonTrackOfADay");

template <auto events>
void horizonCrossings(benchmark::State& state) {
  const GeoLocationData place = sanFrancisco();
  Instant instant = firstNoon();
  for (auto _ : state) {
    benchmark::DoNotOptimize(events(0, instant, place, offset, false));
    instant += Seconds(3600);
  }
}
BENCHMARK(horizonCrossings<Calc::EventsMatchingSunElevation>)->Name("sunElevationEventsOfADay");
BENCHMARK(horizonCrossings<Calc::EventsMatchingMoonElevation>)->Name("moonElevationEventsOfADay");

}  // namespace
}  // namespace velmora
