#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace velmora::app {

/// A JSON value whose objects keep the order in which their members were written.
using Json = nlohmann::ordered_json;

/// The value on one line. Numbers read back unchanged, what is no number is null, bytes that are no UTF-8 are
/// replaced.
inline std::string jsonLine(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace velmora::app
