#include <app/text/ClockText.h>

#include <gtest/gtest.h>

#include <app/text/ValueTexts.h>

namespace velmora::app {
namespace {

TEST(ClockText, AReadingIsTheNearestMinute) {
  const TimeZone utc = TimeZone::fixed(0);
  const auto at = [](const char* text) { return *instantFromText(text); };
  EXPECT_EQ(readingAt(at("2024-06-20T12:00:29Z"), utc), (Reading{*dateFromText("2024-06-20"), 720}));
  EXPECT_EQ(readingAt(at("2024-06-20T12:00:31Z"), utc), (Reading{*dateFromText("2024-06-20"), 721}));
  EXPECT_EQ(nearestMinute(at("2024-06-20T12:00:31Z"), utc), at("2024-06-20T12:01:00Z"));
}

TEST(ClockText, InTheLastHalfMinuteOfADayItIsTheOneThatHasBegun) {
  const TimeZone kathmandu = *TimeZone::named("Asia/Kathmandu");
  const auto at = [](const char* text) { return *instantFromText(text); };
  EXPECT_EQ(readingAt(at("2024-06-20T18:14:31Z"), kathmandu), (Reading{*dateFromText("2024-06-20"), 1439}));
  EXPECT_EQ(readingAt(at("2024-06-20T18:13:31Z"), kathmandu), (Reading{*dateFromText("2024-06-20"), 1439}));
  EXPECT_EQ(readingAt(at("2024-06-20T18:15:00Z"), kathmandu), (Reading{*dateFromText("2024-06-21"), 0}));
  EXPECT_EQ(nearestMinute(at("2024-06-20T18:14:31Z"), kathmandu), at("2024-06-20T18:14:00Z"));
}

TEST(ClockText, ToTheSecondItIsTheNearestOne) {
  const Instant instant = *instantFromText("2024-06-20T21:30:08.6Z");
  const TimeZone kathmandu = *TimeZone::named("Asia/Kathmandu");
  EXPECT_EQ(clockTextToTheSecond(instant, kathmandu, true), "03:15:09");
  EXPECT_EQ(clockTextToTheSecond(instant, kathmandu, false), "03:15:09 AM");
}

TEST(ClockText, TheTwelveHourClockHasNoHourZero) {
  EXPECT_EQ(clockText(0, false), "12:00 AM");
  EXPECT_EQ(clockText(15, false), "12:15 AM");
  EXPECT_EQ(clockText(11 * 60 + 59, false), "11:59 AM");
  EXPECT_EQ(clockText(12 * 60, false), "12:00 PM");
  EXPECT_EQ(clockText(23 * 60 + 5, false), "11:05 PM");
}

TEST(ClockText, TheTwentyFourHourClockCountsFromZero) {
  EXPECT_EQ(clockText(0, true), "00:00");
  EXPECT_EQ(clockText(23 * 60 + 5, true), "23:05");
}

TEST(ClockText, AnInstantReadsAsThePlacesClocksShowIt) {
  const Instant instant = *instantFromText("2024-06-20T21:30:00Z");
  const TimeZone kathmandu = *TimeZone::named("Asia/Kathmandu");
  EXPECT_EQ(localText(instant, kathmandu, true), "2024-06-21 03:15");
  EXPECT_EQ(localText(instant, kathmandu, false), "2024-06-21 03:15 AM");
}

TEST(ClockText, LengthsAreHoursAndMinutes) {
  EXPECT_EQ(lengthText(0), "0h 00m");
  EXPECT_EQ(lengthText(1085), "18h 05m");
  EXPECT_EQ(lengthText(1440), "24h 00m");
}

}  // namespace
}  // namespace velmora::app
