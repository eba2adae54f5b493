#include <velmora/platform/time/icu/IcuSupport.h>

#include <unicode/ures.h>

#include <algorithm>
#include <memory>

#include <velmora/platform/time/icu/ObjectCache.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// ICU keeps whatever bytes stand where a language should.
bool isLanguage(std::string_view code) {
  return std::all_of(code.begin(), code.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

bool isKnown(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUResourceBundlePointer bundle(ures_open(nullptr, locale.getBaseName(), &status));
  return U_SUCCESS(status) && status != U_USING_DEFAULT_WARNING;
}

}  // namespace

icu::Locale canonicalLocale(const std::string& identifier) {
  const icu::Locale result = icu::Locale::createCanonical(identifier.c_str());
  return result.isBogus() || !isLanguage(result.getLanguage()) ? icu::Locale::getRoot() : result;
}

icu::Locale icuLocale(const Locale& locale) {
  icu::Locale result = canonicalLocale(locale.identifier());
  if (!isKnown(result)) result = icu::Locale::getRoot();
  UErrorCode status = U_ZERO_ERROR;
  result.setKeywordValue("calendar", "gregorian", status);
  if (const auto cycle = locale.hourCycle()) {
    result.setKeywordValue("hours", *cycle == Locale::HourCycle::h24 ? "h23" : "h12", status);
  }
  return result;
}

std::string cacheKey(const Locale& locale) {
  const auto cycle = locale.hourCycle();
  const char* const habit = !cycle ? "|" : *cycle == Locale::HourCycle::h24 ? "24|" : "12|";
  return habit + std::to_string(locale.identifier().size()) + "|" + locale.identifier();
}

icu::DateTimePatternGenerator* patternGenerator(const Locale& locale) {
  thread_local ObjectCache<std::unique_ptr<icu::DateTimePatternGenerator>> generators;
  return generators
      .get(cacheKey(locale),
           [&] {
             UErrorCode status = U_ZERO_ERROR;
             return std::unique_ptr<icu::DateTimePatternGenerator>(
                 icu::DateTimePatternGenerator::createInstance(icuLocale(locale), status));
           })
      .get();
}

}  // namespace velmora
