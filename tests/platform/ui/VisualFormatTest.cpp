#include <velmora/platform/ui/VisualFormat.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora {
namespace {

TEST(VisualFormat, ReadsTheFormatsThatStackAndFill) {
  const auto filling = VisualFormat::parse("|-0-[subView]-0-|");
  ASSERT_TRUE(filling);
  EXPECT_FALSE(filling->isVertical);
  EXPECT_EQ(filling->leadingPin, 0);
  EXPECT_EQ(filling->views, std::vector<std::string>{"subView"});
  EXPECT_EQ(filling->trailingPin, 0);

  const auto atTop = VisualFormat::parse("V:|-0-[subView]");
  ASSERT_TRUE(atTop);
  EXPECT_TRUE(atTop->isVertical);
  EXPECT_EQ(atTop->leadingPin, 0);
  EXPECT_EQ(atTop->trailingPin, std::nullopt);

  const auto atBottom = VisualFormat::parse("V:[subView]-0-|");
  ASSERT_TRUE(atBottom);
  EXPECT_EQ(atBottom->leadingPin, std::nullopt);
  EXPECT_EQ(atBottom->trailingPin, 0);
}

TEST(VisualFormat, ReadsChainsAndGaps) {
  const auto chain = VisualFormat::parse("H:|-12-[a]-8-[b]-0-[c]-4-|");
  ASSERT_TRUE(chain);
  EXPECT_FALSE(chain->isVertical);
  EXPECT_EQ(chain->leadingPin, 12);
  EXPECT_EQ(chain->views, (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(chain->gaps, (std::vector<double>{8, 0}));
  EXPECT_EQ(chain->trailingPin, 4);
}

TEST(VisualFormat, AViewAloneIsAFormat) { EXPECT_TRUE(VisualFormat::parse("[a]")); }

TEST(VisualFormat, RefusesEverythingElse) {
  for (const char* format : {"",
                             "|",
                             "V:",
                             "H:",
                             "||",
                             "|-0-|",
                             "a",
                             "[a",
                             "a]",
                             "[",
                             "]",
                             "[]",
                             "|[a]",
                             "[a]|",
                             "|-[a]",
                             "|-0[a]",
                             "|0-[a]",
                             "|--[a]",
                             "|-x-[a]",
                             "|-+1-[a]",
                             "|--1-[a]",
                             "|-1.5-[a]",
                             "| -0-[a]",
                             "|-0-[a] ",
                             " [a]",
                             "[a][b]",
                             "[a]-[b]",
                             "[a]-0-",
                             "[a]-0-[b",
                             "[a]-0-|x",
                             "[a]-0-|-0-[b]",
                             "|-99999999999-[a]",
                             "v:[a]",
                             "V:V:[a]",
                             "X:[a]",
                             "|-0-[a]-0-||"}) {
    EXPECT_FALSE(VisualFormat::parse(format)) << format;
  }
}

TEST(VisualFormat, ANameIsWhatStandsBetweenTheBrackets) {
  EXPECT_EQ(VisualFormat::parse("[day row]")->views, std::vector<std::string>{"day row"});
}

}  // namespace
}  // namespace velmora
