#include <velmora/platform/resources/StringTable.h>

namespace velmora {

std::optional<StringTable> StringTable::fromFile(const std::filesystem::path& path) {
  const std::optional<PropertyList> list = PropertyList::fromFile(path);
  return list ? fromPropertyList(*list) : std::nullopt;
}

std::optional<StringTable> StringTable::fromPropertyList(const PropertyList& list) {
  const PropertyList::Dictionary* dictionary = list.dictionary();
  if (!dictionary) return std::nullopt;
  StringTable table;
  for (const auto& [key, value] : *dictionary) {
    if (const std::string* text = value.text()) table._texts.emplace(key, *text);
  }
  return table;
}

std::optional<std::string> StringTable::text(const std::string& key) const {
  const auto found = _texts.find(key);
  if (found == _texts.end()) return std::nullopt;
  return found->second;
}

}  // namespace velmora
