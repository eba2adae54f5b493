#include <velmora/astronomy/RiseAndSetCalc.h>

#include <cmath>

#include "AppTest.h"

namespace velmora::app {
namespace {

using ElevationCommandTest = AppTest;

TEST_F(ElevationCommandTest, ListsTheLibrarysEvents) {
  GeoLocationData madrid;
  madrid.SetLocation(40.4, -3.7, std::nullopt, "Europe/Madrid", 0, false);
  const auto expected =
      RiseAndSetCalc::EventsMatchingMoonElevation(0, instant("2024-06-19T22:00:00Z"), madrid, 2 * 3600, true);
  const Json events = json({"elevation", "0", "--lat", "40.4", "--lon", "-3.7", "--tz", "Europe/Madrid",
                            "--date", "2024-06-20", "--intermediate"});
  ASSERT_EQ(events.size(), expected.size());
  ASSERT_GT(events.size(), 2U);
  for (std::size_t i = 0; i < events.size(); ++i) {
    EXPECT_EQ(events[i]["altitude"], expected[i].altitude);
    EXPECT_EQ(events[i]["azimuth"], expected[i].azimuth);
    EXPECT_EQ(events[i]["hour"], expected[i].hour);
    EXPECT_EQ(events[i]["altitudeText"], expected[i].altitudeText);
    EXPECT_EQ(events[i]["azimuthText"], expected[i].azimuthText);
    EXPECT_EQ(events[i].size(), 6U);
  }
}

TEST_F(ElevationCommandTest, NegativeElevationsAreTakenAsTheyStand) {
  EXPECT_EQ(json({"elevation", "-1", "--body", "sun", "--city", "Guayaquil"})[0]["altitude"], -1.0);
  EXPECT_EQ(json({"elevation", "-0.5", "--body", "sun", "--city", "Guayaquil"})[0]["altitude"], -0.5);
  EXPECT_EQ(json({"elevation", "-.5", "--body", "sun", "--city", "Guayaquil"})[0]["altitude"], -0.5);
  EXPECT_EQ(json({"elevation", "--body", "sun", "--city", "Guayaquil", "-0.5"})[0]["altitude"], -0.5);
  const std::string answered =
      answer({"elevation", "--json", "--body", "sun", "--city", "Guayaquil", "--", "-0.5"});
  EXPECT_EQ(Json::parse(answered)[0]["altitude"], -0.5);
}

/// Every event's instant must be the moment at which the body really stands there, whatever the zone, the
/// start and the day's border that the series crosses.
TEST_F(ElevationCommandTest, EachInstantIsTheMomentThatTheBodyStandsThere) {
  std::size_t seen = 0;
  for (const char* city :
       {"Helsinki", "Kolkata", "Kathmandu", "Auckland", "Honolulu", "St Johns", "Kiritimati"}) {
    for (const char* body : {"sun", "moon"}) {
      for (const char* time : {"00:00", "00:02", "00:17", "01:40", "09:20", "14:05", "23:59"}) {
        Instant former = instant("2024-01-01T00:00:00Z");
        for (const Json& event : json({"elevation", "0", "--body", body, "--city", city, "--date",
                                       "2024-06-20", "--time", time, "--intermediate"})) {
          const auto now = event["instant"].get<std::string>();
          const Json position = json({"position", "--body", body, "--city", city, "--now", now});
          // A position is of the whole minute, in which the sky turns by a quarter of a degree.
          EXPECT_NEAR(position["altitude"].get<double>(), event["altitude"].get<double>(), 0.31)
              << city << " " << body << " from " << time << " at " << now;
          EXPECT_GE(*instantFromText(now), former);
          former = *instantFromText(now);
          ++seen;
        }
      }
    }
  }
  EXPECT_GT(seen, 500U);
}

TEST_F(ElevationCommandTest, EventsLieWithinADayOfTheStart) {
  for (const char* time : {"00:00", "00:02", "12:34"}) {
    const Json events = json(
        {"elevation", "0", "--city", "Kolkata", "--date", "2024-06-20", "--time", time, "--intermediate"});
    const std::string start =
        json({"position", "--city", "Kolkata", "--date", "2024-06-20", "--time", time})["instant"];
    for (const Json& event : events) {
      const Seconds after = *instantFromText(event["instant"].get<std::string>()) - *instantFromText(start);
      EXPECT_GE(after.count(), 0);
      EXPECT_LE(after.count(), 24 * 3600);
    }
  }
}

TEST_F(ElevationCommandTest, PeopleReadTheEventsOrThatThereAreNone) {
  const auto lines = linesOf(
      answer({"elevation", "0", "--body", "sun", "--city", "Guayaquil", "--date", "2024-06-20", "--24h"}));
  EXPECT_EQ(lines[0], "Guayaquil");
  EXPECT_EQ(lines[2], "Sun at an elevation of 0.0°");
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[5].substr(16, 7), "  0.0°");
  const std::string one = answer({"elevation", "-6", "--body", "sun", "--now", "2024-06-20T12:00:00Z"});
  EXPECT_NE(one.find("-6.0°"), std::string::npos);
  EXPECT_NE(one.find("\nThe search looks into the hours of rise and set;"), std::string::npos);
  const std::string none = answer({"elevation", "60", "--body", "sun", "--city", "Longyearbyen"});
  EXPECT_NE(none.find("\n\nNone found.\n\nThe search looks"), std::string::npos);
  for (const std::string& line : linesOf(none)) EXPECT_LE(charactersOf(line), 80U);
}

}  // namespace
}  // namespace velmora::app
