#include <velmora/almanac/Positions.h>

#include <chrono>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include <tests/almanac/AlmanacTesting.h>
#include <tests/support/NotFinite.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;
using namespace velmora::testing;

constexpr Place sydney{-33.8688, 151.2093};
constexpr Instant equinox = sys_days(2024y / March / 20);

TEST(Position, IsRefractedNearTheHorizonAlone) {
  for (int hour = 0; hour < 24; ++hour) {
    const auto sun = position(london, Body::sun, equinox + hours(hour));
    ASSERT_TRUE(sun);
    EXPECT_EQ(sun->apparentAltitude, sun->altitude + refraction(sun->altitude));
  }
}

TEST(Position, OfTheMoonIsUpToADegreeLowerThanFromTheEarthsCentre) {
  const auto fromPole = position({90, 0}, Body::moon, equinox);
  ASSERT_TRUE(fromPole);
  EXPECT_LT(fromPole->altitude, fromPole->declination - 0.8);
  EXPECT_GT(fromPole->altitude, fromPole->declination - 1.1);
  EXPECT_NEAR(fromPole->topocentricDeclination, fromPole->altitude, 1e-9);
}

TEST(Position, ShowsDiscsOfAQuarterOfADegree) {
  for (int month = 0; month < 12; ++month) {
    const Instant at = equinox + hours(24 * 30 * month);
    EXPECT_NEAR(position(london, Body::sun, at)->semidiameter, 0.2666, 0.0046);
    EXPECT_NEAR(position(london, Body::moon, at)->semidiameter, 0.263, 0.02);
  }
  const Instant perihelion = sys_days(2024y / January / 3);  // 0.98331 au
  EXPECT_NEAR(position(london, Body::sun, perihelion)->semidiameter * 3600, 959.63 / 0.98331, 0.1);
}

TEST(Position, LiesAtRightAnglesEverywhereOnEarth) {
  for (double latitude = -90; latitude <= 90; latitude += 7.5) {
    for (double longitude = -180; longitude <= 180; longitude += 22.5) {
      for (const Body body : {Body::sun, Body::moon}) {
        const auto found = position({latitude, longitude}, body, equinox + hours(7));
        ASSERT_TRUE(found);
        EXPECT_TRUE(found->azimuth >= 0 && found->azimuth < 360);
        EXPECT_TRUE(found->altitude >= -90 && found->altitude <= 90);
        EXPECT_TRUE(found->topocentricRightAscension >= 0 && found->topocentricRightAscension < 24);
        EXPECT_NEAR(std::remainder(found->topocentricRightAscension - found->rightAscension, 24.0), 0, 0.08);
        EXPECT_NEAR(found->topocentricDistance, found->distance, 6379);
      }
    }
  }
}

TEST(Position, IsNoneForWhatIsNotValid) {
  for (const double bad : {nan, infinity, -infinity}) {
    EXPECT_FALSE(position({bad, 0}, Body::sun, equinox));
    EXPECT_FALSE(position({0, bad}, Body::sun, equinox));
    EXPECT_FALSE(position(london, Body::moon, instantFromUnixSeconds(bad)));
    EXPECT_FALSE(illumination({bad, 0}, equinox));
    EXPECT_FALSE(illumination(london, instantFromUnixSeconds(bad)));
  }
  EXPECT_FALSE(position(london, Body::sun, ephemeris::endInstant()));
  EXPECT_FALSE(position(london, Body::sun, ephemeris::firstInstant() - seconds(1)));
  EXPECT_FALSE(illumination(london, ephemeris::endInstant()));
}

TEST(Positions, AreThoseOfEachInstantAlone) {
  std::vector<Instant> instants;
  for (int k = 0; k < 300; ++k) instants.push_back(equinox + minutes(97 * k));
  instants[150] = instantFromUnixSeconds(nan);
  instants[151] = ephemeris::endInstant();
  for (const Body body : {Body::sun, Body::moon}) {
    std::vector<Position> found(instants.size());
    positions(sydney, body, instants, found);
    for (std::size_t k = 0; k < instants.size(); ++k) {
      const auto alone = position(sydney, body, instants[k]);
      ASSERT_EQ(alone.has_value(), k != 150 && k != 151);
      if (alone) {
        EXPECT_EQ(found[k], *alone) << k;
      } else {
        EXPECT_TRUE(std::isnan(found[k].altitude) && std::isnan(found[k].rightAscension));
      }
    }
  }
}

TEST(Positions, AreNoneFromAPlaceThatIsNotValid) {
  std::vector<Position> found(2);
  positions({91, 0}, Body::sun, std::vector(2, equinox), found);
  for (const Position& position : found) EXPECT_TRUE(std::isnan(position.azimuth));
}

TEST(Illumination, GrowsFromNewToFullMoon) {
  const auto newMoon = illumination(london, Instant(sys_days(2024y / April / 8)) + minutes(18 * 60 + 21));
  const auto quarter = illumination(london, Instant(sys_days(2024y / April / 15)) + minutes(19 * 60 + 13));
  const auto fullMoon = illumination(london, Instant(sys_days(2024y / April / 23)) + minutes(23 * 60 + 49));
  EXPECT_LT(newMoon->fraction, 0.0002);
  EXPECT_NEAR(quarter->fraction, 0.5, 0.01);
  EXPECT_NEAR(quarter->elongation, 90, 0.01);
  EXPECT_TRUE(quarter->isWaxing);
  EXPECT_GT(fullMoon->fraction, 0.99);
  EXPECT_NEAR(fullMoon->elongation, 180, 0.01);
  EXPECT_FALSE(illumination(london, Instant(sys_days(2024y / May / 1)))->isWaxing);
}

TEST(Illumination, IsTiltedTheOtherWayInTheSouth) {
  // First quarter in the meridian: lit on the right in the north, on the left in the south.
  const Instant evening = Instant(sys_days(2024y / April / 15)) + hours(19);
  EXPECT_NEAR(illumination(london, evening)->tilt, 270, 45);
  const Instant eveningInSydney = Instant(sys_days(2024y / April / 16)) + hours(8);
  EXPECT_NEAR(illumination(sydney, eveningInSydney)->tilt, 90, 45);
}

}  // namespace
}  // namespace velmora::almanac
