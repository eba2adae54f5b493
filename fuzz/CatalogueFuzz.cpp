// Any text is a catalogue of eclipses: each record stands under its own instant, in order of time, and has
// its code; a code without a title is no known one.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <velmora/platform/system/Log.h>
#include <velmora/service/EclipseCatalogue.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  [[maybe_unused]] static const auto standardError = velmora::Log::setSink([](std::string_view) {});
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const auto& [instant, eclipse] : velmora::readEclipseCatalogue(text)) {
    if (eclipse->datetime != instant) std::abort();
    if (eclipse->key.find_first_of(",\n") != std::string::npos) std::abort();
    if (eclipse->isLunarEvent != (eclipse->key.find("LE") != std::string::npos)) std::abort();
    if (eclipse->title && eclipse->key.size() != 3) std::abort();
  }
  return 0;
}
