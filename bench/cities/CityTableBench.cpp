#include <velmora/cities/CityTable.h>

#include <benchmark/benchmark.h>

namespace velmora {
namespace {

/// As the program does for each request: the file is found, mapped and looked into.
void namedInATableOpened(benchmark::State& state, const char* spelling) {
  for (auto _ : state) benchmark::DoNotOptimize(CityTable::shipped().named(spelling));
}
BENCHMARK_CAPTURE(namedInATableOpened, city, "Munich");
BENCHMARK_CAPTURE(namedInATableOpened, ofARegion, "Portland, Maine");
BENCHMARK_CAPTURE(namedInATableOpened, ofAnOldZone, "Asia/Saigon");

void named(benchmark::State& state) {
  const CityTable table = CityTable::shipped();
  for (auto _ : state) benchmark::DoNotOptimize(table.named("Munich"));
}
BENCHMARK(named);

void matches(benchmark::State& state) {
  const CityTable table = CityTable::shipped();
  for (auto _ : state) benchmark::DoNotOptimize(table.matches("s", 10));
}
BENCHMARK(matches);

void nearest(benchmark::State& state) {
  const CityTable table = CityTable::shipped();
  for (auto _ : state) benchmark::DoNotOptimize(table.nearest("Helsikni", 3));
}
BENCHMARK(nearest);

}  // namespace
}  // namespace velmora
