// Any bytes are a property list or none, and a list can be walked to its ends.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <velmora/platform/resources/PropertyList.h>
#include <velmora/platform/system/FileReading.h>

namespace {

using velmora::PropertyList;

void require(bool holds) {
  if (!holds) std::abort();
}

void walk(const PropertyList& value) {
  require((value.text() != nullptr) + (value.array() != nullptr) + (value.dictionary() != nullptr) <= 1);
  if (value.text()) require(velmora::isUtf8(*value.text()));
  if (value.array()) {
    for (const PropertyList& item : *value.array()) walk(item);
  }
  if (value.dictionary()) {
    for (const auto& [key, item] : *value.dictionary()) {
      require(velmora::isUtf8(key));
      walk(item);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto list = PropertyList::fromBytes(std::string_view(reinterpret_cast<const char*>(data), size));
  if (list) walk(*list);
  return 0;
}
