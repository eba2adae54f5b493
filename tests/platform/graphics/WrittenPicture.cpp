#include "WrittenPicture.h"

#include <regex>

namespace velmora::testing {

std::string comparable(const std::string& picture) {
  static const std::regex changing("/CreationDate \\(.*\\)|surface[0-9]+");
  return std::regex_replace(picture, changing, "");
}

}  // namespace velmora::testing
