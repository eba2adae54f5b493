#include <algorithm>
#include <cmath>

#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/platform/time/intl/IntlSupport.h>

// In numbers.js.
extern "C" {
char* velmora_intl_integer_text(const char* locale, int fractionDigits, const char* number);
char* velmora_intl_number_text(const char* locale, int fractionDigits, double number);
}

namespace velmora {
namespace {

constexpr int mostFractionDigits = 20;

/// As the functions in JavaScript take it: −1 for an integer without groups.
int fractionDigits(NumberFormatter::Style style, int maximum) {
  return style == NumberFormatter::Style::none ? -1 : std::clamp(maximum, 0, mostFractionDigits);
}

}  // namespace

NumberFormatter::NumberFormatter() : _locale(Locale::current()) {}

std::string NumberFormatter::stringFromNumber(std::int64_t number) const {
  return takeText(velmora_intl_integer_text(_locale.identifier().c_str(),
                                            fractionDigits(_style, _maximumFractionDigits),
                                            std::to_string(number).c_str()));
}

std::string NumberFormatter::stringFromNumber(double number) const {
  return takeText(velmora_intl_number_text(_locale.identifier().c_str(),
                                           fractionDigits(_style, _maximumFractionDigits), number));
}

}  // namespace velmora
