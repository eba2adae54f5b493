#include <gtest/gtest.h>

#include <chrono>
#include <map>

#include <tests/support/Tables.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {
namespace {

struct Change {
  double at;
  std::int64_t before, after;
};

std::map<std::string, std::vector<Change>> changesOfZones() {
  std::map<std::string, std::vector<Change>> changes;
  for (auto& row : testing::tableRows("zone_changes.txt")) {
    Change change{};
    row.fields >> change.at >> change.before >> change.after;
    changes[row.kind].push_back(change);
  }
  return changes;
}

/// The clock reading of an instant at an offset from GMT.
LocalTime reading(double instant, std::int64_t offset) {
  return LocalTime(Seconds(instant + static_cast<double>(offset)));
}

std::int64_t offsetAt(const TimeZone& zone, double instant) {
  return zone.secondsFromGMT(instantFromUnixSeconds(instant));
}

TEST(ConformanceOfZones, ClocksChangeAtTheSecondTheyShould) {
  for (const auto& [name, changes] : changesOfZones()) {
    const TimeZone zone = TimeZone::named(name).value();
    double last = 0;
    for (const Change& change : changes) {
      SCOPED_TRACE(name + " at " + std::to_string(change.at));
      EXPECT_EQ(offsetAt(zone, last), change.before);
      EXPECT_EQ(offsetAt(zone, (last + change.at) / 2), change.before);
      EXPECT_EQ(offsetAt(zone, change.at - 0.25), change.before);
      EXPECT_EQ(offsetAt(zone, change.at), change.after);
      last = change.at;
    }
  }
}

TEST(ConformanceOfZones, SkippedAndRepeatedReadingsHaveBothTheirInstants) {
  for (const auto& [name, changes] : changesOfZones()) {
    const TimeZone zone = TimeZone::named(name).value();
    for (const Change& change : changes) {
      SCOPED_TRACE(name + " at " + std::to_string(change.at));
      const bool isSkip = change.before < change.after;
      const double half = static_cast<double>(change.after - change.before) / 2;
      const LocalLookup found = zone.lookup(reading(change.at + half, change.before));
      EXPECT_EQ(found.kind, isSkip ? LocalLookup::Kind::skipped : LocalLookup::Kind::repeated);
      EXPECT_EQ(unixSeconds(found.before), change.at + half);
      EXPECT_EQ(unixSeconds(found.change), change.at);
      EXPECT_EQ(unixSeconds(found.after), change.at - half);
    }
  }
}

TEST(ConformanceOfZones, ReadingsAwayFromChangesHaveOneInstant) {
  for (const auto& [name, changes] : changesOfZones()) {
    const TimeZone zone = TimeZone::named(name).value();
    for (const Change& change : changes) {
      SCOPED_TRACE(name + " at " + std::to_string(change.at));
      constexpr double twoDays = 2 * 86'400 + 0.5;
      for (const auto& [instant, offset] :
           {std::pair(change.at - twoDays, change.before), std::pair(change.at + twoDays, change.after)}) {
        const LocalLookup found = zone.lookup(reading(instant, offset));
        EXPECT_EQ(found.kind, LocalLookup::Kind::unique);
        EXPECT_EQ(unixSeconds(found.before), instant);
        EXPECT_EQ(found.before, found.change);
        EXPECT_EQ(found.before, found.after);
      }
    }
  }
}

TEST(ConformanceOfZones, TheEdgesOfAChangeBelongToOneSide) {
  const TimeZone helsinki = TimeZone::named("Europe/Helsinki").value();
  const double spring = 1'711'846'800;  // 2024-03-31T01:00Z, from 3 o'clock to 4
  EXPECT_EQ(helsinki.lookup(reading(spring - 1, 7200)).kind, LocalLookup::Kind::unique);
  EXPECT_EQ(helsinki.lookup(reading(spring, 7200)).kind, LocalLookup::Kind::skipped);
  EXPECT_EQ(helsinki.lookup(reading(spring - 1, 10800)).kind, LocalLookup::Kind::skipped);
  EXPECT_EQ(helsinki.lookup(reading(spring, 10800)).kind, LocalLookup::Kind::unique);
}

TEST(ConformanceOfZones, PacificApiaSkippedADay) {
  const TimeZone apia = TimeZone::named("Pacific/Apia").value();
  using namespace std::chrono_literals;
  const LocalTime noon = LocalTime(std::chrono::local_days(2011y / 12 / 30)) + 12h;
  EXPECT_EQ(apia.lookup(noon).kind, LocalLookup::Kind::skipped);
  EXPECT_EQ(apia.lookup(noon - 24h).kind, LocalLookup::Kind::unique);
  EXPECT_EQ(apia.lookup(noon + 24h).kind, LocalLookup::Kind::unique);
}

TEST(ConformanceOfZones, NamesAreThoseOfTheZoneDatabaseInTheirOwnSpelling) {
  for (const char* name :
       {"Europe/Helsinki", "Asia/Kolkata", "Asia/Calcutta", "America/Nuuk", "Europe/Isle_of_Man",
        "America/Port-au-Prince", "Africa/Dar_es_Salaam", "Antarctica/DumontDUrville",
        "America/Argentina/ComodRivadavia", "Etc/GMT-14", "Etc/GMT+12", "EST5EDT", "NZ-CHAT", "GB-Eire",
        "US/East-Indiana", "Antarctica/McMurdo", "America/Knox_IN"}) {
    EXPECT_TRUE(TimeZone::named(name)) << name;
  }
  using namespace std::string_literals;
  for (const std::string& name :
       {"europe/helsinki"s, "EUROPE/HELSINKI"s, "Europe/helsinki"s, "ASIA/KOLKATA"s, "PST"s, "IST"s,
        "+05:30"s, "+0530"s, "SystemV/PST8"s, "Etc/Unknown"s, "utc"s, "Europe/Helsinki\0"s,
        "Europe/Helsinki "s, " Europe/Helsinki"s, "Mars/Olympus"s}) {
    EXPECT_FALSE(TimeZone::named(name)) << name;
  }
}

TEST(ConformanceOfZones, TimesBeyondEveryCalendarHaveTheOffsetsOfItsEdges) {
  const TimeZone helsinki = TimeZone::named("Europe/Helsinki").value();
  EXPECT_EQ(offsetAt(helsinki, -1e300), 5989);  // Helsinki mean time
  EXPECT_EQ(offsetAt(helsinki, -1e12), 5989);
  EXPECT_EQ(offsetAt(helsinki, 1e300), offsetAt(helsinki, 1e12));
  EXPECT_EQ(helsinki.lookup(LocalTime(Seconds(-1e300))).kind, LocalLookup::Kind::unique);
}

}  // namespace
}  // namespace velmora
