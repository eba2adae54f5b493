#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <vector>

#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Phases.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;

/// Years one after the other, so that none is asked for twice.
template <auto found>
void yearOf(benchmark::State& state) {
  year number = 1901y;
  for (auto _ : state) {
    const Instant from = sys_days(number / January / 1), to = sys_days((number + years(1)) / January / 1);
    benchmark::DoNotOptimize(found(from, to));
    number = number == 2099y ? 1901y : number + years(1);
  }
}
BENCHMARK(yearOf<phases>)->Name("phasesOfYear");
BENCHMARK(yearOf<apsides>)->Name("apsidesOfYear");
BENCHMARK(yearOf<seasons>)->Name("seasonsOfYear");
BENCHMARK(yearOf<eclipses>)->Name("eclipsesOfYear");

/// The eclipses of a body of two centuries, one after the other, from a place: the total eclipse of 2017 and
/// the half of the solar ones that touch it at all are among them.
void eclipsesSeen(benchmark::State& state, Body body) {
  std::vector<Eclipse> seen;
  const Place place{36.97, -87.67};
  for (const Eclipse& eclipse : eclipses(ephemeris::firstInstant(), ephemeris::endInstant())) {
    if (eclipse.body == body && seenFrom(eclipse, place)) seen.push_back(eclipse);
  }
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(seenFrom(seen[i], place));
    i = i + 1 == seen.size() ? 0 : i + 1;
  }
}
BENCHMARK_CAPTURE(eclipsesSeen, sun, Body::sun);
BENCHMARK_CAPTURE(eclipsesSeen, moon, Body::moon);

}  // namespace
}  // namespace velmora::almanac
