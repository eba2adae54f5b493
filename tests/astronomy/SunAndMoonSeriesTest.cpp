#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

void expectCoordinates(const EquatorialCoordinates& computed, TableRow& row) {
  double declination = 0, rightAscension = 0;
  ASSERT_TRUE(row.fields >> declination >> rightAscension) << row.where;
  EXPECT_NEAR(computed.declination, declination, 1e-9) << row.where;
  EXPECT_NEAR(computed.rightAscension, rightAscension, 1e-9) << row.where;
}

TEST(SunAndMoonSeries, AgreeWithTheirValuesIn50Digits) {
  int compared = 0;
  for (TableRow& row : tableRows("series_values.txt")) {
    if (row.kind != "sun" && row.kind != "moon") continue;
    double mjd = 0;
    ASSERT_TRUE(row.fields >> mjd) << row.where;
    const double T = centuries(mjd);
    expectCoordinates(row.kind == "sun" ? Calc::_minisun(T) : Calc::_minimoon(T), row);
    ++compared;
  }
  EXPECT_EQ(compared, 40);
}

TEST(SiderealTime, AgreesWithItsValuesIn50Digits) {
  int compared = 0;
  for (TableRow& row : tableRows("series_values.txt")) {
    if (row.kind != "sidereal") continue;
    double mjd = 0, longitude = 0, expected = 0;
    ASSERT_TRUE(row.fields >> mjd >> longitude >> expected) << row.where;
    EXPECT_NEAR(Calc::_lmst(mjd, longitude), expected, 1e-9) << row.where;
    ++compared;
  }
  EXPECT_EQ(compared, 20);
}

TEST(SineOfAltitude, AgreesWithItsValuesIn50Digits) {
  int compared = 0;
  for (TableRow& row : tableRows("series_values.txt")) {
    if (row.kind != "sin_alt") continue;
    double object = 0, mjd0 = 0, hour = 0, longitude = 0, latitude = 0, expected = 0;
    ASSERT_TRUE(row.fields >> object >> mjd0 >> hour >> longitude >> latitude >> expected) << row.where;
    const double phi = latitude * 0.0174532925;
    EXPECT_NEAR(Calc::_sin_alt(object, mjd0, hour, longitude, std::cos(phi), std::sin(phi)), expected, 1e-10)
        << row.where;
    ++compared;
  }
  EXPECT_EQ(compared, 40);
}

TEST(SunSeries, StandsInSagittariusAtTheEpoch) {
  const EquatorialCoordinates sun = Calc::_minisun(0);
  EXPECT_NEAR(sun.declination, -23.0, 0.05);
  EXPECT_NEAR(sun.rightAscension, 18.75, 0.01);
}

TEST(SunAndMoonSeries, StayInTheirRanges) {
  for (double T = -1.5; T < 1.5; T += 0.000731) {
    const EquatorialCoordinates sun = Calc::_minisun(T), moon = Calc::_minimoon(T);
    for (const auto& body : {sun, moon}) {
      ASSERT_GE(body.rightAscension, 0) << T;
      ASSERT_LT(body.rightAscension, 24) << T;
    }
    ASSERT_LT(std::abs(sun.declination), 23.45) << T;
    ASSERT_LT(std::abs(moon.declination), 28.8) << T;
  }
}

TEST(SineOfAltitude, TakesTheMoonForSelectorOneAndTheSunForEveryOther) {
  const auto sine = [](double object) { return Calc::_sin_alt(object, 60369, 6, 25, 0.5, 0.8660254); };
  EXPECT_NE(sine(1.0), sine(2.0));
  for (const double other : {0.0, -1.0, 1.5, 3.0, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(sine(other), sine(2.0)) << other;
  }
}

TEST(SineOfAltitude, AtThePolesIsThatOfTheDeclinationWhateverTheLongitude) {
  for (const double object : {1.0, 2.0}) {
    const double T = centuries(60369.25);
    const double declination = (object == 1.0 ? Calc::_minimoon(T) : Calc::_minisun(T)).declination;
    for (const double longitude : {-180.0, 0.0, 77.5}) {
      EXPECT_DOUBLE_EQ(Calc::_sin_alt(object, 60369, 6, longitude, 0, 1),
                       std::sin(declination * 0.0174532925));
      EXPECT_DOUBLE_EQ(Calc::_sin_alt(object, 60369, 6, longitude, 0, -1),
                       -std::sin(declination * 0.0174532925));
    }
  }
}

TEST(SineOfAltitude, CountsTheHourFromTheDaysMidnight) {
  EXPECT_EQ(Calc::_sin_alt(1, 60369, 30, 25, 0.5, 0.8660254),
            Calc::_sin_alt(1, 60370, 6, 25, 0.5, 0.8660254));
  EXPECT_EQ(Calc::_sin_alt(2, 60369, -12, 25, 0.5, 0.8660254),
            Calc::_sin_alt(2, 60368, 12, 25, 0.5, 0.8660254));
}

}  // namespace
}  // namespace velmora
