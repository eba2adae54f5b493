#pragma once

#include <string>

#include <gtest/gtest.h>

#include <tests/support/NotFinite.h>
#include <velmora/c/velmora.h>

namespace velmora::testing {

constexpr velmora_place helsinki = {60.17, 24.94, 0.0};
constexpr velmora_place tromso = {69.65, 18.96, 0.0};

/// A zone that is open as long as it lives.
class OpenZone {
 public:
  explicit OpenZone(const char* name) { EXPECT_EQ(velmora_zone_open(name, &_zone), VELMORA_OK); }
  ~OpenZone() { velmora_zone_close(_zone); }
  OpenZone(const OpenZone&) = delete;
  OpenZone& operator=(const OpenZone&) = delete;
  operator const velmora_zone*() const { return _zone; }

 private:
  velmora_zone* _zone = nullptr;
};

inline std::string message() { return velmora_message(); }

}  // namespace velmora::testing
