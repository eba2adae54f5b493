#pragma once

#include <string>

namespace velmora::app {

/// The text, between the marks of an isolate where it holds letters written from right to left: a terminal
/// that reorders such letters then leaves everything beside it, the columns of a table, where it stands.
std::string isolated(const std::string& text);

}  // namespace velmora::app
