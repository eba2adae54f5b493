#include <app/text/DisplayWidth.h>

#include <gtest/gtest.h>

namespace velmora::app {
namespace {

TEST(DisplayWidth, IsOneColumnALetter) {
  EXPECT_EQ(displayWidth(""), 0U);
  EXPECT_EQ(displayWidth("Full Moon"), 9U);
  EXPECT_EQ(displayWidth("60° é"), 5U);
  EXPECT_EQ(displayWidth("البدر"), 5U);
}

TEST(DisplayWidth, IsTwoColumnsAnEastAsianLetterOrAPicture) {
  EXPECT_EQ(displayWidth("満月"), 4U);
  EXPECT_EQ(displayWidth("보름달"), 6U);
  EXPECT_EQ(displayWidth("🌕"), 2U);
}

TEST(DisplayWidth, MarksJoinTheLetterBeforeThem) {
  EXPECT_EQ(displayWidth("e\u0301"), 1U);
  EXPECT_EQ(displayWidth("पूर्ण"), 3U);
}

}  // namespace
}  // namespace velmora::app
