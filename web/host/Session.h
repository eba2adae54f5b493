#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <velmora/almanac/Place.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/platform/time/Instant.h>
#include <velmora/platform/time/TimeZone.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora::web {

using Date = std::chrono::year_month_day;

/// The state of the calendars, which all views share.
inline MoonPhaseData& service() { return MoonPhaseData::sharedInstance(); }

/// What the user has set.
struct Settings {
  std::string locale = "en_US";
  bool uses24Hours = false;
  std::int64_t weekStart = 0;       ///< 0 is Sunday
  std::int64_t secondCalendar = 0;  ///< an AlternateCalendarType
  bool isLight = false;
  bool isTablet = false;
};

/// The place, day and settings that all views of the page share, handed to the service and to whatever else
/// in the library asks for them.
class Session {
 public:
  static Session& shared();

  const Settings& settings() const { return _settings; }
  void configure(const Settings& settings);

  /// Whether the place could be selected; its zone may be unknown.
  bool select(double latitude, double longitude, const std::string& name, const std::string& zone, Date day);
  /// Whether the calendars have the day's year.
  bool selectDay(Date day);

  almanac::Place place() const { return {_location->latitude, _location->longitude, 0}; }
  const std::string& placeName() const { return _placeName; }
  const TimeZone& zone() const { return *_location->timezone; }
  Date day() const;
  Date today() const;
  Date dateAt(Instant instant) const;
  /// Noon of the selected day by the place's clocks.
  Instant noon() const;

  /// Changes whenever views made before have to be made anew.
  std::int64_t generation() const { return _generation; }

  /// The sentences spoken since the last call.
  std::vector<std::string> takeAnnouncements() { return std::exchange(_announcements, {}); }

 private:
  Session();

  Settings _settings;
  std::shared_ptr<GeoLocationData> _location = GeoLocationData::DefaultLocation();
  std::string _placeName;
  std::int64_t _generation = 0;
  std::vector<std::string> _announcements;
};

/// Whether the calendars have a table of the day's year.
bool isInTables(Date day);

}  // namespace velmora::web
