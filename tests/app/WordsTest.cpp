#include <app/text/Words.h>

#include <gtest/gtest.h>

namespace velmora::app {
namespace {

TEST(Words, PartsStandWhereTheTextSays) {
  EXPECT_EQ(words("in %1 days", {"7"}), "in 7 days");
  EXPECT_EQ(words("%2 before %1", {"a", "b"}), "b before a");
  EXPECT_EQ(words("%1%1", {"x"}), "xx");
}

TEST(Words, WhatNamesNoPartStays) {
  EXPECT_EQ(words("100%"), "100%");
  EXPECT_EQ(words("%3 %x %", {"a"}), "%3 %x %");
}

}  // namespace
}  // namespace velmora::app
