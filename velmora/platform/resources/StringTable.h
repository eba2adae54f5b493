#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include <velmora/platform/resources/PropertyList.h>

namespace velmora {

/// The texts of one language: a dictionary from the English text to its translation.
class StringTable {
 public:
  /// The table in a property-list file; none if it cannot be read or is not a dictionary. Entries that are
  /// not texts are left out.
  static std::optional<StringTable> fromFile(const std::filesystem::path& path);
  static std::optional<StringTable> fromPropertyList(const PropertyList& list);

  /// The text under that key, if the table has it.
  std::optional<std::string> text(const std::string& key) const;

 private:
  std::map<std::string, std::string> _texts;
};

}  // namespace velmora
