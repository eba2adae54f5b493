#pragma once

#include <string>

namespace [[gnu::visibility("hidden")]] velmora {

/// The library's text under that key, its English, in the user's language.
std::string localizedText(const std::string& key);

/// The same with the value in place of "%@".
std::string localizedText(const std::string& key, const std::string& value);

}  // namespace velmora
