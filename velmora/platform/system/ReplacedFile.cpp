#include <velmora/platform/system/ReplacedFile.h>

#include <cerrno>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>

#include <velmora/platform/system/HeldSignals.h>

namespace velmora {
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

/// Where the path leads if it is a link, whether or not there is a file yet.
fs::path withoutLinks(fs::path path) {
  constexpr int mostLinks = 40;  // as many as Linux follows
  std::error_code error;
  for (int links = 0; links < mostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++links) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

}  // namespace

std::optional<std::string> replaceFile(const fs::path& path,
                                       const std::function<bool(std::ostream&)>& write) {
  std::error_code error;
  const fs::file_status former = fs::status(path, error);
  if (former.type() == fs::file_type::none) return error.message();
  if (fs::is_directory(former)) return std::generic_category().message(EISDIR);
  if (fs::exists(former) && !fs::is_regular_file(former)) return writeInPlace(path, write);

  std::ostringstream bytes;
  if (!write(bytes)) return std::string("its content cannot be made");
  const HeldSignals noPartIsLeft;
  const fs::path target = withoutLinks(path);
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
