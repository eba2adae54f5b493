#include <velmora/posters/Sheet.h>

#include <gtest/gtest.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::RecordingCanvas;

class SheetTest : public ::testing::Test {
 protected:
  Sheet sheet(bool isRightToLeft) {
    return Sheet(canvas, {200, 100}, Palette::of(PaperTheme::dark), isRightToLeft);
  }

  const ScopedTextEngine fixed{std::make_shared<testing::FixedTextEngine>()};
  RecordingCanvas canvas;
  const LabelStyle style = {.size = 10, .color = Color::white()};
};

TEST_F(SheetTest, EnlargesWhatIsMadeForA4) {
  const Palette& palette = Palette::of(PaperTheme::dark);
  EXPECT_DOUBLE_EQ(Sheet(canvas, paperSize(Paper::a4), palette, false).unit(), 1);
  EXPECT_DOUBLE_EQ(Sheet(canvas, paperSize(Paper::a4, true), palette, false).unit(), 1);
  EXPECT_NEAR(Sheet(canvas, paperSize(Paper::a3), palette, false).unit(), std::sqrt(2), 0.001);
}

TEST_F(SheetTest, MirrorsPlacesWhereReadingRunsFromRightToLeft) {
  EXPECT_EQ(sheet(false).onPaper(Rect{10, 20, 30, 40}), (Rect{10, 20, 30, 40}));
  EXPECT_EQ(sheet(true).onPaper(Rect{10, 20, 30, 40}), (Rect{160, 20, 30, 40}));
  EXPECT_EQ(sheet(true).onPaper(Point{10, 20}), (Point{190, 20}));
}

TEST_F(SheetTest, SetsALabelInTheMiddleOfItsHeight) {
  sheet(false).label("abcd", {10, 20, 100, 30}, style);
  EXPECT_EQ(canvas.lines().back(), "drawText \"abcd\" at 10 30 System 10 #FFFFFFFF");
}

TEST_F(SheetTest, SetsALabelAtTheSideWhereReadingBegins) {
  sheet(true).label("abcd", {10, 20, 100, 30}, style);
  EXPECT_EQ(canvas.lines().back(), "drawText \"abcd\" at 170 30 System 10 #FFFFFFFF");
}

TEST_F(SheetTest, SetsALabelSmallerThatIsWiderThanItsRoom) {
  Sheet drawn = sheet(false);
  drawn.label("abcdefgh", {0, 0, 32, 20}, style);
  ASSERT_EQ(drawn.labels().size(), 1U);
  EXPECT_DOUBLE_EQ(drawn.labels().front().wantedWidth, 40);
  EXPECT_DOUBLE_EQ(drawn.labels().front().width, 32);
}

TEST_F(SheetTest, NeverSetsALabelTooSmallToRead) {
  Sheet drawn = sheet(false);
  drawn.label("abcdefgh", {0, 0, 10, 20}, style);
  EXPECT_DOUBLE_EQ(drawn.labels().front().width, 40 * Sheet::leastShare);
}

TEST_F(SheetTest, DrawsNoEmptyLabel) {
  Sheet drawn = sheet(false);
  drawn.label("", {0, 0, 10, 20}, style);
  EXPECT_TRUE(drawn.labels().empty());
  EXPECT_TRUE(canvas.lines().empty());
}

}  // namespace
}  // namespace velmora
