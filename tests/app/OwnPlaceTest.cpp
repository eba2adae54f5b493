#include <app/place/OwnPlace.h>

#include <filesystem>
#include <fstream>

#include <velmora/platform/system/Log.h>

#include "AppTest.h"
#include "tests/platform/resources/TemporaryFolder.h"

namespace velmora::app {
namespace {

namespace fs = std::filesystem;

/// A user with a folder for settings.
class OwnPlaceTest : public AppTest {
 protected:
  fs::path file() const { return _folder.path() / "settings/velmora/place.json"; }

  std::string content() const {
    std::ostringstream text;
    text << std::ifstream(file()).rdbuf();
    return text.str();
  }

  static std::string headingOf(const std::vector<std::string>& arguments = {}) {
    const std::string text = answer(arguments);
    return text.substr(0, text.find('\n'));
  }

 private:
  TemporaryFolder _folder;
  ScopedVariable _settings{"XDG_CONFIG_HOME", (_folder.path() / "settings").string()};
};

TEST_F(OwnPlaceTest, IsKeptAndTakenWhereNoPlaceIsNamed) {
  EXPECT_EQ(
      answer({"place", "--city", "Helsinki"}),
      "Helsinki\n60.1695° N, 24.9354° E, Europe/Helsinki\nYour own place; change it with velmora place.\n");
  EXPECT_EQ(answer({"place"}), answer({"place", "--city", "Helsinki"}));
  const auto today = linesOf(answer({}));
  EXPECT_EQ(today[0], "Helsinki");
  EXPECT_EQ(today[2], "Your own place; change it with velmora place.");
  EXPECT_EQ(headingOf({"riseset"}), "Helsinki");
  EXPECT_EQ(json({"today"})["place"]["timezone"], "Europe/Helsinki");
}

TEST_F(OwnPlaceTest, MayBeAnySpotWithZoneNameAndHeight) {
  answer({"place", "--lat", "-33.9", "--lon", "151.2", "--tz", "Australia/Sydney", "--name", "Home",
          "--height", "40"});
  EXPECT_EQ(json({"place"}), Json({{"name", "Home"},
                                   {"latitude", -33.9},
                                   {"longitude", 151.2},
                                   {"timezone", "Australia/Sydney"},
                                   {"height", 40.0},
                                   {"origin", "own"}}));
  EXPECT_EQ(json({"riseset"}), json({"riseset", "--lat", "-33.9", "--lon", "151.2", "--tz",
                                     "Australia/Sydney", "--height", "40"}));
}

TEST_F(OwnPlaceTest, AFixedOffsetIsKeptToo) {
  answer({"place", "--city", "Kathmandu", "--gmt-offset", "20700"});
  EXPECT_EQ(json({"today"})["place"]["timezone"], "GMT+05:45");
}

TEST_F(OwnPlaceTest, AnotherPlaceThatIsNamedGoesFirst) {
  answer({"place", "--city", "Helsinki"});
  EXPECT_EQ(headingOf({"--city", "Oslo"}), "Oslo");
  EXPECT_EQ(json({"today", "--tz", "UTC"})["place"]["timezone"], "UTC");
  EXPECT_EQ(json({"today", "--tz", "UTC"})["place"]["name"], "Helsinki");
}

TEST_F(OwnPlaceTest, IsForgotten) {
  answer({"place", "--city", "Helsinki"});
  EXPECT_EQ(answer({"place", "--forget"}), "Your own place is forgotten.\n");
  EXPECT_EQ(answer({"place", "--forget"}), "There was no own place.\n");
  EXPECT_EQ(json({"place", "--forget"}), Json({{"forgotten", false}}));
  EXPECT_FALSE(fs::exists(file()));
  EXPECT_EQ(headingOf(), "San Francisco, CA");
}

TEST_F(OwnPlaceTest, WithoutOneItIsTheCityOfTheSystemsZone) {
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  const auto lines = linesOf(answer({"place"}));
  EXPECT_EQ(lines[0], "Tokyo");
  EXPECT_EQ(lines[2], "The city of the system's time zone; keep another with velmora place.");
  EXPECT_EQ(json({"place"})["origin"], "zone");
}

TEST_F(OwnPlaceTest, WithoutThatItIsTheDefaultPlace) {
  const auto lines = linesOf(answer({"place"}));
  EXPECT_EQ(lines[0], "San Francisco, CA");
  EXPECT_EQ(lines[2], "The default place; keep another with velmora place.");
  EXPECT_EQ(json({"place"})["origin"], "default");
}

TEST_F(OwnPlaceTest, ADamagedFileIsNamedAndPassedOver) {
  answer({"place", "--city", "Helsinki"});
  const std::string whole = content();
  for (const std::string& damaged :
       {std::string(), whole.substr(0, whole.size() / 2), std::string("[]"), std::string("\xff\xfe"),
        std::string(R"({"lat": 91, "lon": 0, "tz": "UTC", "height": 0})"),
        std::string(R"({"lat": 1, "lon": 0, "tz": "Nowhere/Land", "height": 0})"),
        std::string(R"({"lat": 1, "lon": 0, "tz": "UTC", "height": -5})"),
        std::string(R"({"lat": 1, "lon": 0, "tz": "UTC"})"),
        std::string(R"({"name": "\u001b[2J", "lat": 1, "lon": 0, "tz": "UTC", "height": 0})"),
        std::string(10'000, ' ')}) {
    std::ofstream(file(), std::ios::trunc) << damaged;
    const ScopedLogRecord log;
    EXPECT_EQ(headingOf(), "San Francisco, CA") << damaged;
    ASSERT_EQ(log.messages().size(), 1U) << damaged;
    EXPECT_EQ(log.messages()[0],
              "velmora: your own place in '" + file().string() +
                  "' is damaged and passed over; velmora place keeps a new one, or forgets it");
  }
}

TEST_F(OwnPlaceTest, AFolderInItsPlaceIsNamedToo) {
  fs::create_directories(file());
  const ScopedLogRecord log;
  EXPECT_EQ(headingOf(), "San Francisco, CA");
  EXPECT_EQ(log.messages().size(), 1U);
}

TEST_F(OwnPlaceTest, WhatCannotBeWrittenIsAFailure) {
  const ScopedVariable settings{"XDG_CONFIG_HOME", "/proc"};
  const Outcome outcome = runProgram({"place", "--city", "Oslo"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(outcome.err.find("your own place cannot be written to '/proc/velmora/place.json'"),
            std::string::npos);
}

TEST_F(OwnPlaceTest, AnUnknownCityIsNotKept) {
  EXPECT_EQ(runProgram({"place", "--city", "Hlsnkyy"}).status, 2);
  EXPECT_FALSE(fs::exists(file()));
}

TEST_F(OwnPlaceTest, LiesInTheHomeFolderWhereTheOtherIsNotAPath) {
  const ScopedVariable settings{"XDG_CONFIG_HOME", "relative"}, home{"HOME", "/home/someone"};
  EXPECT_EQ(ownPlaceFile(), fs::path("/home/someone/.config/velmora/place.json"));
}

TEST_F(OwnPlaceTest, ABatchDoesNotHeedIt) {
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  answer({"place", "--city", "Helsinki"});
  const Outcome outcome = runProgram({"batch"}, "{\"op\": \"today\"}\n");
  EXPECT_EQ(jsonFromText(outcome.out)["result"]["place"]["name"], "San Francisco, CA");
}

}  // namespace
}  // namespace velmora::app
