#pragma once

#include <cstddef>
#include <string_view>

namespace velmora::app {

/// How many columns of a terminal the text takes: two for each wide character (East Asian letters, pictures),
/// none for marks that join the letter before them, one for every other character.
std::size_t displayWidth(std::string_view text);

}  // namespace velmora::app
