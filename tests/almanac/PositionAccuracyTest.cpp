#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include <gtest/gtest.h>

#include <tests/almanac/AlmanacTesting.h>
#include <tests/support/ErrorSummary.h>
#include <tests/support/Tables.h>
#include <velmora/almanac/Positions.h>

namespace velmora::almanac {
namespace {

using namespace velmora::testing;

constexpr double degree = std::numbers::pi / 180;

/// A body in a row of the table: degrees and km.
struct Tabulated {
  double rightAscension, declination, distance, azimuth, altitude;
};

struct Row {
  std::string where;
  Place place;
  Instant at;
  Tabulated sun, moon;
  double fraction, phaseAngle, brightLimbAngle, parallacticAngle;
};

void read(TableRow& row, Tabulated& body) {
  row.fields >> body.rightAscension >> body.declination >> body.distance >> body.azimuth >> body.altitude;
}

Row read(TableRow& table) {
  Row row{};
  row.where = table.where;
  const Instant rotation = instantOf(table.kind);  // in UT1
  row.at = rotation - Seconds(ephemeris::universalMinusCoordinated(rotation));
  table.fields >> row.place.latitude >> row.place.longitude;
  read(table, row.sun);
  read(table, row.moon);
  table.fields >> row.fraction >> row.phaseAngle >> row.brightLimbAngle >> row.parallacticAngle;
  EXPECT_TRUE(table.fields) << row.where;
  return row;
}

/// Degrees between two directions that are given by an angle around and an angle up.
double separation(double around, double up, double otherAround, double otherUp) {
  const double halfAround = std::sin((around - otherAround) * degree / 2);
  const double halfUp = std::sin((up - otherUp) * degree / 2);
  const double cosines = std::cos(up * degree) * std::cos(otherUp * degree);
  return 2 * std::asin(std::sqrt(halfUp * halfUp + cosines * halfAround * halfAround)) / degree;
}

double turned(double angle) { return std::remainder(angle, 360.0); }

TEST(PositionAccuracy, AsSeenFromAPlace) {
  ErrorSummary sun("the Sun in the sky of a place", "°", 0.0005),
      moon("the Moon in the sky of a place", "°", 0.0005);
  ErrorSummary equatorial("topocentric right ascension and declination", "°", 0.0005);
  ErrorSummary distance("topocentric distance of the Moon", " km", 5);
  for (TableRow& table : tableRows("almanac_positions.txt")) {
    const Row row = read(table);
    const auto check = [&](Body body, const Tabulated& expected, ErrorSummary& errors) {
      const auto found = position(row.place, body, row.at);
      ASSERT_TRUE(found) << row.where;
      errors.add(separation(found->azimuth, found->altitude, expected.azimuth, expected.altitude), row.where);
      equatorial.add(separation(found->topocentricRightAscension * 15, found->topocentricDeclination,
                                expected.rightAscension, expected.declination),
                     row.where);
      if (body == Body::moon) distance.add(found->topocentricDistance - expected.distance, row.where);
    };
    check(Body::sun, row.sun, sun);
    check(Body::moon, row.moon, moon);
  }
  for (const ErrorSummary* errors : {&sun, &moon, &equatorial, &distance}) errors->print();
  EXPECT_EQ(sun.count(), 1500);
}

TEST(PositionAccuracy, OfTheMoonsLightAndItsAngles) {
  ErrorSummary fraction("lit part", "", 1e-5), phase("phase angle", "°", 0.0005);
  ErrorSummary limb("position angle of the lit limb", "°", 0.002), parallactic("parallactic angle", "°", 0.002);
  for (TableRow& table : tableRows("almanac_positions.txt")) {
    const Row row = read(table);
    const auto light = illumination(row.place, row.at);
    ASSERT_TRUE(light) << row.where;
    fraction.add(light->fraction - row.fraction, row.where);
    phase.add(light->phaseAngle - row.phaseAngle, row.where);
    const double nearToLine =
        std::sin(row.phaseAngle * degree);  // at new and full Moon the limb's angle is loose
    limb.add(turned(light->brightLimbAngle - row.brightLimbAngle) * nearToLine, row.where);
    const double nearToZenith = std::cos(row.moon.altitude * degree);
    parallactic.add(turned(light->parallacticAngle - row.parallacticAngle) * nearToZenith, row.where);
    EXPECT_NEAR(turned(light->tilt - (light->brightLimbAngle - light->parallacticAngle)), 0, 1e-9)
        << row.where;
    EXPECT_EQ(light->isWaxing, light->elongation < 180) << row.where;
  }
  for (const ErrorSummary* errors : {&fraction, &phase, &limb, &parallactic}) errors->print();
}

}  // namespace
}  // namespace velmora::almanac
