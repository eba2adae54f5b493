#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace velmora {

/// Sets an environment variable (none removes it) for as long as it lives, then puts the former value back.
class ScopedEnvironment {
 public:
  ScopedEnvironment(std::string name, const std::optional<std::string>& value) : _name(std::move(name)) {
    if (const char* former = std::getenv(_name.c_str())) _former = former;
    put(value);
  }
  ~ScopedEnvironment() { put(_former); }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  void put(const std::optional<std::string>& value) const {
    if (value) {
      ::setenv(_name.c_str(), value->c_str(), 1);
    } else {
      ::unsetenv(_name.c_str());
    }
  }

  std::string _name;
  std::optional<std::string> _former;
};

}  // namespace velmora
