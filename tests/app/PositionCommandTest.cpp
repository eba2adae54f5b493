#include <velmora/astronomy/RiseAndSetCalc.h>

#include <app/answers/Positions.h>

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

Json expected(const char* body, const char* instantText, const PositionData& position) {
  return {{"body", body},
          {"instant", instantText},
          {"altitude", position.altitude},
          {"azimuth", position.azimuth},
          {"hour", position.hour},
          {"altitudeText", position.altitudeText},
          {"azimuthText", position.azimuthText}};
}

TEST_F(PositionCommandTest, IsTheLibrarysPositionNow) {
  const Instant now = instant("2024-06-20T12:00:00Z");
  EXPECT_EQ(json(inHelsinki({"position"})),
            expected("moon", "2024-06-20T12:00:00Z",
                     RiseAndSetCalc::ComputeMoonPosition(now, helsinki(), 3 * 3600)));
  EXPECT_EQ(
      json(inHelsinki({"position", "--body", "sun"})),
      expected("sun", "2024-06-20T12:00:00Z", RiseAndSetCalc::ComputeSunPosition(now, helsinki(), 3 * 3600)));
}

TEST_F(PositionCommandTest, NowIsWhatTheCallerSays) {
  EXPECT_EQ(json(inHelsinki({"position", "--now", "2030-01-02T03:04:05Z"}))["instant"],
            "2030-01-02T03:04:05Z");
}

TEST_F(PositionCommandTest, ADateAloneIsItsNoon) {
  EXPECT_EQ(
      json(inHelsinki({"position", "--date", "2024-01-15"})),
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

TEST_F(PositionCommandTest, AnAzimuthThatIsNoNumberIsNull) {
  PositionData position;
  position.azimuth = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Json::parse(jsonLine(positionJson({instant("2024-06-20T12:00:00Z"), position})))["azimuth"],
            nullptr);
}

TEST_F(PositionCommandTest, PeopleReadTimeElevationAndDirection) {
  EXPECT_EQ(answer({"position", "--city", "Helsinki", "--body", "sun", "--24h"}),
            "Helsinki\n"
            "60.1695° N, 24.9354° E, Europe/Helsinki\n"
            "Position of the Sun\n"
            "\n"
            "Time              Elevation  Azimuth  Direction\n"
            "2024-06-20 15:00  49.5°      215.9°   SW\n");
}

TEST_F(PositionCommandTest, PointsOfTheCompassFollowTheAzimuth) {
  const auto direction = [&](double azimuth) {
    PositionData position;
    position.azimuth = azimuth;
    return positionText(position);
  };
  EXPECT_EQ(direction(0), "0.0° above the horizon, N");
  EXPECT_EQ(direction(11.3), "0.0° above the horizon, NNE");
  EXPECT_EQ(direction(90), "0.0° above the horizon, E");
  EXPECT_EQ(direction(248), "0.0° above the horizon, WSW");
  EXPECT_EQ(direction(359.9), "0.0° above the horizon, N");
}

TEST_F(PositionCommandTest, ABodyOnTheHorizonIsNotBelowIt) {
  PositionData position;
  position.azimuth = 90;
  position.altitude = -0.04;
  EXPECT_EQ(positionText(position), "0.0° above the horizon, E");
  position.altitude = -0.06;
  EXPECT_EQ(positionText(position), "0.1° below the horizon, E");
}

TEST_F(PositionCommandTest, OptionsMayStandInFrontOfTheCommand) {
  EXPECT_EQ(answer({"--body", "sun", "--city", "Oslo", "position"}),
            answer({"position", "--body", "sun", "--city", "Oslo"}));
}

}  // namespace
}  // namespace velmora::app
