#include <web/host/Json.h>

#include <cmath>
#include <cstdio>

namespace velmora::web {

std::string json(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      quoted += '\\';
      quoted += c;
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char escaped[7];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
      quoted += escaped;
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

std::string json(double number) {
  if (!std::isfinite(number)) return "null";
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.15g", number);
  return digits;
}

std::string json(bool value) { return value ? "true" : "false"; }

JsonObject& JsonObject::add(std::string_view name, const std::string& value) {
  if (!_members.empty()) _members += ',';
  _members += json(name) + ':' + value;
  return *this;
}

std::string jsonArray(const std::vector<std::string>& values) {
  std::string members;
  for (const std::string& value : values) members += (members.empty() ? "" : ",") + value;
  return "[" + members + "]";
}

}  // namespace velmora::web
