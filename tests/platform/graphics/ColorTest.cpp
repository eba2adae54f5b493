#include <velmora/platform/graphics/Color.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Color, NamedColours) {
  EXPECT_EQ(Color::white(), (Color{1, 1, 1, 1}));
  EXPECT_EQ(Color::black(), (Color{0, 0, 0, 1}));
  EXPECT_EQ(Color::clear(), (Color{0, 0, 0, 0}));
  EXPECT_EQ(Color::purple(), (Color{0.5, 0, 0.5, 1}));
  EXPECT_EQ(Color::orange(), (Color{1, 0.5, 0, 1}));
  EXPECT_EQ(Color::cyan(), (Color{0, 1, 1, 1}));
  EXPECT_EQ(Color::yellow(), (Color{1, 1, 0, 1}));
}

TEST(Color, AGreyLevelHasThreeEqualComponents) {
  EXPECT_EQ(Color::withWhite(0.7, 0.5), (Color{0.7, 0.7, 0.7, 0.5}));
}

TEST(Color, IsWrittenWithItsAlpha) {
  EXPECT_EQ((Color{14 / 255.0, 12 / 255.0, 22 / 255.0, 1}.text()), "#0E0C16FF");
  EXPECT_EQ(Color::withWhite(0.8, 0.5).text(), "#CCCCCC80");
  EXPECT_EQ((Color{-1, 2, 0.5, 1}.text()), "#00FF80FF");
}

TEST(Color, IsReadWithOrWithoutAlphaInEitherCase) {
  EXPECT_EQ(Color::fromText("#0e0C16"), (Color{14 / 255.0, 12 / 255.0, 22 / 255.0, 1}));
  EXPECT_EQ(Color::fromText("#FF000000"), (Color{1, 0, 0, 0}));
}

TEST(Color, OtherTextsAreNoColour) {
  for (const char* text : {"", "#", "#FFF", "#FFFFF", "#FFFFFFF", "#FFFFFFFFF", "FFFFFF", "white", "#GG0000",
                           "#-10000", "# 10000"}) {
    EXPECT_EQ(Color::fromText(text), std::nullopt) << text;
  }
}

TEST(Color, EveryLevelReadsBackUnchanged) {
  for (int level = 0; level < 256; ++level) {
    const Color color = {level / 255.0, 1 - level / 255.0, 0, level / 255.0};
    EXPECT_EQ(Color::fromText(color.text()), Color::fromText(Color::fromText(color.text())->text()));
    EXPECT_NEAR(Color::fromText(color.text())->green, color.green, 1e-12) << level;
  }
}

}  // namespace
}  // namespace velmora
