#include <velmora/views/MoonPhaseYearView.h>

#include <benchmark/benchmark.h>

#include <memory>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>

namespace velmora {
namespace {

constexpr Size phone = {390, 844};
constexpr double phoneScale = 3;

/// The full moons of 2026, the second one of May selected.
std::shared_ptr<MoonPhaseYearView> fullMoons() {
  auto greenwich = std::make_shared<GeoLocationData>();
  greenwich->SetLocation(51.48, 0, "Greenwich", "Europe/London", 0, false);
  const Instant noon = Calendar(TimeZone::fixed(0)).date({.year = 2026, .month = 5, .day = 31, .hour = 12});
  MoonPhaseData::sharedInstance().SetSelectedLocation(greenwich, noon);
  auto view = std::make_shared<MoonPhaseYearView>();
  view->setFrame({0, 0, phone.width, phone.height});
  view->calendarLocationChanged();
  return view;
}

void draw(benchmark::State& state, View& view, PictureFormat format, double scale) {
  CairoCanvas canvas(format, phone, scale);
  view.render(canvas);
  if (const auto error = canvas.error()) state.SkipWithError(error->message.c_str());
}

// The service starts afresh: table, rise and set of each event, and drawing.
void yearFirst(benchmark::State& state) {
  const ScopedLocale english("en_US");
  for (auto _ : state) {
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
    draw(state, *fullMoons(), PictureFormat::png, phoneScale);
  }
}
BENCHMARK(yearFirst)->Unit(benchmark::kMillisecond);

void yearAgain(benchmark::State& state) {
  const ScopedLocale english("en_US");
  const auto view = fullMoons();
  for (auto _ : state) draw(state, *view, PictureFormat::png, phoneScale);
}
BENCHMARK(yearAgain)->Unit(benchmark::kMillisecond);

// What the view itself takes, next to no rasterising.
void yearAsVectors(benchmark::State& state) {
  const ScopedLocale english("en_US");
  const auto view = fullMoons();
  for (auto _ : state) draw(state, *view, PictureFormat::svg, 1);
}
BENCHMARK(yearAsVectors)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmora
