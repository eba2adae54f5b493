#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/time/NumberText.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

Instant instantOf(const std::string& text) {  // 2024-03-20T01:17
  std::istringstream in(text);
  std::int64_t year = 0, month = 0, day = 0, hour = 0, minute = 0;
  char mark = '-';
  in >> year >> mark >> month >> mark >> day >> mark >> hour >> mark >> minute;
  EXPECT_TRUE(in) << text;
  return utc(year, month, day, hour, minute);
}

std::vector<PositionData> eventsOf(const std::string& body, double elevation, Instant start,
                                   const GeoLocationData& place, std::int64_t offset, bool intermediate) {
  return body == "sun" ? Calc::EventsMatchingSunElevation(elevation, start, place, offset, intermediate)
                       : Calc::EventsMatchingMoonElevation(elevation, start, place, offset, intermediate);
}

TEST(ElevationEvents, AgreeWithTheSearchWrittenASecondTime) {
  std::vector<TableRow> rows = tableRows("elevation_events.txt");
  int searches = 0;
  for (std::size_t next = 0; next < rows.size();) {
    TableRow& search = rows[next++];
    ASSERT_EQ(search.kind, "search") << search.where;
    std::string body, start;
    double elevation = 0, latitude = 0, longitude = 0;
    std::int64_t offset = 0;
    bool intermediate = false;
    std::size_t count = 0;
    search.fields >> body >> elevation >> start >> latitude >> longitude >> offset >> intermediate >> count;
    const auto events =
        eventsOf(body, elevation, instantOf(start), placeAt(latitude, longitude), offset, intermediate);
    ASSERT_EQ(events.size(), count) << search.where;
    ++searches;
    for (const PositionData& event : events) {
      TableRow& row = rows[next++];
      double hour = 0, altitude = 0, azimuth = 0;
      ASSERT_TRUE(row.fields >> hour >> altitude >> azimuth) << row.where;
      EXPECT_NEAR(event.hour, hour, 1e-9) << row.where;
      EXPECT_NEAR(event.altitude, altitude, 1e-7) << row.where;
      EXPECT_NEAR(event.azimuth, azimuth, 1e-7) << row.where;
    }
  }
  EXPECT_EQ(searches, 14);
}

TEST(MoonTrack, HasTheLocalHours0To24OfTheLocalDate) {
  const GeoLocationData delhi = placeAt(28.6139, 77.209, "Asia/Kolkata");
  const Instant instant = utc(2024, 2, 29, 20, 45);  // March 1 there
  const auto track = Calc::Get24HourMoonPositionsForDate(instant, delhi, 19800);
  ASSERT_EQ(track.size(), 25U);
  for (std::size_t k = 0; k < track.size(); ++k) {
    const double hour = static_cast<double>(k);
    EXPECT_EQ(track[k].hour, hour);
    const PositionData expected =
        Calc::CalculateMoonPosition(77.209 * degree, 28.6139 * degree, 2024, 3, 1, hour - 5.5, 5.5);
    EXPECT_EQ(track[k].altitude, expected.altitude);
    EXPECT_EQ(track[k].azimuth, expected.azimuth);
    EXPECT_EQ(track[k].altitudeText, expected.altitudeText);
    EXPECT_EQ(track[k].azimuthText, expected.azimuthText);
  }
}

TEST(MoonTrack, PacificApiaSkippedADay) {
  const GeoLocationData apia = placeAt(-13.8333, -171.7667, "Pacific/Apia");
  const auto before =
      Calc::Get24HourMoonPositionsForDate(inZone("Pacific/Apia", 2011, 12, 29, 12), apia, -10 * 3600);
  const auto after =
      Calc::Get24HourMoonPositionsForDate(inZone("Pacific/Apia", 2011, 12, 31, 12), apia, 14 * 3600);
  EXPECT_NEAR(before.back().altitude, after.front().altitude,
              1e-9);  // midnight of the 29th is that of the 31st
  EXPECT_NEAR(before.back().azimuth, after.front().azimuth, 1e-9);
}

TEST(SunTrack, StartsAtTheWholeUniversalHourAndRunsOverMidnight) {
  const GeoLocationData place = placeAt(37.78549082, -122.39184303, "America/Los_Angeles");
  const auto track = Calc::Get24HourSunPositionsForDate(utc(2024, 6, 21, 20, 40), place, -25200);
  ASSERT_EQ(track.size(), 24U);
  for (std::size_t i = 0; i < track.size(); ++i) {
    const double hour = 20 + static_cast<double>(i);
    const PositionData expected =
        Calc::CalculateSunPosition(-122.39184303 * degree, 37.78549082 * degree, 2024, 6, 21, hour, 0);
    EXPECT_EQ(track[i].altitude, expected.altitude);
    EXPECT_EQ(track[i].azimuth, expected.azimuth);
  }
}

TEST(SunTrack, HoursCarryTheOffsetInSeconds) {
  const auto west = Calc::Get24HourSunPositionsForDate(utc(2024, 6, 21, 20, 40), placeAt(37, -122), -25200);
  EXPECT_EQ(west.front().hour, 20 - 25200 + 24);
  EXPECT_EQ(west.back().hour, 43 - 25200 + 24);
  const auto east = Calc::Get24HourSunPositionsForDate(utc(2024, 6, 21, 20, 40), placeAt(60, 25), 10800);
  EXPECT_EQ(east.front().hour, 20 + 10800);
}

TEST(SunTrack, ReadsTheMovedInstantOnThePlacesClock) {
  const GeoLocationData helsinki = placeAt(60.1699, 24.9384, "Europe/Helsinki");
  const auto track = Calc::Get24HourSunPositionsForDate(utc(2024, 3, 31, 2), helsinki, 10800);
  EXPECT_EQ(track.front().hour, 1 + 10800);  // an hour early, just after the clocks went forward
}

TEST(ElevationEvents, OfTheHorizonAreRiseAndSetWithTheElevationAsAltitude) {
  const GeoLocationData place = placeAt(37.78549082, -122.39184303, "America/Los_Angeles");
  for (const char* body : {"sun", "moon"}) {
    const auto events = eventsOf(body, 0, utc(2024, 3, 20, 9, 30), place, -25200, false);
    ASSERT_EQ(events.size(), 2U) << body;
    EXPECT_EQ(events[0].altitude, 0.0) << body;
    EXPECT_EQ(events[1].altitude, 0.0) << body;
    EXPECT_NE(events[0].azimuth < 180, events[1].azimuth < 180) << body;
  }
}

TEST(ElevationEvents, KeepTheTextOfTheAltitudeComputed) {
  int textsOfAnotherAltitude = 0;
  for (int hundredths = -100; hundredths <= 100; hundredths += 7) {
    const double elevation = hundredths / 100.0;
    const auto events = Calc::EventsMatchingSunElevation(elevation, utc(2024, 10, 2, 23, 59),
                                                         placeAt(-33.8688, 151.2093), 36000, false);
    for (const PositionData& event : events) {
      if (event.altitude != elevation) continue;  // a direct hit
      EXPECT_NEAR(leadingNumber(event.altitudeText), elevation, 0.1 + 1e-9);
      if (event.altitudeText != decimalText(elevation, 1) + "°") ++textsOfAnotherAltitude;
    }
  }
  EXPECT_GT(textsOfAnotherAltitude, 0);
}

TEST(ElevationEvents, StopAtTheSecondRefinedEvent) {
  const auto events = Calc::EventsMatchingSunElevation(0, utc(2024, 3, 20, 4), placeAt(10, 0), 0, true);
  int refined = 0;
  for (const PositionData& event : events) refined += event.altitude == 0 ? 1 : 0;
  EXPECT_EQ(refined, 2);
  EXPECT_GT(events.back().hour, 18);
  EXPECT_LE(events.back().hour, 19);
  EXPECT_NE(events.back().altitude, 0);  // the sample of the hour in which the event was found
  EXPECT_EQ(events[events.size() - 2].altitude, 0);
}

TEST(ElevationEvents, AtAnElevationThatTheSunNeverReachesAreNone) {
  const Instant winter = utc(2024, 12, 21);
  EXPECT_TRUE(Calc::EventsMatchingSunElevation(10, winter, placeAt(60.1699, 24.9384), 7200, false).empty());
  EXPECT_TRUE(Calc::EventsMatchingSunElevation(10, winter, placeAt(60.1699, 24.9384), 7200, true).empty());
}

double morningAltitude(double latitude, double longitude) {  // at 05:15 of the longest day
  return Calc::CalculateSunPosition(longitude * degree, latitude * degree, 2024, 6, 21, 5.25, 0).altitude;
}

struct LatitudeAndLongitude {
  double latitude, longitude;
};

/// Where that altitude is exactly 0: on some meridian it is at one of two neighbouring latitudes, to which it
/// is halved down.
LatitudeAndLongitude placeOfSunAtTheHorizon() {
  for (double longitude = 0; longitude < 1; longitude += 0.01) {
    double south = 20, north = 30;
    for (double mid = 25; south < mid && mid < north; mid = (south + north) / 2) {
      (morningAltitude(mid, longitude) < 0 ? south : north) = mid;
    }
    if (morningAltitude(north, longitude) == 0) return {north, longitude};
  }
  return {};
}

TEST(ElevationEvents, ASampleAtAltitudeZeroHidesTheCrossingFromBothItsHours) {
  const auto [latitude, longitude] = placeOfSunAtTheHorizon();
  ASSERT_EQ(morningAltitude(latitude, longitude), 0);
  const auto eventsAt = [meridian = longitude](double elevation, double atLatitude) {
    return Calc::EventsMatchingSunElevation(elevation, utc(2024, 6, 21, 3, 15), placeAt(atLatitude, meridian),
                                            0, false);
  };
  for (const double elevation : {3.0, -3.0}) {  // reached in the hour after the sample, in the one before
    const auto hidden = eventsAt(elevation, latitude);
    ASSERT_EQ(hidden.size(), 1U) << elevation;
    EXPECT_GT(hidden[0].azimuth, 180) << elevation;  // only the evening's
    EXPECT_EQ(eventsAt(elevation, latitude - elevation / 6).size(), 2U) << elevation;
  }
}

TEST(ElevationEvents, OfAPolarDayAreDirectHitsOnly) {
  const GeoLocationData place = placeAt(80, 15);
  const Instant june = utc(2024, 6, 21);
  const auto track = Calc::Get24HourSunPositionsForDate(june, place, 0);
  EXPECT_TRUE(Calc::EventsMatchingSunElevation(0, june, place, 0, true).empty());
  const double reached = track[7].altitude;
  const auto hits = Calc::EventsMatchingSunElevation(reached + 0.04, june, place, 0, false);
  ASSERT_GE(hits.size(), 1U);
  for (const PositionData& hit : hits) EXPECT_NEAR(hit.altitude, reached + 0.04, 0.05);
  EXPECT_EQ(hits.front().altitude, reached);  // a direct hit keeps its own altitude
}

TEST(ElevationEvents, OfTheSunCarryAWholeHourOffsetAndOfTheMoonTheExactOne) {
  const GeoLocationData delhi = placeAt(28.6139, 77.209);
  const Instant start = utc(2024, 3, 20, 20);
  const auto sun = Calc::EventsMatchingSunElevation(0, start, delhi, 19800, true);
  ASSERT_GE(sun.size(), 2U);
  EXPECT_EQ(sun[1].hour - std::floor(sun[1].hour), 0);  // universal hours 20, 21, ... plus 5
  const auto moon = Calc::EventsMatchingMoonElevation(0, start, delhi, 19800, true);
  ASSERT_GE(moon.size(), 2U);
  EXPECT_EQ(moon[1].hour - std::floor(moon[1].hour), 0.5);
}

TEST(ElevationEvents, OfTheSunCutTheOffsetTowardZero) {
  const GeoLocationData stJohns = placeAt(47.56, -52.71);
  const auto sun = Calc::EventsMatchingSunElevation(0, utc(2024, 3, 20, 5), stJohns, -12600, true);
  ASSERT_GE(sun.size(), 2U);
  const PositionData sample =
      Calc::CalculateSunPosition(-52.71 * degree, 47.56 * degree, 2024, 3, 20, 10, -3);
  EXPECT_EQ(sun[1].altitude, sample.altitude) << "the first full hour after sunrise";
  EXPECT_EQ(sun[1].hour, 10 - 3) << "three and a half hours behind GMT count as three";
}

TEST(ElevationEvents, ReadTheDateAgainAtUniversalMidnight) {
  const GeoLocationData place = placeAt(60.1699, 24.9384, "Europe/Helsinki");
  const auto events = Calc::EventsMatchingSunElevation(0, utc(2024, 2, 29, 20), place, 7200, true);
  ASSERT_GE(events.size(), 2U);
  const PositionData& sample = events[1];
  const PositionData nextDay =
      Calc::CalculateSunPosition(24.9384 * degree, 60.1699 * degree, 2024, 3, 1, sample.hour - 2, 2);
  EXPECT_EQ(sample.altitude, nextDay.altitude);
}

/// How many hourly samples the search takes when it starts at that minute past midnight: on a polar day every
/// one of them is a direct hit of a tolerance that the Sun does not leave.
std::size_t samplesFrom(std::int64_t hour, std::int64_t minute) {
  const auto pole = placeAt(89.99, 0);
  const double altitude = Calc::ComputeSunPosition(utc(2024, 6, 20, 12), pole, 0).altitude;
  return Calc::EventsMatchingSunElevation(altitude, utc(2024, 6, 20, hour, minute), pole, 0, false).size();
}

TEST(ElevationEvents, TakeA25thSampleWhereTheDoublesSaySo) {
  EXPECT_EQ(samplesFrom(0, 0), 24U);
  EXPECT_EQ(samplesFrom(0, 2), 25U);
  EXPECT_EQ(samplesFrom(0, 17), 25U);
  EXPECT_EQ(samplesFrom(1, 40), 25U);
  EXPECT_EQ(samplesFrom(0, 30), 24U);
}

TEST(ElevationEvents, OfNumbersOfNoPlaceOrTimeAreDefined) {
  constexpr auto farthest = std::numeric_limits<std::int64_t>::max();
  for (const double number : {nan, infinity, -infinity, 1e300}) {
    const Instant date = instantFromUnixSeconds(number);
    EXPECT_TRUE(Calc::EventsMatchingSunElevation(0, date, placeAt(number, number), farthest, true).empty());
    EXPECT_TRUE(Calc::EventsMatchingMoonElevation(nan, date, placeAt(0, 0), -farthest - 1, false).empty());
    EXPECT_EQ(Calc::Get24HourMoonPositionsForDate(date, placeAt(number, 0), farthest).size(), 25U);
    EXPECT_EQ(Calc::Get24HourSunPositionsForDate(date, placeAt(0, number), -farthest - 1).size(), 24U);
  }
}

}  // namespace
}  // namespace velmora
