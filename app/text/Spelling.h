#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::app {

/// The text as it is compared in a search: Latin letters without accents in lower case and digits, nothing
/// else. "São Paulo", "sao-paulo" and "SAO_PAULO" are "saopaulo".
std::string searchForm(std::string_view text);

/// The candidates whose spelling comes nearest, nearest first: at most three, none more than a letter worse
/// than the first. "San Juan, San Luis".
std::string nearest(std::string_view text, const std::vector<std::string>& candidates);

}  // namespace velmora::app
