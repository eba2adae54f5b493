#include <velmora/platform/resources/PropertyList.h>

#include <velmora/platform/system/FileReading.h>

namespace velmora {

std::optional<PropertyList> PropertyList::fromFile(const std::filesystem::path& path) {
  const std::optional<std::string> bytes = readFile(path);
  return bytes ? fromBytes(*bytes) : std::nullopt;
}

const PropertyList::Array* PropertyList::array() const {
  const auto* array = std::get_if<std::shared_ptr<const Array>>(&_value);
  return array ? array->get() : nullptr;
}

const PropertyList::Dictionary* PropertyList::dictionary() const {
  const auto* dictionary = std::get_if<std::shared_ptr<const Dictionary>>(&_value);
  return dictionary ? dictionary->get() : nullptr;
}

}  // namespace velmora
