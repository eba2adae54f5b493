#include <velmora/platform/time/Locale.h>

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

bool Locale::uses24HourClock() const {
  if (_hourCycle) return *_hourCycle == HourCycle::h24;
  const icu::DateTimePatternGenerator* generator = patternGenerator(*this);
  if (generator == nullptr) return true;
  UErrorCode status = U_ZERO_ERROR;
  const UDateFormatHourCycle habit = generator->getDefaultHourCycle(status);
  return habit == UDAT_HOUR_CYCLE_23 || habit == UDAT_HOUR_CYCLE_24;
}

}  // namespace velmora
