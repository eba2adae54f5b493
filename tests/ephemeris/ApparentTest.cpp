#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "tests/ephemeris/EphemerisTesting.h"

namespace velmora::ephemeris {
namespace {

bool isNone(const Apparent& place) {
  return std::isnan(place.rightAscension) && std::isnan(place.declination) && std::isnan(place.longitude) &&
         std::isnan(place.latitude) && std::isnan(place.distance);
}

TEST(Apparent, HasTheSameBitsAloneAndInARow) {
  const auto instants = anyInstants(1003, 3);
  for (const Body body : bodies) {
    std::vector<Apparent> row(instants.size());
    apparent(body, instants, row);
    for (std::size_t i = 0; i < instants.size(); ++i) {
      const Apparent alone = *apparent(body, instants[i]);
      EXPECT_EQ(std::memcmp(&alone, &row[i], sizeof alone), 0);
    }
  }
}

/// Of the bits of numbers, after Fowler, Noll and Vo.
class Digest {
 public:
  void add(double number) {
    std::uint64_t bits = 0;  // std::bit_cast is not in every library yet
    std::memcpy(&bits, &number, sizeof bits);
    for (int shift = 0; shift < 64; shift += 8) {
      _value ^= bits >> shift & 0xff;
      _value *= 0x100000001b3;
    }
  }
  std::uint64_t value() const { return _value; }

 private:
  std::uint64_t _value = 0xcbf29ce484222325;
};

TEST(Apparent, HasTheSameBitsFromEveryCompilerAndProcessor) {
  Digest digest;
  for (const Body body : bodies) {
    for (const Instant instant : anyInstants(2000, 12)) {
      const Apparent place = *apparent(body, instant);
      for (const double number :
           {place.rightAscension, place.declination, place.longitude, place.latitude, place.distance}) {
        digest.add(number);
      }
    }
  }
  const Paths paths = *Paths::over(firstInstant(), endInstant() - Seconds(1));
  for (const Body body : bodies) {
    for (const Instant instant : anyInstants(2000, 13)) {
      const Vector vector = paths.vector(body, instant);
      for (const double number : {vector.x, vector.y, vector.z}) digest.add(number);
    }
  }
  // What g++ 12 gives on x86-64; it changes with the series.
  EXPECT_EQ(digest.value(), 16248883330799920394U);
}

TEST(Apparent, IsNoneOutsideTheYearsCovered) {
  const std::vector<Instant> instants = {firstInstant() - Seconds(0.001),
                                         endInstant(),
                                         instantFromUnixSeconds(std::numeric_limits<double>::quiet_NaN()),
                                         instantFromUnixSeconds(std::numeric_limits<double>::infinity()),
                                         instantFromUnixSeconds(-std::numeric_limits<double>::infinity()),
                                         instantFromUnixSeconds(1e300)};
  for (const Body body : bodies) {
    std::vector<Apparent> row(instants.size());
    apparent(body, instants, row);
    for (std::size_t i = 0; i < instants.size(); ++i) {
      EXPECT_FALSE(apparent(body, instants[i]));
      EXPECT_TRUE(isNone(row[i]));
    }
  }
}

TEST(Apparent, OfARowIsNoneOnlyWhereAnInstantIsNotCovered) {
  std::vector<Instant> instants = anyInstants(9, 4);
  instants[3] = endInstant();
  std::vector<Apparent> row(instants.size());
  apparent(Body::moon, instants, row);
  for (std::size_t i = 0; i < row.size(); ++i) EXPECT_EQ(isNone(row[i]), i == 3);
}

TEST(Apparent, AnglesLieInTheirRanges) {
  constexpr double pi = std::numbers::pi;
  for (const Body body : bodies) {
    for (const Instant instant : anyInstants(20000, 5)) {
      const Apparent place = *apparent(body, instant);
      EXPECT_TRUE(0 <= place.rightAscension && place.rightAscension < 2 * pi);
      EXPECT_TRUE(0 <= place.longitude && place.longitude < 2 * pi);
      EXPECT_LT(std::abs(place.declination), 0.52);
      EXPECT_LT(std::abs(place.latitude), body == Body::sun ? 1e-5 : 0.094);
      EXPECT_NEAR(place.distance, body == Body::sun ? 149.6e6 : 381550, body == Body::sun ? 2.6e6 : 25250);
    }
  }
}

TEST(Apparent, EquatorAndEclipticTellTheSamePlace) {
  for (const Body body : bodies) {
    for (const Instant instant : anyInstants(1000, 6)) {
      const Apparent place = *apparent(body, instant);
      const double tilt = nutation(instant).trueObliquity;
      const Vector ecliptical = pointAt(place.longitude, place.latitude, 1);
      const Vector turned = {ecliptical.x, ecliptical.y * std::cos(tilt) - ecliptical.z * std::sin(tilt),
                             ecliptical.y * std::sin(tilt) + ecliptical.z * std::cos(tilt)};
      EXPECT_LT(separation(turned, pointAt(place)), 1e-8);
    }
  }
}

}  // namespace
}  // namespace velmora::ephemeris
