#include <velmora/almanac/Executor.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace velmora::almanac {
namespace {

/// Parts that several threads take one after another.
class SharedParts {
 public:
  SharedParts(std::size_t count, const std::function<void(std::size_t)>& part) : _count(count), _part(part) {}

  /// Takes parts until there are none left; of what is thrown the first is kept, and ends the work.
  void work() noexcept {
    try {
      for (std::size_t k = _next++; k < _count; k = _next++) _part(k);
    } catch (...) {
      _next = _count;
      const std::lock_guard lock(_mutex);
      if (!_thrown) _thrown = std::current_exception();
    }
  }

  void rethrow() const {
    if (_thrown) std::rethrow_exception(_thrown);
  }

 private:
  const std::size_t _count;
  const std::function<void(std::size_t)>& _part;
  std::atomic<std::size_t> _next = 0;
  std::mutex _mutex;
  std::exception_ptr _thrown;
};

}  // namespace

Executor onThreads(unsigned count) {
  return [count](std::size_t parts, const std::function<void(std::size_t)>& part) {
    SharedParts shared(parts, part);
    std::vector<std::thread> helpers;
    const std::size_t wanted = std::min<std::size_t>(count, parts);
    helpers.reserve(wanted);
    try {
      while (helpers.size() + 1 < wanted) helpers.emplace_back([&shared] { shared.work(); });
    } catch (const std::system_error&) {
      // The system gives no more: those that are there do all the work.
    }
    shared.work();
    for (std::thread& helper : helpers) helper.join();
    shared.rethrow();
  };
}

}  // namespace velmora::almanac
