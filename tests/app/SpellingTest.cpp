#include <app/text/Spelling.h>

#include <gtest/gtest.h>

namespace velmora::app {
namespace {

TEST(Spelling, CaseBlanksAccentsAndPunctuationDoNotCount) {
  for (const char* text : {"Sao Paulo", "são paulo", "SAO_PAULO", "sao-paulo", " Sa\u0303o  Paulo. "})
    EXPECT_EQ(searchForm(text), "saopaulo") << text;
}

TEST(Spelling, LettersThatAreNoAccentedOnesAreWrittenOut) {
  EXPECT_EQ(searchForm("Tromsø"), "tromso");
  EXPECT_EQ(searchForm("Łódź"), "lodz");
  EXPECT_EQ(searchForm("Hồ Chí Minh"), "hochiminh");
}

TEST(Spelling, OtherScriptsAreReadInLatinLetters) { EXPECT_EQ(searchForm("Хельсинки"), "helsinki"); }

TEST(Spelling, BrokenUtf8HasTheLettersThatCanBeRead) {
  EXPECT_EQ(searchForm("he\xff\xfelsinki"), "helsinki");
}

TEST(Spelling, NearestNamesStandInOrderAndFarOnesAreLeftOut) {
  EXPECT_EQ(nearest("helsinky", {"Berlin", "Helsinki", "Dublin"}), "Helsinki");
  EXPECT_EQ(nearest("xin", {"xim", "xi", "bin", "tin", "Helsinki"}), "xim, xi, bin");
  EXPECT_EQ(nearest("anything", {}), "");
}

}  // namespace
}  // namespace velmora::app
