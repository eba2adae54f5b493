#include <chrono>

#include <gtest/gtest.h>

#include <tests/almanac/AlmanacTesting.h>
#include <velmora/almanac/Events.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;
using namespace velmora::testing;

double hoursOf(const char* name, year_month_day date) {
  const auto day = civilDay(zoneNamed(name), date);
  return day ? (day->end - day->start).count() / 3600 : 0;
}

TEST(CivilDay, RunsFromMidnightToMidnight) {
  const auto day = civilDay(zoneNamed("Europe/Helsinki"), 2024y / June / 21);
  ASSERT_TRUE(day);
  EXPECT_EQ(day->start, Instant(sys_days(2024y / June / 20) + hours(21)));
  EXPECT_EQ(day->end, Instant(sys_days(2024y / June / 21) + hours(21)));
}

TEST(CivilDay, HasTheHoursThatTheClocksGiveIt) {
  EXPECT_EQ(hoursOf("Europe/London", 2024y / March / 30), 24);
  EXPECT_EQ(hoursOf("Europe/London", 2024y / March / 31), 23);
  EXPECT_EQ(hoursOf("Europe/London", 2024y / October / 27), 25);
  EXPECT_EQ(hoursOf("Australia/Lord_Howe", 2024y / April / 7), 24.5);
  EXPECT_EQ(hoursOf("Australia/Lord_Howe", 2024y / October / 6), 23.5);
}

TEST(CivilDay, OfBeirutBeginsAtOneWhereMidnightIsSkipped) {
  const auto day = civilDay(zoneNamed("Asia/Beirut"), 2022y / March / 27);
  ASSERT_TRUE(day);
  EXPECT_EQ(day->start, Instant(sys_days(2022y / March / 26) + hours(22)));
  EXPECT_EQ(day->end - day->start, hours(23));
}

TEST(CivilDay, OfHavanaHasTheHourAfterMidnightTwice) {
  EXPECT_EQ(hoursOf("America/Havana", 2024y / November / 3), 25);
  EXPECT_EQ(hoursOf("America/Havana", 2024y / November / 2), 24);
}

TEST(CivilDay, IsNoneWhereApiaSkippedIt) {
  EXPECT_EQ(civilDay(zoneNamed("Pacific/Apia"), 2011y / December / 30), std::nullopt);
  const auto before = civilDay(zoneNamed("Pacific/Apia"), 2011y / December / 29);
  const auto after = civilDay(zoneNamed("Pacific/Apia"), 2011y / December / 31);
  ASSERT_TRUE(before && after);
  EXPECT_EQ(before->end, after->start);
  EXPECT_EQ(before->end - before->start, hours(24));
}

TEST(CivilDay, IsNoneForADateThatDoesNotExist) {
  EXPECT_EQ(civilDay(zoneNamed("UTC"), 2023y / February / 29), std::nullopt);
  EXPECT_EQ(civilDay(zoneNamed("UTC"), year_month_day()), std::nullopt);
}

}  // namespace
}  // namespace velmora::almanac
