#include <velmora/platform/resources/ResourceLocation.h>

#include <cstdlib>

#include <velmora/platform/system/FileReading.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// Code lies at most this far under its prefix: PREFIX/lib/ARCHITECTURE/APPLICATION.
constexpr int maximumDepthUnderPrefix = 3;

/// The installed folder, or where it would lie beside the library's folder.
std::filesystem::path installedDirectory(const ResourcePlaces& places) {
  std::filesystem::path expected;
  for (std::filesystem::path directory : codeDirectories()) {
    for (int depth = 0; depth < maximumDepthUnderPrefix; ++depth) {
      directory = directory.parent_path();
      const std::filesystem::path candidate = directory / places.installed;
      if (isFolder(candidate)) return candidate;
      if (expected.empty()) expected = candidate;
    }
  }
  const std::filesystem::path last = places.lastPrefix / places.installed;
  return !places.lastPrefix.empty() && isFolder(last) ? last : expected;
}

}  // namespace

std::filesystem::path resourceDirectory(const ResourcePlaces& places) {
  const char* named = std::getenv(places.environmentVariable.c_str());
  if (named && *named) return named;
  return installedDirectory(places);
}

}  // namespace velmora
