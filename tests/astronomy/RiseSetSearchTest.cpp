#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include <velmora/astronomy/RiseAndSetCalc.h>

#include "AstronomyTesting.h"

namespace velmora {
namespace {

using namespace testing;
using Calc = RiseAndSetCalc;

constexpr int civil = 0, nautical = 1, astronomical = 2;
constexpr std::int64_t pacificDaylight = -25200, pacificStandard = -28800;

/// The record of a date at a place whose clocks are that offset from GMT.
RiseSetData recordOf(double latitude, double longitude, std::int64_t offset, std::int64_t year,
                     std::int64_t month, std::int64_t day, int twilight = civil) {
  const Instant noon = Calendar(TimeZone::fixed(offset)).date({year, month, day, 12, 0, 0, 0});
  return Calc::Compute(noon, placeAt(latitude, longitude), offset, twilight);
}

/// The record of a date at a place with a zone, with the offset of that day's 09:00.
RiseSetData recordIn(const char* zone, double latitude, double longitude, std::int64_t year,
                     std::int64_t month, std::int64_t day) {
  const GeoLocationData place = placeAt(latitude, longitude, zone);
  const Instant noon = inZone(zone, year, month, day, 12);
  return Calc::Compute(noon, place, place.gmtIntervalForDate(noon, Calendar(*place.timezone)), civil);
}

/// A text of a table, in which '_' stands for a blank.
std::string readText(TableRow& row) {
  std::string text;
  row.fields >> text;
  std::replace(text.begin(), text.end(), '_', ' ');
  return text;
}

TEST(RiseSetSearch, AgreesWithTheSearchWrittenASecondTime) {
  const ScopedTimeFormat format(clock24);
  int compared = 0;
  for (TableRow& row : tableRows("rise_set_records.txt")) {
    std::int64_t year = 0, month = 0, day = 0, offset = 0;
    char hyphen = '-';
    std::istringstream(row.kind) >> year >> hyphen >> month >> hyphen >> day;
    double latitude = 0, longitude = 0;
    int twilight = 0;
    row.fields >> latitude >> longitude >> offset >> twilight;
    const RiseSetData record = recordOf(latitude, longitude, offset, year, month, day, twilight);
    EXPECT_EQ(record.sunRiseText, readText(row)) << row.where;
    EXPECT_EQ(record.sunSetText, readText(row)) << row.where;
    EXPECT_EQ(record.twilightBeginText, readText(row)) << row.where;
    EXPECT_EQ(record.twilightEndText, readText(row)) << row.where;
    EXPECT_EQ(record.moonRiseText, readText(row)) << row.where;
    EXPECT_EQ(record.moonSetText, readText(row)) << row.where;
    std::int64_t sunRise = 0, sunSet = 0, dayLength = 0, moonRise = 0, moonSet = 0;
    ASSERT_TRUE(row.fields >> sunRise >> sunSet >> dayLength >> moonRise >> moonSet) << row.where;
    EXPECT_EQ(record.sunRiseMinutesFromMidnight, sunRise) << row.where;
    EXPECT_EQ(record.sunSetMinutesFromMidnight, sunSet) << row.where;
    EXPECT_EQ(record.dayLengthMinutes, dayLength) << row.where;
    EXPECT_EQ(record.moonRiseMinutesFromMidnight, moonRise) << row.where;
    EXPECT_EQ(record.moonSetMinutesFromMidnight, moonSet) << row.where;
    ++compared;
  }
  EXPECT_GT(compared, 250);
}

TEST(RiseSetSearch, SanFranciscoAtTheSolstices) {
  const ScopedTimeFormat format(clock24);
  const RiseSetData june = recordOf(37.78549082, -122.39184303, pacificDaylight, 2024, 6, 21);
  EXPECT_EQ(june.sunRiseText, "05:48");
  EXPECT_EQ(june.sunSetText, "20:35");
  EXPECT_EQ(june.sunRiseMinutesFromMidnight, 5 * 60 + 48);
  EXPECT_EQ(june.sunSetMinutesFromMidnight, 20 * 60 + 35);
  EXPECT_EQ(june.dayLengthMinutes, 14 * 60 + 47);
  const RiseSetData december = recordOf(37.78549082, -122.39184303, pacificStandard, 2024, 12, 21);
  EXPECT_EQ(december.sunRiseText, "07:22");
  EXPECT_EQ(december.sunSetText, "16:54");
}

TEST(RiseSetSearch, WritesTheTwelveHourClock) {
  const ScopedTimeFormat format(clock12);
  const RiseSetData june = recordOf(37.78549082, -122.39184303, pacificDaylight, 2024, 6, 21);
  EXPECT_EQ(june.sunRiseText, "05:48 AM");
  EXPECT_EQ(june.sunSetText, "08:35 PM");
  EXPECT_EQ(recordOf(71.2906, -156.7886, -32400, 2024, 8, 1).sunSetText, "00:51 AM **");
}

TEST(RiseSetData, AFreshRecordHasNoTextsAndZeroNumbers) {
  const RiseSetData fresh;
  EXPECT_EQ(fresh.moonRiseText + fresh.moonSetText + fresh.sunRiseText + fresh.sunSetText, "");
  EXPECT_EQ(fresh.twilightBeginText + fresh.twilightEndText, "");
  EXPECT_EQ(fresh.sunRiseMinutesFromMidnight, 0);
  EXPECT_EQ(fresh.sunSetMinutesFromMidnight, 0);
  EXPECT_EQ(fresh.moonRiseMinutesFromMidnight, 0);
  EXPECT_EQ(fresh.moonSetMinutesFromMidnight, 0);
  EXPECT_EQ(fresh.dayLengthMinutes, 0);
}

TEST(RiseSetSearch, LeavesTheRecordsDateToTheCaller) {
  EXPECT_EQ(recordOf(37.8, -122.4, pacificDaylight, 2024, 6, 21).date, Instant{});
}

TEST(RiseSetSearch, MidnightSunAndPolarNightLeaveBothTextsAtTwoDashes) {
  for (const std::int64_t month : {6, 12}) {
    for (const double latitude : {78.0, 90.0, -78.0, -90.0}) {
      const RiseSetData record = recordOf(latitude, 15, 3600, 2024, month, 21);
      EXPECT_EQ(record.sunRiseText, "--") << latitude;
      EXPECT_EQ(record.sunSetText, "--") << latitude;
      EXPECT_EQ(record.sunRiseMinutesFromMidnight, -1) << latitude;
      EXPECT_EQ(record.sunSetMinutesFromMidnight, -1) << latitude;
      EXPECT_EQ(record.dayLengthMinutes, 1440) << latitude;
    }
  }
}

TEST(RiseSetSearch, AMoonThatIsUpOrDownAllDayHasNoMinutes) {
  const RiseSetData record = recordOf(85, 0, 0, 2024, 2, 19);
  EXPECT_EQ(record.moonRiseText, "--");
  EXPECT_EQ(record.moonSetText, "--");
  EXPECT_EQ(record.moonRiseMinutesFromMidnight, -1);
  EXPECT_EQ(record.moonSetMinutesFromMidnight, -1);
}

TEST(RiseSetSearch, TheMoonKeepsTheFirstSetOfItsDay) {
  const ScopedTimeFormat format(clock24);
  const RiseSetData record = recordOf(37.78549082, -122.39184303, pacificDaylight, 2024, 6, 17);
  EXPECT_LT(record.moonSetMinutesFromMidnight, 4 * 60);
  EXPECT_GT(record.moonRiseMinutesFromMidnight, 15 * 60);
  EXPECT_EQ(record.moonSetText.find("**"), std::string::npos);
}

TEST(RiseSetSearch, AMoonThatRisesLateSetsThatMorning) {
  // A Moon that rises at 23:10 set on the morning of the same day; that first set is kept.
  int lateRises = 0;
  for (std::int64_t day = 1; day <= 366; ++day) {
    const RiseSetData record = recordOf(37.78549082, -122.39184303, pacificStandard, 2024, 1, day);
    if (record.moonRiseMinutesFromMidnight < 23 * 60) continue;
    ++lateRises;
    EXPECT_LT(record.moonSetMinutesFromMidnight, record.moonRiseMinutesFromMidnight) << day;
  }
  EXPECT_GE(lateRises, 8);
}

TEST(RiseSetSearch, AMoonsetAfterMidnightIsMarkedAndCountedBeyond1440) {
  const ScopedTimeFormat format(clock24);
  const RiseSetData record = recordOf(37.78549082, -122.39184303, pacificDaylight, 2024, 5, 11);
  EXPECT_EQ(record.moonRiseText.find("**"), std::string::npos);
  EXPECT_NE(record.moonSetText.find(" **"), std::string::npos);
  EXPECT_GT(record.moonSetMinutesFromMidnight, 1440);
}

TEST(RiseSetSearch, ADayWithoutAMoonriseReadsTwoDashesTwice) {
  const ScopedTimeFormat format(clock24);
  int without = 0;
  for (std::int64_t day = 1; day <= 366; ++day) {
    const RiseSetData record = recordOf(37.78549082, -122.39184303, pacificStandard, 2024, 1, day);
    if (record.moonRiseMinutesFromMidnight >= 0) continue;
    ++without;
    EXPECT_EQ(record.moonRiseText, "--:--") << day;
    EXPECT_GE(record.moonSetMinutesFromMidnight, 0) << day;
  }
  EXPECT_NEAR(without, 12, 2);  // the Moon rises once less in each of its months
}

TEST(RiseSetSearch, TheSunForgetsASetBeforeItsRise) {
  const ScopedTimeFormat format(clock24);
  // Clocks nine hours ahead of the Sun: it sets in the morning and rises in the afternoon.
  const RiseSetData record = recordOf(0, 0, 9 * 3600, 2024, 3, 20);
  EXPECT_EQ(record.sunRiseText, "15:04");
  EXPECT_EQ(record.sunSetText, "03:11 **");
  EXPECT_EQ(record.sunRiseMinutesFromMidnight, 15 * 60 + 4);
  EXPECT_EQ(record.sunSetMinutesFromMidnight, 1440 + 3 * 60 + 11);
  EXPECT_EQ(record.dayLengthMinutes, 727);
}

TEST(RiseSetSearch, ASunsetOfTheNextDayWithoutASunriseKeepsItsClockMinutes) {
  const ScopedTimeFormat format(clock24);
  const RiseSetData record = recordOf(67.5, 133.39, 36000, 2024, 7, 16);
  EXPECT_EQ(record.sunRiseText, "--:--");
  EXPECT_EQ(record.sunSetText, "00:24 **");
  EXPECT_EQ(record.sunRiseMinutesFromMidnight, -1);
  EXPECT_EQ(record.sunSetMinutesFromMidnight, 24);
  EXPECT_EQ(record.dayLengthMinutes, 24);
}

TEST(RiseSetSearch, ASunsetOfTheNextDayLaterByTheClockThanTheSunriseKeepsItsClockMinutes) {
  const ScopedTimeFormat format(clock24);
  // In the shortest night of the year, between two others, the Sun does not go down.
  const RiseSetData record = recordOf(65.728, 0.25, 0, 2024, 6, 20);
  EXPECT_EQ(record.sunRiseText, "00:03");
  EXPECT_EQ(record.sunSetText, "23:57 **");
  EXPECT_EQ(record.sunSetMinutesFromMidnight, 23 * 60 + 57);
  EXPECT_EQ(record.dayLengthMinutes, 23 * 60 + 54);
}

TEST(RiseSetSearch, APairOfCrossingsAfterTheSunriseTakesThePlaceOfItsTime) {
  const ScopedTimeFormat format(clock24);
  const RiseSetData utqiagvik = recordOf(71.2906, -156.7886, -32400, 2024, 5, 9);
  EXPECT_EQ(utqiagvik.sunRiseText, "25:43 **");
  EXPECT_EQ(utqiagvik.sunSetText, "--:--");
  EXPECT_EQ(utqiagvik.sunRiseMinutesFromMidnight, 1543);
  EXPECT_EQ(utqiagvik.sunSetMinutesFromMidnight, -1);
  EXPECT_EQ(utqiagvik.dayLengthMinutes, -103);
}

TEST(RiseSetSearch, TwilightOfEachKindLiesFurtherFromTheSunrise) {
  const ScopedTimeFormat format(clock24);
  const auto at = [](int twilight) {
    return recordOf(37.78549082, -122.39184303, pacificDaylight, 2024, 6, 21, twilight);
  };
  EXPECT_LT(at(civil).twilightBeginText, at(civil).sunRiseText);
  EXPECT_LT(at(nautical).twilightBeginText, at(civil).twilightBeginText);
  EXPECT_LT(at(astronomical).twilightBeginText, at(nautical).twilightBeginText);
  EXPECT_GT(at(nautical).twilightEndText, at(civil).twilightEndText);
  EXPECT_GT(at(astronomical).twilightEndText, at(nautical).twilightEndText);
  EXPECT_EQ(at(civil).sunRiseText, at(astronomical).sunRiseText);
}

TEST(RiseSetSearch, NoAstronomicalTwilightAt55NorthInJune) {
  const RiseSetData record = recordOf(55, 37.6, 10800, 2024, 6, 21, astronomical);
  EXPECT_EQ(record.twilightBeginText, "--");
  EXPECT_EQ(record.twilightEndText, "--");
  EXPECT_GE(record.sunRiseMinutesFromMidnight, 0);
  EXPECT_GE(record.sunSetMinutesFromMidnight, 0);
}

TEST(RiseSetSearch, AnotherTwilightIndexTakesTheNearestKind) {
  EXPECT_EQ(recordOf(37.8, -122.4, 0, 2024, 6, 21, -5).twilightBeginText,
            recordOf(37.8, -122.4, 0, 2024, 6, 21, civil).twilightBeginText);
  EXPECT_EQ(recordOf(37.8, -122.4, 0, 2024, 6, 21, 7).twilightBeginText,
            recordOf(37.8, -122.4, 0, 2024, 6, 21, astronomical).twilightBeginText);
}

TEST(RiseSetSearch, AHalfHourZoneStartsFiveAndAHalfHoursBeforeUniversalMidnight) {
  const ScopedTimeFormat format(clock24);
  const RiseSetData delhi = recordOf(28.6139, 77.209, 19800, 2024, 1, 15);
  RiseSetData byHand;
  Calc::_find_sun_and_twi_events_for_date(byHand, civil, Calc::_mjd(15, 1, 2024, 0), 5.5, 77.209, 28.6139);
  EXPECT_EQ(delhi.sunRiseText, "07:15");
  EXPECT_EQ(delhi.sunSetText, "17:46");
  EXPECT_EQ(delhi.sunRiseText, byHand.sunRiseText);
  EXPECT_EQ(delhi.sunSetText, byHand.sunSetText);
}

TEST(RiseSetSearch, AnEventThatRoundsToMidnightReads2400OfItsOwnDay) {
  // Moves local midnight in steps of ten seconds until the sunset of the equator lies just before it.
  RiseSetData record;
  double offset = 5.8;
  const ScopedTimeFormat format(clock24);
  for (int step = 0; step < 360 && record.sunSetText != "24:00"; ++step, offset += 10.0 / 3600) {
    record = {};
    Calc::_find_sun_and_twi_events_for_date(record, civil, 60389, offset, 0, 0);
  }
  EXPECT_EQ(record.sunSetText, "24:00");
  EXPECT_EQ(record.sunSetMinutesFromMidnight, 1440);
}

TEST(RiseSetSearch, OnTheTwelveHourClockTheMidnightAtTheDaysEndReadsAsNoon) {
  const ScopedTimeFormat format(clock12);
  const RiseSetData record = recordIn("Australia/Lord_Howe", -31.55, 159.0833, 2012, 1, 1);
  EXPECT_EQ(record.moonRiseText, "12:23 PM");
  EXPECT_EQ(record.moonSetText, "12:00 PM");
  EXPECT_EQ(record.moonSetMinutesFromMidnight, 1440);
}

TEST(RiseSetSearch, OfTheSunLeavesTextsAloneWhereNothingHappens) {
  RiseSetData record;
  Calc::_find_sun_and_twi_events_for_date(record, civil, 60482, 0, 15, 85);
  EXPECT_EQ(record.sunRiseText + record.sunSetText + record.twilightBeginText + record.twilightEndText, "");
  EXPECT_EQ(record.sunRiseMinutesFromMidnight, -1);
  EXPECT_EQ(record.moonRiseMinutesFromMidnight, 0);
}

TEST(RiseSetSearch, OfTheMoonSetsItsTextsInAnyCase) {
  RiseSetData record;
  Calc::_find_moonrise_set(record, 60359, 0, 0, 85);
  EXPECT_EQ(record.moonRiseText, "--");
  EXPECT_EQ(record.moonSetText, "--");
  EXPECT_EQ(record.sunRiseText, "");
}

TEST(RiseSetSearch, ReadsTheDateInThePlacesZone) {
  const ScopedTimeFormat format(clock24);
  const GeoLocationData auckland = placeAt(-36.85, 174.76, "Pacific/Auckland");
  const Instant earlyMorning = utc(2024, 6, 20, 13);  // 01:00 of the 21st there
  const RiseSetData record = Calc::Compute(earlyMorning, auckland, 12 * 3600, civil);
  const RiseSetData noon = Calc::Compute(utc(2024, 6, 21), auckland, 12 * 3600, civil);
  EXPECT_EQ(record.moonRiseText, noon.moonRiseText);
  EXPECT_NE(record.moonRiseText, Calc::Compute(utc(2024, 6, 20), auckland, 12 * 3600, civil).moonRiseText);
}

TEST(RiseSetSearch, WithoutAZoneReadsTheDateWithTheOffsetInForce) {
  const ScopedDefaultTimeZone elsewhere("Pacific/Kiritimati");
  const GeoLocationData place = placeAt(37.8, -122.4);
  const Instant evening = utc(2024, 6, 21, 4);  // still the 20th there
  EXPECT_EQ(Calc::Compute(evening, place, pacificDaylight, civil).moonRiseText,
            recordOf(37.8, -122.4, pacificDaylight, 2024, 6, 20).moonRiseText);
}

TEST(RiseSetSearch, AZoneLeftFromBeforeACustomOffsetStillGivesTheDate) {
  GeoLocationData place = placeAt(37.8, -122.4, "Pacific/Kiritimati");
  place.SetLocation(37.8, -122.4, "here", std::nullopt, pacificDaylight, true);
  ASSERT_TRUE(place.timezone);
  const Instant date = utc(2024, 6, 20, 12);  // the 21st in Kiritimati, the 20th by the offset
  EXPECT_EQ(Calc::Compute(date, place, pacificDaylight, civil).moonRiseText,
            recordOf(37.8, -122.4, pacificDaylight, 2024, 6, 21).moonRiseText);
}

TEST(RiseSetSearch, LordHoweHalfHourShift) {
  const auto before = recordIn("Australia/Lord_Howe", -31.55, 159.08, 2024, 4, 6);
  const auto after = recordIn("Australia/Lord_Howe", -31.55, 159.08, 2024, 4, 7);
  EXPECT_NEAR(static_cast<double>(after.sunRiseMinutesFromMidnight - before.sunRiseMinutesFromMidnight), -29,
              1);
}

TEST(RiseSetSearch, CairoDayWithoutMidnight) {
  const auto before = recordIn("Africa/Cairo", 30.05, 31.25, 2024, 4, 25);
  const auto after = recordIn("Africa/Cairo", 30.05, 31.25, 2024, 4, 26);
  EXPECT_NEAR(static_cast<double>(after.sunRiseMinutesFromMidnight - before.sunRiseMinutesFromMidnight), 59,
              1);
}

TEST(RiseSetSearch, PacificApiaSkippedADay) {
  const auto before = recordIn("Pacific/Apia", -13.83, -171.77, 2011, 12, 29);
  const auto after = recordIn("Pacific/Apia", -13.83, -171.77, 2011, 12, 31);
  EXPECT_NEAR(static_cast<double>(after.sunRiseMinutesFromMidnight - before.sunRiseMinutesFromMidnight), 0.5,
              1);
  EXPECT_NEAR(static_cast<double>(after.moonSetMinutesFromMidnight - before.moonSetMinutesFromMidnight), 50,
              20);
}

TEST(RiseSetSearch, TrollTwoHourShift) {
  const auto before = recordIn("Antarctica/Troll", -72.01, 2.53, 2024, 3, 30);
  const auto after = recordIn("Antarctica/Troll", -72.01, 2.53, 2024, 3, 31);
  EXPECT_NEAR(static_cast<double>(after.sunRiseMinutesFromMidnight - before.sunRiseMinutesFromMidnight), 125,
              3);
}

TEST(RiseSetSearch, KathmanduQuarterHour) {
  const ScopedTimeFormat format(clock24);
  const auto record = recordIn("Asia/Kathmandu", 27.7172, 85.324, 2024, 6, 21);
  EXPECT_EQ(record.sunRiseText, "05:09");
  EXPECT_EQ(record.sunSetText, "19:03");
}

TEST(RiseSetSearch, NumbersOfNoPlaceOrTimeGiveNoEvents) {
  for (const double number : {nan, infinity, -infinity, 1e300}) {
    for (const auto& place : {placeAt(number, 0), placeAt(0, number)}) {
      const RiseSetData record = Calc::Compute(instantFromUnixSeconds(number), place, 0, civil);
      EXPECT_LE(record.sunRiseMinutesFromMidnight, 1440 * 2) << number;
    }
    EXPECT_EQ(Calc::Compute(utc(2024, 1, 1), placeAt(nan, 0), 0, civil).moonRiseText, "--");
  }
  for (const std::int64_t offset :
       {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
    EXPECT_LE(Calc::Compute(utc(2024, 1, 1), placeAt(0, 0), offset, civil).sunRiseMinutesFromMidnight, 2880);
  }
}

}  // namespace
}  // namespace velmora
