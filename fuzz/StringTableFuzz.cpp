// Any property list is a string table or none, and a table gives back the texts of its dictionary alone.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <velmora/platform/resources/StringTable.h>

using velmora::PropertyList;
using velmora::StringTable;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto list = PropertyList::fromBytes(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!list) return 0;
  const auto table = StringTable::fromPropertyList(*list);
  if (table.has_value() != (list->dictionary() != nullptr)) std::abort();
  if (!table) return 0;
  for (const auto& [key, value] : *list->dictionary()) {
    const auto text = table->text(key);
    if (text.has_value() != (value.text() != nullptr)) std::abort();
    if (text && *text != *value.text()) std::abort();
  }
  return 0;
}
