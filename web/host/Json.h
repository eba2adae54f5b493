#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::web {

/// Values as JSON (RFC 8259).
std::string json(std::string_view text);
inline std::string json(const char* text) { return json(std::string_view(text)); }
/// With 15 digits; null for what is no finite number.
std::string json(double number);
std::string json(bool value);

/// An object that is being written, member after member.
class JsonObject {
 public:
  /// A value that is JSON already.
  JsonObject& add(std::string_view name, const std::string& value);
  template <class Value>
  JsonObject& with(std::string_view name, const Value& value) {
    return add(name, json(value));
  }

  std::string text() const { return "{" + _members + "}"; }

 private:
  std::string _members;
};

/// The values, which are JSON already, as an array.
std::string jsonArray(const std::vector<std::string>& values);

}  // namespace velmora::web
