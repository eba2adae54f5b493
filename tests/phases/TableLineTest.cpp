#include <velmora/phases/TableLine.h>

#include <gtest/gtest.h>

#include <tests/phases/Places.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/time/DateFormatter.h>

namespace velmora {
namespace {

TEST(TableLine, NamesAnInstantInUtcAndAPhase) {
  const auto event = readTableLine("25 07:00 FM", 2024, 3);
  ASSERT_TRUE(event);
  EXPECT_EQ(event->instant, utc(2024, 3, 25, 7, 0));
  EXPECT_EQ(event->phase, kFullMoon);
}

TEST(TableLine, TwoBlanksCountAsOne) {
  for (const char* line : {"9 22:59 NM", "9  22:59 NM", "9 22:59  NM", "9  22:59  NM"}) {
    const auto event = readTableLine(line, 2024, 2);
    ASSERT_TRUE(event) << line;
    EXPECT_EQ(event->instant, utc(2024, 2, 9, 22, 59)) << line;
    EXPECT_EQ(event->phase, kNewMoon) << line;
  }
}

TEST(TableLine, ThreeBlanksLeaveAnEmptyField) {
  EXPECT_FALSE(readTableLine("9   22:59 NM", 2024, 2));
  const auto event = readTableLine("9 22:59   NM", 2024, 2);
  ASSERT_TRUE(event);
  EXPECT_EQ(event->phase, kUnknownPhase) << "the code is the empty third field";
}

TEST(TableLine, FieldsAfterTheThirdAreIgnored) {
  EXPECT_EQ(readTableLine("25 07:00 FM penumbral eclipse", 2024, 3)->phase, kFullMoon);
  EXPECT_EQ(readTableLine("25 07:00 FM ", 2024, 3)->phase, kFullMoon);
}

TEST(TableLine, CodesAreToldExactly) {
  EXPECT_EQ(phaseForCode("FM"), 0);
  EXPECT_EQ(phaseForCode("FQ"), 1);
  EXPECT_EQ(phaseForCode("LQ"), 2);
  EXPECT_EQ(phaseForCode("NM"), 3);
  for (const char* code : {"", "fm", "Fm", "FM\r", "F", "FMX", "XX"})
    EXPECT_EQ(phaseForCode(code), -1) << code;
}

TEST(TableLine, ThePrincipalPhasesLightAllHalfOrNoneOfTheDisc) {
  EXPECT_EQ(fullFactorForPrincipalPhase(kFullMoon), 1.0F);
  EXPECT_EQ(fullFactorForPrincipalPhase(kFirstQuarter), 0.5F);
  EXPECT_EQ(fullFactorForPrincipalPhase(kLastQuarter), 0.5F);
  EXPECT_EQ(fullFactorForPrincipalPhase(kNewMoon), 0.0F);
  EXPECT_EQ(fullFactorForPrincipalPhase(kUnknownPhase), 0.0F);
}

TEST(TableLine, FewerThanThreeFieldsGiveNone) {
  for (const char* line : {"", " ", "  ", "25", "25 07:00", "25  07:00", "25 07:00FM"}) {
    EXPECT_FALSE(readTableLine(line, 2024, 3)) << line;
  }
}

TEST(TableLine, WhatNamesNoMomentOfTheMonthGivesNone) {
  for (const char* line : {"0 07:00 FM", "32 07:00 FM", "-1 07:00 FM", "+1 07:00 FM", "x 07:00 FM",
                           " 25 07:00 FM", "25. 07:00 FM", "25 24:00 FM", "25 07:60 FM", "25 0700 FM",
                           "25 07: FM", "25 :00 FM", "25 : FM", "25 07:00:00 FM", "25 7h00 FM", "25 -7:00 FM",
                           "\xD9\xA2\xD9\xA5 07:00 FM", "\t25 07:00 FM", "25\t07:00\tFM x y"}) {
    EXPECT_FALSE(readTableLine(line, 2024, 3)) << line;
  }
  EXPECT_FALSE(readTableLine("31 07:00 FM", 2024, 4));
  EXPECT_FALSE(readTableLine("29 07:00 FM", 2023, 2));
  EXPECT_TRUE(readTableLine("29 07:00 FM", 2024, 2));
}

TEST(TableLine, AMonthOrYearThatIsNoneGivesNone) {
  for (const std::int64_t month : {-1, 0, 13, 1 << 20}) {
    EXPECT_FALSE(readTableLine("25 07:00 FM", 2024, month)) << month;
  }
  for (const std::int64_t year : {-2024, 0, 10000}) {
    EXPECT_FALSE(readTableLine("25 07:00 FM", year, 3)) << year;
  }
}

TEST(TableLine, NumbersMayHaveFewerOrMoreDigitsThanTwo) {
  EXPECT_EQ(readTableLine("5 7:3 FM", 2024, 3)->instant, utc(2024, 3, 5, 7, 3));
  EXPECT_EQ(readTableLine("005 007:003 FM", 2024, 3)->instant, utc(2024, 3, 5, 7, 3));
}

TEST(TableLine, IsReadAsADateFormatterReadsYearMonthDayAndTime) {
  DateFormatter formatter;
  formatter.setDateFormat("yyyy-MM-dd HH:mm");
  formatter.setTimeZone(TimeZone::fixed(0));
  formatter.setLocale(Locale("en_US"));
  const char* days[] = {"0", "1", "01", "9", "25", "29", "30", "31", "32", "001", "-1", "+1", "1x", "x"};
  const char* times[] = {"00:00", "0:0", "7:5",   "07:05",  "23:59",  "24:00", "12:60",   "7",
                         "07:",   ":05", "07:5x", "007:05", "07:005", "07-05", "07:05:00"};
  for (const std::int64_t month : {2, 3, 4}) {
    for (const std::string day : days) {
      for (const std::string time : times) {
        const auto event = readTableLine(day + " " + time + " FM", 2023, month);
        const auto read = formatter.dateFromString("2023-" + std::to_string(month) + "-" + day + " " + time);
        EXPECT_EQ(event ? std::optional(event->instant) : std::nullopt, read)
            << month << "-" << day << " " << time;
      }
    }
  }
}

}  // namespace
}  // namespace velmora
