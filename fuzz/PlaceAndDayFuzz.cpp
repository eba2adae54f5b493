// Any numbers are a place, an instant, an elevation and an offset: days have minutes or none and readable
// texts, positions lie in the sky, series have their length, events stand at the elevation.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/foundation/SettingsModel.h>

namespace velmora {
namespace {

constexpr std::int64_t minutesPerDay = 1440;
constexpr double hitTolerance = 0.0501;  // degrees, of the elevation searches

void require(bool condition) {
  if (!condition) std::abort();
}

template <class Value>
Value taken(std::string_view& bytes) {
  Value value{};
  const std::size_t size = bytes.size() < sizeof value ? bytes.size() : sizeof value;
  bytes.copy(reinterpret_cast<char*>(&value), size);
  bytes.remove_prefix(size);
  return value;
}

bool isIn(double value, double low, double high) {
  return std::isnan(value) || (value >= low && value <= high);
}

/// A rise too may be one of the next day: a grazing pass then moves it there.
bool isMinute(std::int64_t minutes) { return minutes >= -1 && minutes <= 2 * minutesPerDay; }

/// Digits, a colon and two digits, with " AM" or " PM" and " **" after them; or the marks of no event.
bool isEventText(std::string_view text) {
  if (text == "--" || text == "--:--") return true;
  if (text.ends_with(" **")) text.remove_suffix(3);
  if (text.ends_with(" AM") || text.ends_with(" PM")) text.remove_suffix(3);
  return text.size() == 5 && text[2] == ':' &&
         text.find_first_not_of("0123456789:") == std::string_view::npos;
}

bool isDegreesText(std::string_view text) {
  return text.ends_with("°") && (text.starts_with("nan") || text.find('.') != std::string_view::npos);
}

void checkDay(const RiseSetData& day) {
  require(isMinute(day.sunRiseMinutesFromMidnight));
  require(isMinute(day.sunSetMinutesFromMidnight));
  require(isMinute(day.moonRiseMinutesFromMidnight));
  require(isMinute(day.moonSetMinutesFromMidnight));
  require(std::abs(day.dayLengthMinutes) <= minutesPerDay);
  for (const std::string* text : {&day.sunRiseText, &day.sunSetText, &day.moonRiseText, &day.moonSetText,
                                  &day.twilightBeginText, &day.twilightEndText}) {
    require(isEventText(*text));
  }
}

void checkPosition(const PositionData& position) {
  require(isIn(position.altitude, -90 - hitTolerance, 90 + hitTolerance));
  // Exactly west is −90° by the Sun's arctangent, which happens at the poles.
  require(isIn(position.azimuth, 0, 360) || std::abs(position.azimuth + 90) < 1e-12);
  require(isDegreesText(position.altitudeText) && isDegreesText(position.azimuthText));
  require(!position.formattedTimeText(true, false).empty());
  require(!position.formattedTimeText(false, true).empty());
}

void checkSeries(const std::vector<PositionData>& series, std::size_t size) {
  require(series.size() == size);
  for (const PositionData& position : series) checkPosition(position);
}

void checkEvents(const std::vector<PositionData>& events, double elevation, bool withValuesBetween) {
  require(events.size() <= 27);  // of 25 samples at most, and two refined events
  for (const PositionData& event : events) {
    checkPosition(event);
    require(withValuesBetween || std::abs(event.altitude - elevation) <= hitTolerance);
  }
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmora;
  using Calc = RiseAndSetCalc;
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto latitude = taken<double>(bytes), longitude = taken<double>(bytes);
  const Instant date = instantFromUnixSeconds(taken<double>(bytes));
  const auto elevation = taken<double>(bytes);
  const auto givenOffset = taken<std::int64_t>(bytes);
  const auto choices = taken<std::uint8_t>(bytes);
  const int twilight = choices % 4;
  const bool withValuesBetween = (choices & 4) != 0, useGivenOffset = (choices & 8) != 0;
  SettingsModel::sharedInstance().setTimeFormat((choices & 16) != 0 ? 1 : 0);

  GeoLocationData place;
  place.SetLocation(latitude, longitude, "", std::string(bytes), givenOffset, false);
  const std::int64_t offset = useGivenOffset ? givenOffset : place.GetTimezoneIntervalFromGMT(date);

  checkDay(Calc::Compute(date, place, offset, twilight));
  checkPosition(Calc::ComputeSunPosition(date, place, offset));
  checkPosition(Calc::ComputeMoonPosition(date, place, offset));
  checkSeries(Calc::Get24HourSunPositionsForDate(date, place, offset), 24);
  checkSeries(Calc::Get24HourMoonPositionsForDate(date, place, offset), 25);
  checkEvents(Calc::EventsMatchingSunElevation(elevation, date, place, offset, withValuesBetween), elevation,
              withValuesBetween);
  checkEvents(Calc::EventsMatchingMoonElevation(elevation, date, place, offset, withValuesBetween), elevation,
              withValuesBetween);
  return 0;
}
