// The C interface gives what the library gives, field by field.

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include <velmora/Version.h>
#include <velmora/almanac/Eclipses.h>
#include <velmora/almanac/Events.h>
#include <velmora/almanac/Phases.h>
#include <velmora/almanac/Positions.h>

#include "tests/c/CInterfaceTesting.h"

namespace velmora::testing {
namespace {

using namespace std::chrono_literals;

constexpr almanac::Place helsinkiPlace = {60.17, 24.94, 0.0};
const Instant juneDay = std::chrono::sys_days(2024y / 6 / 21);
constexpr double secondsPerDay = 86400;

void expectSame(const velmora_event& event, const almanac::Event& expected) {
  EXPECT_EQ(event.at, unixSeconds(expected.at));
  EXPECT_EQ(event.body, static_cast<int>(expected.body));
  EXPECT_EQ(event.kind, static_cast<int>(expected.kind));
  EXPECT_EQ(event.azimuth, expected.azimuth);
  EXPECT_EQ(event.altitude, expected.altitude);
}

TEST(CInterface, VersionIsTheLibrarys) { EXPECT_STREQ(velmora_version(), VelmoraVersionString); }

TEST(CInterface, EventsOfAnIntervalAreTheAlmanacs) {
  const double start = unixSeconds(juneDay);
  velmora_day day;
  velmora_event events[32];
  size_t count = 0;
  ASSERT_EQ(velmora_events(&helsinki, start, start + secondsPerDay,
                           VELMORA_WITH_TWILIGHT | VELMORA_WITH_TRANSITS, nullptr, &day, events, 32, &count),
            VELMORA_OK);
  const auto expected = almanac::day(helsinkiPlace, juneDay, juneDay + 24h);
  ASSERT_TRUE(expected);
  ASSERT_EQ(count, expected->events.size());
  ASSERT_GT(count, 5U);
  for (size_t i = 0; i < count; ++i) expectSame(events[i], expected->events[i]);
  EXPECT_EQ(day.start, start);
  EXPECT_EQ(day.end, start + secondsPerDay);
  EXPECT_EQ(day.daylight, expected->daylight.count());
  EXPECT_EQ(day.darkness, expected->darkness.count());
  EXPECT_EQ(day.event_count, count);
}

TEST(CInterface, ConventionMovesTheHorizon) {
  const velmora_convention geometric = {1, 0, 0.0, 0.0};
  const double start = unixSeconds(juneDay);
  velmora_event usual[8], centre[8];
  size_t count = 0;
  ASSERT_EQ(velmora_events(&helsinki, start, start + secondsPerDay, 0, nullptr, nullptr, usual, 8, &count),
            VELMORA_OK);
  ASSERT_EQ(
      velmora_events(&helsinki, start, start + secondsPerDay, 0, &geometric, nullptr, centre, 8, &count),
      VELMORA_OK);
  const auto expected =
      almanac::day(helsinkiPlace, juneDay, juneDay + 24h, {.twilight = false, .transits = false},
                   {.limb = almanac::Convention::Limb::center, .horizonRefraction = 0, .sunSemidiameter = 0});
  ASSERT_TRUE(expected);
  expectSame(centre[0], expected->events[0]);
  EXPECT_NE(usual[0].at, centre[0].at);
}

TEST(CInterface, DaysOfAZoneFindTheirEventsInTheSecondList) {
  const OpenZone zone("Pacific/Apia");
  const velmora_place apia = {-13.83, -171.77, 0};
  velmora_day days[8];
  velmora_event events[64];
  size_t dayCount = 0, eventCount = 0;
  ASSERT_EQ(velmora_days(&apia, zone, {2011, 12, 28}, {2012, 1, 1}, 0, nullptr, days, 8, &dayCount, events,
                         64, &eventCount),
            VELMORA_OK);
  ASSERT_EQ(dayCount, 4U);  // 30 December 2011 never came there
  uint64_t next = 0;
  for (size_t i = 0; i < dayCount; ++i) {
    EXPECT_EQ(days[i].first_event, next);
    for (uint64_t e = 0; e < days[i].event_count; ++e) {
      EXPECT_GE(events[next + e].at, days[i].start);
      EXPECT_LT(events[next + e].at, days[i].end);
    }
    next += days[i].event_count;
  }
  EXPECT_EQ(next, eventCount);
  double start = 0, end = 0;
  EXPECT_EQ(velmora_civil_day(zone, {2011, 12, 30}, &start, &end), VELMORA_NONE);
}

TEST(CInterface, CivilDayOfAClockChangeHasItsTrueLength) {
  const OpenZone zone("Europe/Helsinki");
  double start = 0, end = 0;
  ASSERT_EQ(velmora_civil_day(zone, {2024, 3, 31}, &start, &end), VELMORA_OK);
  EXPECT_EQ(end - start, 23 * 3600);
  ASSERT_EQ(velmora_civil_day(zone, {2024, 10, 27}, &start, &end), VELMORA_OK);
  EXPECT_EQ(end - start, 25 * 3600);
  int32_t offset = 0;
  ASSERT_EQ(velmora_zone_offset(zone, start, &offset), VELMORA_OK);
  EXPECT_EQ(offset, 3 * 3600);
}

TEST(CInterface, NextSunriseInThePolarNightIsWeeksAway) {
  const double december = unixSeconds(std::chrono::sys_days(2024y / 12 / 1));
  velmora_event rise;
  ASSERT_EQ(velmora_next(&tromso, VELMORA_SUN, VELMORA_RISE, december, nullptr, &rise), VELMORA_OK);
  EXPECT_GT(rise.at, december + 40 * secondsPerDay);
  const auto expected = almanac::next({69.65, 18.96, 0}, almanac::Body::sun, almanac::EventKind::rise,
                                      instantFromUnixSeconds(december));
  ASSERT_TRUE(expected);
  expectSame(rise, *expected);
}

TEST(CInterface, ManyPlacesAtOnceAreAsEachAlone) {
  const velmora_place places[] = {helsinki, tromso, {-33.87, 151.21, 0}, {90, 0, 0}};
  const double start = unixSeconds(juneDay);
  velmora_place_day days[4];
  ASSERT_EQ(velmora_at_places(places, 4, start, start + secondsPerDay, nullptr, 2, days), VELMORA_OK);
  for (int i = 0; i < 4; ++i) {
    const auto alone = almanac::day({places[i].latitude, places[i].longitude, 0}, juneDay, juneDay + 24h,
                                    {.twilight = false, .transits = false});
    ASSERT_TRUE(alone);
    EXPECT_EQ(days[i].daylight, alone->daylight.count());
    EXPECT_EQ(days[i].darkness, alone->darkness.count());
    EXPECT_EQ(days[i].sun, static_cast<int>(alone->sun));
    EXPECT_EQ(days[i].moon, static_cast<int>(alone->moon));
    int events = 0;
    for (const double at : {days[i].sun_rise, days[i].sun_set, days[i].moon_rise, days[i].moon_set}) {
      events += !std::isnan(at);
    }
    EXPECT_EQ(events, static_cast<int>(alone->events.size()));
  }
  EXPECT_EQ(days[1].sun, VELMORA_UP_ALL_DAY);
  EXPECT_TRUE(std::isnan(days[1].sun_rise));
  EXPECT_EQ(velmora_at_places(places, 4, start, start + secondsPerDay, nullptr, 0, days),
            VELMORA_BAD_ARGUMENT);
}

TEST(CInterface, CitiesAreTheTables) {
  velmora_city cities[8];
  size_t count = 0;
  ASSERT_EQ(velmora_cities("munich", cities, 8, &count), VELMORA_OK);
  ASSERT_EQ(count, 1U);
  EXPECT_STREQ(cities[0].zone, "Europe/Berlin");
  EXPECT_STREQ(cities[0].country, "DE");
  EXPECT_NEAR(cities[0].latitude, 48.14, 0.02);
  EXPECT_GT(cities[0].people, 1000000);
  ASSERT_EQ(velmora_cities("Portland", cities, 8, &count), VELMORA_OK);
  EXPECT_GT(count, 1U);
  ASSERT_EQ(velmora_cities("Nowhere at all", cities, 8, &count), VELMORA_OK);
  EXPECT_EQ(count, 0U);
}

TEST(CInterface, CrossingsAreTheAlmanacs) {
  velmora_crossing crossings[4];
  size_t count = 0;
  const double start = unixSeconds(juneDay);
  ASSERT_EQ(
      velmora_crossings(&helsinki, VELMORA_SUN, 10.0, start, start + secondsPerDay, crossings, 4, &count),
      VELMORA_OK);
  const auto expected = almanac::crossings(helsinkiPlace, almanac::Body::sun, 10.0, juneDay, juneDay + 24h);
  ASSERT_EQ(count, expected.size());
  ASSERT_EQ(count, 2U);
  for (size_t i = 0; i < count; ++i) {
    EXPECT_EQ(crossings[i].at, unixSeconds(expected[i].at));
    EXPECT_EQ(crossings[i].azimuth, expected[i].azimuth);
    EXPECT_EQ(crossings[i].is_rising, expected[i].isRising ? 1 : 0);
  }
}

TEST(CInterface, PositionsAndIlluminationsAreTheAlmanacsAndNaNOutsideTheYears) {
  const double at[] = {unixSeconds(juneDay), unixSeconds(std::chrono::sys_days(1899y / 12 / 31)), nan};
  velmora_position moons[3];
  velmora_illumination lit[3];
  ASSERT_EQ(velmora_positions(&helsinki, VELMORA_MOON, at, 3, moons), VELMORA_OK);
  ASSERT_EQ(velmora_illuminations(&helsinki, at, 3, lit), VELMORA_OK);
  const auto moon = almanac::position(helsinkiPlace, almanac::Body::moon, juneDay);
  const auto illumination = almanac::illumination(helsinkiPlace, juneDay);
  ASSERT_TRUE(moon && illumination);
  EXPECT_NEAR(moons[0].right_ascension, moon->rightAscension, 1e-9);
  EXPECT_NEAR(moons[0].declination, moon->declination, 1e-9);
  EXPECT_NEAR(moons[0].distance, moon->distance, 1e-6);
  EXPECT_NEAR(moons[0].topocentric_right_ascension, moon->topocentricRightAscension, 1e-9);
  EXPECT_NEAR(moons[0].topocentric_declination, moon->topocentricDeclination, 1e-9);
  EXPECT_NEAR(moons[0].topocentric_distance, moon->topocentricDistance, 1e-6);
  EXPECT_NEAR(moons[0].azimuth, moon->azimuth, 1e-9);
  EXPECT_NEAR(moons[0].altitude, moon->altitude, 1e-9);
  EXPECT_NEAR(moons[0].apparent_altitude, moon->apparentAltitude, 1e-9);
  EXPECT_NEAR(moons[0].semidiameter, moon->semidiameter, 1e-9);
  EXPECT_EQ(lit[0].fraction, illumination->fraction);
  EXPECT_EQ(lit[0].elongation, illumination->elongation);
  EXPECT_EQ(lit[0].phase_angle, illumination->phaseAngle);
  EXPECT_EQ(lit[0].bright_limb_angle, illumination->brightLimbAngle);
  EXPECT_EQ(lit[0].parallactic_angle, illumination->parallacticAngle);
  EXPECT_EQ(lit[0].tilt, illumination->tilt);
  EXPECT_EQ(lit[0].is_waxing, illumination->isWaxing ? 1 : 0);
  for (const int outside : {1, 2}) {
    EXPECT_TRUE(std::isnan(moons[outside].altitude) && std::isnan(moons[outside].distance));
    EXPECT_TRUE(std::isnan(lit[outside].fraction) && std::isnan(lit[outside].tilt));
  }
}

TEST(CInterface, PhasesApsidesAndSeasonsOfAYearAreTheAlmanacs) {
  const Instant from = std::chrono::sys_days(2024y / 1 / 1), to = std::chrono::sys_days(2025y / 1 / 1);
  velmora_moment phases[64], seasons[8];
  velmora_apsis apsides[32];
  size_t phaseCount = 0, seasonCount = 0, apsisCount = 0;
  ASSERT_EQ(velmora_phases(unixSeconds(from), unixSeconds(to), phases, 64, &phaseCount), VELMORA_OK);
  ASSERT_EQ(velmora_seasons(unixSeconds(from), unixSeconds(to), seasons, 8, &seasonCount), VELMORA_OK);
  ASSERT_EQ(velmora_apsides(unixSeconds(from), unixSeconds(to), apsides, 32, &apsisCount), VELMORA_OK);
  const auto expectedPhases = almanac::phases(from, to);
  const auto expectedApsides = almanac::apsides(from, to);
  ASSERT_EQ(phaseCount, expectedPhases.size());
  ASSERT_EQ(apsisCount, expectedApsides.size());
  ASSERT_EQ(seasonCount, 4U);
  for (size_t i = 0; i < phaseCount; ++i) {
    EXPECT_EQ(phases[i].at, unixSeconds(expectedPhases[i].at));
    EXPECT_EQ(phases[i].kind, static_cast<int>(expectedPhases[i].phase));
  }
  for (size_t i = 0; i < apsisCount; ++i) {
    EXPECT_EQ(apsides[i].at, unixSeconds(expectedApsides[i].at));
    EXPECT_EQ(apsides[i].distance, expectedApsides[i].distance);
    EXPECT_EQ(apsides[i].is_perigee, expectedApsides[i].isPerigee ? 1 : 0);
  }
  for (int i = 0; i < 4; ++i) EXPECT_EQ(seasons[i].kind, i);
}

TEST(CInterface, TotalEclipseOfApril2024SeenFromMazatlan) {
  velmora_eclipse eclipses[8];
  size_t count = 0;
  ASSERT_EQ(velmora_eclipses(unixSeconds(std::chrono::sys_days(2024y / 4 / 1)),
                             unixSeconds(std::chrono::sys_days(2024y / 5 / 1)), eclipses, 8, &count),
            VELMORA_OK);
  ASSERT_EQ(count, 1U);
  EXPECT_EQ(eclipses[0].body, VELMORA_SUN);
  EXPECT_EQ(eclipses[0].kind, VELMORA_TOTAL);
  EXPECT_EQ(eclipses[0].saros, 139);
  const velmora_place mazatlan = {23.25, -106.41, 0};
  velmora_local_eclipse local;
  ASSERT_EQ(velmora_seen_from(&eclipses[0], &mazatlan, &local), VELMORA_OK);
  EXPECT_EQ(local.kind, VELMORA_TOTAL);
  EXPECT_EQ(local.contact_count, 4);
  EXPECT_EQ(local.contacts[0].contact, VELMORA_C1);
  EXPECT_EQ(local.contacts[3].contact, VELMORA_C4);
  EXPECT_EQ(local.contacts[4].contact, -1);
  EXPECT_TRUE(std::isnan(local.contacts[5].at));
  EXPECT_EQ(local.is_visible, 1);
  EXPECT_EQ(local.obscuration, 1.0);
  EXPECT_EQ(local.visible_from, local.contacts[0].at);
  ASSERT_EQ(velmora_seen_from(&eclipses[0], &helsinki, &local), VELMORA_OK);  // below its horizon
  EXPECT_EQ(local.is_visible, 0);
  EXPECT_TRUE(std::isnan(local.visible_from) && std::isnan(local.best.at) &&
              std::isnan(local.best_magnitude));
  const velmora_place southPole = {-90, 0, 0};
  EXPECT_EQ(velmora_seen_from(&eclipses[0], &southPole, &local), VELMORA_NONE);
}

TEST(CInterface, CalendarMonthIsTheFixedOne) {
  const OpenZone zone("America/New_York");
  velmora_calendar_day days[31];
  size_t count = 0;
  ASSERT_EQ(velmora_calendar_month(zone, 2024, 4, days, 31, &count), VELMORA_OK);
  ASSERT_EQ(count, 30U);
  EXPECT_EQ(days[7].day, 8);
  EXPECT_EQ(days[7].phase, 3);  // new moon, the day of the eclipse
  EXPECT_EQ(days[7].lit, 0.0);
  EXPECT_EQ(days[7].image, 0);
  EXPECT_EQ(days[7].moon_age, 1);
  EXPECT_EQ(velmora_calendar_month(zone, 2041, 1, days, 31, &count), VELMORA_OUT_OF_YEARS);
  EXPECT_EQ(velmora_calendar_month(zone, 2024, 13, days, 31, &count), VELMORA_BAD_ARGUMENT);
}

TEST(CInterface, RiseSetRecordIsTheFixedSearchs) {
  const OpenZone zone("Europe/Helsinki");
  velmora_rise_set_record record;
  ASSERT_EQ(velmora_rise_set(&helsinki, zone, {2024, 6, 21}, 0, &record), VELMORA_OK);
  EXPECT_EQ(record.sun_rise / 60, 3);
  EXPECT_EQ(record.sun_set / 60, 22);
  EXPECT_EQ(record.day_length, record.sun_set - record.sun_rise);
  EXPECT_EQ(std::string(record.sun_rise_text).substr(0, 2), "03");
  EXPECT_EQ(velmora_rise_set(&helsinki, zone, {2024, 6, 21}, 3, &record), VELMORA_BAD_ARGUMENT);
}

}  // namespace
}  // namespace velmora::testing
