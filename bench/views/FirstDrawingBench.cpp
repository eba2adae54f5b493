#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>

#include <velmora/platform/time/Locale.h>

#include "bench/views/Scenes.h"

namespace velmora::bench {
namespace {

double processorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// How long the processor works on it in a process of its own. That is a copy of this one, which never draws:
/// its libraries are loaded and what static constructors make is there, all else is done for the first time.
double secondsInNewProcess(void (*work)()) {
  int pipeEnds[2];
  if (pipe(pipeEnds) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    const double start = processorSeconds();
    work();
    const double seconds = processorSeconds() - start;
    _exit(write(pipeEnds[1], &seconds, sizeof seconds) == sizeof seconds ? EXIT_SUCCESS : EXIT_FAILURE);
  }
  close(pipeEnds[1]);
  double seconds = 0;
  if (child < 0 || read(pipeEnds[0], &seconds, sizeof seconds) != sizeof seconds) std::abort();
  close(pipeEnds[0]);
  waitpid(child, nullptr, 0);
  return seconds;
}

/// The service opened, the view made, laid out and drawn. Tables, rise and set times, faces, texts and images
/// are read, computed and shaped on the way.
template <std::shared_ptr<View> (*scene)()>
void firstDrawing() {
  const ScopedLocale english("en_US");
  draw(*scene());
}

void drawnFirst(benchmark::State& state, void (*work)()) {
  for (auto _ : state) state.SetIterationTime(secondsInNewProcess(work));
}
BENCHMARK_CAPTURE(drawnFirst, month, firstDrawing<month>)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnFirst, pictureMonth, firstDrawing<pictureMonth>)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnFirst, year, firstDrawing<year>)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(drawnFirst, riseSetMonth, firstDrawing<riseSetMonth>)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velmora::bench
