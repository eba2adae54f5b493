#include <velmora/views/UIControls.h>

#include <gtest/gtest.h>

#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>

namespace velmora {
namespace {

class UIControlsTest : public ::testing::Test {
 protected:
  static Rect mirrored(Rect rect) { return UIControls::rectForCurrentLayoutDirection(rect, container); }
  static Point mirrored(Point point) { return UIControls::pointForCurrentLayoutDirection(point, container); }

  static constexpr Rect container = {10, 20, 300, 400};

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
};

TEST_F(UIControlsTest, TheDirectionIsThatOfTheLocale) {
  EXPECT_FALSE(UIControls::isUserInterfaceRightToLeft());
  const ScopedLocale arabic("ar_EG");
  EXPECT_TRUE(UIControls::isUserInterfaceRightToLeft());
  const ScopedLocale hebrew("he_IL");
  EXPECT_TRUE(UIControls::isUserInterfaceRightToLeft());
}

TEST_F(UIControlsTest, TheHostMayForceADirection) {
  Device::setCurrent({.forcedDirection = LayoutDirection::rightToLeft});
  EXPECT_TRUE(UIControls::isUserInterfaceRightToLeft());
  const ScopedLocale arabic("ar_EG");
  Device::setCurrent({.forcedDirection = LayoutDirection::leftToRight});
  EXPECT_FALSE(UIControls::isUserInterfaceRightToLeft());
}

TEST_F(UIControlsTest, LeftToRightChangesNothing) {
  EXPECT_EQ(mirrored(Rect{15, 25, 40, 50}), (Rect{15, 25, 40, 50}));
  EXPECT_EQ(mirrored(Point{15, 25}), (Point{15, 25}));
}

TEST_F(UIControlsTest, RightToLeftARectangleAtTheLeftEdgeGoesToTheRightEdge) {
  const ScopedLocale arabic("ar_EG");
  const Rect moved = mirrored(Rect{10, 25, 40, 50});
  EXPECT_EQ(moved, (Rect{270, 25, 40, 50}));
  EXPECT_EQ(moved.maxX(), container.maxX());
}

TEST_F(UIControlsTest, RightToLeftAPointIsAsFarFromTheOtherEdge) {
  const ScopedLocale arabic("ar_EG");
  EXPECT_EQ(mirrored(Point{10, 25}), (Point{310, 25}));
  EXPECT_EQ(mirrored(Point{160, 25}), (Point{160, 25}));
  EXPECT_EQ(mirrored(Point{300, 25}), (Point{20, 25}));
}

TEST_F(UIControlsTest, MirroringTwiceIsTheIdentity) {
  const ScopedLocale arabic("ar_EG");
  for (double x = -40; x <= 340; x += 2.5) {
    const Rect rect = {x, 30, 17.5, 8};
    EXPECT_EQ(mirrored(mirrored(rect)), rect);
    EXPECT_EQ(mirrored(mirrored(rect.origin())), rect.origin());
  }
}

}  // namespace
}  // namespace velmora
