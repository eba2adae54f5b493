#include <cmath>
#include <utility>

#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/foundation/MorningOffset.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora {
namespace {

constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double minutesPerHour = 60.0;
constexpr double farthestMinutes = 1e15;
constexpr std::int64_t hoursPerDay = 24;

/// A count of minutes cut into whole hours and minutes, both toward zero.
std::pair<std::int64_t, std::int64_t> hoursAndMinutes(double minutes) {
  const double whole = minutes >= -farthestMinutes ? std::fmin(minutes, farthestMinutes) : -farthestMinutes;
  const auto hours = static_cast<std::int64_t>(whole / minutesPerHour);
  return {hours, static_cast<std::int64_t>(whole - minutesPerHour * static_cast<double>(hours))};
}

}  // namespace

/// The offset from GMT in seconds of the place's zone at the date; none without a date, a place or its zone.
std::optional<std::int64_t> MoonPhaseData::offsetOfPlace(std::optional<Instant> date) const {
  if (!date || !_currentLocation || !_currentLocation->timezone) return std::nullopt;
  return _currentLocation->timezone->secondsFromGMT(*date);
}

std::optional<PositionData> MoonPhaseData::GetMoonPositionDataForDate(std::optional<Instant> date) const {
  const auto offset = offsetOfPlace(date);
  if (!offset) return std::nullopt;
  return RiseAndSetCalc::ComputeMoonPosition(*date, *_currentLocation, *offset);
}

std::optional<PositionData> MoonPhaseData::GetSunPositionDataForDate(std::optional<Instant> date) const {
  const auto offset = offsetOfPlace(date);
  if (!offset) return std::nullopt;
  return RiseAndSetCalc::ComputeSunPosition(*date, *_currentLocation, *offset);
}

// Kept: however many whole days the minutes span, the day moves once.
std::optional<PositionData> MoonPhaseData::GetMoonPositionDataForDate(std::optional<Instant> date,
                                                                      double withTimeInterval) const {
  if (!date) return std::nullopt;
  const auto [hours, minutes] = hoursAndMinutes(withTimeInterval);
  const Instant day = hours >= hoursPerDay ? *date + std::chrono::hours(hoursPerDay) : *date;
  const std::int64_t hour = hours >= hoursPerDay ? hours % hoursPerDay : hours;
  return GetMoonPositionDataForDate(_calendar.dateBySettingTime(hour, minutes, 0, day));
}

std::optional<PositionData> MoonPhaseData::GetSunPositionDataForDate(std::optional<Instant> date,
                                                                     double withTimeInterval) const {
  if (!date) return std::nullopt;
  const auto [hours, minutes] = hoursAndMinutes(withTimeInterval);
  return GetSunPositionDataForDate(_calendar.dateBySettingTime(hours, minutes, 0, *date));
}

std::optional<std::vector<PositionData>> MoonPhaseData::Get24HourSunPositionsForDate(
    std::optional<Instant> date) const {
  const auto offset = offsetOfPlace(date);
  if (!offset) return std::nullopt;
  return RiseAndSetCalc::Get24HourSunPositionsForDate(*date, *_currentLocation, *offset);
}

// Kept: the Moon's series takes the offset of the day's morning, the Sun's that of the instant.
std::optional<std::vector<PositionData>> MoonPhaseData::Get24HourMoonPositionsForDate(
    std::optional<Instant> date) const {
  if (!offsetOfPlace(date)) return std::nullopt;
  const std::int64_t offset = gmtIntervalForDate(*date, *_currentLocation->timezone);
  return RiseAndSetCalc::Get24HourMoonPositionsForDate(*date, *_currentLocation, offset);
}

std::int64_t MoonPhaseData::gmtIntervalForDate(Instant date, const TimeZone& withTimezone) const {
  return morningOffset(withTimezone, date, _calendar);
}

double MoonPhaseData::orientationRadiansForMoonAt(const PositionData& moon, const PositionData& sunAt) const {
  const double moonAltitude = moon.altitude * radiansPerDegree,
               sunAltitude = sunAt.altitude * radiansPerDegree;
  const double sunward = (sunAt.azimuth - moon.azimuth) * radiansPerDegree;
  return std::atan2(std::cos(sunAltitude) * std::sin(sunward),
                    std::cos(moonAltitude) * std::sin(sunAltitude) -
                        std::sin(moonAltitude) * std::cos(sunAltitude) * std::cos(sunward));
}

}  // namespace velmora
