#pragma once

#include <cstdint>
#include <string>

namespace [[gnu::visibility("hidden")]] velmora {

/// The resource that shows the picture of that number: "IMG_17", or "moon_0" for −1, an unknown phase.
std::string pictureName(std::int64_t number);

}  // namespace velmora
