#include <velmora/platform/time/Locale.h>

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <string_view>
#include <utility>

namespace velmora {
namespace {

constexpr const char* fallbackIdentifier = "en_US";

std::mutex currentMutex;

std::optional<Locale>& chosenLocale() {
  static std::optional<Locale> locale;
  return locale;
}

std::optional<Locale> exchangeCurrent(std::optional<Locale> locale) {
  const std::lock_guard lock(currentMutex);
  return std::exchange(chosenLocale(), std::move(locale));
}

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isLetterOrDigit(char c) { return isLetter(c) || (c >= '0' && c <= '9'); }

bool isLanguage(std::string_view part) {
  return (part.size() == 2 || part.size() == 3) && std::all_of(part.begin(), part.end(), isLetter);
}

bool isSubtag(std::string_view part) {
  return part.size() >= 2 && part.size() <= 8 && std::all_of(part.begin(), part.end(), isLetterOrDigit);
}

/// Whether the text is a language followed by script, region or variant, each after an underscore.
bool looksLikeIdentifier(std::string_view text) {
  std::size_t end = std::min(text.find('_'), text.size());
  if (!isLanguage(text.substr(0, end))) return false;
  while (end < text.size()) {
    const std::size_t start = end + 1;
    end = std::min(text.find('_', start), text.size());
    if (!isSubtag(text.substr(start, end - start))) return false;
  }
  return true;
}

/// What the environment names: the first of the three variables that is not empty, up to its encoding.
std::string environmentIdentifier() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    const char* const value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    const std::string_view text(value);
    const std::string_view identifier = text.substr(0, text.find_first_of(".@"));
    return looksLikeIdentifier(identifier) ? std::string(identifier) : fallbackIdentifier;
  }
  return fallbackIdentifier;
}

}  // namespace

Locale::Locale(std::string identifier) : _identifier(std::move(identifier)) {
  std::replace(_identifier.begin(), _identifier.end(), '-', '_');
}

Locale Locale::current() {
  {
    const std::lock_guard lock(currentMutex);
    if (chosenLocale()) return *chosenLocale();
  }
  return Locale(environmentIdentifier());
}

void Locale::setCurrent(std::optional<Locale> locale) { exchangeCurrent(std::move(locale)); }

Locale Locale::withHourCycle(HourCycle cycle) const {
  Locale overridden = *this;
  overridden._hourCycle = cycle;
  return overridden;
}

ScopedLocale::ScopedLocale(Locale locale) : _former(exchangeCurrent(std::move(locale))) {}

ScopedLocale::~ScopedLocale() { exchangeCurrent(std::move(_former)); }

}  // namespace velmora
