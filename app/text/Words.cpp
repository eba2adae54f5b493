#include <app/text/Words.h>

namespace velmora::app {

std::string words(std::string_view english, std::initializer_list<std::string_view> parts) {
  std::string text;
  for (std::size_t i = 0; i < english.size(); ++i) {
    const bool isPlace = english[i] == '%' && i + 1 < english.size();
    const auto number = isPlace ? static_cast<std::size_t>(english[i + 1] - '1') : parts.size();
    if (number < parts.size()) {
      text += parts.begin()[number];
      ++i;
    } else {
      text += english[i];
    }
  }
  return text;
}

}  // namespace velmora::app
