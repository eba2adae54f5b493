#include <sstream>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>

#include "tests/support/GoldenPicture.h"
#include "tests/views/YearViewTesting.h"

namespace velmora {
namespace {

using testing::looksLikeGolden;
using testing::placeAt;
using testing::utc;
using testing::YearViewTest;

// Rows are then hardly higher than the discs.
constexpr Size phoneSize = {390, 510};
constexpr Size wideSize = {460, 560};  // where every language's dates fit into their columns

/// Years drawn with the installed fonts on the calendar theme's background.
class YearPicturesTest : public YearViewTest {
 protected:
  CairoCanvas pictureOf(Size size, PictureFormat format = PictureFormat::png) {
    year->setFrame({0, 0, size.width, size.height});
    CairoCanvas canvas(format, size, 1, VelmoraTheme::calendarTheme()->backgroundColor);
    year->render(canvas);
    EXPECT_EQ(canvas.error(), std::nullopt) << size.width << " x " << size.height;
    EXPECT_TRUE(canvas.uncoveredCharacters().empty());
    return canvas;
  }

  ScopedTextEngine installedFonts{nullptr};
};

TEST_F(YearPicturesTest, FullMoonsWithTheSecondOneOfMaySelected) {
  show(utc(2026, 5, 31));
  CairoCanvas picture = pictureOf(phoneSize);
  EXPECT_TRUE(looksLikeGolden(picture, "year-phone"));
}

TEST_F(YearPicturesTest, InArabicFromRightToLeft) {
  const ScopedLocale arabic("ar_EG");
  useNewView();
  show(utc(2026, 5, 31), placeAt(30.044, "Africa/Cairo"));
  CairoCanvas picture = pictureOf(wideSize);
  EXPECT_TRUE(looksLikeGolden(picture, "year-arabic"));
}

TEST_F(YearPicturesTest, NewMoonsInJapanese) {
  const ScopedLocale japanese("ja_JP");
  useNewView();
  year->setFilteredPhase(kNewMoon);
  show(utc(2026, 5, 1), placeAt(35.69, "Asia/Tokyo"));
  CairoCanvas picture = pictureOf(phoneSize);
  EXPECT_TRUE(looksLikeGolden(picture, "year-japanese"));
}

TEST_F(YearPicturesTest, VectorPicturesHoldNoImages) {
  show(utc(2026, 5, 31));
  CairoCanvas picture = pictureOf(phoneSize, PictureFormat::svg);
  std::ostringstream svg;
  ASSERT_EQ(picture.write(svg), std::nullopt);
  EXPECT_NE(svg.str().find("<path"), std::string::npos);
  EXPECT_EQ(svg.str().find("<image"), std::string::npos);
}

TEST_F(YearPicturesTest, AnySizeIsDrawnWithoutAnError) {
  show(utc(2026, 5, 31));
  for (const bool isTablet : {false, true}) {
    SettingsModel::setIsIPad(isTablet);
    for (const std::int64_t phase : {kFullMoon, kFirstQuarter, kNewMoon}) {
      year->setFilteredPhase(phase);
      for (const double width : {1.0, 15.0, 16.0, 17.0, 50.0, 200.0}) {
        for (const double height : {1.0, 40.0, 93.0, 94.0, 200.0}) pictureOf({width, height});
      }
    }
  }
}

TEST_F(YearPicturesTest, EveryLanguagesCharactersHaveGlyphsAndRoom) {
  for (const char* language : {"ar", "de", "en", "es", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl", "pt",
                               "ru", "tr", "zh-Hans", "zh-Hant"}) {
    const ScopedLocale locale(language);
    startAfresh();
    useNewView();
    show(utc(2026, 5, 31));
    pictureOf(wideSize);
    EXPECT_TRUE(drawn("clip").empty()) << "a text is cut in " << language;
    year->clearSelection();
    pictureOf(wideSize);
    EXPECT_TRUE(drawn("clip").empty()) << "a text is cut in " << language;
  }
}

}  // namespace
}  // namespace velmora
