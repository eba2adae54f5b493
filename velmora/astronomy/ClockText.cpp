#include <velmora/astronomy/ClockText.h>

#include <cmath>
#include <cstdint>

#include <velmora/astronomy/WholeNumber.h>

namespace velmora {

ClockReading clockReading(double hours) {
  const double rounded = std::floor(hours * 60 + 0.5) / 60;
  const double hour = std::floor(rounded);
  return {hour, std::floor((rounded - hour) * 60 + 0.5)};
}

std::string wholeText(double number) { return std::to_string(wholeNumber<std::int32_t>(number)); }

std::string twoDigits(double number) {
  const std::string digits = wholeText(number);
  return digits.size() < 2 ? "0" + digits : digits;
}

std::string clockText(double hours, bool use24Hour) {
  const auto [hour, minute] = clockReading(hours);
  const std::string minutes = ":" + twoDigits(minute);
  if (use24Hour) return twoDigits(hour) + minutes;
  if (hour >= 12) return twoDigits(hour > 12 ? hour - 12 : hour) + minutes + " PM";
  return twoDigits(hour) + minutes + " AM";
}

}  // namespace velmora
