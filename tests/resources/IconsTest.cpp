#include <gtest/gtest.h>

#include "MoonPictures.h"

namespace velmora::shipped {
namespace {

constexpr int iconSize = 60;  // pixels: 20 points at a scale of 3

std::shared_ptr<const Image> icon(const std::string& name) {
  return shippedImage("app/resources/" + name + ".png");
}

/// Number of pixels in a row of which more than half is drawn.
int drawnInRow(const Image& image, int row, int firstColumn) {
  int drawn = 0;
  for (int column = firstColumn; column < iconSize; ++column)
    drawn += pixelAt(image, column, row).alpha > 127;
  return drawn;
}

class RiseAndSetIcons : public ::testing::TestWithParam<const char*> {};

TEST_P(RiseAndSetIcons, AreLightShapesOverAHorizonOnTransparency) {
  const auto image = icon(GetParam());
  ASSERT_EQ(image->pixelSize(), (PixelSize{.width = iconSize, .height = iconSize}));
  for (const int corner : {0, iconSize - 1})
    for (const int other : {0, iconSize - 1}) EXPECT_EQ(pixelAt(*image, corner, other).alpha, 0);
  constexpr int horizonRow = 52;
  EXPECT_GT(drawnInRow(*image, horizonRow, 0), 48);
  EXPECT_GT(pixelAt(*image, iconSize / 2, horizonRow).brightness(), 180);
  EXPECT_EQ(drawnInRow(*image, iconSize - 3, 0), 0);
}

INSTANTIATE_TEST_SUITE_P(All, RiseAndSetIcons, ::testing::Values("moonrise", "moonset", "sunrise", "sunset"),
                         [](const auto& test) { return std::string(test.param); });

/// Whether an arrow's head is at its upper end, told by the wider half between two rows.
bool pointsUp(const Image& image, int top, int bottom, int firstColumn) {
  int balance = 0;
  for (int row = top; row < bottom; ++row)
    balance += (2 * row < top + bottom ? 1 : -1) * drawnInRow(image, row, firstColumn);
  return balance > 0;
}

TEST(RiseAndSetIcons, ArrowsPointUpForRiseAndDownForSet) {
  EXPECT_TRUE(pointsUp(*icon("sunrise"), 4, 26, 0));
  EXPECT_FALSE(pointsUp(*icon("sunset"), 4, 26, 0));
  EXPECT_TRUE(pointsUp(*icon("moonrise"), 12, 40, 38));
  EXPECT_FALSE(pointsUp(*icon("moonset"), 12, 40, 38));
}

}  // namespace
}  // namespace velmora::shipped
