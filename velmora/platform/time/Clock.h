#pragma once

#include <functional>

#include <velmora/platform/time/Instant.h>

namespace velmora {

/// The one source of "now". A host or a test may replace it, so that "today" can be fixed.
class Clock {
 public:
  /// Returns the present instant.
  using Source = std::function<Instant()>;

  /// The present instant.
  static Instant now();

  /// Puts another source in place and returns the one that was there. An empty source is the system's clock.
  static Source setSource(Source source);
};

/// Fixes "now" for as long as it lives, then puts the former clock back.
class ScopedNow {
 public:
  /// Stops the clock at the instant.
  explicit ScopedNow(Instant now);
  ~ScopedNow();
  ScopedNow(const ScopedNow&) = delete;
  ScopedNow& operator=(const ScopedNow&) = delete;

 private:
  Clock::Source _former;
};

}  // namespace velmora
