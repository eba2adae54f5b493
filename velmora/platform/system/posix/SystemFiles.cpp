#include <chrono>
#include <fstream>
#include <system_error>

#include <velmora/platform/system/FileReading.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using FileTime = std::filesystem::file_time_type;

constexpr std::chrono::seconds tickOfFileTimes{2};

}  // namespace

bool isFile(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

bool isFolder(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

std::optional<FileVersion> settledVersion(const std::filesystem::path& path) {
  std::error_code error;
  const FileTime written = std::filesystem::last_write_time(path, error);
  if (error || written + tickOfFileTimes > FileTime::clock::now()) return std::nullopt;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return std::nullopt;
  const auto sinceEpoch = std::chrono::duration_cast<std::chrono::nanoseconds>(written.time_since_epoch());
  return FileVersion{.written = sinceEpoch.count(), .size = size};
}

std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t maximumSize) {
  if (!isFile(path)) return std::nullopt;
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  if (error || size > maximumSize) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  if (!file.read(bytes.data(), static_cast<std::streamsize>(size))) return std::nullopt;
  return bytes;
}

}  // namespace velmora
