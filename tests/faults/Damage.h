#pragma once

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

/// Lets the process do no more than any user may, for as long as it lives: root reads what nobody may read
/// and writes where nobody may write.
class WithoutPrivileges {
 public:
  WithoutPrivileges();
  ~WithoutPrivileges();
  WithoutPrivileges(const WithoutPrivileges&) = delete;
  WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

 private:
  bool _wasRoot;
};

}  // namespace velmora::testing
