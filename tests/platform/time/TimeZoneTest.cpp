#include <velmora/platform/time/TimeZone.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/platform/time/ZoneDatabase.h>

#include "ScopedEnvironment.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

Instant utc(int year, unsigned month, unsigned day, int hour = 0, int minute = 0) {
  return Instant(sys_days(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day))) +
         Seconds(hour * 3600 + minute * 60);
}

std::int64_t offset(const char* zone, Instant instant) {
  return TimeZone::named(zone)->secondsFromGMT(instant);
}

TEST(TimeZone, FollowsDaylightSavingOfTheInstant) {
  EXPECT_EQ(offset("America/Los_Angeles", utc(2024, 7, 1)), -25200);
  EXPECT_EQ(offset("America/Los_Angeles", utc(2024, 1, 1)), -28800);
}

TEST(TimeZone, KnowsTheRulesOfRecentYears) {
  EXPECT_EQ(offset("Africa/Cairo", utc(2024, 7, 1)), 3 * 3600);
  EXPECT_EQ(offset("America/Mexico_City", utc(2024, 7, 1)), -6 * 3600);
  EXPECT_EQ(offset("Asia/Almaty", utc(2024, 7, 1)), 5 * 3600);
}

TEST(TimeZone, CoversTheYears1900To2100) {
  EXPECT_EQ(offset("Europe/Helsinki", utc(1901, 1, 1)), 5989);  // Helsinki mean time
  EXPECT_EQ(offset("Europe/Helsinki", utc(2100, 7, 1)), 3 * 3600);
}

TEST(TimeZone, ReadsNamesOfFixedOffsets) {
  EXPECT_EQ(offset("GMT", utc(2024, 7, 1)), 0);
  EXPECT_EQ(offset("UTC", utc(2024, 7, 1)), 0);
  EXPECT_EQ(offset("GMT+05:30", utc(2024, 7, 1)), 19800);
  EXPECT_EQ(offset("GMT-00:30", utc(2024, 7, 1)), -1800);
  EXPECT_EQ(offset("GMT+01:02:03", utc(2024, 7, 1)), 3723);
  EXPECT_EQ(offset("GMT+18:00", utc(2024, 7, 1)), 64800);
}

TEST(TimeZone, KnowsNoOtherNames) {
  for (const char* name :
       {"", "Atlantis/Poseidonis", "GMT+18:01", "GMT+5:30", "GMT+05:60", "GMT+05:30:60", "GMT 05:30",
        "GMT+-5:30", "/etc/localtime", "../../etc/passwd", "libc:localtime", "Fixed/UTC+05:00:00", "Europe",
        "Europe/", "Europe/Helsinki/", "Europe//Helsinki"}) {
    EXPECT_FALSE(TimeZone::named(name).has_value()) << name;
  }
}

TEST(TimeZone, ANameWithoutAZoneIsLookedForAgain) {
  const TemporaryFolder zones;
  const ScopedEnvironment environment("TZDIR", zones.path().string());
  EXPECT_FALSE(TimeZone::named("Lunar/Tranquility").has_value());
  std::filesystem::create_directory(zones.path() / "Lunar");
  std::filesystem::copy("/usr/share/zoneinfo/Asia/Tokyo", zones.path() / "Lunar/Tranquility");
  EXPECT_EQ(offset("Lunar/Tranquility", utc(2024, 7, 1)), 9 * 3600);
}

TEST(TimeZone, AZoneOnceFoundStaysWithoutItsFile) {
  const TimeZone tokyo = *TimeZone::named("Asia/Tokyo");
  const TemporaryFolder empty;
  const ScopedEnvironment environment("TZDIR", empty.path().string());
  EXPECT_EQ(TimeZone::named("Asia/Tokyo"), tokyo);
}

TEST(TimeZone, FixedZonesAreNamedByTheirOffset) {
  EXPECT_EQ(TimeZone::fixed(0).name(), "GMT");
  EXPECT_EQ(TimeZone::fixed(-12600).name(), "GMT-03:30");
  EXPECT_EQ(TimeZone::fixed(19800).name(), "GMT+05:30");
  EXPECT_EQ(TimeZone::fixed(-1800).name(), "GMT-00:30");
  EXPECT_EQ(TimeZone::fixed(3723).name(), "GMT+01:02:03");
  EXPECT_EQ(TimeZone::fixed(3723).secondsFromGMT(utc(2024, 1, 1)), 3723);
}

TEST(TimeZone, TheDefaultZoneIsPutBackAtTheEndOfAScope) {
  const TimeZone before = TimeZone::defaultZone();
  {
    const ScopedDefaultTimeZone kathmandu("Asia/Kathmandu");
    EXPECT_EQ(TimeZone::defaultZone().name(), "Asia/Kathmandu");
    EXPECT_EQ(TimeZone::defaultZone().secondsFromGMT(utc(2024, 1, 1)), 20700);
  }
  EXPECT_EQ(TimeZone::defaultZone(), before);
  EXPECT_THROW(ScopedDefaultTimeZone("Nowhere"), std::invalid_argument);
}

TEST(TimeZone, TheEnvironmentNamesTheSystemsZone) {
  const std::pair<const char*, const char*> cases[] = {
      {"Asia/Tokyo", "Asia/Tokyo"},
      {":Asia/Tokyo", "Asia/Tokyo"},
      {"/usr/share/zoneinfo/Asia/Tokyo", "Asia/Tokyo"},
      {":/usr/share/zoneinfo/Asia/Tokyo", "Asia/Tokyo"},
      {"nonsense", "nonsense"},
      {"", ""},
  };
  for (const auto& [variable, identifier] : cases) {
    const ScopedEnvironment environment("TZ", variable);
    EXPECT_EQ(ZoneDatabase::systemZoneIdentifier(), identifier);
  }
}

TEST(TimeZone, TheSystemsOwnZoneFileStandsForTheConfiguredZone) {
  std::string configured;
  {
    const ScopedEnvironment environment("TZ", std::nullopt);
    configured = ZoneDatabase::systemZoneIdentifier();
  }
  const ScopedEnvironment environment("TZ", ":/etc/localtime");
  EXPECT_EQ(ZoneDatabase::systemZoneIdentifier(), configured);
}

/// The default zone of a new process with that value of TZ.
void exitSayingWhetherTheDefaultZoneIs(const char* expected, const char* variable) {
  ::setenv("TZ", variable, 1);
  std::exit(TimeZone::defaultZone().name() == expected ? 0 : 1);
}

TEST(TimeZoneDeathTest, TheDefaultZoneIsTheSystemsAndGMTWhereThatIsUnknown) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // a process of its own, in which nothing has been read yet
  const auto success = testing::ExitedWithCode(0);
  EXPECT_EXIT(exitSayingWhetherTheDefaultZoneIs("Asia/Tokyo", "Asia/Tokyo"), success, "");
  EXPECT_EXIT(exitSayingWhetherTheDefaultZoneIs("GMT", "nonsense"), success, "");
  EXPECT_EXIT(exitSayingWhetherTheDefaultZoneIs("GMT", ""), success, "");
}

TEST(TimeZone, WithoutAChoiceTheDefaultZoneIsTheSystemsAgain) {
  const TimeZone system = TimeZone::defaultZone();
  TimeZone::setDefault(TimeZone::named("Asia/Tokyo"));
  EXPECT_EQ(TimeZone::defaultZone().name(), "Asia/Tokyo");
  TimeZone::setDefault(std::nullopt);
  EXPECT_EQ(TimeZone::defaultZone(), system);
}

TEST(TimeZone, ScopesOfTheDefaultZoneNest) {
  const ScopedDefaultTimeZone outer("Asia/Tokyo");
  {
    const ScopedDefaultTimeZone inner(TimeZone::fixed(3600));
    EXPECT_EQ(TimeZone::defaultZone().name(), "GMT+01:00");
  }
  EXPECT_EQ(TimeZone::defaultZone().name(), "Asia/Tokyo");
}

TEST(TimeZone, AReadingThatClocksSkipHasBothReadings) {
  const auto helsinki = TimeZone::named("Europe/Helsinki");
  const LocalLookup found = helsinki->lookup(LocalTime(utc(2024, 3, 31, 3, 30).time_since_epoch()));
  EXPECT_EQ(found.kind, LocalLookup::Kind::skipped);
  EXPECT_EQ(found.change, utc(2024, 3, 31, 1));
  EXPECT_EQ(found.before, utc(2024, 3, 31, 1, 30));
  EXPECT_EQ(found.after, utc(2024, 3, 31, 0, 30));
}

TEST(TimeZone, AReadingThatOccursTwiceHasBothInstantsAndKeepsItsFraction) {
  const auto helsinki = TimeZone::named("Europe/Helsinki");
  const LocalLookup found = helsinki->lookup(LocalTime(utc(2024, 10, 27, 3, 30).time_since_epoch()) + 250ms);
  EXPECT_EQ(found.kind, LocalLookup::Kind::repeated);
  EXPECT_EQ(found.before, utc(2024, 10, 27, 0, 30) + 250ms);
  EXPECT_EQ(found.after, utc(2024, 10, 27, 1, 30) + 250ms);
}

}  // namespace
}  // namespace velmora
