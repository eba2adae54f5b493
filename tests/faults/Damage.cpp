#include "tests/faults/Damage.h"

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;

constexpr uid_t nobody = 65534;
constexpr std::uintmax_t gibibyte = std::uintmax_t{1} << 30;

void require(bool isDone, const char* what) {
  if (!isDone) throw std::runtime_error(what);
}

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

WithoutPrivileges::WithoutPrivileges() : _wasRoot(geteuid() == 0) {
  if (_wasRoot) require(seteuid(nobody) == 0, "privileges cannot be dropped");
}

WithoutPrivileges::~WithoutPrivileges() {
  if (!_wasRoot) return;
  [[maybe_unused]] const int isBack = seteuid(0);
  prctl(PR_SET_DUMPABLE, 1);  // which dropping them took away; a leak checker needs it
}

}  // namespace velmora::testing
