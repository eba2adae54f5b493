#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>

#include <tests/phases/Places.h>
#include <tests/phases/ShippedData.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

/// The identifiers of the system's zone table.
std::vector<std::string> zonesOfTheSystem() {
  std::ifstream table("/usr/share/zoneinfo/zone.tab");
  std::vector<std::string> zones;
  for (std::string line; std::getline(table, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    std::string country, coordinates, zone;
    fields >> country >> coordinates >> zone;
    zones.push_back(zone);
  }
  return zones;
}

/// Of zones whose clocks agree at every event, the first.
std::vector<TimeZone> zonesThatDiffer(const std::vector<shipped::Event>& events) {
  std::map<std::vector<std::int64_t>, TimeZone> zones;
  for (const std::string& name : zonesOfTheSystem()) {
    const std::optional<TimeZone> zone = TimeZone::named(name);
    EXPECT_TRUE(zone) << name;
    if (!zone) continue;
    std::vector<std::int64_t> offsets;
    for (const shipped::Event& event : events) offsets.push_back(zone->secondsFromGMT(event.time));
    zones.emplace(std::move(offsets), *zone);
  }
  std::vector<TimeZone> differing;
  for (const auto& [offsets, zone] : zones) differing.push_back(zone);
  return differing;
}

/// Year, month and day of an event in a zone, by its offset alone.
std::chrono::year_month_day localDay(Instant instant, const TimeZone& zone) {
  const Instant shifted = instant + Seconds(static_cast<double>(zone.secondsFromGMT(instant)));
  return std::chrono::floor<std::chrono::days>(shifted);
}

using Found = std::multimap<double, std::chrono::year_month_day>;

/// The events in the lists of all months, with the day under which they stand.
Found eventsOfAllMonths(const std::map<std::int64_t, YearTable>& tables, const GeoLocationData& place) {
  Found found;
  for (const auto& [year, table] : tables) {
    for (std::int64_t month = 0; month < 12; ++month) {
      Calendar calendar;
      for (const auto& item : MoonPhaseCalc::GetMoonPhaseDataForMonth(table, year, month, calendar, 0, year,
                                                                      month, place, true)) {
        found.emplace(unixSeconds(item->localDate),
                      std::chrono::year_month_day(std::chrono::year(static_cast<int>(year)),
                                                  std::chrono::month(static_cast<unsigned>(month + 1)),
                                                  std::chrono::day(static_cast<unsigned>(item->day))));
      }
    }
  }
  return found;
}

TEST(EveryZone, EachEventStandsInExactlyOneMonthButForTheEdgesOfTheTables) {
  const ScopedLocale locale("en_US");
  const ScopedDefaultTimeZone defaultZone("UTC");
  const std::vector<shipped::Event> events = shipped::phases();
  std::map<std::int64_t, YearTable> tables;
  for (std::int64_t year = 2000; year <= 2040; ++year) tables.emplace(year, shippedTable(year));

  const std::vector<TimeZone> zones = zonesThatDiffer(events);
  EXPECT_GT(zones.size(), 50U);
  for (const TimeZone& zone : zones) {
    const Found found = eventsOfAllMonths(tables, placeInZone(zone.name()));
    std::size_t expected = 0;
    for (const shipped::Event& event : events) {
      const std::chrono::year_month_day day = localDay(event.time, zone);
      const bool isCovered = int(day.year()) >= 2000 && int(day.year()) <= 2040;
      expected += isCovered ? 1 : 0;
      const auto [first, last] = found.equal_range(unixSeconds(event.time));
      ASSERT_EQ(std::distance(first, last), isCovered ? 1 : 0) << zone.name() << ", " << event.source;
      if (isCovered) {
        ASSERT_EQ(first->second, day) << zone.name() << ", " << event.source;
      }
    }
    ASSERT_EQ(found.size(), expected) << zone.name();
  }
}

}  // namespace
}  // namespace velmora
