#include <mutex>
#include <utility>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/resources/ResourceLocation.h>

namespace velmora {
namespace {

/// One of the process's two bundles: the usual one, until another folder is put in its place.
class KnownBundle {
 public:
  KnownBundle(const std::string& identifier, const ResourcePlaces& places)
      : _usual(identifier, resourceDirectory(places)) {}

  Bundle bundle() {
    const std::lock_guard lock(_mutex);
    return _replacement.value_or(_usual);
  }

  std::optional<std::filesystem::path> replace(std::optional<std::filesystem::path> directory) {
    const std::lock_guard lock(_mutex);
    std::optional<Bundle> replacement;
    if (directory) replacement.emplace(_usual.identifier(), *std::move(directory));
    const std::optional<Bundle> former = std::exchange(_replacement, std::move(replacement));
    return former ? std::optional(former->directory()) : std::nullopt;
  }

 private:
  std::mutex _mutex;
  Bundle _usual;
  std::optional<Bundle> _replacement;
};

KnownBundle& libraryBundle() {
  static KnownBundle bundle("velmora", {.environmentVariable = "VELMORA_RESOURCES",
                                        .installed = VELMORA_INSTALLED_RESOURCES,
                                        .lastPrefix = VELMORA_LAST_PREFIX});
  return bundle;
}

KnownBundle& mainBundle() {
  static KnownBundle bundle("main", {.environmentVariable = "VELMORA_MAIN_RESOURCES",
                                     .installed = VELMORA_INSTALLED_MAIN_RESOURCES,
                                     .lastPrefix = VELMORA_LAST_PREFIX});
  return bundle;
}

}  // namespace

Bundle Bundle::library() { return libraryBundle().bundle(); }

Bundle Bundle::main() { return mainBundle().bundle(); }

std::optional<Bundle> Bundle::withIdentifier(std::string_view identifier) {
  for (const Bundle& bundle : {library(), main()}) {
    if (bundle.identifier() == identifier) return bundle;
  }
  return std::nullopt;
}

std::optional<std::filesystem::path> Bundle::setLibrary(std::optional<std::filesystem::path> directory) {
  return libraryBundle().replace(std::move(directory));
}

std::optional<std::filesystem::path> Bundle::setMain(std::optional<std::filesystem::path> directory) {
  return mainBundle().replace(std::move(directory));
}

}  // namespace velmora
