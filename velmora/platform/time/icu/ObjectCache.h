#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>

namespace [[gnu::visibility("hidden")]] velmora {

/// Objects that are costly to make, each made once under a key and kept. When it is full it starts anew, so
/// it stays small whatever patterns and locales a process goes through. For one thread: keep it thread_local.
template <class Object>
class ObjectCache {
 public:
  /// The object under the key; `make` makes it if there is none. Valid until the next call.
  template <class Make>
  Object& get(const std::string& key, Make make) {
    if (const auto found = _objects.find(key); found != _objects.end()) return found->second;
    if (_objects.size() == capacity) _objects.clear();
    return _objects.emplace(key, make()).first->second;
  }

 private:
  static constexpr std::size_t capacity = 64;
  std::unordered_map<std::string, Object> _objects;
};

}  // namespace velmora
