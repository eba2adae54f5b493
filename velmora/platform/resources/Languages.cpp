#include <velmora/platform/resources/Languages.h>

#include <algorithm>
#include <cstddef>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// The subtags of a locale's identifier ("zh_Hant_TW"), without what follows an "@" or a ".".
std::vector<std::string> subtags(const Locale& locale) {
  const std::string& identifier = locale.identifier();
  const std::string tag = identifier.substr(0, identifier.find_first_of("@."));
  std::vector<std::string> parts;
  for (std::size_t start = 0; start <= tag.size();) {
    const std::size_t end = std::min(tag.find_first_of("-_", start), tag.size());
    parts.push_back(tag.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

}  // namespace

std::vector<std::string> preferredLanguages(const Locale& locale) {
  const std::vector<std::string> tags = subtags(locale);
  const std::string language = locale.languageCode();
  std::vector<std::string> languages;
  for (std::size_t i = 1; i < tags.size(); ++i) languages.push_back(language + "-" + tags[i]);
  if (language == "zh") languages.push_back(locale.writesTraditionalChinese() ? "zh-Hant" : "zh-Hans");
  languages.push_back(language);
  languages.push_back("en");
  return languages;
}

}  // namespace velmora
