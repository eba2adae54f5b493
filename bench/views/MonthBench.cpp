#include <benchmark/benchmark.h>

#include <memory>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/iPhoneCalendarView.h>

namespace velmora {
namespace {

constexpr Size phone = {390, 844};
constexpr double phoneScale = 3;

/// A view of June 2024, which takes six rows.
std::shared_ptr<iPhoneCalendarView> sixRowMonth() {
  auto greenwich = std::make_shared<GeoLocationData>();
  greenwich->SetLocation(51.48, 0, "Greenwich", "Europe/London", 0, false);
  const Instant noon = Calendar(TimeZone::fixed(0)).date({.year = 2024, .month = 6, .day = 20, .hour = 12});
  MoonPhaseData::sharedInstance().SetSelectedLocation(greenwich, noon);
  auto view = std::make_shared<iPhoneCalendarView>();
  view->setFrame({0, 0, phone.width, phone.height});
  return view;
}

void draw(benchmark::State& state, View& view, PictureFormat format, double scale) {
  CairoCanvas canvas(format, phone, scale);
  view.render(canvas);
  if (const auto error = canvas.error()) state.SkipWithError(error->message.c_str());
}

// One drawing in a process that has drawn nothing before: the year's table, the eclipses and the fonts are
// read too.
void firstMonthOfTheProcess(benchmark::State& state) {
  for (auto _ : state) draw(state, *sixRowMonth(), PictureFormat::png, phoneScale);
}
BENCHMARK(firstMonthOfTheProcess)->Iterations(1)->Unit(benchmark::kMillisecond);

void monthAgain(benchmark::State& state) {
  const auto view = sixRowMonth();
  for (auto _ : state) draw(state, *view, PictureFormat::png, phoneScale);
}
BENCHMARK(monthAgain)->Unit(benchmark::kMillisecond);

void monthWithAlternateCalendar(benchmark::State& state) {
  const auto view = sixRowMonth();
  view->setAlternateCalendarType(kIslamicUmmAlQuraCalendar);
  for (auto _ : state) draw(state, *view, PictureFormat::png, phoneScale);
}
BENCHMARK(monthWithAlternateCalendar)->Unit(benchmark::kMillisecond);

// What the view itself takes, next to no rasterising.
void monthAsVectors(benchmark::State& state) {
  const auto view = sixRowMonth();
  for (auto _ : state) draw(state, *view, PictureFormat::svg, 1);
}
BENCHMARK(monthAsVectors)->Unit(benchmark::kMillisecond);

void emptyPicture(benchmark::State& state) {
  View view;
  view.setFrame({0, 0, phone.width, phone.height});
  for (auto _ : state) draw(state, view, PictureFormat::png, phoneScale);
}
BENCHMARK(emptyPicture)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmora
