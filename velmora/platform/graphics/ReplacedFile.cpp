#include <velmora/platform/graphics/ReplacedFile.h>

#include <cerrno>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>

#include <velmora/platform/resources/HeldSignals.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

namespace fs = std::filesystem;

std::string lastSystemError() {
  return errno != 0 ? std::generic_category().message(errno) : std::string("it cannot be written");
}

std::optional<std::string> writeInPlace(const fs::path& path,
                                        const std::function<bool(std::ostream&)>& write) {
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) return lastSystemError();
  const bool isWritten = write(file);
  file.close();
  if (!isWritten || !file) return lastSystemError();
  return std::nullopt;
}

fs::path unusedNameIn(const fs::path& folder) {
  return folder / (".velmora-" + std::to_string(std::random_device{}()) + ".part");
}

/// The file itself where the path is a link to it.
fs::path withoutLinks(const fs::path& path) {
  std::error_code error;
  const fs::path target = fs::weakly_canonical(path, error);
  return error ? path : target;
}

}  // namespace

std::optional<std::string> replaceFile(const fs::path& path,
                                       const std::function<bool(std::ostream&)>& write) {
  std::error_code error;
  const fs::path target = withoutLinks(path);
  const fs::file_status former = fs::status(target, error);
  if (fs::is_directory(former)) return std::generic_category().message(EISDIR);
  if (fs::exists(former) && !fs::is_regular_file(former)) return writeInPlace(target, write);

  std::ostringstream bytes;
  if (!write(bytes)) return std::string("its content cannot be made");
  const HeldSignals noPartIsLeft;
  const fs::path part = unusedNameIn(target.parent_path());
  std::optional<std::string> failure =
      writeInPlace(part, [&](std::ostream& file) { return bool(file << bytes.str()); });
  if (!failure) {
    error.clear();
    if (fs::exists(former)) fs::permissions(part, former.permissions(), error);
    fs::rename(part, target, error);
    if (error) failure = error.message();
  }
  if (failure) fs::remove(part, error);
  return failure;
}

}  // namespace velmora
