#include <velmora/views/ArcTextView.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;

class ArcTextViewTest : public ::testing::Test {
 protected:
  ArcTextViewTest() { view->setFrame({30, 40, 200, 100}); }

  // Text of 7 by 14 points a character.
  static AttributedText text(const std::string& characters, const Color& color = Color::white()) {
    return AttributedText(characters, {.font = Font::systemFont(14), .color = color});
  }

  std::string drawn() {
    RecordingCanvas canvas;
    view->drawRect(canvas, view->bounds());
    EXPECT_TRUE(canvas.isBalanced());
    return canvas.text();
  }

  ScopedTextEngine _engine{std::make_shared<FixedTextEngine>()};
  std::shared_ptr<ArcTextView> view = std::make_shared<ArcTextView>();
};

TEST_F(ArcTextViewTest, StartsEmptyUprightAndSeenThrough) {
  EXPECT_TRUE(view->attributedString().isEmpty());
  EXPECT_EQ(view->arcRadius(), 0);
  EXPECT_EQ(view->arcTheta(), 0);
  EXPECT_FALSE(view->isFlipped());
  view->setBackgroundColor(Color::white());
  EXPECT_FALSE(view->isOpaque());
}

TEST_F(ArcTextViewTest, ItsStorageItsManagerAndItsContainerAreLinked) {
  EXPECT_EQ(view->textStorage()->layoutManager(), view->layoutManager());
  EXPECT_EQ(view->layoutManager()->textContainer(), view->textContainer());
  view->setAttributedString(text("Jan"));
  EXPECT_EQ(view->textStorage()->attributedString(), text("Jan"));
  EXPECT_EQ(view->layoutManager()->numberOfGlyphs(), 3U);
}

TEST_F(ArcTextViewTest, AnEmptyTextDrawsNothing) {
  view->setArcRadius(50);
  view->setArcTheta(180, true);
  EXPECT_EQ(drawn(), "");
}

TEST_F(ArcTextViewTest, UprightGlyphsStandOutsideTheCircleEachByItsLeftEdge) {
  view->setAttributedString(text("Jan"));
  view->setArcRadius(50);
  view->setArcTheta(0, false);
  EXPECT_EQ(drawn(),
            "save\ntranslate 159.7002 55.99\nrotate 1.6708\nscale 1 1\n"
            "drawGlyph 0 of \"Jan\" at 0 -14 System 14 #FFFFFFFF\nrestore\n"
            "save\ntranslate 158.2803 64.2622\nrotate 1.8108\nscale 1 1\n"
            "drawGlyph 1 of \"Jan\" at -7 -14 System 14 #FFFFFFFF\nrestore\n"
            "save\ntranslate 155.7199 72.2552\nrotate 1.9508\nscale 1 1\n"
            "drawGlyph 2 of \"Jan\" at -14 -14 System 14 #FFFFFFFF\nrestore\n");
}

TEST_F(ArcTextViewTest, FlippedGlyphsStandOnTheirHeadsEachByItsRightEdge) {
  view->setAttributedString(text("an"));
  view->setArcRadius(50);
  view->setArcTheta(180, true);
  EXPECT_EQ(drawn(),
            "save\ntranslate 54.8328 38.9468\nrotate 4.9524\nscale -1 -1\n"
            "drawGlyph 0 of \"na\" at 0 -14 System 14 #FFFFFFFF\nrestore\n"
            "save\ntranslate 56.8171 32.7522\nrotate 5.0924\nscale -1 -1\n"
            "drawGlyph 1 of \"na\" at -7 -14 System 14 #FFFFFFFF\nrestore\n");
}

TEST_F(ArcTextViewTest, EveryFlippedUpdateReversesTheTextAgain) {
  view->setAttributedString(text("Jan 21"));
  view->setArcTheta(180, true);
  EXPECT_EQ(view->attributedString(), text("12 naJ"));
  view->setArcTheta(180, true);
  EXPECT_EQ(view->attributedString(), text("Jan 21"));
  view->setArcRadius(50);
  EXPECT_EQ(view->attributedString(), text("12 naJ"));
  view->update();
  EXPECT_EQ(view->attributedString(), text("Jan 21"));
}

TEST_F(ArcTextViewTest, UprightUpdatesLeaveTheTextAsItIs) {
  view->setAttributedString(text("Jan"));
  view->setArcRadius(50);
  view->setArcTheta(90, false);
  view->update();
  EXPECT_EQ(view->attributedString(), text("Jan"));
  view->setArcTheta(90, true);
  view->setArcTheta(90, false);
  EXPECT_EQ(view->attributedString(), text("naJ")) << "turning the flag off does not turn the text back";
}

TEST_F(ArcTextViewTest, EachCharacterKeepsItsAttributesWhenTheTextIsReversed) {
  AttributedText twoColors = text("ab", Color::cyan());
  twoColors.append(text("é月", Color::yellow()));
  AttributedText expected = text("月é", Color::yellow());
  expected.append(text("ba", Color::cyan()));
  view->setAttributedString(twoColors);
  view->setArcTheta(0, true);
  EXPECT_EQ(view->attributedString(), expected);
  view->update();
  EXPECT_EQ(view->attributedString(), twoColors);
}

TEST_F(ArcTextViewTest, RadiusAngleAndUpdateAskToBeDrawnAgain) {
  const auto isAskedBy = [&](auto change) {
    RecordingCanvas canvas;
    view->render(canvas);
    change();
    return view->needsDisplay();
  };
  EXPECT_TRUE(isAskedBy([&] { view->setArcRadius(10); }));
  EXPECT_TRUE(isAskedBy([&] { view->setArcTheta(10, false); }));
  EXPECT_TRUE(isAskedBy([&] { view->update(); }));
  EXPECT_FALSE(isAskedBy([&] { view->setAttributedString(text("Jan")); }));
}

TEST_F(ArcTextViewTest, PointsOnTheArcLieAroundTheOrigin) {
  const Point right = ArcTextView::pointOnArcWithAngle(0, 10);
  EXPECT_EQ(right, (Point{10, 0}));
  const Point below = ArcTextView::pointOnArcWithAngle(1.5707963267948966, 10);
  EXPECT_NEAR(below.x, 0, 1e-12);
  EXPECT_NEAR(below.y, 10, 1e-12);
}

}  // namespace
}  // namespace velmora
