#include <app/place/Place.h>

#include <app/text/Errors.h>
#include <velmora/platform/time/TimeZone.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using PlaceTest = AppTest;

Json placeOfToday(const std::vector<std::string>& options) {
  std::vector<std::string> arguments = {"today", "--json"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  const Outcome outcome = runProgram(arguments);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  return jsonFromText(outcome.out)["place"];
}

TEST_F(PlaceTest, WithoutOptionsItIsTheDefaultPlace) {
  EXPECT_EQ(placeOfToday({}), Json({{"name", "San Francisco, CA"},
                                    {"latitude", 37.78549082},
                                    {"longitude", -122.39184303},
                                    {"timezone", "America/Los_Angeles"},
                                    {"height", 0.0}}));
}

TEST_F(PlaceTest, CoordinatesTakeTheProcessesZoneAndHaveNoName) {
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  EXPECT_EQ(placeOfToday({"--lat", "-33.9", "--lon", "-70.5"}), Json({{"name", nullptr},
                                                                      {"latitude", -33.9},
                                                                      {"longitude", -70.5},
                                                                      {"timezone", "Asia/Tokyo"},
                                                                      {"height", 0.0}}));
}

TEST_F(PlaceTest, ACityBringsItsCoordinatesAndItsZone) {
  const Json place = placeOfToday({"--city", "helsinki"});
  EXPECT_EQ(place["name"], "Helsinki");
  EXPECT_DOUBLE_EQ(place["latitude"].get<double>(), 60.1695);
  EXPECT_EQ(place["timezone"], "Europe/Helsinki");
}

TEST_F(PlaceTest, AZoneAndANameReplaceThoseOfThePlace) {
  const Json place = placeOfToday({"--city", "helsinki", "--tz", "UTC", "--name", "Home"});
  EXPECT_EQ(place["name"], "Home");
  EXPECT_EQ(place["timezone"], "UTC");
}

TEST_F(PlaceTest, ANameIsTakenAsItStands) {
  for (const std::string name : {"", "-.x", "--", "=", "a=b"})
    EXPECT_EQ(placeOfToday({"--name", name})["name"], name);
  EXPECT_EQ(placeOfToday({"--name=", "--city", "Oslo"})["name"], "");
  EXPECT_EQ(placeOfToday({"--name=a=b"})["name"], "a=b");
}

TEST_F(PlaceTest, AnOffsetIsTheZoneNamedAfterIt) {
  EXPECT_EQ(placeOfToday({"--gmt-offset", "19800"})["timezone"], "GMT+05:30");
  EXPECT_EQ(placeOfToday({"--gmt-offset", "-12600"})["timezone"], "GMT-03:30");
  EXPECT_EQ(placeOfToday({"--gmt-offset", "0"})["timezone"], "GMT");
  EXPECT_EQ(placeOfToday({"--gmt-offset", "-64800"})["timezone"], "GMT-18:00");
}

TEST_F(PlaceTest, TheLocationIsARecordWithANamedZone) {
  PlaceChoice choice;
  choice.gmtOffset = 19800;
  const Place place = placeOf(choice, {});
  EXPECT_FALSE(place.location.useCustomTimezone);
  EXPECT_EQ(place.location.timezoneId, "GMT+05:30");
  EXPECT_EQ(place.location.GetTimezoneIntervalFromGMT(instant("2024-06-20T00:00:00Z")), 19800);
}

TEST_F(PlaceTest, TheDefaultPlaceItselfIsNeverChanged) {
  placeOfToday({"--tz", "UTC", "--name", "Elsewhere"});
  EXPECT_EQ(GeoLocationData::DefaultLocation()->name, "San Francisco, CA");
  EXPECT_EQ(GeoLocationData::DefaultLocation()->timezoneId, "America/Los_Angeles");
}

TEST_F(PlaceTest, TheHeadingNamesPlaceCoordinatesAndZone) {
  PlaceChoice choice;
  choice.city = "helsinki";
  EXPECT_EQ(placeOf(choice, {}).heading(), "Helsinki\n60.1695° N, 24.9354° E, Europe/Helsinki\n");
  choice = PlaceChoice();
  choice.latitude = -33.9;
  choice.longitude = -70.5;
  EXPECT_EQ(placeOf(choice, {}).heading(), "33.9000° S, 70.5000° W, UTC\n");
  choice.height = 40;
  EXPECT_EQ(placeOf(choice, {}).heading(), "33.9000° S, 70.5000° W, 40 m, UTC\n");
}

}  // namespace
}  // namespace velmora::app
