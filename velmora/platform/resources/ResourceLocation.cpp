#include <velmora/platform/resources/ResourceLocation.h>

#include <cstdlib>
#include <optional>
#include <system_error>

namespace velmora {
namespace {

/// Code lies at most this far under its prefix: PREFIX/lib/ARCHITECTURE.
constexpr int kMaximumDepthUnderPrefix = 2;

std::optional<std::filesystem::path> installedDirectory(const std::filesystem::path& installed) {
  for (std::filesystem::path directory : codeDirectories()) {
    for (int depth = 0; depth < kMaximumDepthUnderPrefix; ++depth) {
      directory = directory.parent_path();
      std::error_code error;
      if (std::filesystem::is_directory(directory / installed, error)) return directory / installed;
    }
  }
  return std::nullopt;
}

}  // namespace

std::filesystem::path resourceDirectory(const ResourcePlaces& places) {
  const char* named = std::getenv(places.environmentVariable.c_str());
  if (named && *named) return named;
  return installedDirectory(places.installed).value_or(places.sourceTree);
}

}  // namespace velmora
