#include <velmora/platform/system/MappedFile.h>

#include <string>

#include <velmora/platform/system/FileReading.h>

namespace [[gnu::visibility("hidden")]] velmora {

MappedFile::MappedFile(const std::filesystem::path& path) {
  std::optional<std::string> bytes = readFile(path);
  if (!bytes) return;
  const auto held = std::make_shared<const std::string>(std::move(*bytes));
  _mapping = held;
  _bytes = *held;
}

}  // namespace velmora
