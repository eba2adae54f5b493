#include <velmora/platform/time/Locale.h>

#include <unicode/calendar.h>
#include <unicode/plurrule.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string_view>

#include <velmora/platform/time/icu/IcuSupport.h>

namespace velmora {

std::string Locale::languageCode() const { return canonicalLocale(_identifier).getLanguage(); }

bool Locale::isRightToLeft() const { return canonicalLocale(_identifier).isRightToLeft(); }

bool Locale::writesTraditionalChinese() const {
  const icu::Locale locale = canonicalLocale(_identifier);
  const std::string_view script = locale.getScript(), region = locale.getCountry();
  if (script == "Hant" || script == "Hans") return script == "Hant";
  return region == "TW" || region == "HK" || region == "MO";
}

std::string Locale::pluralCategory(std::int64_t count) const {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::PluralRules> rules(
      icu::PluralRules::forLocale(canonicalLocale(_identifier), status));
  if (U_FAILURE(status)) return "other";
  constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
  return fromIcu(rules->select(static_cast<std::int32_t>(std::clamp(count, -largest, largest))));
}

int Locale::firstWeekday() const {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Calendar> calendar(
      icu::Calendar::createInstance(canonicalLocale(_identifier), status));
  return U_SUCCESS(status) ? calendar->getFirstDayOfWeek(status) : UCAL_MONDAY;
}

bool Locale::uses24HourClock() const {
  if (_hourCycle) return *_hourCycle == HourCycle::h24;
  const icu::DateTimePatternGenerator* generator = patternGenerator(*this);
  if (generator == nullptr) return true;
  UErrorCode status = U_ZERO_ERROR;
  const UDateFormatHourCycle habit = generator->getDefaultHourCycle(status);
  return habit == UDAT_HOUR_CYCLE_23 || habit == UDAT_HOUR_CYCLE_24;
}

}  // namespace velmora
