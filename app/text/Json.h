#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

// Compiled once, in Json.cpp, instead of with each source that holds a value.
extern template class nlohmann::basic_json<nlohmann::ordered_map>;

namespace velmora::app {

/// A JSON value whose objects keep the order in which their members were written.
using Json = nlohmann::ordered_json;

/// The value that a text holds, discarded where it is not JSON. Compiled once, as reading a text with each
/// source that does takes the compiler longer than the rest of it.
Json jsonFromText(std::string_view text);

/// The value on one line. Numbers read back unchanged, what is no number is null, bytes that are no UTF-8 are
/// replaced.
std::string jsonLine(const Json& value);

}  // namespace velmora::app
