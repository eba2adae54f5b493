#include <benchmark/benchmark.h>

#include <sstream>

#include <velmora/platform/time/Locale.h>

#include "bench/views/Scenes.h"

namespace velmora::bench {
namespace {

using Scene = std::shared_ptr<View> (*)();

/// The same view drawn again and again, each time into a picture of its own.
void drawnAgain(benchmark::State& state, Scene scene) {
  const ScopedLocale english("en_US");
  const auto view = scene();
  draw(*view);
  for (auto _ : state) draw(*view);
}
BENCHMARK_CAPTURE(drawnAgain, month, month)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnAgain, monthOfTwoCalendars, monthOfTwoCalendars)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnAgain, pictureMonth, pictureMonth)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnAgain, year, year)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnAgain, riseSetMonth, riseSetMonth)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnAgain, nothing, nothing)->Unit(benchmark::kMillisecond);

/// What the view itself takes, next to no rasterising.
void recordedAgain(benchmark::State& state, Scene scene) {
  const ScopedLocale english("en_US");
  const auto view = scene();
  for (auto _ : state) draw(*view, PictureFormat::svg, 1);
}
BENCHMARK_CAPTURE(recordedAgain, month, month)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(recordedAgain, year, year)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(recordedAgain, riseSetMonth, riseSetMonth)->Unit(benchmark::kMillisecond);

/// The drawn picture as a PNG, in memory.
void writtenAsPng(benchmark::State& state, Scene scene, const Color& background) {
  const ScopedLocale english("en_US");
  CairoCanvas canvas(PictureFormat::png, phone, phoneScale, background);
  scene()->render(canvas);
  for (auto _ : state) {
    std::ostringstream png;
    if (const auto error = canvas.write(png)) state.SkipWithError(error->message.c_str());
    state.counters["bytes"] = static_cast<double>(png.str().size());
  }
}
BENCHMARK_CAPTURE(writtenAsPng, month, month, Color::clear())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writtenAsPng, monthOnWhite, month, Color::white())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writtenAsPng, pictureMonth, pictureMonth, Color::white())->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmora::bench
