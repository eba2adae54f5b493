#include <algorithm>
#include <cmath>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

#include <tests/support/ErrorSummary.h>
#include <tests/support/Tables.h>

#include "tests/ephemeris/EphemerisTesting.h"

namespace velmora::ephemeris {
namespace {

using velmora::testing::ErrorSummary;
using velmora::testing::TableRow;
using velmora::testing::tableRows;

constexpr double beginOfTable = -2208945600;  // 1900-01-01T12:00, on a clock of Terrestrial Time
constexpr double unitsOfRadian = arcsecondsOfRadian * 100;

/// The instant at which Terrestrial Time shows that many seconds from 1970 on.
Instant instantOfTerrestrial(double seconds) {
  Instant instant = instantFromUnixSeconds(seconds);
  for (int i = 0; i < 3; ++i) instant = instantFromUnixSeconds(seconds - terrestrialMinusUniversal(instant));
  return instant;
}

/// Reads the columns of a row one after the other.
class Columns {
 public:
  explicit Columns(const std::string& row) : _row(row) {}

  double next(std::size_t width) {
    const std::string digits = _row.substr(_at, width);
    _at += width;
    return static_cast<double>(std::stoll(digits, nullptr, 36));
  }

  Vector place(double kilometres) {
    const double rightAscension = next(6) / unitsOfRadian;
    const double declination = (next(6) - 90 * 360000) / unitsOfRadian;
    return pointAt(rightAscension, declination, next(5) * kilometres);
  }

 private:
  const std::string& _row;
  std::size_t _at = 0;
};

double length(const Vector& v) { return std::hypot(v.x, v.y, v.z); }

TEST(Accuracy, PlacesAreThoseOfTheSwissEphemeris) {
  ErrorSummary moon("Moon", "″", 2), sun("Sun", "″", 0.6);
  ErrorSummary moonDistance("distance of the Moon", " km", 5), sunDistance("distance of the Sun", " km", 500);
  for (const TableRow& row : tableRows("apparent_places.txt")) {
    Columns columns(row.kind);
    const Instant instant = instantOfTerrestrial(beginOfTable + 60 * columns.next(6));
    const auto check = [&](Body body, double unit, ErrorSummary& angle, ErrorSummary& distance) {
      const Vector expected = columns.place(unit), found = pointAt(*apparent(body, instant));
      angle.add(separation(found, expected), row.where);
      distance.add(length(found) - length(expected), row.where);
    };
    check(Body::moon, 0.1, moon, moonDistance);
    check(Body::sun, 10, sun, sunDistance);
  }
  for (const ErrorSummary* errors : {&moon, &sun, &moonDistance, &sunDistance}) errors->print();
  EXPECT_EQ(moon.count(), 20000);
}

TEST(Accuracy, PyEphemFindsThemToo) {
  ErrorSummary moon("Moon, by PyEphem", "″", 6), sun("Sun, by PyEphem", "″", 2);
  for (TableRow& row : tableRows("apparent_places_2.txt")) {
    const Instant instant = instantOfTerrestrial(beginOfTable + 60 * std::stod(row.kind));
    const auto check = [&](Body body, ErrorSummary& errors) {
      double rightAscension = 0, declination = 0;
      row.fields >> rightAscension >> declination;
      ASSERT_TRUE(row.fields) << row.where;
      errors.add(separation(pointAt(*apparent(body, instant)), pointAt(rightAscension, declination, 1)),
                 row.where);
    };
    check(Body::moon, moon);
    check(Body::sun, sun);
  }
  moon.print();
  sun.print();
  EXPECT_EQ(moon.count(), 2000);
}

}  // namespace
}  // namespace velmora::ephemeris
