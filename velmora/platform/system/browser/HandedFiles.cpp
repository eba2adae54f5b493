#include <velmora/platform/system/browser/HandedFiles.h>

#include <map>
#include <variant>

#include <velmora/platform/system/FileReading.h>
#include <velmora/platform/system/browser/PackedFiles.h>

namespace velmora {
namespace {

struct HandedFile {
  std::variant<std::string, std::string_view> held;  ///< what was handed over, or compiled in
  std::int64_t version = 0;                          ///< how often a file was handed over till then

  std::string_view bytes() const {
    return std::visit([](const auto& bytes) { return std::string_view(bytes); }, held);
  }
};

using FilesByPath = std::map<std::string, HandedFile, std::less<>>;

FilesByPath packedFilesByPath() {
  FilesByPath files;
  for (const PackedFile& file : packedFiles()) files.emplace(file.path, HandedFile{file.bytes});
  return files;
}

FilesByPath& filesByPath() {
  static FilesByPath files = packedFilesByPath();
  return files;
}

const HandedFile* fileAt(const std::filesystem::path& path) {
  const auto found = filesByPath().find(path.native());
  return found == filesByPath().end() ? nullptr : &found->second;
}

}  // namespace

void HandedFiles::handOver(const std::string& path, std::string bytes) {
  static std::int64_t count = 0;
  filesByPath().insert_or_assign(path, HandedFile{std::move(bytes), ++count});
}

bool isFile(const std::filesystem::path& path) { return fileAt(path) != nullptr; }

bool isFolder(const std::filesystem::path& path) {
  const std::string beginning = path.native() + '/';
  const auto first = filesByPath().lower_bound(beginning);
  return first != filesByPath().end() && first->first.starts_with(beginning);
}

std::optional<FileVersion> settledVersion(const std::filesystem::path& path) {
  const HandedFile* file = fileAt(path);
  if (file == nullptr) return std::nullopt;
  return FileVersion{.written = file->version, .size = file->bytes().size()};
}

std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t maximumSize) {
  const HandedFile* file = fileAt(path);
  if (file == nullptr || file->bytes().size() > maximumSize) return std::nullopt;
  return std::string(file->bytes());
}

}  // namespace velmora
