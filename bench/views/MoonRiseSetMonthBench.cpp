#include <velmora/views/MoonRiseSetMonthView.h>

#include <benchmark/benchmark.h>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>

namespace velmora {
namespace {

// The visible part of the month on a phone's screen, scrolled to the middle of the month.
constexpr Size screen{390, 844};
constexpr double pixelsPerPoint = 3;
constexpr std::int64_t selectedDay = 15;

void select() {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(37.78549082, -122.39184303, "San Francisco, CA", "America/Los_Angeles", 0, false);
  const Calendar there(*place->timezone);
  MoonPhaseData::sharedInstance().SetSelectedLocation(
      place, there.date({.year = 2024, .month = 7, .day = selectedDay, .hour = 12}));
}

std::shared_ptr<View> window() {
  const auto month = std::make_shared<MoonRiseSetMonthView>();
  month->installDayViews();
  const double height = month->intrinsicContentSize().height;
  month->setFrame({0, -month->offsetForDay(selectedDay), screen.width, height});
  auto view = std::make_shared<View>();
  view->setFrame({0, 0, screen.width, screen.height});
  view->addSubview(month);
  return view;
}

void draw(View& view) {
  CairoCanvas canvas(PictureFormat::png, screen, pixelsPerPoint);
  view.render(canvas);
  benchmark::DoNotOptimize(canvas.error());
}

// The service starts afresh: table, rise and set of each day, rows, layout and drawing.
void riseSetMonthFirst(benchmark::State& state) {
  const ScopedLocale english("en_US");
  for (auto _ : state) {
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
    select();
    draw(*window());
  }
}
BENCHMARK(riseSetMonthFirst)->Unit(benchmark::kMillisecond);

void riseSetMonthRepeated(benchmark::State& state) {
  const ScopedLocale english("en_US");
  select();
  const auto view = window();
  for (auto _ : state) draw(*view);
}
BENCHMARK(riseSetMonthRepeated)->Unit(benchmark::kMillisecond);

void riseSetMonthLayout(benchmark::State& state) {
  const ScopedLocale english("en_US");
  select();
  const auto view = window();
  for (auto _ : state) view->layoutSubviews();
}
BENCHMARK(riseSetMonthLayout)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmora
