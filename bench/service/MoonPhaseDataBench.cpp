#include <velmora/service/MoonPhaseData.h>

#include <benchmark/benchmark.h>

#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

/// A service in San Francisco on 15 June 2024, in a process that has set its locale.
MoonPhaseData& selectedService() {
  Locale::setCurrent(Locale("en_US"));
  MoonPhaseData::resetSharedInstance();
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  service.SetSelectedLocation(GeoLocationData::DefaultLocation());
  service.changeSelectedDay(15, 6, 2024);
  return service;
}

void buildMonth(MoonPhaseData& service) {
  benchmark::DoNotOptimize(service.currentMonthPhaseDictionary());
  benchmark::DoNotOptimize(service.currentMonthImageDictionary());
  benchmark::DoNotOptimize(service.GetRiseSetPhaseItemsForCurrentMonth());
}

/// Another month of the selected year with its phases, pictures, rises and sets.
void openMonth(benchmark::State& state) {
  MoonPhaseData& service = selectedService();
  std::int64_t month = 2;
  for (auto _ : state) {
    service.changeSelectedDay(1, month, 2024);
    buildMonth(service);
    month = month == 11 ? 2 : month + 1;
  }
}
BENCHMARK(openMonth)->Unit(benchmark::kMicrosecond);

/// The same where the month lies in a year whose table has not been read.
void openMonthOfAnotherYear(benchmark::State& state) {
  MoonPhaseData& service = selectedService();
  std::int64_t year = 2001;
  for (auto _ : state) {
    service.changeSelectedDay(1, 6, year);
    buildMonth(service);
    year = year == 2039 ? 2001 : year + 1;
  }
}
BENCHMARK(openMonthOfAnotherYear)->Unit(benchmark::kMicrosecond);

/// The first part of a month opened: the selection with the month's events.
void selectAnotherMonth(benchmark::State& state) {
  MoonPhaseData& service = selectedService();
  std::int64_t month = 2;
  for (auto _ : state) {
    service.changeSelectedDay(1, month, 2024);
    month = month == 11 ? 2 : month + 1;
  }
}
BENCHMARK(selectAnotherMonth)->Unit(benchmark::kMicrosecond);

/// Each of the other parts.
template <class Build>
void buildOnly(benchmark::State& state, Build build) {
  MoonPhaseData& service = selectedService();
  const auto june = *service.currentDate();
  for (auto _ : state) {
    service.dateWillChangeTo(june - std::chrono::hours(24 * 30));
    benchmark::DoNotOptimize((service.*build)());
  }
}
BENCHMARK_CAPTURE(buildOnly, phases, &MoonPhaseData::currentMonthPhaseDictionary)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(buildOnly, pictures, &MoonPhaseData::currentMonthImageDictionary)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(buildOnly, risesAndSets, &MoonPhaseData::GetRiseSetPhaseItemsForCurrentMonth)
    ->Unit(benchmark::kMicrosecond);

/// Another day of a month that has been opened.
void selectDay(benchmark::State& state) {
  MoonPhaseData& service = selectedService();
  buildMonth(service);
  std::int64_t day = 1;
  for (auto _ : state) {
    service.changeSelectedDay(day, 6, 2024);
    day = day % 30 + 1;
  }
}
BENCHMARK(selectDay);

void itemsOfYear(benchmark::State& state) {
  const MoonPhaseData& service = selectedService();
  for (auto _ : state) benchmark::DoNotOptimize(service.GetRiseSetPhaseItemsForYear(2024));
}
BENCHMARK(itemsOfYear)->Unit(benchmark::kMicrosecond);

/// The eclipse of each day of a month, as a month's view asks for it.
void eclipsesOfMonth(benchmark::State& state) {
  MoonPhaseData& service = selectedService();
  const auto first = *service.currentDate() - std::chrono::hours(24 * 14);
  for (auto _ : state) {
    for (int day = 0; day < 30; ++day) {
      benchmark::DoNotOptimize(
          service.eventsOnDate(first + std::chrono::hours(24 * day), service.calendar().timeZone()));
    }
  }
}
BENCHMARK(eclipsesOfMonth)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace velmora
