#pragma once

#include <string>

namespace velmora {

/// The root of the source tree, without a slash at the end: where tests find data and shipped resources.
std::string sourceDirectory();

}  // namespace velmora
