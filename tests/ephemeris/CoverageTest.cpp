#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::ephemeris {
namespace {

constexpr double firstSecond = -2208988800;  // 1900-01-01T00:00:00Z
constexpr double endSecond = 4133980800;     // 2101-01-01T00:00:00Z

TEST(Coverage, IsOfTheYears1900To2100) {
  EXPECT_EQ(unixSeconds(firstInstant()), firstSecond);
  EXPECT_EQ(unixSeconds(endInstant()), endSecond);
  EXPECT_TRUE(covers(instantFromUnixSeconds(firstSecond)));
  EXPECT_TRUE(covers(instantFromUnixSeconds(std::nextafter(endSecond, 0))));
  EXPECT_FALSE(covers(instantFromUnixSeconds(std::nextafter(firstSecond, -1e12))));
  EXPECT_FALSE(covers(instantFromUnixSeconds(endSecond)));
}

TEST(Coverage, IsNotOfWhatIsNoInstant) {
  EXPECT_FALSE(covers(instantFromUnixSeconds(std::numeric_limits<double>::quiet_NaN())));
  EXPECT_FALSE(covers(instantFromUnixSeconds(std::numeric_limits<double>::infinity())));
  EXPECT_FALSE(covers(instantFromUnixSeconds(-std::numeric_limits<double>::infinity())));
}

}  // namespace
}  // namespace velmora::ephemeris
