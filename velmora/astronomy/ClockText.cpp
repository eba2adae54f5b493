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
  std::string digits = wholeText(number);
  if (digits.size() < 2) digits.insert(digits.begin(), '0');
  return digits;
}

std::string clockText(double hours, bool use24Hour) {
  const auto [hour, minute] = clockReading(hours);
  const std::string text = twoDigits(!use24Hour && hour > 12 ? hour - 12 : hour) + ':' + twoDigits(minute);
  if (use24Hour) return text;
  return text + (hour >= 12 ? " PM" : " AM");
}

}  // namespace velmora
