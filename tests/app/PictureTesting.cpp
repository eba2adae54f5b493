#include "PictureTesting.h"

#include <regex>

namespace velmora::app {

Size statedSize(const std::filesystem::path& file) {
  const std::string text = bytesOf(file);
  const std::regex svg(R"(<svg[^>]* width="([0-9.]+)(?:px)?" height="([0-9.]+)(?:px)?")");
  const std::regex pdf(R"(/MediaBox \[ 0 0 ([0-9.]+) ([0-9.]+) \])");
  std::smatch match;
  const bool isFound = std::regex_search(text, match, file.extension() == ".svg" ? svg : pdf);
  EXPECT_TRUE(isFound) << file << " states no size";
  return isFound ? Size{testing::leadingNumber(match[1]), testing::leadingNumber(match[2])} : Size();
}

}  // namespace velmora::app
