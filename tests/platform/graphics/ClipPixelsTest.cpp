#include <gtest/gtest.h>
#include <pthread.h>

#include <functional>

#include "tests/platform/graphics/Pixels.h"

namespace velmora {
namespace {

using testing::Pixels;

constexpr Rect wholePicture = {0, 0, 20, 20};

class ClipPixelsTest : public ::testing::Test {
 protected:
  Pixels picture{{20, 20}};
  CairoCanvas& canvas = picture.canvas;
};

/// Runs the work in a thread with a stack of so many bytes.
void runOnStack(std::size_t bytes, std::function<void()> work) {
  const auto call = [](void* function) -> void* {
    (*static_cast<std::function<void()>*>(function))();
    return nullptr;
  };
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, bytes);
  pthread_t thread;
  ASSERT_EQ(pthread_create(&thread, &attributes, call, &work), 0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

TEST_F(ClipPixelsTest, ClipsAddUp) {
  canvas.clip(Path::rect({0, 0, 12, 20}));
  canvas.clip(Path::rect({8, 0, 12, 20}));
  canvas.fillRect(wholePicture);
  EXPECT_EQ(picture.inkBox(), (Rect{8, 0, 4, 20}));
}

TEST_F(ClipPixelsTest, ClipsMayBeVeryMany) {
  constexpr std::size_t smallStack = 256 << 10;
  runOnStack(smallStack, [this] {
    canvas.save();
    for (int i = 0; i < 10'000; ++i) canvas.clip(Path::rect({0, 0, 12, 20}));
    canvas.fillRect(wholePicture);
    canvas.restore();
  });
  EXPECT_EQ(picture.inkBox(), (Rect{0, 0, 12, 20}));
}

TEST_F(ClipPixelsTest, AnEmptyClipHidesEverything) {
  canvas.clip(Path());
  canvas.fillRect(wholePicture);
  EXPECT_EQ(picture.coverage(), 0);
}

TEST_F(ClipPixelsTest, TheSoftEdgeOfAClipAroundAGroupCountsOnce) {
  canvas.clip(Path::rect({2.5, 0, 10, 20}));
  canvas.beginGroup(0.5);
  canvas.fillRect(wholePicture);
  canvas.fillEllipse({-20, -20, 60, 60});
  canvas.endGroup();
  EXPECT_EQ(picture.at(2, 10), "#00000040");
  EXPECT_EQ(picture.at(8, 10), "#00000080");
  EXPECT_EQ(picture.at(12, 10), "#00000040");
}

}  // namespace
}  // namespace velmora
