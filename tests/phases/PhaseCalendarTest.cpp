#include <gtest/gtest.h>

#include <tests/phases/Places.h>
#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

class PhaseCalendar : public ::testing::Test {
 protected:
  static MoonPhaseCalc::PhaseCalendar calendarOf(const YearTable& table, std::int64_t month,
                                                 std::int64_t year,
                                                 const GeoLocationData& place = placeAtOffset(0)) {
    return MoonPhaseCalc::GetPhaseCalendar(table, month, year, utc(year, month + 1, 15), place, true);
  }

  static void expectDay(const PhaseItem& item, std::int64_t phase, float fullFactor, std::int64_t moonAge) {
    EXPECT_EQ(item.phase, phase) << item.day;
    EXPECT_EQ(item.fullFactor, fullFactor) << item.day;
    EXPECT_EQ(item.moonAge, moonAge) << item.day;
  }

  const ScopedLocale _locale{"en_US"};
  const ScopedDefaultTimeZone _zone{"UTC"};
};

TEST_F(PhaseCalendar, HoldsEachDayOfTheMonthAndNoOther) {
  for (const auto& [month, length] : {std::pair{0, 31}, {1, 29}, {3, 30}, {11, 31}}) {
    const auto calendar = calendarOf(shippedTable(2024), month, 2024);
    EXPECT_EQ(calendar.size(), static_cast<std::size_t>(length));
    EXPECT_EQ(calendar.begin()->first, 1);
    EXPECT_EQ(calendar.rbegin()->first, length);
    for (const auto& [day, item] : calendar) {
      EXPECT_EQ(item->day, day);
      EXPECT_EQ(item->month, month + 1);
      EXPECT_EQ(item->year, 2024);
    }
  }
}

TEST_F(PhaseCalendar, TheDayOfAPrincipalPhaseHasItExactly) {
  const auto calendar = calendarOf(shippedTable(2024), 2, 2024);
  expectDay(*calendar.at(10), kNewMoon, 0.0F, 1);
  expectDay(*calendar.at(17), kFirstQuarter, 0.5F, 8);
  expectDay(*calendar.at(25), kFullMoon, 1.0F, 16);
  EXPECT_EQ(calendar.at(25)->localDate, utc(2024, 3, 25, 7));
  EXPECT_EQ(calendar.at(3)->phase, kLastQuarter);
  EXPECT_EQ(calendar.at(3)->fullFactor, 0.5F);
}

TEST_F(PhaseCalendar, DaysBetweenHaveNoInstant) {
  const auto calendar = calendarOf(shippedTable(2024), 2, 2024);
  EXPECT_EQ(calendar.at(24)->localDate, std::nullopt);
  EXPECT_EQ(calendar.at(26)->localDate, std::nullopt);
}

TEST_F(PhaseCalendar, ANewMoonOnTheFirstStartsTheCount) {
  const YearTable table = {{"5", {"1 12:00 NM", "9 12:00 FQ"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  expectDay(*calendar.at(1), kNewMoon, 0.0F, 1);
  expectDay(*calendar.at(2), kWaxingCrescent, 0.0625F, 2);
  EXPECT_EQ(calendar.at(31)->moonAge, 31);
}

TEST_F(PhaseCalendar, EachQuarterOfTheLunationHasItsPhaseAndSlope) {
  const YearTable table = {{"5", {"1 12:00 NM", "9 12:00 FQ", "17 12:00 FM", "25 12:00 LQ"}},
                           {"6", {"2 12:00 NM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  expectDay(*calendar.at(5), kWaxingCrescent, 0.25F, 5);
  expectDay(*calendar.at(13), kWaxingGibbous, 0.75F, 13);
  expectDay(*calendar.at(18), kWaningGibbous, 0.9375F, 18);
  expectDay(*calendar.at(21), kWaningGibbous, 0.75F, 21);
  expectDay(*calendar.at(29), kWaningCrescent, 0.25F, 29);
}

TEST_F(PhaseCalendar, ADayBetweenTheMonthsCountsAcrossTheirEdge) {
  const YearTable table = {{"5", {"28 12:00 LQ"}}, {"6", {"5 12:00 NM"}}};
  expectDay(*calendarOf(table, 5, 2024).at(2), kWaningCrescent, 0.1875F, 31 + 3 + 1);
}

TEST_F(PhaseCalendar, TheLitFractionIsRoundedToSinglePrecisionAtEachStep) {
  const YearTable table = {{"5", {"1 12:00 FQ", "7 12:00 FM", "13 12:00 LQ", "19 12:00 NM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  const double exact = (4 / 2.0) / 6.0;
  const auto f = static_cast<float>(exact);
  EXPECT_EQ(calendar.at(5)->fullFactor, 0.5F + f);
  EXPECT_EQ(calendar.at(11)->fullFactor, 1.0F - f);
  EXPECT_EQ(calendar.at(17)->fullFactor, 0.5F - f);
  // Rounded once, at the end, all three would be others.
  EXPECT_NE(calendar.at(5)->fullFactor, static_cast<float>(0.5 + exact));
  EXPECT_NE(calendar.at(11)->fullFactor, static_cast<float>(1.0 - exact));
  EXPECT_NE(calendar.at(17)->fullFactor, static_cast<float>(0.5 - exact));
}

TEST_F(PhaseCalendar, TheAgeGoesOnFromThePreviousMonthsNewMoon) {
  const YearTable table = {{"4", {"28 12:00 NM"}}, {"5", {"6 12:00 FQ"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(1)->moonAge, 4) << "28, 29, 30 and 1 are ages 1 to 4";
  EXPECT_EQ(calendar.at(31)->moonAge, 34);
}

TEST_F(PhaseCalendar, OfTwoNewMoonsInThePreviousMonthTheLaterCounts) {
  const YearTable table = {{"5", {"30 12:00 NM", "1 12:00 NM"}}, {"6", {"15 12:00 FM"}}};
  EXPECT_EQ(calendarOf(table, 5, 2024).at(1)->moonAge, 3);
}

TEST_F(PhaseCalendar, WithoutANewMoonInThePreviousMonthTheAgeStartsAtItsLengthPlusThree) {
  EXPECT_EQ(calendarOf({{"5", {"15 12:00 FM"}}}, 5, 2024).at(1)->moonAge, 34);
  EXPECT_EQ(calendarOf({{"2", {"15 12:00 FM"}}}, 2, 2024).at(1)->moonAge, 32);
}

TEST_F(PhaseCalendar, January2000HasNoMonthBefore) {
  const auto calendar = calendarOf(shippedTable(2000), 0, 2000);
  expectDay(*calendar.at(1), kWaningGibbous, 1.0F - static_cast<float>(0.5 / 6.0), 34);
  expectDay(*calendar.at(5), kWaningGibbous, 1.0F - static_cast<float>(2.5 / 6.0), 38);
  expectDay(*calendar.at(6), kNewMoon, 0.0F, 1);
}

TEST_F(PhaseCalendar, December2040HasNoMonthAfter) {
  const auto calendar = calendarOf(shippedTable(2040), 11, 2040);
  ASSERT_EQ(calendar.at(26)->phase, kLastQuarter);
  EXPECT_EQ(calendar.at(27)->fullFactor, 0.5F - static_cast<float>(0.5 / 5.0));
  EXPECT_EQ(calendar.at(30)->fullFactor, 0.5F - static_cast<float>(2.0 / 5.0));
  EXPECT_EQ(calendar.at(31)->fullFactor, 0.0F);
}

TEST_F(PhaseCalendar, JanuaryAndDecemberReadTheYearsBesideThem) {
  const TemporaryFolder folder;
  folder.write("Data/2023.plist", propertyListOf({{"12", {"30 12:00 LQ"}}}));
  folder.write("Data/2025.plist", propertyListOf({{"1", {"3 12:00 FQ"}}}));
  const ScopedLibraryBundle bundle(folder.path());
  const YearTable table = {{"1", {"5 12:00 NM"}}, {"12", {"30 12:00 NM"}}};
  EXPECT_EQ(calendarOf(table, 0, 2024).at(1)->fullFactor, 0.5F - static_cast<float>(1.0 / 6.0));
  EXPECT_EQ(calendarOf(table, 11, 2024).at(31)->fullFactor, 0.125F);
}

TEST_F(PhaseCalendar, YearsBeyondTheTablesLimitsAreReadIfTheyAreThere) {
  const TemporaryFolder folder;
  folder.write("Data/1999.plist", propertyListOf({{"12", {"30 12:00 NM"}}}));
  folder.write("Data/2041.plist", propertyListOf({{"1", {"3 12:00 FQ"}}}));
  const ScopedLibraryBundle bundle(folder.path());
  EXPECT_EQ(calendarOf({{"1", {"5 12:00 FQ"}}}, 0, 2000).at(1)->moonAge, 3);
  EXPECT_EQ(calendarOf({{"12", {"30 12:00 NM"}}}, 11, 2040).at(31)->fullFactor, 0.125F);
}

TEST_F(PhaseCalendar, AnEventOnTheSameDayOfThePreviousMonthLiesAMonthBack) {
  const YearTable table = {{"4", {"10 12:00 NM"}}, {"5", {"20 12:00 FQ"}}};
  EXPECT_EQ(calendarOf(table, 4, 2024).at(10)->fullFactor, static_cast<float>((30 / 2.0) / 40.0));
}

TEST_F(PhaseCalendar, AnEventOnTheSameDayOfTheNextMonthLiesAMonthAhead) {
  const YearTable table = {{"5", {"1 12:00 NM"}}, {"6", {"10 12:00 FQ"}}};
  EXPECT_EQ(calendarOf(table, 4, 2024).at(10)->fullFactor, static_cast<float>((9 / 2.0) / 40.0));
}

TEST_F(PhaseCalendar, AMonthWithoutEventsLiesBetweenItsNeighbours) {
  const YearTable table = {{"4", {"26 12:00 NM"}}, {"6", {"4 12:00 FQ"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(1)->phase, kWaxingCrescent);
  EXPECT_EQ(calendar.at(1)->fullFactor, 0.3125F)
      << "before the 4th, as if the quarter were on this month's 4th";
  EXPECT_EQ(calendar.at(10)->fullFactor, static_cast<float>((14 / 2.0) / 39.0));
  EXPECT_EQ(calendar.at(27)->fullFactor, static_cast<float>((1 / 2.0) / 9.0))
      << "after the 26th, as if the new moon had been on this month's 26th";
}

TEST_F(PhaseCalendar, WithoutAnyEventTheMonthStartsFromAFullMoonOnDayZero) {
  const TemporaryFolder folder;
  const ScopedLibraryBundle bundle(folder.path());
  const auto calendar = calendarOf({}, 4, 2024);
  ASSERT_EQ(calendar.size(), 31U);
  expectDay(*calendar.at(1), kWaningGibbous, 1.0F - static_cast<float>(0.5 / 31.0), 33);
  expectDay(*calendar.at(31), kWaningGibbous, 0.5F, 63);
}

TEST_F(PhaseCalendar, OfTwoEventsOnADayTheLaterInTheListCounts) {
  const auto calendar = calendarOf({{"5", {"10 01:00 NM", "10 23:00 FQ"}}}, 4, 2024);
  expectDay(*calendar.at(10), kFirstQuarter, 0.5F, 1);
  EXPECT_EQ(calendar.at(10)->localDate, utc(2024, 5, 10, 23));
}

TEST_F(PhaseCalendar, OfTwoEventsOnADayTheFirstIsWhatTheDaysBesideItLieBetween) {
  const YearTable table = {{"4", {"30 01:00 NM", "30 23:00 FM"}}, {"5", {"10 01:00 NM", "10 23:00 FM"}}};
  const auto calendar = calendarOf(table, 4, 2024);
  EXPECT_EQ(calendar.at(1)->phase, kWaxingCrescent) << "from the new moon of the previous month";
  EXPECT_EQ(calendar.at(11)->phase, kWaxingCrescent);
}

TEST_F(PhaseCalendar, AnUnknownCodeLeavesTheLitFractionAsItIs) {
  const auto calendar = calendarOf({{"5", {"10 01:00 XX", "20 01:00 FM", "20 02:00 XX"}}}, 4, 2024);
  EXPECT_EQ(calendar.at(10)->phase, -1);
  EXPECT_EQ(calendar.at(10)->fullFactor, 0.0F);
  EXPECT_EQ(calendar.at(20)->phase, -1);
  EXPECT_EQ(calendar.at(20)->fullFactor, 1.0F);
  EXPECT_EQ(calendar.at(11)->phase, kWaningCrescent) << "what follows an unknown phase";
}

TEST_F(PhaseCalendar, FollowsThePlacesZone) {
  const YearTable table = {{"5", {"10 23:00 NM"}}};
  EXPECT_EQ(calendarOf(table, 4, 2024, placeAtOffset(3600)).at(11)->phase, kNewMoon);
  EXPECT_EQ(calendarOf(table, 4, 2024, placeAtOffset(0)).at(10)->phase, kNewMoon);
  EXPECT_EQ(calendarOf(table, 4, 2024, placeInZone("Asia/Tokyo")).at(11)->phase, kNewMoon);
}

TEST_F(PhaseCalendar, TheDateAskedForDoesNotChangeTheMonth) {
  const GeoLocationData place = placeInZone("America/New_York");
  const auto winter =
      MoonPhaseCalc::GetPhaseCalendar(shippedTable(2024), 2, 2024, utc(2024, 1, 1), place, true);
  const auto summer =
      MoonPhaseCalc::GetPhaseCalendar(shippedTable(2024), 2, 2024, utc(2024, 7, 1), place, false);
  for (const auto& [day, item] : winter) {
    EXPECT_EQ(item->phase, summer.at(day)->phase) << day;
    EXPECT_EQ(item->fullFactor, summer.at(day)->fullFactor) << day;
    EXPECT_EQ(item->moonAge, summer.at(day)->moonAge) << day;
  }
}

/// The rules that hold on every day from 2000 to 2040, in zones from one end of the day to the other.
class EveryDay : public PhaseCalendar, public ::testing::WithParamInterface<const char*> {
 protected:
  /// Calls `check(calendar)` for every month.
  template <typename Check>
  static void forEveryMonth(const Check& check) {
    const GeoLocationData place = placeInZone(GetParam());
    for (std::int64_t year = 2000; year <= 2040; ++year) {
      const YearTable table = shippedTable(year);
      for (std::int64_t month = 0; month < 12; ++month) {
        SCOPED_TRACE(std::to_string(year) + "-" + std::to_string(month + 1));
        check(calendarOf(table, month, year, place));
      }
    }
  }
};

TEST_P(EveryDay, KeepsLitFractionAndPhaseInTheirRanges) {
  forEveryMonth([](const MoonPhaseCalc::PhaseCalendar& calendar) {
    for (const auto& [day, item] : calendar) {
      ASSERT_GE(item->fullFactor, 0.0F) << day;
      ASSERT_LE(item->fullFactor, 1.0F) << day;
      ASSERT_GE(item->phase, kFullMoon) << day;
      ASSERT_LE(item->phase, kWaningCrescent) << day;
      ASSERT_EQ(item->localDate.has_value(), item->phase <= kNewMoon) << day;
    }
  });
}

TEST_P(EveryDay, CountsTheAgeOnFromDayToDayAndFromOneOnANewMoon) {
  std::int64_t age = 0;
  std::int64_t previousLength = 31;
  bool previousMonthHasNewMoon = false;
  forEveryMonth([&](const MoonPhaseCalc::PhaseCalendar& calendar) {
    if (!previousMonthHasNewMoon) age = previousLength + 2;
    previousMonthHasNewMoon = false;
    for (const auto& [day, item] : calendar) {
      const bool isNewMoon = item->phase == kNewMoon;
      ASSERT_EQ(item->moonAge, isNewMoon ? 1 : age + 1) << day;
      age = item->moonAge;
      previousMonthHasNewMoon = previousMonthHasNewMoon || isNewMoon;
    }
    previousLength = static_cast<std::int64_t>(calendar.size());
  });
}

INSTANTIATE_TEST_SUITE_P(Zones, EveryDay,
                         ::testing::Values("UTC", "Pacific/Pago_Pago", "Pacific/Kiritimati",
                                           "America/Los_Angeles", "Europe/Helsinki", "Asia/Kathmandu",
                                           "Australia/Lord_Howe"));

}  // namespace
}  // namespace velmora
