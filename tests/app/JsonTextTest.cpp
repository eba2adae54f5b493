#include <app/text/JsonText.h>

#include <gtest/gtest.h>

#include <limits>

#include <app/text/Json.h>

namespace velmora::app {
namespace {

TEST(JsonText, SetsCommasBetweenValuesAlone) {
  JsonText json;
  json.openObject();
  json.name("a").openArray().number(std::int64_t{1}).plain("x").openObject().closeObject().closeArray();
  json.name("b").null();
  json.closeObject();
  EXPECT_EQ(json.text(), R"({"a":[1,"x",{}],"b":null})");
}

TEST(JsonText, WritesNumbersAsTheLibraryOfJsonDoes) {
  for (const double number : {0.0, -0.5, 1e-7, 123456.789, 1e300, 5.0, 0.1 + 0.2}) {
    JsonText json;
    json.number(number);
    EXPECT_EQ(json.text(), Json(number).dump());
  }
  for (const double none :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    JsonText json;
    json.number(none);
    EXPECT_EQ(json.text(), "null");
  }
}

}  // namespace
}  // namespace velmora::app
