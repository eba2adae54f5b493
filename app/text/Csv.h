#pragma once

#include <string>
#include <vector>

#include <app/text/Json.h>

namespace velmora::app {

/// A table as comma-separated values (RFC 4180): a line of the columns' names, then one line per row. Each row is
/// an object with the values by those names; what is null or missing is empty, a text stands as it is, and
/// everything else as in JSON.
std::string csvTable(const std::vector<std::string>& columns, const Json& rows);

}  // namespace velmora::app
