#include <velmora/views/MoonPositionView.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;

class MoonPositionViewTest : public ::testing::Test {
 protected:
  MoonPositionViewTest() { view->setFrame({30, 40, 300, 200}); }

  std::string drawn() {
    RecordingCanvas canvas;
    view->drawRect(canvas, view->bounds());
    return canvas.text();
  }

  ScopedTextEngine _engine{std::make_shared<FixedTextEngine>()};
  std::shared_ptr<MoonPositionView> view = std::make_shared<MoonPositionView>();
};

TEST_F(MoonPositionViewTest, HoldsFiveLabelsFromTheStart) {
  ASSERT_EQ(view->textViews().size(), 5U);
  ASSERT_EQ(view->subviews().size(), 5U);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(view->subviews()[i], view->textViews()[i]);
}

TEST_F(MoonPositionViewTest, DrawsTheRingAndFiveArcsInsideOneAnother) {
  EXPECT_EQ(drawn(),
            "clearRect 0 0 300 200\n"
            "setStrokeColor #800080FF\n"
            "setLineWidth 1\n"
            "strokeEllipse 40 -10 220 220\n"
            "setLineWidth 15\n"
            "stroke arc 150 100 radius 110 from 3.1416 to 5.5851 clockwise\n"
            "setLineWidth 15\n"
            "stroke arc 150 100 radius 94 from 3.4907 to 5.9341 clockwise\n"
            "setLineWidth 15\n"
            "stroke arc 150 100 radius 78 from 3.8397 to 6.2832 clockwise\n"
            "setLineWidth 15\n"
            "stroke arc 150 100 radius 62 from 4.1888 to 6.6323 clockwise\n"
            "setLineWidth 15\n"
            "stroke arc 150 100 radius 46 from 4.5379 to 6.9813 clockwise\n");
}

TEST_F(MoonPositionViewTest, LabelsEachArcWithItsDay) {
  drawn();
  const TextAttributes attributes = {.font = Font::systemFont(12), .color = Color::withWhite(0.8, 1)};
  const char* const reversedTexts[] = {"12 naJ", "22 naJ", "32 naJ", "42 naJ", "52 naJ"};
  for (std::size_t i = 0; i < 5; ++i) {
    const ArcTextView& label = *view->textViews()[i];
    EXPECT_EQ(label.attributedString(), AttributedText(reversedTexts[i], attributes));
    EXPECT_EQ(label.arcRadius(), 106 - 16.0 * static_cast<double>(i));
    EXPECT_EQ(label.arcTheta(), 180 + 20.0 * static_cast<double>(i));
    EXPECT_TRUE(label.isFlipped());
    EXPECT_EQ(label.frame(), view->frame()) << "the frame, not the bounds";
  }
}

TEST_F(MoonPositionViewTest, DrawnAgainItsLabelsRunTheOtherWay) {
  drawn();
  drawn();
  EXPECT_EQ(view->textViews()[0]->attributedString().text(), "Jan 21");
  drawn();
  EXPECT_EQ(view->textViews()[0]->attributedString().text(), "Jan 21");
}

TEST_F(MoonPositionViewTest, LabelsAreDrawnAboveTheArcs) {
  RecordingCanvas canvas;
  view->render(canvas);
  EXPECT_TRUE(canvas.isBalanced());
  const std::string all = canvas.text();
  const auto lastArc = all.rfind("stroke arc"), firstGlyph = all.find("drawGlyph 0 of \"12 naJ\"");
  ASSERT_NE(firstGlyph, std::string::npos);
  EXPECT_LT(lastArc, firstGlyph);
}

}  // namespace
}  // namespace velmora
