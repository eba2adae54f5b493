#include <velmora/platform/graphics/AttributedText.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

const TextAttributes white = {.font = Font::systemFont(17), .color = Color::white()};
const TextAttributes cyan = {.font = Font::systemFont(17), .color = Color::cyan()};

AttributedText::Run run(std::size_t begin, std::size_t end, const TextAttributes& attributes) {
  return {begin, end, attributes};
}

TEST(Font, SystemFonts) {
  EXPECT_EQ(Font::systemFont(17), (Font{"System", 17, FontWeight::regular}));
  EXPECT_EQ(Font::boldSystemFont(13), (Font{"System", 13, FontWeight::bold}));
  EXPECT_EQ(Font::captionFont(), Font::systemFont(12));
  EXPECT_EQ(Font::labelFontSize, 17);
  EXPECT_EQ(Font::systemFontSize, 14);
  EXPECT_EQ(Font::smallSystemFontSize, 12);
}

TEST(Font, ANameHoldsFamilyAndWeight) {
  EXPECT_EQ(Font::named("AvenirNext-Medium", 13), (Font{"AvenirNext", 13, FontWeight::medium}));
  EXPECT_EQ(Font::named("AvenirNext-DemiBold", 13), (Font{"AvenirNext", 13, FontWeight::semibold}));
  EXPECT_EQ(Font::named("Helvetica", 10), (Font{"Helvetica", 10, FontWeight::regular}));
  EXPECT_EQ(Font::named("Helvetica-Bold", 10), (Font{"Helvetica", 10, FontWeight::bold}));
  EXPECT_EQ(Font::named("Helvetica-Oblique", 10), (Font{"Helvetica", 10, FontWeight::regular}));
}

TEST(AttributedText, HasOneRunAtFirst) {
  const AttributedText text("14 (3)", white);
  EXPECT_EQ(text.runs(), std::vector{run(0, 6, white)});
  EXPECT_EQ(text.paragraph(), white);
}

TEST(AttributedText, AnEmptyTextHasNoRuns) {
  const AttributedText text("", white);
  EXPECT_TRUE(text.isEmpty());
  EXPECT_TRUE(text.runs().empty());
  EXPECT_EQ(text.paragraph(), TextAttributes());
}

TEST(AttributedText, ASpanGetsItsOwnColour) {
  AttributedText text("14 (3)", white);
  text.setColor(Color::cyan(), 3, 6);
  EXPECT_EQ(text.runs(), (std::vector{run(0, 3, white), run(3, 6, cyan)}));
  AttributedText middle("14 (3) x", white);
  middle.setColor(Color::cyan(), 3, 6);
  EXPECT_EQ(middle.runs(), (std::vector{run(0, 3, white), run(3, 6, cyan), run(6, 8, white)}));
}

TEST(AttributedText, AColourBeyondTheTextChangesWhatIsThere) {
  AttributedText text("ab", white);
  text.setColor(Color::cyan(), 1, 100);
  EXPECT_EQ(text.runs(), (std::vector{run(0, 1, white), run(1, 2, cyan)}));
  text.setColor(Color::white(), 7, 9);
  EXPECT_EQ(text.runs(), (std::vector{run(0, 1, white), run(1, 2, cyan)}));
}

TEST(AttributedText, AppendedTextKeepsItsAttributes) {
  AttributedText text("ab", white);
  text.append(AttributedText("cd", cyan));
  EXPECT_EQ(text.text(), "abcd");
  EXPECT_EQ(text.runs(), (std::vector{run(0, 2, white), run(2, 4, cyan)}));
  text.append(text);
  EXPECT_EQ(text.text(), "abcdabcd");
  EXPECT_EQ(text.runs().back(), run(6, 8, cyan));
}

TEST(AttributedText, AppendedTextOfTheSameAttributesJoinsTheLastRun) {
  AttributedText text;
  for (const char* const letter : {"a", "b", "c"}) text.append(AttributedText(letter, white));
  EXPECT_EQ(text, AttributedText("abc", white));
}

TEST(AttributedText, ASubstringKeepsItsAttributes) {
  AttributedText text("abcd", white);
  text.setColor(Color::cyan(), 2, 4);
  EXPECT_EQ(text.substring(1, 3).text(), "bc");
  EXPECT_EQ(text.substring(1, 3).runs(), (std::vector{run(0, 1, white), run(1, 2, cyan)}));
  EXPECT_EQ(text.substring(2, 99).text(), "cd");
  EXPECT_TRUE(text.substring(4, 9).isEmpty());
  EXPECT_TRUE(text.substring(3, 1).isEmpty());
}

}  // namespace
}  // namespace velmora
