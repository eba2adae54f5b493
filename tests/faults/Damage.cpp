#include "tests/faults/Damage.h"

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t readAnyFile = std::uint32_t{1} << CAP_DAC_READ_SEARCH;
constexpr std::uint32_t readAndWriteAnyFile = std::uint32_t{1} << CAP_DAC_OVERRIDE;
constexpr std::uintmax_t gibibyte = std::uintmax_t{1} << 30;

void require(bool isDone, const char* what) {
  if (!isDone) throw std::runtime_error(what);
}

/// The capabilities of this thread; those of files are in the first word.
class Capabilities {
 public:
  Capabilities() { require(syscall(SYS_capget, &_header, _words.data()) == 0, "privileges cannot be read"); }

  std::uint32_t effective() const { return _words[0].effective; }

  void setEffective(std::uint32_t privileges) {
    _words[0].effective = privileges;
    require(syscall(SYS_capset, &_header, _words.data()) == 0, "privileges cannot be changed");
  }

 private:
  __user_cap_header_struct _header{_LINUX_CAPABILITY_VERSION_3, 0};
  std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> _words{};
};

std::string list(const std::string& root) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + root + "\n</plist>\n";
}

}  // namespace

void overwrite(const fs::path& file, std::string_view bytes) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  require(bool(out.flush()), "a test's file cannot be written");
}

std::string bytesOfFile(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

const std::vector<Damage>& damagesOfAnyFile() {
  static const std::vector<Damage> damages = {
      {"missing", [](const fs::path& file) { fs::remove(file); }},
      {"unreadable", [](const fs::path& file) { fs::permissions(file, fs::perms::none); }},
      {"empty", [](const fs::path& file) { overwrite(file, ""); }},
      {"folder", [](const fs::path& file) { fs::remove(file), fs::create_directory(file); }},
      {"pipe",
       [](const fs::path& file) {
         fs::remove(file);
         require(mkfifo(file.c_str(), 0644) == 0, "a test's pipe cannot be made");
       }},
      {"a link to itself", [](const fs::path& file) { fs::remove(file), fs::create_symlink(file, file); }},
      {"a gigabyte of zeros",
       [](const fs::path& file) { overwrite(file, ""), fs::resize_file(file, gibibyte); }},
      {"bytes of no format",
       [](const fs::path& file) { overwrite(file, "\x93\xFE\x01\xFF moon \x80\xC0\n"); }},
      {"a line of text", [](const fs::path& file) { overwrite(file, "the moon\n"); }},
  };
  return damages;
}

const std::vector<Damage>& damagesOfAPropertyList() {
  static const std::vector<Damage> damages = {
      {"an array", [](const fs::path& file) { overwrite(file, list("<array><string>6</string></array>")); }},
      {"a text", [](const fs::path& file) { overwrite(file, list("<string>6</string>")); }},
      {"a number", [](const fs::path& file) { overwrite(file, list("<integer>6</integer>")); }},
      {"an empty dictionary", [](const fs::path& file) { overwrite(file, list("<dict/>")); }},
      {"a dictionary of numbers",
       [](const fs::path& file) {
         overwrite(file, list("<dict><key>6</key><integer>1</integer><key>Full Moon</key><true/></dict>"));
       }},
      {"arrays of numbers",
       [](const fs::path& file) {
         overwrite(file, list("<dict><key>6</key><array><integer>1</integer></array></dict>"));
       }},
      {"no list after its first line",
       [](const fs::path& file) {
         overwrite(file, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<html/>\n");
       }},
      {"a binary list cut short", [](const fs::path& file) { overwrite(file, "bplist00\xD1\x01\x02"); }},
  };
  return damages;
}

WithoutPrivilege::WithoutPrivilege(Privilege privilege) : _before(Capabilities().effective()) {
  const std::uint32_t left = privilege == Privilege::toWrite ? _before : _before & ~readAnyFile;
  Capabilities().setEffective(left & ~readAndWriteAnyFile);
}

WithoutPrivilege::~WithoutPrivilege() { Capabilities().setEffective(_before); }

}  // namespace velmora::testing
