#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::testing {

/// A way in which a shipped file may be broken.
struct Damage {
  const char* name;
  void (*apply)(const std::filesystem::path& file);
};

/// Those that any file may have: missing, unreadable, empty, a folder, a pipe, a gigabyte of nothing, bytes
/// of no format.
const std::vector<Damage>& damagesOfAnyFile();

/// Those of a property list: of another kind at its root, of other kinds inside, binary, not a list.
const std::vector<Damage>& damagesOfAPropertyList();

/// Puts the bytes in the file's place.
void overwrite(const std::filesystem::path& file, std::string_view bytes);

std::string bytesOfFile(const std::filesystem::path& file);

/// What root may do to files whatever their permissions say.
enum class Privilege { toWrite, toReadAndWrite };

/// Takes the privilege from this thread as long as it lives; root stays the owner of its own files.
class WithoutPrivilege {
 public:
  explicit WithoutPrivilege(Privilege privilege);
  ~WithoutPrivilege();
  WithoutPrivilege(const WithoutPrivilege&) = delete;
  WithoutPrivilege& operator=(const WithoutPrivilege&) = delete;

 private:
  std::uint32_t _before;
};

}  // namespace velmora::testing
