#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using TrackCommandTest = AppTest;

GeoLocationData at(double latitude, double longitude, const char* zone) {
  GeoLocationData location;
  location.SetLocation(latitude, longitude, std::nullopt, zone, 0, false);
  return location;
}

Json hourAfter(const char* first, std::size_t hours) {
  return instantText(*instantFromText(first) + std::chrono::hours(static_cast<int>(hours)));
}

TEST_F(TrackCommandTest, TheMoonsGoesFromMidnightToMidnight) {
  const Json track =
      json({"track", "--lat", "60", "--lon", "25", "--tz", "Europe/Helsinki", "--date", "2024-06-20"});
  const auto samples = RiseAndSetCalc::Get24HourMoonPositionsForDate(instant("2024-06-20T06:00:00Z"),
                                                                     at(60, 25, "Europe/Helsinki"), 3 * 3600);
  ASSERT_EQ(track.size(), 25U);
  for (std::size_t i = 0; i < track.size(); ++i) {
    EXPECT_EQ(track[i], Json({{"instant", hourAfter("2024-06-19T21:00:00Z", i)},
                              {"altitude", samples[i].altitude},
                              {"azimuth", samples[i].azimuth},
                              {"hour", static_cast<double>(i)},
                              {"altitudeText", samples[i].altitudeText},
                              {"azimuthText", samples[i].azimuthText}}));
  }
}

TEST_F(TrackCommandTest, TheMoonsOffsetIsThatOfTheMorning) {
  // Clocks go from +2 to +3 hours at 03:00; the series counts all of its hours with the later offset.
  const Json track = json({"track", "--city", "Helsinki", "--date", "2024-03-31"});
  EXPECT_EQ(track.front()["instant"], "2024-03-30T21:00:00Z");
  EXPECT_EQ(track.back()["instant"], "2024-03-31T21:00:00Z");
}

TEST_F(TrackCommandTest, TheSunsCarriesNoHourAndStartsAtTheWholeUniversalHour) {
  const Json track = json({"track", "--body", "sun", "--lat", "28.6", "--lon", "77.2", "--tz", "Asia/Kolkata",
                           "--date", "2024-06-20"});
  const auto samples = RiseAndSetCalc::Get24HourSunPositionsForDate(instant("2024-06-19T18:30:00Z"),
                                                                    at(28.6, 77.2, "Asia/Kolkata"), 19800);
  ASSERT_EQ(track.size(), 24U);
  for (std::size_t i = 0; i < track.size(); ++i) {
    EXPECT_EQ(track[i], Json({{"instant", hourAfter("2024-06-19T18:00:00Z", i)},
                              {"altitude", samples[i].altitude},
                              {"azimuth", samples[i].azimuth},
                              {"altitudeText", samples[i].altitudeText},
                              {"azimuthText", samples[i].azimuthText}}));
  }
}

TEST_F(TrackCommandTest, TheSunsStartsAtTheTimeAskedFor) {
  EXPECT_EQ(json({"track", "--body", "sun", "--tz", "UTC", "--date", "2024-06-20", "--time",
                  "15:40"})[0]["instant"],
            "2024-06-20T15:00:00Z");
}

TEST_F(TrackCommandTest, EachSampleHoldsForItsInstant) {
  for (const char* body : {"sun", "moon"}) {
    for (const Json& sample :
         json({"track", "--body", body, "--city", "Kathmandu", "--date", "2024-06-20"})) {
      const auto now = sample["instant"].get<std::string>();
      const Json position = json({"position", "--body", body, "--city", "Kathmandu", "--now", now});
      EXPECT_NEAR(position["altitude"].get<double>(), sample["altitude"].get<double>(), 1e-5) << now;
    }
  }
}

TEST_F(TrackCommandTest, TablesFitThePageAndCountFromMidnight) {
  const auto lines = linesOf(answer({"track", "--city", "Sydney", "--date", "2024-06-20", "--12h"}));
  ASSERT_EQ(lines.size(), 5U + 25U);
  EXPECT_EQ(lines[2], "Path of the Moon");
  EXPECT_EQ(lines[5].substr(0, 19), "2024-06-20 12:00 AM");
  EXPECT_EQ(lines.back().substr(0, 19), "2024-06-21 12:00 AM");
  for (const std::string& line : lines) EXPECT_LE(charactersOf(line), 80U);
}

}  // namespace
}  // namespace velmora::app
