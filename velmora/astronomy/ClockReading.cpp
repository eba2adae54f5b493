#include <velmora/astronomy/ClockReading.h>

#include <cmath>
#include <cstdint>

#include <velmora/astronomy/WholeNumber.h>

namespace [[gnu::visibility("hidden")]] velmora {

ClockReading clockReading(double hours) {
  const double rounded = std::floor(hours * 60 + 0.5) / 60;
  const double hour = std::floor(rounded);
  return {hour, std::floor((rounded - hour) * 60 + 0.5)};
}

std::string wholeText(double number) { return std::to_string(wholeNumber<std::int32_t>(number)); }

std::string twoDigits(double number) {
  const auto whole = wholeNumber<std::int32_t>(number);
  if (whole < 0 || whole > 99) return std::to_string(whole);
  return {static_cast<char>('0' + whole / 10), static_cast<char>('0' + whole % 10)};
}

std::string textOfHour(double hours, bool use24Hour) {
  const auto [hour, minute] = clockReading(hours);
  std::string text = twoDigits(!use24Hour && hour > 12 ? hour - 12 : hour);
  text += ':';
  text += twoDigits(minute);
  if (!use24Hour) text += hour >= 12 ? " PM" : " AM";
  return text;
}

}  // namespace velmora
