#pragma once

#ifdef __EMSCRIPTEN__
#include <tests/wasm/HandedFolder.h>
#else

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

namespace velmora {

/// An empty folder of its own for one test, removed with the object.
class TemporaryFolder {
 public:
  TemporaryFolder() : _path(uniquePath()) { std::filesystem::create_directories(_path); }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(_path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return _path; }

  /// Writes a file, its folders included, and returns its path.
  std::filesystem::path write(const std::string& name, std::string_view bytes) const {
    const std::filesystem::path file = _path / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(out.good()) << file;
    return file;
  }

 private:
  static std::filesystem::path uniquePath() {
    static std::atomic<int> count{0};
    return std::filesystem::temp_directory_path() /
           ("velmora-test-" + std::to_string(getpid()) + "-" + std::to_string(++count));
  }

  std::filesystem::path _path;
};

}  // namespace velmora

#endif
