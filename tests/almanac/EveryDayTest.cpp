#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include <tests/almanac/DaysInARow.h>
#include <velmora/almanac/Events.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;
using namespace velmora::testing;

/// Every day of the dates at a town.
void walk(const Town& town, year_month_day first, year_month_day last) {
  DaysInARow row;
  const auto found = days(town.place, *TimeZone::named(town.zone), first, last);
  ASSERT_FALSE(found.empty()) << town.zone;
  for (const Day& day : found) {
    const std::string fault = row.fault(day);
    ASSERT_TRUE(fault.empty()) << town.zone << ' ' << unixSeconds(day.start) << ": " << fault;
  }
}

TEST(AlmanacDays, HoldTogetherInThreeYearsOfEveryTown) {
  year first = 1901y;
  for (const Town& town : towns) {
    walk(town, first / January / 1, (first + years(2)) / December / 31);
    first += years(17);
  }
}

TEST(AlmanacDays, HoldTogetherAtTheEndsOfTheYearsCovered) {
  for (const Town& town : towns) {
    walk(town, 1900y / January / 2, 1900y / February / 10);
    walk(town, 2100y / November / 20, 2100y / December / 30);
  }
}

TEST(AlmanacDays, HoldTogetherWhereApiaSkippedOne) {
  walk(towns[4], 2011y / December / 1, 2012y / January / 31);
}

}  // namespace
}  // namespace velmora::almanac
