#pragma once

#include <cstdint>
#include <optional>

#include <app/request/Request.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>

namespace velmora::app {

/// Sets the clock form of the library's texts for as long as it lives, then puts the former one back.
class ScopedTimeFormat {
 public:
  explicit ScopedTimeFormat(bool use24HourClock);
  ~ScopedTimeFormat();
  ScopedTimeFormat(const ScopedTimeFormat&) = delete;
  ScopedTimeFormat& operator=(const ScopedTimeFormat&) = delete;

 private:
  std::int64_t _former;
};

/// The process as one request wants it: locale, clock form and present, and a service without a selection.
/// Everything is put back at the end, so that no request leaves a trace for the next.
class RequestScope {
 public:
  explicit RequestScope(const Request& request);
  ~RequestScope();
  RequestScope(const RequestScope&) = delete;
  RequestScope& operator=(const RequestScope&) = delete;

  bool use24HourClock() const { return _use24HourClock; }

 private:
  ScopedLocale _locale;
  bool _use24HourClock;
  ScopedTimeFormat _timeFormat;
  std::optional<ScopedNow> _now;
};

}  // namespace velmora::app
