#pragma once

#include <unicode/dtptngen.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <string>
#include <string_view>

#include <velmora/platform/time/Locale.h>

namespace [[gnu::visibility("hidden")]] velmora {

inline icu::UnicodeString toIcu(std::string_view utf8) {
  return icu::UnicodeString::fromUTF8(icu::StringPiece(utf8.data(), static_cast<std::int32_t>(utf8.size())));
}

inline std::string fromIcu(const icu::UnicodeString& text) {
  std::string utf8;
  return text.toUTF8String(utf8);
}

/// The identifier in ICU's form, whether ICU has data for it or not; the root locale if it is none at all.
icu::Locale canonicalLocale(const std::string& identifier);

/// The locale that ICU has data for, with the Gregorian calendar and the overridden clock habit if there is
/// one. One that ICU does not know is the root locale, never the one that ICU takes from the environment.
icu::Locale icuLocale(const Locale& locale);

/// A text that differs between locales, for the keys of caches; other text may be appended.
std::string cacheKey(const Locale& locale);

/// The maker of the locale's own patterns, which the calling thread keeps; none if ICU's data is missing.
/// Valid until the next call.
icu::DateTimePatternGenerator* patternGenerator(const Locale& locale);

}  // namespace velmora
