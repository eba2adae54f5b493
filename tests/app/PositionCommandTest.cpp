#include <velmora/astronomy/RiseAndSetCalc.h>

#include <app/answers/SkyPositions.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using PositionCommandTest = AppTest;

GeoLocationData helsinki() {
  GeoLocationData location;
  location.SetLocation(60.17, 24.94, std::nullopt, "Europe/Helsinki", 0, false);
  return location;
}

std::vector<std::string> inHelsinki(std::vector<std::string> arguments) {
  for (const char* option : {"--lat", "60.17", "--lon", "24.94", "--tz", "Europe/Helsinki"})
    arguments.emplace_back(option);
  return arguments;
}

/// The fields that are the library's record.
Json expected(const char* body, const char* instantText, const PositionData& position) {
  return {{"body", body},
          {"instant", instantText},
          {"altitude", position.altitude},
          {"azimuth", position.azimuth},
          {"hour", position.hour},
          {"altitudeText", position.altitudeText},
          {"azimuthText", position.azimuthText}};
}

Json recordOf(const Json& position) {
  Json record;
  for (const char* name : {"body", "instant", "altitude", "azimuth", "hour", "altitudeText", "azimuthText"})
    record[name] = position.at(name);
  return record;
}

TEST_F(PositionCommandTest, HoldsTheLibrarysRecordOfNow) {
  const Instant now = instant("2024-06-20T12:00:00Z");
  EXPECT_EQ(recordOf(json(inHelsinki({"position"}))),
            expected("moon", "2024-06-20T12:00:00Z",
                     RiseAndSetCalc::ComputeMoonPosition(now, helsinki(), 3 * 3600)));
  EXPECT_EQ(
      recordOf(json(inHelsinki({"position", "--body", "sun"}))),
      expected("sun", "2024-06-20T12:00:00Z", RiseAndSetCalc::ComputeSunPosition(now, helsinki(), 3 * 3600)));
}

TEST_F(PositionCommandTest, NowIsWhatTheCallerSays) {
  EXPECT_EQ(json(inHelsinki({"position", "--now", "2030-01-02T03:04:05Z"}))["instant"],
            "2030-01-02T03:04:05Z");
}

TEST_F(PositionCommandTest, ADateAloneIsItsNoon) {
  EXPECT_EQ(
      recordOf(json(inHelsinki({"position", "--date", "2024-01-15"}))),
      expected("moon", "2024-01-15T10:00:00Z",
               RiseAndSetCalc::ComputeMoonPosition(instant("2024-01-15T10:00:00Z"), helsinki(), 2 * 3600)));
}

TEST_F(PositionCommandTest, ATimeIsReadFromThePlacesClocks) {
  EXPECT_EQ(json(inHelsinki({"position", "--date", "2024-07-15", "--time", "01:30"}))["instant"],
            "2024-07-14T22:30:00Z");
  EXPECT_EQ(json(inHelsinki({"position", "--time", "01:30"}))["instant"], "2024-06-19T22:30:00Z");
}

TEST_F(PositionCommandTest, ARepeatedTimeIsTheFirstAndASkippedOneIsReadWithTheOffsetBefore) {
  EXPECT_EQ(json(inHelsinki({"position", "--date", "2024-10-27", "--time", "03:30"}))["instant"],
            "2024-10-27T00:30:00Z");
  EXPECT_EQ(json(inHelsinki({"position", "--date", "2024-03-31", "--time", "03:30"}))["instant"],
            "2024-03-31T01:30:00Z");
}

TEST_F(PositionCommandTest, NumbersReadBackUnchanged) {
  const double altitude =
      RiseAndSetCalc::ComputeMoonPosition(instant("2024-06-20T12:00:00Z"), helsinki(), 3 * 3600).altitude;
  EXPECT_EQ(json(inHelsinki({"position"}))["altitude"].get<double>(), altitude);
}

TEST_F(PositionCommandTest, ARecordWithoutAzimuthHasNeitherItsNumberNorItsText) {
  // Straight below the north pole of the sky the record's formula has none.
  std::size_t without = 0;
  for (const char* time : {"00:00", "06:00", "12:00", "18:00"}) {
    const Json position = json({"position", "--lat", "90", "--lon", "0", "--tz", "UTC", "--time", time});
    EXPECT_EQ(position["azimuth"].is_null(), position["azimuthText"].is_null());
    EXPECT_TRUE(position["apparentAzimuth"].is_number());
    EXPECT_EQ(position.dump().find("nan"), std::string::npos);
    without += position["azimuth"].is_null() ? 1 : 0;
  }
  RecordProperty("without", static_cast<int>(without));
}

TEST_F(PositionCommandTest, IsWhatTheEyeSees) {
  // The Swiss Ephemeris: altitude and azimuth from the place, with Sæmundsson's refraction; equatorial
  // coordinates apparent from the centre of the Earth; distances at the moment itself.
  const Json moon = json(inHelsinki({"position", "--now", "2024-06-20T20:30:00Z"}));
  EXPECT_NEAR(moon["apparentAltitude"].get<double>(), 1.6700, 0.002);
  EXPECT_NEAR(moon["apparentAzimuth"].get<double>(), 169.8948, 0.002);
  EXPECT_NEAR(moon["distance"].get<double>(), 385041.6, 4);
  EXPECT_NEAR(moon["rightAscension"].get<double>(), 16.88876, 0.0001);
  EXPECT_NEAR(moon["declination"].get<double>(), -27.04794, 0.001);
  const Json sun = json(inHelsinki({"position", "--body", "sun", "--now", "2024-06-20T18:00:00Z"}));
  EXPECT_NEAR(sun["apparentAltitude"].get<double>(), 9.0602, 0.002);
  EXPECT_NEAR(sun["apparentAzimuth"].get<double>(), 302.3066, 0.002);
  EXPECT_NEAR(sun["distance"].get<double>(), 152019374, 400);
}

TEST_F(PositionCommandTest, OfTheMoonItSaysHowItLies) {
  EXPECT_TRUE(json({"position"})["tilt"].is_number());
  EXPECT_FALSE(json({"position", "--body", "sun"}).contains("tilt"));
}

TEST_F(PositionCommandTest, PeopleReadAFactALine) {
  EXPECT_EQ(answer({"position", "--city", "Helsinki", "--body", "sun", "--24h"}),
            "Helsinki\n"
            "60.1695° N, 24.9354° E, Europe/Helsinki\n"
            "Position of the Sun\n"
            "\n"
            "Time             2024-06-20 15:00\n"
            "Elevation        49.5°\n"
            "Azimuth          215.9° SW\n"
            "Distance         152017000 km\n"
            "Diameter         31.5′\n"
            "Right ascension  5h 58.5m\n"
            "Declination      23.4°\n");
  EXPECT_NE(answer({"position"}).find("\nLit              9"), std::string::npos);
}

TEST_F(PositionCommandTest, PointsOfTheCompassFollowTheAzimuth) {
  const auto direction = [&](double azimuth) { return positionText({.azimuth = azimuth}); };
  EXPECT_EQ(direction(0), "0.0° above the horizon, N");
  EXPECT_EQ(direction(11.3), "0.0° above the horizon, NNE");
  EXPECT_EQ(direction(90), "0.0° above the horizon, E");
  EXPECT_EQ(direction(248), "0.0° above the horizon, WSW");
  EXPECT_EQ(direction(359.9), "0.0° above the horizon, N");
}

TEST_F(PositionCommandTest, ABodyOnTheHorizonIsNotBelowIt) {
  EXPECT_EQ(positionText({.azimuth = 90, .apparentAltitude = -0.04}), "0.0° above the horizon, E");
  EXPECT_EQ(positionText({.azimuth = 90, .apparentAltitude = -0.06}), "0.1° below the horizon, E");
}

TEST_F(PositionCommandTest, TheLitSideIsToldAsItIsSeen) {
  const auto side = [&](double tilt) { return tiltText({.tilt = tilt}); };
  EXPECT_EQ(side(0), "lit from above");
  EXPECT_EQ(side(90), "lit from the left");
  EXPECT_EQ(side(225), "lit from the lower right");
  EXPECT_EQ(side(350), "lit from above");
}

TEST_F(PositionCommandTest, OptionsMayStandInFrontOfTheCommand) {
  EXPECT_EQ(answer({"--body", "sun", "--city", "Oslo", "position"}),
            answer({"position", "--body", "sun", "--city", "Oslo"}));
}

}  // namespace
}  // namespace velmora::app
