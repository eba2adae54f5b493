#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace [[gnu::visibility("hidden")]] velmora {

/// The bytes of a regular file, read from it page by page as they are looked at. They stay valid as long as a
/// copy of the value lives; the file must not be shortened in place meanwhile (to replace it is no harm).
class MappedFile {
 public:
  /// Maps the file; none of its bytes if it is missing, unreadable, a folder or a device, empty or larger
  /// than the largest resource.
  explicit MappedFile(const std::filesystem::path& path);

  std::string_view bytes() const { return _bytes; }

 private:
  std::shared_ptr<const void> _mapping;
  std::string_view _bytes;
};

}  // namespace velmora
