#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmora {

/// One value of a property list, XML or binary: a text, an array, a dictionary, or a value of a kind that the
/// library's resources do not use, of which nothing can be asked. Immutable and cheap to copy.
class PropertyList {
 public:
  /// What an array and a dictionary are handed out as.
  using Array = std::vector<PropertyList>;
  using Dictionary = std::map<std::string, PropertyList>;

  /// The list's root value. None if the bytes are malformed, cut short, not UTF-8 or larger than a mebibyte;
  /// if they hold more than a thousand arrays and dictionaries, which bounds how deep these nest; or if a
  /// binary list is not a tree (an array or dictionary standing in two places).
  static std::optional<PropertyList> fromBytes(std::string_view bytes);

  /// As above of a file's bytes; none as well if the file is missing, unreadable or a folder.
  static std::optional<PropertyList> fromFile(const std::filesystem::path& path);

  /// A value of a kind that the library's resources do not use.
  PropertyList() = default;
  explicit PropertyList(std::string text) : _value(std::move(text)) {}
  explicit PropertyList(Array array) : _value(std::make_shared<const Array>(std::move(array))) {}
  explicit PropertyList(Dictionary dictionary)
      : _value(std::make_shared<const Dictionary>(std::move(dictionary))) {}

  /// The value if it is of that kind, else null; valid as long as this value is.
  const std::string* text() const { return std::get_if<std::string>(&_value); }
  const Array* array() const;
  const Dictionary* dictionary() const;

 private:
  std::variant<std::monostate, std::string, std::shared_ptr<const Array>, std::shared_ptr<const Dictionary>>
      _value;
};

}  // namespace velmora
