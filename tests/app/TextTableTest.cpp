#include <app/text/TextTable.h>

#include <gtest/gtest.h>

namespace velmora::app {
namespace {

TEST(TextTable, ColumnsAreAsWideAsTheirWidestCell) {
  TextTable table({"A", "Long heading", "C"});
  table.add({"wide cell", "x", "y"});
  EXPECT_EQ(table.text(false), "A          Long heading  C\nwide cell  x             y\n");
  EXPECT_EQ(table.width(), 26U);
}

TEST(TextTable, LettersOfSeveralBytesCountOnce) {
  TextTable table({"A", "B"});
  table.add({"60°", "x"});
  table.add({"abcd", "y"});
  EXPECT_EQ(table.text(false), "A     B\n60°   x\nabcd  y\n");
}

TEST(TextTable, WideLettersCountTwice) {
  TextTable table({"A", "B"});
  table.add({"満月", "x"});
  table.add({"abcd", "y"});
  EXPECT_EQ(table.text(false), "A     B\n満月  x\nabcd  y\n");
}

TEST(TextTable, WordsWrittenFromRightToLeftLeaveTheColumnsInTheirOrder) {
  TextTable table({"שעה", "Time"});
  table.add({"12:00", "צהריים 1"});
  EXPECT_EQ(table.text(false), "\u2067שעה\u2069    Time\n12:00  \u2067צהריים 1\u2069\n");
}

TEST(TextTable, ANumberMayStandAtTheRight) {
  EXPECT_EQ(rightAligned(7, 3), "  7");
  EXPECT_EQ(rightAligned(100, 3), "100");
  EXPECT_EQ(rightAligned(1000, 3), "1000");
}

TEST(TextTable, ACellMayStandInTwoColumns) {
  TextTable table({"Name", "Rise", "Set", "Next"});
  table.add({"Sun", {"up all day", 2}, "x"});
  EXPECT_EQ(table.text(false), "Name  Rise  Set   Next\nSun   up all day  x\n");
}

TEST(TextTable, ANarrowPageHasOneBlankBetweenColumns) {
  TextTable table({std::string(40, 'a'), std::string(39, 'b')});
  EXPECT_EQ(table.text(false), std::string(40, 'a') + " " + std::string(39, 'b') + "\n");
}

TEST(TextTable, HeadingsAreBoldWhereThatIsWanted) {
  TextTable table({"A"});
  table.add({"x"});
  EXPECT_EQ(table.text(true), "\033[1mA\033[0m\nx\n");
}

}  // namespace
}  // namespace velmora::app
