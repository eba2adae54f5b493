#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>

#include <velmora/platform/system/FileReading.h>
#include <velmora/platform/system/MappedFile.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// An open file, closed at the end; a mapping outlives that.
class Descriptor {
 public:
  explicit Descriptor(const std::filesystem::path& path)
      : _number(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
  ~Descriptor() {
    if (_number >= 0) ::close(_number);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int number() const { return _number; }

  /// In bytes; 0 unless it is a regular file.
  std::size_t size() const {
    struct stat status {};
    if (_number < 0 || ::fstat(_number, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
    return static_cast<std::size_t>(status.st_size);
  }

 private:
  int _number;
};

}  // namespace

MappedFile::MappedFile(const std::filesystem::path& path) {
  const Descriptor file(path);
  const std::size_t size = file.size();
  if (size == 0 || size > maximumResourceSize) return;
  void* start = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.number(), 0);
  if (start == MAP_FAILED) return;
  _mapping = std::shared_ptr<const void>(start, [start, size](const void*) { ::munmap(start, size); });
  _bytes = std::string_view(static_cast<const char*>(start), size);
}

}  // namespace velmora
