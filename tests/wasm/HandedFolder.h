#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include <velmora/platform/system/browser/HandedFiles.h>

namespace velmora {

/// A property list of XML as building packs it: bencoding. Knows what the tests write: dictionaries, arrays,
/// keys and texts without entities.
inline std::string packedList(std::string_view xml) {
  constexpr std::array<std::pair<std::string_view, char>, 4> marks = {
      {{"<dict>", 'd'}, {"<array>", 'l'}, {"</dict>", 'e'}, {"</array>", 'e'}}};
  constexpr std::array<std::string_view, 2> texts = {"<key>", "<string>"};
  std::string packed;
  for (; !xml.empty(); xml.remove_prefix(1)) {
    for (const auto& [tag, mark] : marks) {
      if (xml.starts_with(tag)) packed += mark;
    }
    for (const std::string_view tag : texts) {
      if (!xml.starts_with(tag)) continue;
      const std::string_view text = xml.substr(tag.size(), xml.find('<', 1) - tag.size());
      packed += std::to_string(text.size()) + ':' + std::string(text);
    }
  }
  return packed;
}

/// A folder of its own for one test, of files that are handed over. What a test makes there otherwise is
/// removed with the object.
class TemporaryFolder {
 public:
  TemporaryFolder() : _path("/tmp/velmora-handed-" + std::to_string(++count())) {}
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(_path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return _path; }

  /// Hands over a file and returns its path.
  std::filesystem::path write(const std::string& name, std::string_view bytes) const {
    const std::filesystem::path file = _path / name;
    const bool isList = bytes.find("<plist") != bytes.npos;
    HandedFiles::handOver(file.string(), isList ? packedList(bytes) : std::string(bytes));
    return file;
  }

 private:
  static int& count() {
    static int last = 0;
    return last;
  }

  std::filesystem::path _path;
};

}  // namespace velmora
