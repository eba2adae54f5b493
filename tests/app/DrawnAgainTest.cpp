#include <thread>

#include <app/request/DrawableView.h>

#include "PictureTesting.h"

namespace velmora::app {
namespace {

/// One of the views that the program draws, in every scale and direction.
class DrawnAgain : public PictureTest, public ::testing::WithParamInterface<std::string> {
 protected:
  std::string drawn(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {GetParam(), "--size", "390x390"});
    return bytesOf(draw(arguments));
  }

  /// As drawn in a thread that has drawn nothing before, so that no shape is kept from an earlier drawing.
  std::string drawnAfresh(const std::vector<std::string>& arguments) const {
    std::string bytes;
    std::thread([&] { bytes = drawn(arguments); }).join();
    return bytes;
  }

  void expectTheSameAgain(const std::vector<std::string>& arguments) const {
    const std::string fresh = drawnAfresh(arguments);
    drawn(arguments);
    EXPECT_TRUE(drawn(arguments) == fresh) << "drawn with " << ::testing::PrintToString(arguments);
  }
};

TEST_P(DrawnAgain, LooksTheSameToTheLastBit) {
  for (const std::string scale : {"1", "2", "3"}) {
    expectTheSameAgain({"--scale", scale});
    expectTheSameAgain({"--scale", scale, "--rtl"});
  }
}

std::vector<std::string> namesOfViews() {
  std::vector<std::string> names;
  for (const DrawableView& view : allViews()) names.emplace_back(view.name);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Views, DrawnAgain, ::testing::ValuesIn(namesOfViews()),
                         [](const auto& view) { return view.param; });

}  // namespace
}  // namespace velmora::app
