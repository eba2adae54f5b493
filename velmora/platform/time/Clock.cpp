#include <velmora/platform/time/Clock.h>

#include <mutex>
#include <utility>

namespace velmora {
namespace {

std::mutex sourceMutex;

Clock::Source& source() {
  static Clock::Source current;
  return current;
}

}  // namespace

Instant Clock::now() {
  Source current;
  {
    const std::lock_guard lock(sourceMutex);
    current = source();
  }
  return current ? current() : Instant(std::chrono::system_clock::now());
}

Clock::Source Clock::setSource(Source replacement) {
  const std::lock_guard lock(sourceMutex);
  return std::exchange(source(), std::move(replacement));
}

ScopedNow::ScopedNow(Instant now) : _former(Clock::setSource([now] { return now; })) {}

ScopedNow::~ScopedNow() { Clock::setSource(std::move(_former)); }

}  // namespace velmora
