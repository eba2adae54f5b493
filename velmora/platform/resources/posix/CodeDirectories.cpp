#include <dlfcn.h>

#include <system_error>

#include <velmora/platform/resources/ResourceLocation.h>

namespace velmora {
namespace {

void appendDirectoryOf(const std::filesystem::path& file, std::vector<std::filesystem::path>& directories) {
  std::error_code error;
  const std::filesystem::path resolved = std::filesystem::canonical(file, error);
  if (!error) directories.push_back(resolved.parent_path());
}

}  // namespace

std::vector<std::filesystem::path> codeDirectories() {
  std::vector<std::filesystem::path> directories;
  Dl_info code{};
  if (dladdr(reinterpret_cast<const void*>(&codeDirectories), &code) && code.dli_fname) {
    appendDirectoryOf(code.dli_fname, directories);
  }
  appendDirectoryOf("/proc/self/exe", directories);
  return directories;
}

}  // namespace velmora
