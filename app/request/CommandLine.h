#pragma once

#include <string>
#include <vector>

#include <app/request/Request.h>

namespace velmora::app {

/// Reads the program's arguments, without its own name. Throws BadInput.
Request requestFromArguments(const std::vector<std::string>& arguments);

}  // namespace velmora::app
