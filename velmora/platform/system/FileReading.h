#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace [[gnu::visibility("hidden")]] velmora {

/// The largest resource that is read, in bytes: far above any that ships, so that a wrong file costs little.
inline constexpr std::size_t maximumResourceSize = std::size_t{16} << 20;

/// Whether a regular file, or a folder, lies at the path.
bool isFile(const std::filesystem::path& path);
bool isFolder(const std::filesystem::path& path);

/// What distinguishes a file from an earlier one at the same path: when it was written, and its size.
struct FileVersion {
  std::int64_t written = 0;
  std::uintmax_t size = 0;

  friend bool operator==(const FileVersion&, const FileVersion&) = default;
};

/// The version of a file; none if it is missing, or was written so lately that it may be written again
/// without a later time.
std::optional<FileVersion> settledVersion(const std::filesystem::path& path);

/// The bytes of a regular file; none if it is missing, unreadable, a folder or a device, or larger than that
/// many bytes.
std::optional<std::string> readFile(const std::filesystem::path& path,
                                    std::size_t maximumSize = maximumResourceSize);

/// The text of a file; none where `readFile` gives none or where the bytes are not UTF-8.
std::optional<std::string> readTextFile(const std::filesystem::path& path,
                                        std::size_t maximumSize = maximumResourceSize);

/// Whether the bytes are well-formed UTF-8 (RFC 3629: shortest forms, no surrogates, up to U+10FFFF).
bool isUtf8(std::string_view bytes);

}  // namespace velmora
