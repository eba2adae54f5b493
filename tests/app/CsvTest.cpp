#include <app/text/Csv.h>

#include <gtest/gtest.h>

namespace velmora::app {
namespace {

TEST(Csv, HasALineOfNamesAndALineARow) {
  EXPECT_EQ(csvTable({"a", "b"}, jsonFromText(R"([{"a": 1, "b": "x"}, {"b": true, "a": 0.5}])")),
            "a,b\r\n1,x\r\n0.5,true\r\n");
  EXPECT_EQ(csvTable({"a"}, Json::array()), "a\r\n");
}

TEST(Csv, WhatIsNullOrMissingIsEmpty) {
  EXPECT_EQ(csvTable({"a", "b", "c"}, jsonFromText(R"([{"b": null, "c": 1}])")), "a,b,c\r\n,,1\r\n");
}

TEST(Csv, QuotesWhatWouldBeReadOtherwise) {
  EXPECT_EQ(csvTable({"a", "b", "c"}, jsonFromText(R"([{"a": "x,y", "b": "say \"so\"", "c": "two\nlines"}])")),
            "a,b,c\r\n\"x,y\",\"say \"\"so\"\"\",\"two\nlines\"\r\n");
}

}  // namespace
}  // namespace velmora::app
