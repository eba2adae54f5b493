#include <gtest/gtest.h>

#include <tests/phases/Places.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

using Pictures = std::vector<std::int32_t>;

class ImageCalendar : public ::testing::Test {
 protected:
  static MoonPhaseCalc::ImageCalendar calendarOf(const YearTable& table, std::int64_t month,
                                                 std::int64_t year,
                                                 const GeoLocationData& place = placeAtOffset(0)) {
    return MoonPhaseCalc::GetImageCalendar(table, month, year, utc(year, month + 1, 15), place, true);
  }

  /// The pictures of the days 1, 2, ... of a month that has one for each.
  static Pictures picturesOf(const YearTable& table, std::int64_t month) {
    const auto calendar = calendarOf(table, month, 2024);
    Pictures pictures;
    for (const auto& [day, picture] : calendar) {
      EXPECT_EQ(day, static_cast<std::int64_t>(pictures.size()) + 1);
      pictures.push_back(picture);
    }
    return pictures;
  }

  const ScopedLocale _locale{"en_US"};
  const ScopedDefaultTimeZone _zone{"UTC"};
};

/// The events of May between those of April and June.
const YearTable spring = {{"4", {"26 12:00 LQ"}},
                          {"5", {"3 12:00 NM", "10 12:00 FQ", "18 12:00 FM", "25 12:00 LQ"}},
                          {"6", {"2 12:00 NM"}}};

TEST_F(ImageCalendar, StepsThroughTheLunationDayByDay) {
  EXPECT_EQ(picturesOf(spring, 4), (Pictures{50, 52, 0,  2,  4,  6,  8,  10, 12, 15, 16, 18, 19, 21, 22, 24,
                                             25, 27, 28, 30, 32, 34, 36, 38, 40, 41, 43, 45, 47, 49, 51}));
}

TEST_F(ImageCalendar, PrincipalPhasesHaveTheirOwnPictures) {
  const auto calendar = calendarOf(spring, 4, 2024);
  EXPECT_EQ(calendar.at(3), 0);
  EXPECT_EQ(calendar.at(10), 15);
  EXPECT_EQ(calendar.at(18), 27);
  EXPECT_EQ(calendar.at(25), 40);
}

TEST_F(ImageCalendar, TheOrderOfTheListDoesNotMatter) {
  YearTable shuffled = spring;
  shuffled["5"] = {"25 12:00 LQ", "3 12:00 NM", "18 12:00 FM", "10 12:00 FQ"};
  EXPECT_EQ(calendarOf(shuffled, 4, 2024), calendarOf(spring, 4, 2024));
}

TEST_F(ImageCalendar, AnEventOnTheFirstAndTheLastNeedsNoNeighbour) {
  const YearTable table = {{"5", {"1 12:00 NM", "16 12:00 FQ", "31 12:00 FM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(1), 0);
  EXPECT_EQ(calendar.at(2), 1);
  EXPECT_EQ(calendar.at(31), 27);
  EXPECT_EQ(calendar.size(), 31U);
}

TEST_F(ImageCalendar, JanuaryTakesItsFirstPictureFromItsFirstEvent) {
  const auto fromFullMoon =
      calendarOf({{"1", {"10 12:00 FM", "20 12:00 LQ"}}, {"2", {"2 12:00 FM"}}}, 0, 2024);
  EXPECT_EQ(fromFullMoon.at(1), 27 - 10);
  EXPECT_EQ(fromFullMoon.at(9), 25);
  const auto fromNewMoon =
      calendarOf({{"1", {"10 12:00 NM", "20 12:00 FQ"}}, {"2", {"2 12:00 FM"}}}, 0, 2024);
  EXPECT_EQ(fromNewMoon.at(1), 0 + 55 - 10) << "through the end of the lunation";
  const auto fromEarlyQuarter = calendarOf({{"1", {"15 12:00 FQ"}}, {"2", {"2 12:00 FM"}}}, 0, 2024);
  EXPECT_EQ(fromEarlyQuarter.at(1), 0) << "a picture as high as its day";
}

TEST_F(ImageCalendar, DecemberTakesItsLastPictureFromItsLastEventEvenAboveTheRange) {
  const auto calendar = calendarOf({{"11", {"20 12:00 FM"}}, {"12", {"1 12:00 LQ"}}}, 11, 2024);
  EXPECT_EQ(calendar.at(1), 40);
  EXPECT_EQ(calendar.at(31), 40 + 31 - 1);
  EXPECT_EQ(calendar.at(16), 55);
  EXPECT_EQ(calendar.at(17), 0) << "between the ends the numbers come back into the range";
}

TEST_F(ImageCalendar, NoYearBesideTheTablesIsOpened) {
  const auto january = calendarOf(shippedTable(2024), 0, 2024);
  EXPECT_EQ(january.at(1), 40 - 4);
  const auto december = calendarOf(shippedTable(2023), 11, 2023);
  EXPECT_EQ(december.at(31), 27 + 31 - 27);
}

TEST_F(ImageCalendar, DaysOfAnUnknownPhaseTakeTheirPictureFromTheNeighbour) {
  const YearTable table = {{"5", {"1 12:00 NM", "11 12:00 XX", "21 12:00 FM", "31 12:00 LQ"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(6), 15) << "on the way to 0 + 31 - 1 on the 11th";
  EXPECT_EQ(calendar.at(11), 27 - 21) << "the made-up picture is not kept for the next days";
  EXPECT_EQ(calendar.at(16), 16);
}

TEST_F(ImageCalendar, NothingStandsBetweenTwoDaysOfUnknownPhase) {
  const YearTable table = {{"5", {"1 12:00 NM", "10 12:00 XX", "20 12:00 XX", "31 12:00 FM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_TRUE(calendar.contains(10));
  EXPECT_FALSE(calendar.contains(15));
  EXPECT_TRUE(calendar.contains(20));
  EXPECT_EQ(calendar.size(), 31U - 9U);
}

TEST_F(ImageCalendar, AnUnknownPhaseBesideTheMonthKeepsThePictureOfTheEventBeforeIt) {
  YearTable table = spring;
  table["4"] = {"20 12:00 LQ", "26 12:00 XX"};
  EXPECT_EQ(calendarOf(table, 4, 2024), calendarOf(spring, 4, 2024));
  table = spring;
  table["6"] = {"5 12:00 NM", "2 12:00 XX"};
  EXPECT_EQ(calendarOf(table, 4, 2024), calendarOf(spring, 4, 2024));
}

TEST_F(ImageCalendar, OfTwoEventsOnOneDayBesideTheMonthTheFirstInTheListCounts) {
  YearTable table = spring;
  table["4"] = {"26 01:00 LQ", "26 23:00 FQ"};
  table["6"] = {"2 01:00 NM", "2 23:00 LQ"};
  EXPECT_EQ(calendarOf(table, 4, 2024), calendarOf(spring, 4, 2024));
}

TEST_F(ImageCalendar, BetweenTwoEqualPhasesThePictureStays) {
  const YearTable table = {{"5", {"1 12:00 FQ", "16 12:00 FQ", "31 12:00 FM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(2), 15);
  EXPECT_EQ(calendar.at(15), 15);
}

TEST_F(ImageCalendar, AMissingPictureOfTheFirstEventCountsAsNewMoon) {
  const YearTable table = {
      {"4", {"26 12:00 LQ"}}, {"5", {"3 12:00 XX", "10 12:00 FQ"}}, {"6", {"2 12:00 FM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(1), 50) << "as on the way to a new moon on the 3rd";
}

TEST_F(ImageCalendar, AMissingPictureOfTheLastEventCountsAsNewMoon) {
  const YearTable table = {
      {"4", {"26 12:00 LQ"}}, {"5", {"3 12:00 FQ", "21 12:00 XX"}}, {"6", {"10 12:00 FM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(31), 13) << "27 × 10 / 20 from a new moon on the 21st";
}

TEST_F(ImageCalendar, AMonthWithoutEventsIsEmpty) {
  EXPECT_TRUE(calendarOf({}, 4, 2024).empty());
  EXPECT_TRUE(calendarOf({{"4", {"26 12:00 LQ"}}, {"6", {"2 12:00 NM"}}}, 4, 2024).empty());
  EXPECT_TRUE(calendarOf({}, 0, 2024).empty());
}

TEST_F(ImageCalendar, AMonthOfOneUnknownEventWithoutNeighboursIsEmpty) {
  EXPECT_TRUE(calendarOf({{"5", {"10 12:00 XX"}}}, 4, 2024).empty());
}

TEST_F(ImageCalendar, FollowsThePlacesZone) {
  const YearTable table = {{"5", {"10 23:00 FM"}}};
  EXPECT_EQ(calendarOf(table, 4, 2024, placeAtOffset(3600)).at(11), 27);
  EXPECT_EQ(calendarOf(table, 4, 2024, placeAtOffset(0)).at(10), 27);
}

/// A picture on the line of a pair of events, its sums rounded one by one.
std::int32_t pictureWithoutFusedSums(int fromDay, int fromPicture, int toDay, int toPicture, int day) {
  const double slope = static_cast<double>(toPicture - fromPicture) / (toDay - fromDay);
  const double origin = fromPicture - fromDay * slope;
  return static_cast<std::int32_t>(origin + day * slope);
}

TEST_F(ImageCalendar, TheSumsAreFused) {
  const GeoLocationData losAngeles = placeInZone("America/Los_Angeles");
  const auto january = calendarOf(shippedTable(2010), 0, 2010, losAngeles);
  ASSERT_EQ(january.at(14), 0);
  ASSERT_EQ(january.at(23), 15);
  EXPECT_EQ(january.at(17), 4);
  EXPECT_EQ(pictureWithoutFusedSums(14, 0, 23, 15, 17), 5);
  const auto december = calendarOf(shippedTable(2012), 11, 2012, losAngeles);
  ASSERT_EQ(december.at(19), 15);
  ASSERT_EQ(december.at(28), 27);
  EXPECT_EQ(december.at(25), 23);
  EXPECT_EQ(pictureWithoutFusedSums(19, 15, 28, 27, 25), 22);
}

/// The rules that hold in every month from 2000 to 2040.
class EveryMonth : public ImageCalendar, public ::testing::WithParamInterface<const char*> {};

TEST_P(EveryMonth, HasAPictureOfTheLunationForEachDay) {
  const GeoLocationData place = placeInZone(GetParam());
  for (std::int64_t year = 2000; year <= 2040; ++year) {
    const YearTable table = shippedTable(year);
    for (std::int64_t month = 0; month < 12; ++month) {
      const auto calendar = calendarOf(table, month, year, place);
      const std::int64_t length = MoonPhaseCalc::GetNumberOfDaysInMonth(month, year);
      ASSERT_EQ(calendar.size(), static_cast<std::size_t>(length)) << year << "-" << month + 1;
      ASSERT_EQ(calendar.begin()->first, 1);
      ASSERT_EQ(calendar.rbegin()->first, length);
      for (const auto& [day, picture] : calendar) {
        ASSERT_GE(picture, 0) << year << "-" << month + 1 << "-" << day;
        ASSERT_LE(picture, 55) << year << "-" << month + 1 << "-" << day;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Zones, EveryMonth,
                         ::testing::Values("UTC", "Pacific/Pago_Pago", "Pacific/Kiritimati",
                                           "America/Los_Angeles"));

}  // namespace
}  // namespace velmora
