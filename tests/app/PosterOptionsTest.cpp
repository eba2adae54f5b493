#include "PictureTesting.h"

namespace velmora::app {
namespace {

using PosterOptionsTest = PictureTest;

TEST_F(PosterOptionsTest, ThoseOfAScreenAreRefusedOnPaperAlone) {
  const std::vector<std::vector<std::string>> options = {
      {"--no-title"}, {"--tablet"}, {"--background", "white"}};
  for (const DrawableView& view : allViews()) {
    for (const auto& option : options) {
      std::vector<std::string> arguments = {"draw", std::string(view.name), "-o", path("picture.png")};
      arguments.insert(arguments.end(), option.begin(), option.end());
      const Outcome outcome = runProgram(arguments);
      EXPECT_EQ(outcome.status, isOnPaper(view) ? 2 : 0) << view.name;
      const std::string refusal = "does not take " + option.front().substr(2) + ";";
      EXPECT_EQ(outcome.err.find(refusal) != std::string::npos, isOnPaper(view)) << outcome.err;
    }
  }
}

}  // namespace
}  // namespace velmora::app
