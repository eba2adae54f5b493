#include "AppTest.h"

namespace velmora::app {
namespace {

class TrackCommandTest : public AppTest {
 protected:
  static Json track(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "track");
    return json(arguments);
  }
};

TEST_F(TrackCommandTest, GoesHourByHourFromMidnightToMidnight) {
  for (const char* body : {"moon", "sun"}) {
    const Json samples = track({"--city", "Helsinki", "--date", "2024-06-20", "--body", body});
    ASSERT_EQ(samples.size(), 25U);
    EXPECT_EQ(samples[0]["instant"], "2024-06-19T21:00:00Z");
    EXPECT_EQ(samples[1]["instant"], "2024-06-19T22:00:00Z");
    EXPECT_EQ(samples[24]["instant"], "2024-06-20T21:00:00Z");
  }
}

TEST_F(TrackCommandTest, ADayOf23HoursHas24PlacesAndOneOf25Hours26) {
  EXPECT_EQ(track({"--city", "Berlin", "--date", "2024-03-31"}).size(), 24U);
  EXPECT_EQ(track({"--city", "Berlin", "--date", "2024-10-27"}).size(), 26U);
}

TEST_F(TrackCommandTest, LordHowesDayOfHalfAnHourMoreEndsWithIt) {
  const Json samples =
      track({"--lat", "-31.55", "--lon", "159.08", "--tz", "Australia/Lord_Howe", "--date", "2024-04-07"});
  ASSERT_EQ(samples.size(), 26U);
  EXPECT_EQ(samples[24]["instant"], "2024-04-07T13:00:00Z");
  EXPECT_EQ(samples[25]["instant"], "2024-04-07T13:30:00Z");
}

TEST_F(TrackCommandTest, AStepOfAnyMinutesEndsAtMidnightToo) {
  const Json samples = track({"--city", "Rome", "--date", "2024-06-20", "--step", "7"});
  ASSERT_EQ(samples.size(), 207U);
  EXPECT_EQ(samples[1]["instant"], "2024-06-19T22:07:00Z");
  EXPECT_EQ(samples[206]["instant"], "2024-06-20T22:00:00Z");
  EXPECT_EQ(track({"--city", "Rome", "--step", "1440"}).size(), 2U);
}

TEST_F(TrackCommandTest, EachPlaceIsThePositionOfItsInstant) {
  for (const char* body : {"moon", "sun"}) {
    for (const Json& sample : track({"--city", "Kathmandu", "--body", body, "--step", "360"})) {
      Json position = json(
          {"position", "--city", "Kathmandu", "--body", body, "--now", sample["instant"].get<std::string>()});
      position.erase("body");
      position.erase("tilt");
      EXPECT_EQ(sample, position);
    }
  }
}

TEST_F(TrackCommandTest, TheLastInstantOfTheYearsKnownIsLeftOut) {
  EXPECT_EQ(track({"--tz", "UTC", "--date", "2100-12-31"}).size(), 24U);
}

TEST_F(TrackCommandTest, PeopleReadATable) {
  const auto lines = linesOf(answer({"track", "--city", "Helsinki", "--body", "sun", "--24h"}));
  ASSERT_EQ(lines.size(), 30U);
  EXPECT_EQ(lines[2], "Path of the Sun");
  EXPECT_EQ(lines[4], "Time              Elevation  Azimuth  Direction");
  EXPECT_EQ(lines[5].substr(0, 16), "2024-06-20 00:00");
  EXPECT_EQ(lines[29].substr(0, 16), "2024-06-21 00:00");
}

TEST_F(TrackCommandTest, AsATableOfValues) {
  const auto lines = linesOf(answer({"track", "--city", "Rome", "--csv"}));
  ASSERT_EQ(lines.size(), 26U);
  EXPECT_EQ(lines[0],
            "instant,apparentAltitude,apparentAzimuth,distance,rightAscension,declination,diameter\r");
}

}  // namespace
}  // namespace velmora::app
