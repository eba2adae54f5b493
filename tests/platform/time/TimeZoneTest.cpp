#include <velmora/platform/time/TimeZone.h>

#include <gtest/gtest.h>

#include <tests/support/Instants.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;
using testing::utc;

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
