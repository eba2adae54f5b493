#include <unicode/numberformatter.h>

#include <algorithm>
#include <cmath>

#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/platform/time/icu/IcuSupport.h>
#include <velmora/platform/time/icu/ObjectCache.h>

namespace velmora {
namespace {

using icu::number::LocalizedNumberFormatter;
using icu::number::Precision;

constexpr int mostFractionDigits = 20;

LocalizedNumberFormatter makeInteger(const Locale& locale) {
  return icu::number::NumberFormatter::withLocale(icuLocale(locale))
      .grouping(UNUM_GROUPING_OFF)
      .precision(Precision::integer());
}

LocalizedNumberFormatter makeDecimal(const Locale& locale, int maximumFractionDigits) {
  return icu::number::NumberFormatter::withLocale(icuLocale(locale))
      .precision(Precision::maxFraction(maximumFractionDigits));
}

/// The calling thread's formatter of that kind. Valid until the next call.
const LocalizedNumberFormatter& formatterOf(const Locale& locale, NumberFormatter::Style style,
                                            int maximumFractionDigits) {
  thread_local ObjectCache<LocalizedNumberFormatter> formatters;
  if (style == NumberFormatter::Style::none) {
    return formatters.get(cacheKey(locale), [&] { return makeInteger(locale); });
  }
  const int digits = std::clamp(maximumFractionDigits, 0, mostFractionDigits);
  return formatters.get(cacheKey(locale) + std::to_string(digits),
                        [&] { return makeDecimal(locale, digits); });
}

}  // namespace

NumberFormatter::NumberFormatter() : _locale(Locale::current()) {}

std::string NumberFormatter::stringFromNumber(std::int64_t number) const {
  UErrorCode status = U_ZERO_ERROR;
  const auto& formatter = formatterOf(_locale, _style, _maximumFractionDigits);
  return fromIcu(formatter.formatInt(number, status).toString(status));
}

std::string NumberFormatter::stringFromNumber(double number) const {
  UErrorCode status = U_ZERO_ERROR;
  const auto& formatter = formatterOf(_locale, _style, _maximumFractionDigits);
  const double shown = std::isnan(number) ? std::fabs(number) : number;  // "NaN" has no sign
  return fromIcu(formatter.formatDouble(shown, status).toString(status));
}

}  // namespace velmora
