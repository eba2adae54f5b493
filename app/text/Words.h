#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace velmora::app {

/// What people read, all of it but names and numbers: the English text, with the parts put where %1, %2 …
/// stand.
std::string words(std::string_view english, std::initializer_list<std::string_view> parts = {});

}  // namespace velmora::app
