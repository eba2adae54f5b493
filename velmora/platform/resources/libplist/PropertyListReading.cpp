#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

#include <velmora/platform/resources/PropertyList.h>
#include <velmora/platform/resources/libplist/ListLimits.h>
#include <velmora/platform/system/FileReading.h>

namespace velmora {
namespace {

PropertyList fromNode(plist_t node);

/// What libplist allocates with malloc and hands over.
using OwnedIterator = std::unique_ptr<void, decltype(&std::free)>;
using OwnedText = std::unique_ptr<char, decltype(&std::free)>;

PropertyList::Array fromArrayNode(plist_t node) {
  PropertyList::Array array;
  plist_array_iter newIterator = nullptr;
  plist_array_new_iter(node, &newIterator);
  const OwnedIterator iterator(newIterator, &std::free);
  plist_t item = nullptr;
  for (plist_array_next_item(node, iterator.get(), &item); item;
       plist_array_next_item(node, iterator.get(), &item)) {
    array.push_back(fromNode(item));
  }
  return array;
}

PropertyList::Dictionary fromDictionaryNode(plist_t node) {
  PropertyList::Dictionary dictionary;
  plist_dict_iter newIterator = nullptr;
  plist_dict_new_iter(node, &newIterator);
  const OwnedIterator iterator(newIterator, &std::free);
  char* newKey = nullptr;
  plist_t value = nullptr;
  for (plist_dict_next_item(node, iterator.get(), &newKey, &value); value;
       plist_dict_next_item(node, iterator.get(), &newKey, &value)) {
    const OwnedText key(newKey, &std::free);
    if (isUtf8(key.get())) dictionary.insert_or_assign(key.get(), fromNode(value));
  }
  return dictionary;
}

PropertyList fromTextNode(plist_t node) {
  std::uint64_t length = 0;
  const char* text = plist_get_string_ptr(node, &length);
  const std::string_view bytes(text ? text : "", text ? static_cast<std::size_t>(length) : 0);
  return isUtf8(bytes) ? PropertyList(std::string(bytes)) : PropertyList();
}

PropertyList fromNode(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_STRING:
      return fromTextNode(node);
    case PLIST_ARRAY:
      return PropertyList(fromArrayNode(node));
    case PLIST_DICT:
      return PropertyList(fromDictionaryNode(node));
    default:
      return PropertyList();
  }
}

/// libplist takes an XML list whose last tag is missing; a file cut there is cut all the same.
bool endsLikeAList(std::string_view bytes) {
  if (plist_is_binary(bytes.data(), static_cast<std::uint32_t>(bytes.size()))) return true;
  const auto last = bytes.find_last_not_of(" \t\r\n");
  return last != bytes.npos && bytes.substr(0, last + 1).ends_with("</plist>");
}

}  // namespace

std::optional<PropertyList> PropertyList::fromBytes(std::string_view bytes) {
  if (!isWithinListLimits(bytes) || !endsLikeAList(bytes)) return std::nullopt;
  plist_t newRoot = nullptr;
  plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &newRoot);
  const std::unique_ptr<void, decltype(&plist_free)> root(newRoot, &plist_free);
  if (!root) return std::nullopt;
  return fromNode(root.get());
}

}  // namespace velmora
