#include <velmora/platform/system/browser/HandedFiles.h>

#include <map>
#include <variant>

#include <velmora/platform/system/FileReading.h>
#include <velmora/platform/system/browser/PackedFiles.h>

namespace velmora {
namespace {

using Bytes = std::variant<std::string, std::string_view>;
using FilesByPath = std::map<std::string, Bytes, std::less<>>;

FilesByPath packedFilesByPath() {
  FilesByPath files;
  for (const PackedFile& file : packedFiles()) files.emplace(file.path, file.bytes);
  return files;
}

FilesByPath& filesByPath() {
  static FilesByPath files = packedFilesByPath();
  return files;
}

std::string_view view(const Bytes& bytes) {
  return std::visit([](const auto& held) { return std::string_view(held); }, bytes);
}

}  // namespace

void HandedFiles::handOver(const std::string& path, std::string bytes) {
  filesByPath().insert_or_assign(path, std::move(bytes));
}

bool isFile(const std::filesystem::path& path) { return filesByPath().contains(path.native()); }

bool isFolder(const std::filesystem::path& path) {
  const std::string beginning = path.native() + '/';
  const auto first = filesByPath().lower_bound(beginning);
  return first != filesByPath().end() && first->first.starts_with(beginning);
}

std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t maximumSize) {
  const auto found = filesByPath().find(path.native());
  if (found == filesByPath().end() || view(found->second).size() > maximumSize) return std::nullopt;
  return std::string(view(found->second));
}

}  // namespace velmora
