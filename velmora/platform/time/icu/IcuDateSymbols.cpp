#include <unicode/dtfmtsym.h>

#include <algorithm>

#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/icu/IcuSupport.h>

namespace velmora {
namespace {

std::vector<std::string> texts(const icu::UnicodeString* first, std::int32_t count) {
  std::vector<std::string> result(static_cast<std::size_t>(count));
  std::transform(first, first + count, result.begin(), &fromIcu);
  return result;
}

}  // namespace

std::vector<std::string> DateFormatter::shortWeekdaySymbols(const Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DateFormatSymbols symbols(icuLocale(locale), status);
  std::int32_t count = 0;
  const icu::UnicodeString* names = symbols.getShortWeekdays(count);
  return texts(names + 1, count - 1);  // ICU counts weekdays from 1; the name of 0 is empty
}

std::vector<std::string> DateFormatter::shortMonthSymbols(const Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DateFormatSymbols symbols(icuLocale(locale), status);
  std::int32_t count = 0;
  const icu::UnicodeString* names = symbols.getShortMonths(count);
  return texts(names, count);
}

}  // namespace velmora
