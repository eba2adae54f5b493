#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <velmora/platform/resources/Image.h>

namespace velmora {

/// A folder of resources: files, pictures (in it or in its "images") and texts by language ("de.lproj").
/// A cheap value; copies share the texts and pictures read so far. Usable from any thread.
class Bundle {
 public:
  /// The library's own resources, identifier "velmora": where VELMORA_RESOURCES says, else in
  /// share/velmora/resources under the prefix where the library lies, or else the program.
  static Bundle library();

  /// The host application's resources, identifier "main": those it has set, else where
  /// VELMORA_MAIN_RESOURCES says, else in share/velmora/app likewise.
  static Bundle main();

  /// The one of these two with that identifier; none for any other.
  static std::optional<Bundle> withIdentifier(std::string_view identifier);

  /// Puts another folder in place of the library's or the host's resources and returns the one set before;
  /// none goes back to the place described above.
  static std::optional<std::filesystem::path> setLibrary(std::optional<std::filesystem::path> directory);
  static std::optional<std::filesystem::path> setMain(std::optional<std::filesystem::path> directory);

  /// A bundle of that folder, which need not exist.
  Bundle(std::string identifier, std::filesystem::path directory);

  /// Its name and its folder.
  const std::string& identifier() const;
  const std::filesystem::path& directory() const;

  /// The file NAME.TYPE in the bundle or in the given folder of it; none if there is no such file. The name
  /// may itself begin with folders ("Data/2024").
  std::optional<std::filesystem::path> pathForResource(const std::string& name, const std::string& type,
                                                       const std::string& folder = "") const;

  /// The text under `key` in the string table, in the most wanted language of the current locale that has it,
  /// English at last; without any, `value`, or the key itself if that is empty.
  std::string localizedString(const std::string& key, const std::string& value = "",
                              const std::string& table = "Localizable") const;

  /// The picture NAME.png; empty if it is missing or no picture. Found pictures are kept.
  std::shared_ptr<const Image> image(const std::string& name) const;

 private:
  struct Contents;

  std::shared_ptr<Contents> _contents;
};

/// Puts another folder in place of the library's resources for as long as it lives.
class ScopedLibraryBundle {
 public:
  /// Puts the folder in place.
  explicit ScopedLibraryBundle(std::filesystem::path directory)
      : _former(Bundle::setLibrary(std::move(directory))) {}
  ~ScopedLibraryBundle() { Bundle::setLibrary(std::move(_former)); }
  ScopedLibraryBundle(const ScopedLibraryBundle&) = delete;
  ScopedLibraryBundle& operator=(const ScopedLibraryBundle&) = delete;

 private:
  std::optional<std::filesystem::path> _former;
};

/// Puts another folder in place of the host's resources for as long as it lives.
class ScopedMainBundle {
 public:
  /// Puts the folder in place.
  explicit ScopedMainBundle(std::filesystem::path directory)
      : _former(Bundle::setMain(std::move(directory))) {}
  ~ScopedMainBundle() { Bundle::setMain(std::move(_former)); }
  ScopedMainBundle(const ScopedMainBundle&) = delete;
  ScopedMainBundle& operator=(const ScopedMainBundle&) = delete;

 private:
  std::optional<std::filesystem::path> _former;
};

}  // namespace velmora
