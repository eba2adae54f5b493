#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include <velmora/platform/time/Calendar.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {

/// What a geocoder says of one place.
struct Placemark {
  double latitude = 0.0;   ///< degrees, north positive
  double longitude = 0.0;  ///< degrees, east positive
  std::string name;
  std::optional<TimeZone> timeZone;

  friend bool operator==(const Placemark&, const Placemark&) = default;
};

/// One observing place: coordinates, names, and a time zone that is either a named zone (daylight saving
/// follows the date) or a fixed offset from GMT that the user chose. A mutable record, not thread-safe.
class GeoLocationData {
 public:
  double latitude = 0.0;                  ///< degrees, north positive
  double longitude = 0.0;                 ///< degrees, east positive
  std::int64_t secondsFromGMT = 0;        ///< offset given with a named zone; used where that zone is missing
  std::optional<std::string> name;        ///< as shown to the user
  std::optional<std::string> timezoneId;  ///< identifier of the named zone; none with a fixed offset
  std::optional<TimeZone> timezone;       ///< the zone found by `timezoneId`
  std::string locationText = "--";        ///< coordinates as text, "--" until they are set
  std::string timezoneText = "Auto";      ///< zone identifier, "GMT ±hh:mm", or "n/a" after a failure
  bool locationInitialized = false;       ///< whether coordinates have been set
  std::int64_t customSecondsFromGMT = 0;  ///< the fixed offset of a place without a named zone
  bool useCustomTimezone = false;         ///< whether the user chose a fixed offset

  /// The shared default place, San Francisco. Callers that change it change the default for the process.
  static const std::shared_ptr<GeoLocationData>& DefaultLocation();

  /// A new place from what a geocoder says, with the zone's offset of the present instant.
  static std::shared_ptr<GeoLocationData> locationFromPlaceMark(const Placemark& placemark);

  /// Sets the coordinates (degrees) and their text.
  void UpdateLocation(double newLatitude, double newLongitude);

  /// Sets the whole record. A zone identifier that is present, not empty and not overridden by
  /// `isCustomTimezone` makes a named zone, with `gmtOffset` (seconds) stored in `secondsFromGMT`; everything
  /// else makes a fixed offset, with `gmtOffset` stored in `customSecondsFromGMT`. An identifier that names
  /// no zone stays as the text, without a zone; "n/a" stands where the zone database could not be read.
  ///
  /// The service's positions need a zone: a new place with a fixed offset has none, and one that had a zone
  /// before keeps it for them. To have the offset everywhere, name it as a zone: "GMT+05:30", 0, false.
  void SetLocation(double newLatitude, double newLongitude, std::optional<std::string> locationName,
                   const std::optional<std::string>& timezoneName, std::int64_t gmtOffset,
                   bool isCustomTimezone);

  /// The zone for calendars: the named zone, or without one the fixed zone of the offset (seconds) in force.
  TimeZone calendarZone(std::int64_t secondsInForce) const {
    return timezone ? *timezone : TimeZone::fixed(secondsInForce);
  }

  /// Offset from GMT in seconds in force at the instant.
  std::int64_t GetTimezoneIntervalFromGMT(Instant date) const;

  /// Offset from GMT in seconds of the named zone at 09:00 of the instant's day in the given calendar, away
  /// from the small hours in which clocks change.
  /// Kept: a fixed offset plays no part; without a named zone it is 0.
  std::int64_t gmtIntervalForDate(Instant date, const Calendar& calendar) const;

  friend bool operator==(const GeoLocationData&, const GeoLocationData&) = default;

 private:
  void setNamedZone(const std::string& identifier, std::int64_t gmtOffset);
  void setFixedOffset(std::int64_t gmtOffset);
};

}  // namespace velmora
