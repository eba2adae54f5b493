#include <velmora/almanac/Events.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <vector>

#include <velmora/almanac/Positions.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;

constexpr Place sanFrancisco{37.78549082, -122.39184303};
constexpr EventChoice riseAndSetAlone{.twilight = false, .transits = false};

void perDay(benchmark::State& state, double days) {
  state.counters["per day"] =
      benchmark::Counter(days, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// Years one after the other, so that none is asked for twice.
void daysOfYear(benchmark::State& state, const EventChoice& choice) {
  const TimeZone zone = *TimeZone::named("America/Los_Angeles");
  year number = 1901y;
  for (auto _ : state) {
    benchmark::DoNotOptimize(days(sanFrancisco, zone, number / January / 1, number / December / 31, choice));
    number = number == 2099y ? 1901y : number + years(1);
  }
  perDay(state, 365.25);
}
BENCHMARK_CAPTURE(daysOfYear, riseAndSet, riseAndSetAlone);
BENCHMARK_CAPTURE(daysOfYear, all, EventChoice());

/// So far from the one before that nothing of it is kept.
void dayAlone(benchmark::State& state, const EventChoice& choice) {
  const Instant first = sys_days(1901y / January / 1) + hours(8), last = sys_days(2100y / January / 1);
  Instant start = first;
  for (auto _ : state) {
    benchmark::DoNotOptimize(day(sanFrancisco, start, start + hours(24), choice));
    start = start < last ? start + hours(40 * 24) : first;
  }
}
BENCHMARK_CAPTURE(dayAlone, riseAndSet, riseAndSetAlone);
BENCHMARK_CAPTURE(dayAlone, all, EventChoice());

double heightOverHorizon(Body body, Instant at) {
  const double altitude = position(sanFrancisco, body, at)->altitude;
  return altitude + (body == Body::sun ? 50.0 / 60 : 34.0 / 60 + 0.26);
}

/// The slow way: an altitude every ten minutes, and halving where it passes the horizon.
void dayByTenMinutes(benchmark::State& state) {
  constexpr Seconds step(600), close(0.1);
  Instant start = sys_days(2024y / January / 1) + hours(8);
  for (auto _ : state) {
    for (const Body body : {Body::sun, Body::moon}) {
      double before = heightOverHorizon(body, start);
      for (Instant at = start; at < start + hours(24); at += step) {
        const double after = heightOverHorizon(body, at + step);
        Instant low = at, high = at + step;
        while ((before < 0) != (after < 0) && high - low > close) {
          const Instant middle = low + (high - low) / 2;
          ((heightOverHorizon(body, middle) < 0) == (before < 0) ? low : high) = middle;
        }
        benchmark::DoNotOptimize(low);
        before = after;
      }
    }
    start += hours(24);
  }
}
BENCHMARK(dayByTenMinutes);

/// Sun and Moon of a moment.
void positionOfBoth(benchmark::State& state) {
  Instant at = sys_days(2024y / January / 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(position(sanFrancisco, Body::sun, at));
    benchmark::DoNotOptimize(position(sanFrancisco, Body::moon, at));
    at += minutes(97);
  }
}
BENCHMARK(positionOfBoth);

void positionsInARow(benchmark::State& state) {
  std::vector<Instant> instants;
  for (int k = 0; k < 1000; ++k) instants.push_back(sys_days(2024y / January / 1) + minutes(10 * k));
  std::vector<Position> sun(instants.size()), moon(instants.size());
  for (auto _ : state) {
    positions(sanFrancisco, Body::sun, instants, sun);
    positions(sanFrancisco, Body::moon, instants, moon);
    benchmark::DoNotOptimize(sun.data());
    benchmark::DoNotOptimize(moon.data());
  }
}
BENCHMARK(positionsInARow);

/// A day of the whole world, a place every half degree.
void worldGrid(benchmark::State& state) {
  std::vector<Place> places;
  for (int row = 0; row <= 360; ++row) {
    for (int column = 0; column < 720; ++column) places.push_back({row * 0.5 - 90, column * 0.5 - 180});
  }
  const Instant start = sys_days(2024y / March / 20);
  double daylight = 0;
  for (auto _ : state) {
    forEachPlace(places, start, start + hours(24),
                 [&](std::size_t, const Day& day) { daylight += day.daylight.count(); });
  }
  benchmark::DoNotOptimize(daylight);
}
BENCHMARK(worldGrid)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmora::almanac
