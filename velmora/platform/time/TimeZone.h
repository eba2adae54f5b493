#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <velmora/platform/time/Instant.h>

namespace velmora {

/// The instants that a local clock reading can mean in a zone.
struct LocalLookup {
  /// How often the reading occurs.
  enum class Kind {
    unique,    ///< the reading occurs once; the three instants are equal
    skipped,   ///< clocks jumped over the reading
    repeated,  ///< the reading occurs twice
  };
  Kind kind;
  Instant
      before;  ///< the reading taken with the offset in force before the change; the first of a repeated one
  Instant change;  ///< the instant at which the clocks change
  Instant
      after;  ///< the reading taken with the offset in force after the change; the second of a repeated one
};

/// What a zone database knows of one zone. TimeZone holds one; an application with a database of its own
/// derives from this class. Instances are immutable and may be used from any thread.
class ZoneRules {
 public:
  virtual ~ZoneRules() = default;

  /// Offset from GMT in seconds in force at the instant, east positive, daylight saving included.
  virtual std::int64_t secondsFromGMT(Instant instant) const = 0;

  /// The instants at which clocks in the zone show the given reading.
  virtual LocalLookup lookup(LocalTime reading) const = 0;
};

/// A time zone: a name and its rules. A cheap value; copies share the rules.
class TimeZone {
 public:
  /// A zone of rules of the caller's own.
  TimeZone(std::string name, std::shared_ptr<const ZoneRules> rules);

  /// The zone with the given name: an identifier of the system's zone database ("Europe/Helsinki"), "GMT",
  /// "UTC", or "GMT±hh:mm" and "GMT±hh:mm:ss" up to 18 hours. None for any other text.
  static std::optional<TimeZone> named(std::string_view name);

  /// The zone that is always the given number of seconds ahead of GMT (negative: behind it), named
  /// "GMT" or "GMT±hh:mm[:ss]".
  static TimeZone fixed(std::int64_t secondsFromGMT);

  /// The process's default zone: the one last set, else the system's (TZ, then its configured zone), else
  /// GMT.
  static TimeZone defaultZone();
  /// Sets the process's default zone; none goes back to the system's.
  static void setDefault(std::optional<TimeZone> zone);

  /// The identifier the zone was found by.
  const std::string& name() const { return *_name; }

  /// Offset from GMT in seconds in force at the instant, east positive, daylight saving included.
  std::int64_t secondsFromGMT(Instant instant) const { return _rules->secondsFromGMT(instant); }

  /// What clocks in the zone show at the instant.
  LocalTime localTime(Instant instant) const {
    return LocalTime(instant.time_since_epoch() + Seconds(static_cast<double>(secondsFromGMT(instant))));
  }

  /// The instants at which clocks in the zone show the given reading.
  LocalLookup lookup(LocalTime reading) const { return _rules->lookup(reading); }

  /// Zones are equal when their names are.
  friend bool operator==(const TimeZone& a, const TimeZone& b) { return a.name() == b.name(); }

 private:
  std::shared_ptr<const std::string> _name;
  std::shared_ptr<const ZoneRules> _rules;
};

/// Sets the process's default zone for as long as it lives, then puts the former one back.
class ScopedDefaultTimeZone {
 public:
  /// Sets the default zone.
  explicit ScopedDefaultTimeZone(TimeZone zone);
  /// As above with the zone of that name, which must exist.
  explicit ScopedDefaultTimeZone(std::string_view name);
  ~ScopedDefaultTimeZone();
  ScopedDefaultTimeZone(const ScopedDefaultTimeZone&) = delete;
  ScopedDefaultTimeZone& operator=(const ScopedDefaultTimeZone&) = delete;

 private:
  std::optional<TimeZone> _former;
};

}  // namespace velmora
