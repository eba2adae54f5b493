#include <velmora/platform/resources/Bundle.h>

#include <utility>

#include <velmora/platform/resources/BundleContents.h>
#include <velmora/platform/system/FileReading.h>

namespace velmora {

Bundle::Bundle(std::string identifier, std::filesystem::path directory)
    : _contents(std::make_shared<Contents>()) {
  _contents->identifier = std::move(identifier);
  _contents->directory = std::move(directory);
}

const std::string& Bundle::identifier() const { return _contents->identifier; }

const std::filesystem::path& Bundle::directory() const { return _contents->directory; }

std::optional<std::filesystem::path> Bundle::pathForResource(const std::string& name, const std::string& type,
                                                             const std::string& folder) const {
  std::filesystem::path path = directory() / folder / (name + "." + type);
  if (!isFile(path)) return std::nullopt;
  return path;
}

std::shared_ptr<const Image> Bundle::image(const std::string& name) const {
  const std::lock_guard lock(_contents->mutex);
  const auto kept = _contents->images.find(name);
  if (kept != _contents->images.end()) return kept->second;
  std::optional<std::filesystem::path> path = pathForResource(name, "png", "images");
  if (!path) path = pathForResource(name, "png");
  std::optional<std::string> encoded = path ? readFile(*path) : std::nullopt;
  if (!encoded) return nullptr;
  std::shared_ptr<const Image> image = Image::fromBytes(name, *std::move(encoded));
  if (image) _contents->images.emplace(name, image);
  return image;
}

}  // namespace velmora
