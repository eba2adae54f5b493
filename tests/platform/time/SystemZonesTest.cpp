// Zones as the system's own files and environment have them.
#include <velmora/platform/time/TimeZone.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/platform/time/ZoneDatabase.h>

#include "ScopedEnvironment.h"

namespace velmora {
namespace {

TEST(TimeZone, ANameWithoutAZoneIsLookedForAgain) {
  const TemporaryFolder zones;
  const ScopedEnvironment environment("TZDIR", zones.path().string());
  EXPECT_FALSE(TimeZone::named("Lunar/Tranquility").has_value());
  std::filesystem::create_directory(zones.path() / "Lunar");
  std::filesystem::copy("/usr/share/zoneinfo/Asia/Tokyo", zones.path() / "Lunar/Tranquility");
  EXPECT_EQ(TimeZone::named("Lunar/Tranquility")->secondsFromGMT(Instant()), 9 * 3600);
}

TEST(TimeZone, AZoneOnceFoundStaysWithoutItsFile) {
  const TimeZone tokyo = *TimeZone::named("Asia/Tokyo");
  const TemporaryFolder empty;
  const ScopedEnvironment environment("TZDIR", empty.path().string());
  EXPECT_EQ(TimeZone::named("Asia/Tokyo"), tokyo);
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
  const auto success = ::testing::ExitedWithCode(0);
  EXPECT_EXIT(exitSayingWhetherTheDefaultZoneIs("Asia/Tokyo", "Asia/Tokyo"), success, "");
  EXPECT_EXIT(exitSayingWhetherTheDefaultZoneIs("GMT", "nonsense"), success, "");
  EXPECT_EXIT(exitSayingWhetherTheDefaultZoneIs("GMT", ""), success, "");
}

}  // namespace
}  // namespace velmora
