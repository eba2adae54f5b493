#include <velmora/platform/ui/Device.h>

#include <gtest/gtest.h>

#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

TEST(Device, LayoutsRunAsTheLocaleIsWritten) {
  for (const char* identifier : {"ar_EG", "he_IL", "fa_IR"}) {
    const ScopedLocale locale(identifier);
    EXPECT_EQ(Device::current().layoutDirection(), LayoutDirection::rightToLeft) << identifier;
  }
  for (const char* identifier : {"en_US", "ja_JP"}) {
    const ScopedLocale locale(identifier);
    EXPECT_EQ(Device::current().layoutDirection(), LayoutDirection::leftToRight) << identifier;
  }
}

TEST(Device, AHostMayForceTheDirection) {
  const ScopedLocale english("en_US");
  const ScopedDevice forced({.forcedDirection = LayoutDirection::rightToLeft});
  EXPECT_EQ(Device::current().layoutDirection(), LayoutDirection::rightToLeft);
  const ScopedLocale arabic("ar_EG");
  const ScopedDevice forcedBack({.forcedDirection = LayoutDirection::leftToRight});
  EXPECT_EQ(Device::current().layoutDirection(), LayoutDirection::leftToRight);
}

TEST(Device, AScopePutsTheFormerDeviceBack) {
  const double before = Device::current().screenWidth;
  {
    const ScopedDevice small({.screenWidth = 320, .screenScale = 2});
    EXPECT_EQ(Device::current().screenWidth, 320);
    EXPECT_EQ(Device::current().screenScale, 2);
  }
  EXPECT_EQ(Device::current().screenWidth, before);
}

}  // namespace
}  // namespace velmora
