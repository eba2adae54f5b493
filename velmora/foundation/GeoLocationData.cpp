#include <velmora/foundation/GeoLocationData.h>

#include <cmath>
#include <cstdlib>
#include <exception>
#include <utility>

#include <velmora/foundation/MorningOffset.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora {
namespace {

constexpr int coordinateDecimals = 4;
constexpr std::int64_t secondsPerHour = 3600;
constexpr std::int64_t secondsPerMinute = 60;

std::string coordinateText(double degrees, const char* positiveSide, const char* negativeSide) {
  return decimalText(std::abs(degrees), coordinateDecimals) + "° " +
         (degrees < 0 ? negativeSide : positiveSide);
}

/// "GMT +05:30". The sign is that of the whole offset, the digits are those of its low 32 bits.
std::string fixedOffsetText(std::int64_t offset) {
  const std::int64_t size = std::abs(std::int64_t{static_cast<std::int32_t>(offset)});
  return std::string("GMT ") + (offset < 0 ? "-" : "+") + integerText(size / secondsPerHour, 2) + ":" +
         integerText(size % secondsPerHour / secondsPerMinute, 2);
}

}  // namespace

const std::shared_ptr<GeoLocationData>& GeoLocationData::DefaultLocation() {
  static const std::shared_ptr<GeoLocationData> shared = [] {
    auto location = std::make_shared<GeoLocationData>();
    location->SetLocation(37.78549082, -122.39184303, "San Francisco, CA", "America/Los_Angeles", 0, false);
    return location;
  }();
  return shared;
}

std::shared_ptr<GeoLocationData> GeoLocationData::locationFromPlaceMark(const Placemark& placemark) {
  std::optional<std::string> zoneName;
  std::int64_t offset = 0;
  if (placemark.timeZone) {
    zoneName = placemark.timeZone->name();
    offset = placemark.timeZone->secondsFromGMT(Clock::now());
  }
  auto location = std::make_shared<GeoLocationData>();
  location->SetLocation(placemark.latitude, placemark.longitude, placemark.name, zoneName, offset, false);
  return location;
}

void GeoLocationData::UpdateLocation(double newLatitude, double newLongitude) {
  latitude = newLatitude;
  longitude = newLongitude;
  locationText = coordinateText(latitude, "N", "S") + ", " + coordinateText(longitude, "E", "W");
  locationInitialized = true;
}

void GeoLocationData::SetLocation(double newLatitude, double newLongitude,
                                  std::optional<std::string> locationName,
                                  const std::optional<std::string>& timezoneName, std::int64_t gmtOffset,
                                  bool isCustomTimezone) {
  UpdateLocation(newLatitude, newLongitude);
  name = std::move(locationName);
  useCustomTimezone = isCustomTimezone;
  if (timezoneName && !timezoneName->empty() && !isCustomTimezone) {
    setNamedZone(*timezoneName, gmtOffset);
  } else {
    setFixedOffset(gmtOffset);
  }
}

void GeoLocationData::setNamedZone(const std::string& identifier, std::int64_t gmtOffset) {
  secondsFromGMT = gmtOffset;
  timezoneId = identifier;
  try {
    timezone = TimeZone::named(identifier);
    timezoneText = identifier;
  } catch (const std::exception&) {  // the zone database could not be read
    timezone.reset();
    timezoneText = "n/a";
  }
}

// Kept: the zone is left as it was.
void GeoLocationData::setFixedOffset(std::int64_t gmtOffset) {
  customSecondsFromGMT = gmtOffset;
  timezoneId.reset();
  timezoneText = fixedOffsetText(gmtOffset);
}

// Kept: a record set without a zone and without the custom flag keeps its offset in `customSecondsFromGMT`
// and is read back through `secondsFromGMT`.
std::int64_t GeoLocationData::GetTimezoneIntervalFromGMT(Instant date) const {
  if (useCustomTimezone) return customSecondsFromGMT;
  if (!timezone) return secondsFromGMT;
  try {
    return timezone->secondsFromGMT(date);
  } catch (const std::exception&) {
    return secondsFromGMT;
  }
}

std::int64_t GeoLocationData::gmtIntervalForDate(Instant date, const Calendar& calendar) const {
  return timezone ? morningOffset(*timezone, date, calendar) : 0;
}

}  // namespace velmora
