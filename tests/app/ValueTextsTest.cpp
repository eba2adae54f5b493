#include <app/text/ValueTexts.h>

#include <gtest/gtest.h>

namespace velmora::app {
namespace {

using namespace std::chrono_literals;

TEST(ValueTexts, NumbersAreReadAsTheyStand) {
  EXPECT_EQ(numberFromText("-33.9"), -33.9);
  EXPECT_EQ(numberFromText("60"), 60.0);
  EXPECT_EQ(numberFromText("+.5"), 0.5);
  EXPECT_EQ(numberFromText("1e1"), 10.0);
  EXPECT_EQ(numberFromText("-0"), 0.0);
}

TEST(ValueTexts, WhatIsNoNumberIsNotRead) {
  for (const char* text :
       {"", "-", "nan", "inf", "-inf", "1,5", "12 ", " 12", "1.2.3", "0x10", "60°", "1e999"})
    EXPECT_EQ(numberFromText(text), std::nullopt) << text;
}

TEST(ValueTexts, DatesMustExist) {
  EXPECT_EQ(dateFromText("2024-02-29"), CivilDate(2024y / 2 / 29));
  EXPECT_EQ(dateFromText("1900-01-01"), CivilDate(1900y / 1 / 1));
  for (const char* text : {"2023-02-29", "1900-02-29", "2024-13-01", "2024-00-10", "2024-04-31", "2024-1-1",
                           "20240620", "2024-06-20 ", "2024-06", "", "-024-06-20", "2024/06/20"})
    EXPECT_EQ(dateFromText(text), std::nullopt) << text;
}

TEST(ValueTexts, MonthsHaveFourAndTwoDigits) {
  EXPECT_EQ(monthFromText("2024-02"), 2024y / 2);
  for (const char* text : {"2024-13", "2024-00", "2024-2", "24-02", "2024-02-01", "2024", "2024-02 ", ""})
    EXPECT_EQ(monthFromText(text), std::nullopt) << text;
}

TEST(ValueTexts, TimesOfDayGoFromMidnightToAMinuteBeforeIt) {
  EXPECT_EQ(timeFromText("00:00"), 0min);
  EXPECT_EQ(timeFromText("23:59"), 1439min);
  for (const char* text : {"24:00", "12:60", "7:05", "07:05 ", "0705", "", "07:05:00"})
    EXPECT_EQ(timeFromText(text), std::nullopt) << text;
}

TEST(ValueTexts, InstantsAreIsoTextsInAnyOffset) {
  const Instant noon = instantFromUnixSeconds(1718884800);
  EXPECT_EQ(instantFromText("2024-06-20T12:00:00Z"), noon);
  EXPECT_EQ(instantFromText("2024-06-20T12:00Z"), noon);
  EXPECT_EQ(instantFromText("2024-06-20T15:00:00+03:00"), noon);
  EXPECT_EQ(instantFromText("2024-06-20T05:00:00-07:00"), noon);
  EXPECT_EQ(instantFromText("2024-06-20T12:00:00.5Z"), noon + 0.5s);
  for (const char* text : {"2024-06-20T12:00:00", "2024-06-20", "2024-06-20 12:00Z", "2024-06-20T12:00:60Z",
                           "2024-06-31T12:00Z", "2024-06-20T12:00:00Zx", "now", ""})
    EXPECT_EQ(instantFromText(text), std::nullopt) << text;
}

TEST(ValueTexts, WhatIsWrittenReadsBack) {
  for (const char* text : {"1900-01-01T00:00:00Z", "2024-02-29T23:59:59Z", "2100-12-31T12:34:56Z"})
    EXPECT_EQ(instantText(*instantFromText(text)), text);
  EXPECT_EQ(dateText(2024y / 6 / 5), "2024-06-05");
}

TEST(ValueTexts, InstantsAreWrittenToTheNearestSecond) {
  EXPECT_EQ(instantText(instantFromUnixSeconds(1718884799.9999)), "2024-06-20T12:00:00Z");
}

}  // namespace
}  // namespace velmora::app
