#include <app/text/ClockText.h>

#include <gtest/gtest.h>

#include <app/text/ValueTexts.h>

namespace velmora::app {
namespace {

TEST(ClockText, RecordTextsBecomeEventsOfTheDayOrTheNext) {
  EXPECT_EQ(dayEvent("05:48"), (DayEvent{5 * 60 + 48, false}));
  EXPECT_EQ(dayEvent("00:15"), (DayEvent{15, false}));
  EXPECT_EQ(dayEvent("00:37 **"), (DayEvent{37, true}));
  EXPECT_EQ(dayEvent("24:37 **"), (DayEvent{37, true}));
  EXPECT_EQ(dayEvent("24:00"), (DayEvent{0, true}));
}

TEST(ClockText, DashesAreNoEvent) {
  EXPECT_EQ(dayEvent("--"), std::nullopt);
  EXPECT_EQ(dayEvent("--:--"), std::nullopt);
  EXPECT_EQ(dayEvent(""), std::nullopt);
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
