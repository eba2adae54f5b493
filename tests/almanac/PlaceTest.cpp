#include <velmora/almanac/Place.h>

#include <gtest/gtest.h>

#include <tests/support/NotFinite.h>

namespace velmora::almanac {
namespace {

using namespace velmora::testing;

TEST(AlmanacPlace, IsValidUpToThePolesAndTheDateLine) {
  EXPECT_TRUE(isValid({}));
  EXPECT_TRUE(isValid({.latitude = 90, .longitude = 180}));
  EXPECT_TRUE(isValid({.latitude = -90, .longitude = -180, .height = 2835}));
}

TEST(AlmanacPlace, IsNotValidOffTheEarthOrBelowItsHorizon) {
  EXPECT_FALSE(isValid({.latitude = 90.001}));
  EXPECT_FALSE(isValid({.latitude = -90.001}));
  EXPECT_FALSE(isValid({.longitude = 180.001}));
  EXPECT_FALSE(isValid({.longitude = -180.001}));
  EXPECT_FALSE(isValid({.height = -0.001}));
  EXPECT_FALSE(isValid({.height = 100'001}));
}

TEST(AlmanacPlace, IsNotValidWithoutFiniteNumbers) {
  for (const double number : {nan, infinity, -infinity}) {
    EXPECT_FALSE(isValid({.latitude = number}));
    EXPECT_FALSE(isValid({.longitude = number}));
    EXPECT_FALSE(isValid({.height = number}));
  }
}

}  // namespace
}  // namespace velmora::almanac
