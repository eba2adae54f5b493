#include <velmora/platform/graphics/TextLayout.h>

#include <gtest/gtest.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;
using Lines = std::vector<std::string>;

class TextLayoutTest : public ::testing::Test {
 protected:
  static AttributedText text(const std::string& characters, TextAlignment alignment,
                             LineBreak lineBreak = LineBreak::none) {
    return AttributedText(characters, {.font = Font::systemFont(20),
                                       .color = Color::white(),
                                       .alignment = alignment,
                                       .lineBreak = lineBreak});
  }

  static Lines drawn(const AttributedText& attributed, Rect rect) {
    RecordingCanvas canvas;
    TextLayout(attributed).drawInRect(canvas, rect);
    EXPECT_TRUE(canvas.isBalanced());
    return canvas.lines();
  }

  ScopedTextEngine _engine{std::make_shared<FixedTextEngine>()};
};

TEST_F(TextLayoutTest, MeasuresWithTheProcessesEngine) {
  const TextLayout layout(text("1234", TextAlignment::left));
  EXPECT_EQ(layout.size(), (Size{40, 20}));
  EXPECT_EQ(layout.metrics().ascent, 15);
  EXPECT_EQ(layout.metrics().descent, 5);
}

TEST_F(TextLayoutTest, ALineStartsAtTheTopOfItsRectangle) {
  EXPECT_EQ(drawn(text("12", TextAlignment::left), {10, 30, 100, 80}),
            (Lines{"drawText \"12\" at 10 30 System 20 #FFFFFFFF"}));
  EXPECT_EQ(drawn(text("12", TextAlignment::center), {10, 30, 100, 80}),
            (Lines{"drawText \"12\" at 50 30 System 20 #FFFFFFFF"}));
  EXPECT_EQ(drawn(text("12", TextAlignment::right), {10, 30, 100, 80}),
            (Lines{"drawText \"12\" at 90 30 System 20 #FFFFFFFF"}));
}

TEST_F(TextLayoutTest, NaturalAlignmentFollowsTheText) {
  EXPECT_EQ(drawn(text("ab", TextAlignment::natural), {10, 30, 100, 80}),
            (Lines{"drawText \"ab\" at 10 30 System 20 #FFFFFFFF"}));
  EXPECT_EQ(drawn(text("אב", TextAlignment::natural), {10, 30, 100, 80}),
            (Lines{"drawText \"אב\" at 90 30 System 20 #FFFFFFFF"}));
}

TEST_F(TextLayoutTest, AClippingLineIsCutAtTheRectangleAndShowsItsBeginning) {
  EXPECT_EQ(
      drawn(text("1234", TextAlignment::center, LineBreak::clipping), {10, 30, 25, 20}),
      (Lines{"save", "clip rect 10 30 25 20", "drawText \"1234\" at 10 30 System 20 #FFFFFFFF", "restore"}));
  EXPECT_EQ(drawn(text("אבגד", TextAlignment::center, LineBreak::clipping), {10, 30, 25, 20})[2],
            "drawText \"אבגד\" at -5 30 System 20 #FFFFFFFF");
}

TEST_F(TextLayoutTest, AClippingLineThatFitsNeedsNoClip) {
  EXPECT_EQ(drawn(text("12", TextAlignment::center, LineBreak::clipping), {0, 0, 20, 20}),
            (Lines{"drawText \"12\" at 0 0 System 20 #FFFFFFFF"}));
}

TEST_F(TextLayoutTest, ALineThatDoesNotClipHangsOut) {
  EXPECT_EQ(drawn(text("1234", TextAlignment::center), {10, 30, 20, 5}),
            (Lines{"drawText \"1234\" at 0 30 System 20 #FFFFFFFF"}));
}

TEST_F(TextLayoutTest, GlyphsStandBehindThePaddingOfTheirLineFragment) {
  const TextLayout layout(text("123", TextAlignment::left));
  EXPECT_EQ(layout.glyphCount(), 3U);
  EXPECT_EQ(layout.glyphRect(0), (Rect{5, 0, 10, 20}));
  EXPECT_EQ(layout.glyphRect(2), (Rect{25, 0, 10, 20}));
  EXPECT_THROW(layout.glyphRect(3), std::out_of_range);
}

TEST_F(TextLayoutTest, GlyphsAreCountedInReadingOrder) {
  const TextLayout layout(text("אבג", TextAlignment::left));
  EXPECT_EQ(layout.glyphRect(0), (Rect{25, 0, 10, 20}));
  EXPECT_EQ(layout.glyphRect(2), (Rect{5, 0, 10, 20}));
}

TEST_F(TextLayoutTest, AGlyphIsDrawnWhereItsLineFragmentHasIt) {
  RecordingCanvas canvas;
  TextLayout(text("123", TextAlignment::left)).drawGlyph(canvas, 1, {-15, -20});
  EXPECT_EQ(canvas.lines(), (Lines{"drawGlyph 1 of \"123\" at -10 -20 System 20 #FFFFFFFF"}));
}

TEST_F(TextLayoutTest, AnEmptyTextHasHeightAndNoWidth) {
  const TextLayout layout{AttributedText()};
  EXPECT_EQ(layout.size(), (Size{0, 12}));
  EXPECT_EQ(layout.glyphCount(), 0U);
}

TEST(RecordingCanvas, RunsOfDifferentColourAreWrittenOneByOne) {
  AttributedText text("14 (3)", {.font = Font::named("AvenirNext-Medium", 13), .color = Color::white()});
  text.setColor(Color::cyan(), 3, 6);
  RecordingCanvas canvas;
  canvas.drawText(text, {1.23456, -0.00001});
  EXPECT_EQ(
      canvas.text(),
      "drawText \"14 (3)\" at 1.2346 0 \"14 \" AvenirNext medium 13 #FFFFFFFF \"(3)\" AvenirNext medium "
      "13 #00FFFFFF\n");
}

TEST(RecordingCanvas, TellsWhetherSavesAndGroupsBalance) {
  RecordingCanvas canvas;
  EXPECT_TRUE(canvas.isBalanced());
  canvas.save();
  EXPECT_FALSE(canvas.isBalanced());
  canvas.beginGroup(1);
  canvas.endGroup();
  canvas.restore();
  EXPECT_TRUE(canvas.isBalanced());
  canvas.save();
  canvas.beginGroup(1);
  canvas.restore();
  canvas.endGroup();
  EXPECT_FALSE(canvas.isBalanced());
}

}  // namespace
}  // namespace velmora
