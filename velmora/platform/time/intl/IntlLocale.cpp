#include <array>

#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/intl/IntlSupport.h>

// In locales.js.
extern "C" {
char* velmora_intl_locale_parts(const char* identifier);
int velmora_intl_is_right_to_left(const char* identifier);
int velmora_intl_counts_to_24(const char* identifier);
char* velmora_intl_plural_category(const char* identifier, double count);
int velmora_intl_first_weekday(const char* identifier);
}

namespace velmora {
namespace {

struct LocaleParts {
  std::string language, script, region;
};

LocaleParts partsOf(const std::string& identifier) {
  const std::string parts = takeText(velmora_intl_locale_parts(identifier.c_str()));
  const std::size_t first = parts.find(' '), second = parts.find(' ', first + 1);
  return {parts.substr(0, first), parts.substr(first + 1, second - first - 1), parts.substr(second + 1)};
}

}  // namespace

std::string Locale::languageCode() const { return partsOf(_identifier).language; }

bool Locale::isRightToLeft() const { return velmora_intl_is_right_to_left(_identifier.c_str()) != 0; }

bool Locale::writesTraditionalChinese() const {
  const LocaleParts parts = partsOf(_identifier);
  if (parts.script == "Hant" || parts.script == "Hans") return parts.script == "Hant";
  return parts.region == "TW" || parts.region == "HK" || parts.region == "MO";
}

std::string Locale::pluralCategory(std::int64_t count) const {
  return takeText(velmora_intl_plural_category(_identifier.c_str(), static_cast<double>(count)));
}

int Locale::firstWeekday() const { return velmora_intl_first_weekday(_identifier.c_str()); }

bool Locale::uses24HourClock() const {
  if (_hourCycle) return *_hourCycle == HourCycle::h24;
  return velmora_intl_counts_to_24(_identifier.c_str()) != 0;
}

}  // namespace velmora
