// What is wrong is said by a status and in words, and leaves what was given untouched.

#include <cmath>
#include <cstring>
#include <thread>

#include <gtest/gtest.h>

#include "tests/c/CInterfaceTesting.h"

namespace velmora::testing {
namespace {

constexpr double in2024 = 1718928000;  // 2024-06-21T00:00Z
constexpr double day = 86400;

velmora_status eventsAt(const velmora_place& place, double start, double end) {
  size_t count = 0;
  return velmora_events(&place, start, end, 0, nullptr, nullptr, nullptr, 0, &count);
}

TEST(CInterfaceRefusals, PlaceOutsideTheEarth) {
  EXPECT_EQ(eventsAt({90.5, 0, 0}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "latitude lies outside -90 to 90");
  EXPECT_EQ(eventsAt({0, 181, 0}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(eventsAt({nan, 0, 0}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(eventsAt({0, infinity, 0}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(eventsAt({0, 0, -1}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(eventsAt({0, 0, infinity}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT);
}

TEST(CInterfaceRefusals, InstantsThatAreNoneOrOutsideTheYears) {
  EXPECT_EQ(eventsAt(helsinki, nan, in2024), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(eventsAt(helsinki, in2024, infinity), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(eventsAt(helsinki, in2024, in2024 - 1), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "to lies before from");
  EXPECT_EQ(eventsAt(helsinki, -1e10, in2024), VELMORA_OUT_OF_YEARS);
  EXPECT_EQ(message(), "from lies outside the years 1900 to 2100");
  EXPECT_EQ(eventsAt(helsinki, in2024, 1e10), VELMORA_OUT_OF_YEARS);
}

TEST(CInterfaceRefusals, NumbersThatAreNoChoice) {
  velmora_event event;
  velmora_crossing crossing;
  size_t count = 0;
  EXPECT_EQ(velmora_next(&helsinki, 2, VELMORA_RISE, in2024, nullptr, &event), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "body is 2; it is one of 0 to 1");
  EXPECT_EQ(velmora_next(&helsinki, VELMORA_SUN, 9, in2024, nullptr, &event), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(velmora_crossings(&helsinki, 0, 90.1, in2024, in2024 + day, &crossing, 1, &count),
            VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(velmora_crossings(&helsinki, 0, nan, in2024, in2024 + day, &crossing, 1, &count),
            VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(velmora_events(&helsinki, in2024, in2024 + day, 4, nullptr, nullptr, nullptr, 0, &count),
            VELMORA_BAD_ARGUMENT);
  const velmora_convention odd = {3, 0, 0.5, 0.25}, steep = {0, 0, 2.1, 0.25};
  EXPECT_EQ(velmora_next(&helsinki, 0, 0, in2024, &odd, &event), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(velmora_next(&helsinki, 0, 0, in2024, &steep, &event), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "an angle of the convention lies outside 0 to 2 degrees");
  const velmora_convention steepest = {0, 0, 2, 2};
  EXPECT_EQ(velmora_next(&helsinki, 0, 0, in2024, &steepest, &event), VELMORA_OK);
}

TEST(CInterfaceRefusals, NullPointersAreNamed) {
  size_t count = 0;
  EXPECT_EQ(velmora_events(nullptr, in2024, in2024 + day, 0, nullptr, nullptr, nullptr, 0, &count),
            VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "place is a null pointer");
  EXPECT_EQ(velmora_phases(in2024, in2024 + day, nullptr, 0, nullptr), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "count is a null pointer");
  EXPECT_EQ(velmora_phases(in2024, in2024 + day, nullptr, 1, &count), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "phases is a null pointer");
  EXPECT_EQ(velmora_zone_open(nullptr, nullptr), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(velmora_positions(&helsinki, 0, nullptr, 1, nullptr), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(velmora_positions(&helsinki, 0, nullptr, 0, nullptr), VELMORA_OK);
  EXPECT_EQ(velmora_civil_day(nullptr, {2024, 1, 1}, nullptr, nullptr), VELMORA_BAD_ARGUMENT);
  velmora_zone_close(nullptr);
}

TEST(CInterfaceRefusals, ZonesAndDaysThatDoNotExist) {
  velmora_zone* zone = nullptr;
  EXPECT_EQ(velmora_zone_open("Europe/Atlantis", &zone), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(message(), "there is no zone of the name Europe/Atlantis");
  EXPECT_EQ(zone, nullptr);
  const OpenZone utc("UTC");
  double start = 0, end = 0;
  for (const velmora_date date : {velmora_date{2023, 2, 29},
                                  {2023, 0, 1},
                                  {2023, 13, 1},
                                  {2023, 1, 32},
                                  {2023, 1, -1},
                                  {2000000000, 1, 1}}) {
    EXPECT_EQ(velmora_civil_day(utc, date, &start, &end), VELMORA_BAD_ARGUMENT);
  }
  EXPECT_EQ(velmora_civil_day(utc, {1899, 12, 31}, &start, &end), VELMORA_OUT_OF_YEARS);
  EXPECT_EQ(velmora_civil_day(utc, {2101, 1, 1}, &start, &end), VELMORA_OUT_OF_YEARS);
}

TEST(CInterfaceRefusals, DaysThatBeginBeforeTheYearsOrEndAfterThem) {
  const OpenZone helsinkis("Europe/Helsinki"), newYorks("America/New_York"), apias("Pacific/Apia");
  size_t days = 0, events = 0;
  const auto asked = [&](const velmora_zone* zone, velmora_date first, velmora_date last) {
    return velmora_days(&helsinki, zone, first, last, 0, nullptr, nullptr, 0, &days, nullptr, 0, &events);
  };
  EXPECT_EQ(asked(helsinkis, {1900, 1, 1}, {1900, 1, 5}), VELMORA_OUT_OF_YEARS);
  EXPECT_EQ(message(), "a day lies outside the years 1900 to 2100 of UTC");
  EXPECT_EQ(asked(newYorks, {2100, 12, 1}, {2100, 12, 31}), VELMORA_OUT_OF_YEARS);
  EXPECT_EQ(asked(newYorks, {1900, 1, 1}, {1900, 1, 1}), VELMORA_MORE);
  EXPECT_EQ(asked(apias, {2011, 12, 30}, {2011, 12, 30}), VELMORA_OK);
  EXPECT_EQ(days, 0U);
}

TEST(CInterfaceRefusals, ListLongerThanItsRoomIsCountedWhole) {
  velmora_moment phases[2];
  size_t all = 0, count = 0;
  ASSERT_EQ(velmora_phases(in2024, in2024 + 365 * day, nullptr, 0, &all), VELMORA_MORE);
  EXPECT_NEAR(static_cast<double>(all), 49.5, 1);
  ASSERT_EQ(velmora_phases(in2024, in2024 + 365 * day, phases, 2, &count), VELMORA_MORE);
  EXPECT_EQ(count, all);
  EXPECT_LT(phases[0].at, phases[1].at);
}

TEST(CInterfaceRefusals, AFailureLeavesWhatWasGivenAsItWas) {
  velmora_event event;
  std::memset(&event, 0x5a, sizeof event);
  const velmora_event before = event;
  EXPECT_EQ(velmora_next(&helsinki, VELMORA_SUN, VELMORA_RISE, nan, nullptr, &event), VELMORA_BAD_ARGUMENT);
  EXPECT_EQ(std::memcmp(&event, &before, sizeof event), 0);
}

TEST(CInterfaceRefusals, MessagesBelongToTheirThread) {
  EXPECT_EQ(eventsAt({91, 0, 0}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT);
  const std::string here = message();
  std::thread([] { EXPECT_EQ(eventsAt({0, 200, 0}, in2024, in2024 + day), VELMORA_BAD_ARGUMENT); }).join();
  EXPECT_EQ(message(), here);
}

}  // namespace
}  // namespace velmora::testing
