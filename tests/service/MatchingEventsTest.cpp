#include <limits>

#include <tests/service/ServiceTest.h>

namespace velmora {
namespace {

using Texts = std::vector<std::string>;

/// Searches for events of a phase between two instants; found ones are read as "2024-3-25".
class MatchingEvents : public ServiceTest {
 protected:
  static Texts matching(std::int64_t phase, std::optional<Instant> from, std::optional<Instant> to) {
    Texts texts;
    for (const auto& item : service().matchingEventsWithPhase(phase, from, to)) {
      EXPECT_EQ(item->phase, phase);
      texts.push_back(std::to_string(item->year) + "-" + std::to_string(item->month) + "-" +
                      std::to_string(item->day));
    }
    return texts;
  }
};

TEST_F(MatchingEvents, AreThoseOfThePhaseMonthByMonth) {
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(2024, 11, 1), utc(2025, 2, 28)),
            (Texts{"2024-11-15", "2024-12-15", "2025-1-13", "2025-2-12"}));
  EXPECT_EQ(matching(3, utc(2024, 3, 1), utc(2024, 3, 31)), Texts{"2024-3-10"});
  EXPECT_EQ(matching(1, utc(2024, 3, 1), utc(2024, 3, 31)), Texts{"2024-3-17"});
  EXPECT_EQ(matching(2, utc(2024, 3, 1), utc(2024, 3, 31)), Texts{"2024-3-3"});
}

TEST_F(MatchingEvents, ExcludeTheStartAndIncludeTheEnd) {
  service().SetSelectedLocation(greenwich());
  const Instant fullMoon = utc(2024, 3, 25, 7);
  const std::chrono::hours day(24);
  EXPECT_EQ(matching(0, fullMoon, fullMoon + day), Texts());
  EXPECT_EQ(matching(0, fullMoon - day, fullMoon), Texts{"2024-3-25"});
  EXPECT_EQ(matching(0, fullMoon, fullMoon), Texts());
  EXPECT_EQ(matching(0, fullMoon - std::chrono::seconds(1), fullMoon), Texts{"2024-3-25"});
  EXPECT_EQ(matching(0, fullMoon - day, fullMoon - std::chrono::seconds(1)), Texts());
}

TEST_F(MatchingEvents, AreNoneOfAnEmptyRange) {
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(2024, 3, 31), utc(2024, 3, 1)), Texts()) << "from later than to";
  EXPECT_EQ(matching(0, std::nullopt, utc(2024, 3, 31)), Texts());
  EXPECT_EQ(matching(0, utc(2024, 3, 1), std::nullopt), Texts());
  EXPECT_EQ(matching(0, utc(2041, 1, 1), utc(2042, 1, 1)), Texts()) << "after the tables";
  EXPECT_EQ(matching(0, utc(1990, 1, 1), utc(1999, 12, 31)), Texts()) << "before the tables";
}

TEST_F(MatchingEvents, EndWithTheTables) {
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(2040, 11, 1), utc(2045, 3, 1)), (Texts{"2040-11-18", "2040-12-18"}));
  EXPECT_EQ(matching(0, utc(2040, 11, 1), utc(2040, 11, 30)), Texts{"2040-11-18"});
}

TEST_F(MatchingEvents, EndWith2040WhateverTablesThereAre) {
  const OwnResources resources;
  for (const std::int64_t year : {2040, 2041}) resources.writeTable(year, {{"6", {"1 09:00 FM"}}});
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(2040, 1, 1), utc(2045, 3, 1)), Texts{"2040-6-1"});
  EXPECT_EQ(matching(0, utc(2041, 1, 1), utc(2045, 3, 1)), Texts());
}

TEST_F(MatchingEvents, FromBeforeTheTablesStartInTheirMonthOf2000) {
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(1995, 7, 1), utc(2000, 9, 30)), (Texts{"2000-7-16", "2000-8-15", "2000-9-13"}));
  EXPECT_EQ(matching(0, utc(1995, 7, 1), utc(2000, 3, 31)), Texts());
}

TEST_F(MatchingEvents, OfAllYearsAreOnceALunation) {
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(3, utc(1990, 1, 1), utc(2050, 1, 1)).size(), 507U);
}

TEST_F(MatchingEvents, CompareTheShiftedInstant) {
  service().SetSelectedLocation(tokyo());
  const Instant fullMoon = utc(2024, 3, 25, 7);
  EXPECT_EQ(matching(0, utc(2024, 3, 20), fullMoon), Texts()) << "nine hours later in Tokyo";
  EXPECT_EQ(matching(0, fullMoon, utc(2024, 3, 30)), Texts{"2024-3-25"});
}

TEST_F(MatchingEvents, SplitTheRangeAtThePlace) {
  service().SetSelectedLocation(losAngeles());
  EXPECT_EQ(matching(2, utc(2024, 5, 1, 3), utc(2024, 5, 1, 5)), Texts()) << "30 April there";
  const OwnResources resources;
  resources.writeTable(2024, {{"4", {"30 20:00 LQ"}}});
  EXPECT_EQ(matching(2, utc(2024, 4, 30, 12), utc(2024, 5, 1, 3)), Texts{"2024-4-30"}) << "13:00 there";
}

TEST_F(MatchingEvents, EndAtTheFirstLaterItemOfAnyPhase) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"10 09:00 FM", "28 09:00 NM", "12 09:00 FM"}}, {"4", {"1 09:00 FM"}}});
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(2024, 3, 1), utc(2024, 3, 20)), Texts{"2024-3-10"});
}

TEST_F(MatchingEvents, EndInJanuaryWhereTheNextNewYearsMorningStandsThere) {
  service().SetSelectedLocation(tokyo());
  EXPECT_EQ(matching(0, utc(2009, 1, 1), utc(2009, 6, 1)), Texts{"2009-1-11"})
      << "the full moon of 1 January 2010 stands in January of 2009: kept";
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(2009, 1, 1), utc(2009, 6, 1)).size(), 5U);
}

TEST_F(MatchingEvents, OfNewYearsNightStandInTheFollowingDecember) {
  service().SetSelectedLocation(losAngeles());
  EXPECT_EQ(matching(1, utc(2011, 12, 31), utc(2012, 1, 2)), Texts());
  EXPECT_EQ(matching(1, utc(2011, 12, 30), utc(2012, 12, 31)).back(), "2012-12-19");
  EXPECT_EQ(matching(1, utc(2011, 12, 31), utc(2012, 12, 31)).at(11), "2011-12-31")
      << "found when the walk comes to December";
}

TEST_F(MatchingEvents, EndWhereAYearHasNoTable) {
  const OwnResources resources;
  for (const std::int64_t year : {2023, 2024, 2026}) resources.writeTable(year, {{"6", {"1 09:00 FM"}}});
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(matching(0, utc(2023, 1, 1), utc(2026, 12, 31)), (Texts{"2023-6-1", "2024-6-1"}));
  EXPECT_EQ(matching(0, utc(2025, 1, 1), utc(2026, 12, 31)), Texts());
}

TEST_F(MatchingEvents, ChangeNoSelection) {
  select(greenwich(), 2024, 3, 10);
  const auto table = service().rawDataDictionary();
  matching(0, utc(2030, 1, 1), utc(2031, 1, 1));
  EXPECT_EQ(service().rawDataDictionary(), table);
  EXPECT_EQ(service().currentRiseSetPhaseItemDictionary(), nullptr);
  EXPECT_EQ(service().currentYear(), 2024);
}

}  // namespace
}  // namespace velmora
