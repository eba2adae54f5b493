#include <gtest/gtest.h>

#include <cmath>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/time/Locale.h>

#include "tests/platform/graphics/Pixels.h"

namespace velmora {
namespace {

using testing::Pixels;

TextLayout layoutOf(const std::string& text, const Font& font = Font::systemFont(20)) {
  return TextLayout(AttributedText(text, {.font = font}));
}

class PangoText : public ::testing::Test {
 protected:
  ScopedLocale _locale{"en_US"};
};

TEST_F(PangoText, TheHeightIsThatOfTheFontWhateverTheScript) {
  const double height = layoutOf("14").height();
  EXPECT_GT(height, 20);
  EXPECT_LT(height, 28);
  for (const char* text : {"x", "Ég", "١٤", "ט״ו", "१४", "十五夜", "보름달"}) {
    EXPECT_EQ(layoutOf(text).height(), height) << text;
  }
}

TEST_F(PangoText, TheHeightIsThatOfTheTallestFont) {
  AttributedText text("14", {.font = Font::systemFont(10)});
  text.append(AttributedText("15", {.font = Font::systemFont(20)}));
  EXPECT_EQ(TextLayout(text).height(), layoutOf("15").height());
}

TEST_F(PangoText, SizesGrowWithTheFontWithoutRounding) {
  for (const double size : {9.0, 11.0, 12.5, 17.0, 33.0}) {
    const TextLayout layout = layoutOf("Mar 14", Font::systemFont(size));
    const TextLayout larger = layoutOf("Mar 14", Font::systemFont(size * 2));
    EXPECT_NEAR(larger.width(), layout.width() * 2, 0.02) << size;
    EXPECT_NEAR(larger.height(), layout.height() * 2, 0.02) << size;
  }
}

TEST_F(PangoText, WeightsDiffer) {
  const double regular = layoutOf("Wednesday").width();
  const double medium = layoutOf("Wednesday", Font::named("AvenirNext-Medium", 20)).width();
  const double bold = layoutOf("Wednesday", Font::boldSystemFont(20)).width();
  EXPECT_LT(regular, medium);
  EXPECT_LT(medium, bold);
  EXPECT_EQ(layoutOf("Wednesday", Font::named("Helvetica", 20)).width(), regular);
}

TEST_F(PangoText, InkLiesWhereTheMetricsSay) {
  for (const double scale : {1.0, 2.0, 3.0}) {
    const TextLayout layout = layoutOf("H");
    Pixels picture({60, 40}, scale);
    layout.drawAtPoint(picture.canvas, {10, 5});
    const Rect ink = picture.inkBox();
    const double baseline = (5 + layout.metrics().ascent) * scale;
    EXPECT_NEAR(ink.maxY(), baseline, 1.01) << scale;
    EXPECT_GT(ink.minX(), 10 * scale);
    EXPECT_LT(ink.maxX(), (10 + layout.width()) * scale);
    EXPECT_NEAR(ink.height, 20 * 0.727 * scale, 2) << "capitals of Inter are 0.727 high";
  }
}

TEST_F(PangoText, TextOfTheSameRunsIsAsWideAtEveryScale) {
  const TextLayout layout = layoutOf("00:15 AM", Font::systemFont(12));
  const auto inkWidth = [&](double scale) {
    Pixels picture({100, 20}, scale);
    layout.drawAtPoint(picture.canvas, {10, 0});
    return picture.inkBox().width / scale;
  };
  EXPECT_NEAR(inkWidth(1), inkWidth(8), 2);
  EXPECT_NEAR(inkWidth(3), inkWidth(8), 0.7);
}

TEST_F(PangoText, ColoursOfRunsAreDrawn) {
  AttributedText text("██", {.font = Font::systemFont(20), .color = {1, 0, 0, 1}});
  text.setColor({0, 0, 1, 1}, 3, 6);
  const TextLayout layout{text};
  Pixels picture({60, 40});
  layout.drawAtPoint(picture.canvas, {0, 5});
  EXPECT_EQ(picture.at(static_cast<std::size_t>(layout.width() / 4), 20), "#FF0000FF");
  EXPECT_EQ(picture.at(static_cast<std::size_t>(layout.width() * 3 / 4), 20), "#0000FFFF");
}

TEST_F(PangoText, TextFollowsAlphaAndClip) {
  Pixels picture({60, 40});
  picture.canvas.setAlpha(0.5);
  picture.canvas.clip(Path::rect({0, 0, 10, 40}));
  layoutOf("████").drawAtPoint(picture.canvas, {0, 5});
  EXPECT_EQ(picture.at(5, 20), "#00000080");
  EXPECT_EQ(picture.inkBox().maxX(), 10);
}

TEST_F(PangoText, TheDirectionFollowsTheLetters) {
  EXPECT_FALSE(layoutOf("Mar 14").metrics().isRightToLeft);
  EXPECT_TRUE(layoutOf("14 מרץ").metrics().isRightToLeft);
  EXPECT_TRUE(layoutOf("مارس").metrics().isRightToLeft);
}

TEST_F(PangoText, ATextWithoutLettersFollowsTheLocale) {
  EXPECT_FALSE(layoutOf("14").metrics().isRightToLeft);
  const ScopedLocale hebrew("he");
  EXPECT_TRUE(layoutOf("14").metrics().isRightToLeft);
  EXPECT_FALSE(layoutOf("Mar").metrics().isRightToLeft);
}

TEST_F(PangoText, GlyphBoxesStandSideBySide) {
  const TextLayout layout = layoutOf("Jan 21");
  ASSERT_EQ(layout.glyphCount(), 6U);
  double x = TextLayout::lineFragmentPadding;
  for (std::size_t i = 0; i < layout.glyphCount(); ++i) {
    EXPECT_NEAR(layout.glyphRect(i).x, x, 1e-9) << i;
    EXPECT_EQ(layout.glyphRect(i).height, layout.height());
    x = layout.glyphRect(i).maxX();
  }
  EXPECT_NEAR(x, TextLayout::lineFragmentPadding + layout.width(), 1e-9);
}

TEST_F(PangoText, GlyphsOfHebrewAreCountedFromTheRight) {
  const TextLayout layout = layoutOf("ירח");
  ASSERT_EQ(layout.glyphCount(), 3U);
  EXPECT_GT(layout.glyphRect(0).x, layout.glyphRect(1).x);
  EXPECT_GT(layout.glyphRect(1).x, layout.glyphRect(2).x);
}

TEST_F(PangoText, TheGlyphsOneByOneMakeTheLine) {
  const TextLayout layout = layoutOf("Jan 21");
  Pixels asLine({100, 40}), byGlyph({100, 40});
  layout.drawAtPoint(asLine.canvas, {10 + TextLayout::lineFragmentPadding, 5});
  for (std::size_t i = 0; i < layout.glyphCount(); ++i) layout.drawGlyph(byGlyph.canvas, i, {10, 5});
  EXPECT_GT(asLine.coverage(), 50);
  EXPECT_NEAR(asLine.coverage(), byGlyph.coverage(), 0.5);
  EXPECT_EQ(asLine.inkBox(), byGlyph.inkBox());
}

TEST_F(PangoText, AGlyphBeyondTheTextDrawsNothing) {
  Pixels picture({100, 40});
  picture.canvas.drawGlyph(AttributedText("Jan"), 3, {10, 5});
  EXPECT_EQ(picture.coverage(), 0);
}

TEST_F(PangoText, EveryShippedLanguageHasItsGlyphs) {
  struct Sample {
    const char* locale;
    const char* text;
  };
  for (const Sample& sample : {Sample{"en", "Full Moon – Year Calendar (2024)°"},
                               {"de", "Abnehmender Mond: Höhe, Größe, zunehmend ÄÖÜ"},
                               {"fr", "Premier croissant, élévation, cœur, août, « lune »"},
                               {"es", "Cuarto creciente, elevación, mañana, ¿luna?"},
                               {"it", "Luna gibbosa calante, città, più"},
                               {"pt", "Quarto minguante, elevação, manhã"},
                               {"nl", "Afnemende maan, één, zoëven"},
                               {"pl", "Pełnia księżyca, świt, źdźbło, ćma"},
                               {"tr", "Dolunay, yükseklik, ışık, İğne, şafak"},
                               {"ru", "Полнолуние, высота, съёмка ЩЭЮЯ"},
                               {"uk", "Повний місяць, їжак, ґанок, є"},
                               {"ar", "بدر كامل، الارتفاع: ١٢٣٤٥٦٧٨٩٠ ص م"},
                               {"he", "ירח מלא, גובה: ט״ו באדר ה׳"},
                               {"hi", "पूर्णिमा, ऊँचाई १२३४५६७८९० क्षितिज"},
                               {"ja", "満月、高度、上弦の月 エクリプス 十五夜"},
                               {"ko", "보름달, 고도, 상현달, 초승달"},
                               {"zh-Hans", "满月，高度角，上弦月，农历闰月"},
                               {"zh-Hant", "滿月，高度角，上弦月，農曆閏月"}}) {
    const ScopedLocale locale(sample.locale);
    for (const Font& font :
         {Font::systemFont(13), Font::boldSystemFont(13), Font::named("AvenirNext-Medium", 13)}) {
      const auto uncovered =
          TextEngine::current().uncoveredCharacters(AttributedText(sample.text, {.font = font}));
      EXPECT_TRUE(uncovered.empty()) << sample.locale << ": " << *uncovered.begin();
    }
  }
}

TEST_F(PangoText, TheSystemsFaceLooksAsItDoesAmongAllFaces) {
  const Font amongAll = {.family = "Inter", .size = 13};
  for (const std::string text :
       {"Friday, 21 June 2024", "−12.5° ½ … → “x”", "Полнолуние", "Ημέρα", "Tháng bảy"}) {
    const TextLayout alone = layoutOf(text, Font::systemFont(13)), named = layoutOf(text, amongAll);
    EXPECT_EQ(alone.width(), named.width()) << text;
    EXPECT_EQ(alone.height(), named.height()) << text;
    Pixels picture({200, 20}), expected({200, 20});
    alone.drawAtPoint(picture.canvas, {0, 0});
    named.drawAtPoint(expected.canvas, {0, 0});
    EXPECT_EQ(picture.canvas.pixels(), expected.canvas.pixels()) << text;
  }
}

TEST_F(PangoText, ALetterThatTheSystemsFaceLacksComesFromAnother) {
  EXPECT_TRUE(TextEngine::current().uncoveredCharacters(AttributedText("14 Ԝ ԥ")).empty());
}

TEST_F(PangoText, ACharacterThatNoFaceHasIsReported) {
  const AttributedText text("a\U0010FFFDb\U0010FFFD");  // a private character
  const std::set<std::string> expected = {"\U0010FFFD"};
  EXPECT_EQ(TextEngine::current().uncoveredCharacters(text), expected);
  Pixels picture({100, 40});
  EXPECT_TRUE(picture.canvas.uncoveredCharacters().empty());
  picture.canvas.drawText(text, {0, 0});
  EXPECT_EQ(picture.canvas.uncoveredCharacters(), expected);
}

TEST_F(PangoText, ASizeThatIsNoSizeDrawsNothing) {
  Pixels picture({100, 40});
  for (const double size : {0.0, -5.0, std::nan("")})
    layoutOf("14", Font::systemFont(size)).drawAtPoint(picture.canvas, {5, 5});
  EXPECT_EQ(picture.canvas.error(), std::nullopt);
  EXPECT_EQ(picture.coverage(), 0);
}

TEST_F(PangoText, BytesThatAreNoTextDoNoHarm) {
  Pixels picture({100, 40});
  layoutOf("14\xFF\xC3").drawAtPoint(picture.canvas, {5, 5});
  layoutOf(std::string("1\0004\n2", 5)).drawAtPoint(picture.canvas, {5, 5});
  EXPECT_EQ(picture.canvas.error(), std::nullopt);
}

}  // namespace
}  // namespace velmora
