#include <velmora/posters/Palette.h>
#include <velmora/posters/Paper.h>

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {
namespace {

/// How bright the colour is printed in grey, 0 to 1 (Rec. 709).
double brightness(const Color& color) {
  return 0.2126 * color.red + 0.7152 * color.green + 0.0722 * color.blue;
}

TEST(Paper, IsAsLargeAsItsNameSays) {
  EXPECT_EQ(paperSize(Paper::a4), (Size{595, 842}));
  EXPECT_EQ(paperSize(Paper::a3), (Size{842, 1191}));
  EXPECT_EQ(paperSize(Paper::letter), (Size{612, 792}));
  EXPECT_EQ(paperSize(Paper::inches24x36), (Size{1728, 2592}));
  EXPECT_EQ(paperSize(Paper::a4, true), (Size{842, 595}));
}

TEST(Palette, TellsTheDaypartsApartInGreyToo) {
  for (const PaperTheme theme : {PaperTheme::dark, PaperTheme::light}) {
    const Palette& palette = Palette::of(theme);
    for (int part = 1; part < 5; ++part) {
      const Color& brighter = palette.sky(static_cast<Daypart>(part - 1));
      const Color& darker = palette.sky(static_cast<Daypart>(part));
      EXPECT_GT(brightness(brighter), brightness(darker) + 0.1) << part;
    }
    EXPECT_GT(brightness(palette.moonLit), brightness(palette.moonDark) + 0.5);
  }
}

TEST(Palette, InkStandsOutFromThePaper) {
  for (const PaperTheme theme : {PaperTheme::dark, PaperTheme::light}) {
    const Palette& palette = Palette::of(theme);
    EXPECT_GT(std::abs(brightness(palette.ink) - brightness(palette.paper)), 0.75);
    EXPECT_GT(std::abs(brightness(palette.quiet) - brightness(palette.paper)), 0.5);
    EXPECT_GT(std::abs(brightness(palette.accent) - brightness(palette.paper)), 0.5);
  }
}

TEST(Daypart, BeginsWhereTwilightDoes) {
  EXPECT_EQ(daypartAt(10), Daypart::daylight);
  EXPECT_EQ(daypartAt(-0.8), Daypart::daylight);
  EXPECT_EQ(daypartAt(-0.9), Daypart::civil);
  EXPECT_EQ(daypartAt(-6.1), Daypart::nautical);
  EXPECT_EQ(daypartAt(-12.1), Daypart::astronomical);
  EXPECT_EQ(daypartAt(-18.1), Daypart::night);
}

}  // namespace
}  // namespace velmora
