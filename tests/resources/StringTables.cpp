#include <tests/resources/StringTables.h>

#include <gtest/gtest.h>

#include <optional>

#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/PropertyList.h>

namespace velmora {

const std::map<std::string, Script> kLanguages = {
    {"en", Script::latin},        {"de", Script::latin},       {"fr", Script::latin},
    {"es", Script::latin},        {"it", Script::latin},       {"pt", Script::latin},
    {"nl", Script::latin},        {"pl", Script::latin},       {"tr", Script::latin},
    {"ru", Script::cyrillic},     {"ar", Script::arabic},      {"he", Script::hebrew},
    {"hi", Script::devanagari},   {"ja", Script::japanese},    {"ko", Script::korean},
    {"zh-Hans", Script::chinese}, {"zh-Hant", Script::chinese}};

std::filesystem::path libraryFolder() { return sourceDirectory() + "/velmora/resources"; }

Texts textsOf(const std::filesystem::path& bundle, const std::string& language, const std::string& table) {
  const std::filesystem::path file = bundle / (language + ".lproj") / (table + ".strings");
  const std::optional<PropertyList> list = PropertyList::fromFile(file);
  Texts texts;
  if (!list || !list->dictionary()) {
    ADD_FAILURE() << file << " is no string table";
    return texts;
  }
  for (const auto& [key, value] : *list->dictionary()) {
    if (value.text()) texts.emplace(key, *value.text());
  }
  return texts;
}

std::set<std::string> keysOf(const Texts& texts) {
  std::set<std::string> keys;
  for (const auto& [key, text] : texts) keys.insert(key);
  return keys;
}

std::vector<std::string> placeholdersOf(const std::string& text) {
  std::vector<std::string> placeholders;
  for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
    placeholders.push_back(text.substr(at, 2));
  }
  return placeholders;
}

}  // namespace velmora
