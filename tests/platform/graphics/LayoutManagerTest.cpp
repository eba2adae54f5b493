#include <velmora/platform/graphics/LayoutManager.h>

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;

class LayoutManagerTest : public ::testing::Test {
 protected:
  static AttributedText text(const std::string& characters) {
    return AttributedText(characters, {.font = Font::systemFont(20), .color = Color::white()});
  }

  ScopedTextEngine _engine{std::make_shared<FixedTextEngine>()};
  std::shared_ptr<TextContainer> container = std::make_shared<TextContainer>();
  std::shared_ptr<LayoutManager> manager = std::make_shared<LayoutManager>(container);
  TextStorage storage{manager};
};

TEST_F(LayoutManagerTest, StorageManagerAndContainerAreLinked) {
  EXPECT_EQ(storage.layoutManager(), manager);
  EXPECT_EQ(manager->textContainer(), container);
  EXPECT_TRUE(storage.attributedString().isEmpty());
  EXPECT_EQ(manager->numberOfGlyphs(), 0U);
}

TEST_F(LayoutManagerTest, TheTextOfTheStorageIsLaidOutAtOnce) {
  storage.setAttributedString(text("123"));
  EXPECT_EQ(storage.attributedString(), text("123"));
  EXPECT_EQ(manager->numberOfGlyphs(), 3U);
  EXPECT_EQ(manager->lineFragmentRect(), (Rect{0, 0, 40, 20}));
  EXPECT_EQ(manager->boundingRectForGlyph(0), (Rect{5, 0, 10, 20}));
  EXPECT_EQ(manager->boundingRectForGlyph(2), (Rect{25, 0, 10, 20}));
  storage.setAttributedString(text("1"));
  EXPECT_EQ(manager->numberOfGlyphs(), 1U);
}

TEST_F(LayoutManagerTest, GlyphsStandBehindThePaddingOfTheContainer) {
  container->lineFragmentPadding = 2;
  storage.setAttributedString(text("12"));
  EXPECT_EQ(manager->lineFragmentRect(), (Rect{0, 0, 24, 20}));
  EXPECT_EQ(manager->boundingRectForGlyph(1), (Rect{12, 0, 10, 20}));
  RecordingCanvas canvas;
  manager->drawGlyph(canvas, 1, {-12, -20});
  EXPECT_EQ(canvas.text(), "drawGlyph 1 of \"12\" at -10 -20 System 20 #FFFFFFFF\n");
}

TEST_F(LayoutManagerTest, AGlyphIsDrawnWhereItStandsInTheContainer) {
  storage.setAttributedString(text("123"));
  RecordingCanvas canvas;
  manager->drawGlyph(canvas, 1, {100, 50});
  EXPECT_EQ(canvas.text(), "drawGlyph 1 of \"123\" at 105 50 System 20 #FFFFFFFF\n");
}

}  // namespace
}  // namespace velmora
