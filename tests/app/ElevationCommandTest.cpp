#include "AppTest.h"

namespace velmora::app {
namespace {

class ElevationCommandTest : public AppTest {
 protected:
  static std::string instantsOf(const Json& crossings) {
    std::string text;
    for (const Json& crossing : crossings)
      text += crossing["instant"].get<std::string>() + (crossing["isRising"] == true ? " up " : " down ");
    return text;
  }
};

TEST_F(ElevationCommandTest, FindsEveryCrossingOfTheCivilDayWithItsWay) {
  const Json sun = json({"elevation", "-6", "--body", "sun", "--city", "Berlin", "--date", "2024-06-20"});
  ASSERT_EQ(sun.size(), 2U);
  EXPECT_EQ(sun[0]["isRising"], true);
  EXPECT_EQ(sun[1]["isRising"], false);
  for (const Json& crossing : sun) EXPECT_NEAR(crossing["apparentAltitude"].get<double>(), -6, 1e-4);
}

TEST_F(ElevationCommandTest, NeverGivesAnEventOfAnotherDayWhereClocksChange) {
  // 23 hours, whose last one is the 24th of the day before.
  const Json spring = json({"elevation", "-6", "--body", "sun", "--city", "Berlin", "--date", "2024-03-31"});
  EXPECT_EQ(instantsOf(spring), "2024-03-31T04:07:34Z up 2024-03-31T18:14:24Z down ");
  // 25 hours: the Moon passes 40 degrees in the last of them.
  const Json autumn = json({"elevation", "0", "--city", "Berlin", "--date", "2024-10-27"});
  for (const Json& crossing : autumn) {
    EXPECT_GE(crossing["instant"], "2024-10-26T22:00:00Z");
    EXPECT_LT(crossing["instant"], "2024-10-27T23:00:00Z");
  }
}

TEST_F(ElevationCommandTest, TheLastHourOfTheDayIsSearched) {
  std::size_t late = 0;
  for (const Json& crossing :
       json({"elevation", "0", "--city", "Quito", "--from", "2024-01-01", "--to", "2024-12-31"})) {
    late += crossing["instant"].get<std::string>().substr(11, 2) == "04" ? 1 : 0;  // 23 o'clock there
  }
  EXPECT_GT(late, 20U);
}

TEST_F(ElevationCommandTest, AnyElevationIsFoundWhereTheBodyReachesIt) {
  EXPECT_EQ(json({"elevation", "80", "--body", "sun", "--city", "Quito", "--date", "2024-03-20"}).size(), 2U);
  EXPECT_EQ(json({"elevation", "60", "--body", "sun", "--city", "Longyearbyen"}), Json::array());
  EXPECT_EQ(json({"elevation", "-90", "--body", "sun", "--city", "Quito"}), Json::array());
}

TEST_F(ElevationCommandTest, OverARangeTheyAreThoseOfItsDays) {
  Json days = Json::array();
  for (const char* date : {"2024-06-20", "2024-06-21", "2024-06-22"}) {
    for (const Json& crossing : json({"elevation", "10", "--city", "Oslo", "--date", date}))
      days.push_back(crossing);
  }
  EXPECT_EQ(json({"elevation", "10", "--city", "Oslo", "--from", "2024-06-20", "--to", "2024-06-22"}), days);
}

TEST_F(ElevationCommandTest, NegativeElevationsAreTakenAsTheyStand) {
  const auto altitude = [](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"elevation", "--body", "sun", "--city", "Guayaquil"});
    return json(arguments).at(0)["apparentAltitude"].get<double>();
  };
  EXPECT_NEAR(altitude({"-1.5"}), -1.5, 1e-4);
  EXPECT_NEAR(altitude({"-.25"}), -0.25, 1e-4);
  const std::string answered =
      answer({"elevation", "--json", "--body", "sun", "--city", "Guayaquil", "--", "-0.25"});
  EXPECT_NEAR(jsonFromText(answered)[0]["apparentAltitude"].get<double>(), -0.25, 1e-4);
}

TEST_F(ElevationCommandTest, EachCrossingIsAPositionOfItsInstant) {
  for (const char* city : {"Helsinki", "Kolkata", "Kathmandu", "Auckland", "Honolulu"}) {
    for (const char* body : {"sun", "moon"}) {
      for (const Json& crossing : json({"elevation", "10", "--body", body, "--city", city})) {
        const Json there = json(
            {"position", "--body", body, "--city", city, "--now", crossing["instant"].get<std::string>()});
        // The instant is written to the second, in which the sky turns by 15 seconds of arc.
        EXPECT_NEAR(there["apparentAltitude"].get<double>(), 10, 0.004) << city << body;
        EXPECT_NEAR(there["apparentAzimuth"].get<double>(), crossing["apparentAzimuth"].get<double>(), 0.05);
      }
    }
  }
}

TEST_F(ElevationCommandTest, PeopleReadTheCrossingsOrThatThereAreNone) {
  const auto lines = linesOf(
      answer({"elevation", "0", "--body", "sun", "--city", "Guayaquil", "--date", "2024-06-20", "--24h"}));
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[2], "Sun at an elevation of 0.0°");
  EXPECT_EQ(answer({"elevation", "-0", "--city", "Oslo"}), answer({"elevation", "0", "--city", "Oslo"}));
  EXPECT_EQ(lines[4], "Time              Azimuth  Direction");
  EXPECT_TRUE(lines[5].ends_with("  rising")) << lines[5];
  EXPECT_TRUE(lines[6].ends_with("  setting")) << lines[6];
  const std::string none = answer({"elevation", "60", "--body", "sun", "--city", "Longyearbyen"});
  EXPECT_TRUE(none.ends_with("\n\nNever in this time.\n")) << none;
}

TEST_F(ElevationCommandTest, AsATableOfValues) {
  const auto lines = linesOf(answer({"elevation", "0", "--city", "Rome", "--csv"}));
  EXPECT_EQ(
      lines[0],
      "instant,isRising,apparentAltitude,apparentAzimuth,distance,rightAscension,declination,diameter\r");
  EXPECT_NE(lines[1].find("Z,false,"), std::string::npos) << lines[1];
  EXPECT_NE(lines[2].find("Z,true,"), std::string::npos) << lines[2];
}

}  // namespace
}  // namespace velmora::app
