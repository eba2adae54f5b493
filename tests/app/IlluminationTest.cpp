#include <app/answers/Illumination.h>

#include <cmath>
#include <fstream>
#include <iostream>

#include <tests/support/SourceDirectory.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

constexpr double mjdOfUnixEpoch = 40587;

Instant instantOfMjd(double mjd) { return instantFromUnixSeconds((mjd - mjdOfUnixEpoch) * 86400); }

Illumination illuminationOf(const char* instant) { return illuminationAt(instantFromText(instant).value()); }

TEST(Illumination, OfMeeusExample48a) {
  // 1992 April 12, 0h dynamical time, which is 59 s ahead of universal time: i = 69.0756 degrees.
  const Illumination moon = illuminationOf("1992-04-11T23:59:01Z");
  EXPECT_NEAR(moon.fraction, 0.6786, 0.0005);
  EXPECT_TRUE(moon.isWaxing);
}

struct Comparison {
  int rows = 0;
  double squares = 0, largest = 0;
};

void compare(const std::string& line, Comparison& so) {
  std::istringstream fields(line);
  fields.imbue(std::locale::classic());
  std::string side;
  double mjd = 0, fraction = 0;
  ASSERT_TRUE(fields >> side >> mjd >> fraction) << line;
  const Illumination moon = illuminationAt(instantOfMjd(mjd));
  const double difference = std::abs(moon.fraction - fraction);
  EXPECT_LT(difference, 0.0008) << line;
  EXPECT_EQ(moon.isWaxing, side == "waxing") << line;
  so.squares += difference * difference;
  so.largest = std::max(so.largest, difference);
  ++so.rows;
}

TEST(Illumination, AgreesWithAPreciseEphemerisFrom2000To2040) {
  std::ifstream file(sourceDirectory() + "/tests/data/illumination.txt");
  Comparison comparison;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with('#')) compare(line, comparison);
  }
  ASSERT_EQ(comparison.rows, 1466);
  const double rms = std::sqrt(comparison.squares / comparison.rows);
  std::cout << comparison.rows << " rows, RMS " << rms << ", largest " << comparison.largest << '\n';
  EXPECT_LT(rms, 0.00025);
}

TEST(Illumination, AtThePrincipalPhases) {
  EXPECT_LT(illuminationOf("2024-04-08T18:21:00Z").fraction, 0.001);         // a total solar eclipse
  EXPECT_NEAR(illuminationOf("2024-04-15T19:13:00Z").fraction, 0.5, 0.005);  // first quarter
  EXPECT_GT(illuminationOf("2022-11-08T11:02:00Z").fraction, 0.999);         // a total lunar eclipse
  EXPECT_NEAR(illuminationOf("2024-05-01T11:27:00Z").fraction, 0.5, 0.005);  // last quarter
}

TEST(Illumination, TheLitSideChangesAtNewAndFullMoon) {
  EXPECT_FALSE(illuminationOf("2024-04-08T17:00:00Z").isWaxing);
  EXPECT_TRUE(illuminationOf("2024-04-08T20:00:00Z").isWaxing);
  EXPECT_TRUE(illuminationOf("2024-04-23T22:30:00Z").isWaxing);
  EXPECT_FALSE(illuminationOf("2024-04-24T01:30:00Z").isWaxing);
}

}  // namespace
}  // namespace velmora::app
