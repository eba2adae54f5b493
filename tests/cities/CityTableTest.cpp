#include <velmora/cities/CityTable.h>

#include <gtest/gtest.h>

#include <velmora/cities/EditDistance.h>

#include "tests/cities/CityFileBytes.h"

namespace velmora {
namespace {

CityTable tableOf(const std::vector<testing::RowOfCity>& cities) {
  return CityTable::fromBytes(testing::bytesOfCityTable(cities));
}

std::vector<std::string> names(const std::vector<City>& cities) {
  std::vector<std::string> list;
  for (const City& city : cities) list.push_back(city.name);
  return list;
}

using CityNames = std::vector<std::string>;

TEST(CityTable, ARowGivesNamePlacePeopleZoneRegionAndCountry) {
  const CityTable table =
      tableOf({{"Tówn", "town", -89.9999, 179.5, 4'000'000'000U}, {"Ys", "ys", 90, -180, 1}});
  ASSERT_EQ(table.size(), 2U);
  EXPECT_EQ(table.city(0), (City{"Tówn", "Maine", "US", "Area/Town", -89.9999, 179.5, 4'000'000'000}));
  EXPECT_EQ(table.city(1), (City{"Ys", "Maine", "US", "Area/Town", 90, -180, 1}));
  EXPECT_EQ(table.city(2), City());
}

TEST(CityTable, ACityIsFoundWhateverTheCaseAndBlanks) {
  const CityTable table = tableOf({{"Town", "town", 1, 2, 3}});
  for (const char* spelling :
       {"town", "TOWN", " To-wn\n", "Town, Maine", "town,me,us", "Area/Town", "area town"})
    EXPECT_EQ(names(table.named(spelling)), CityNames{"Town"}) << spelling;
  for (const char* spelling : {"tow", "towns", "Town, Ohio", ",", "Area/Old", "\xFF"})
    EXPECT_EQ(names(table.named(spelling)), CityNames()) << spelling;
}

TEST(CityTable, LongNamesAreFound) {
  const CityTable table = tableOf({{"Long", std::string(200, 'a'), 1, 2, 3}});
  EXPECT_EQ(names(table.named(std::string(200, 'A'))), CityNames{"Long"});
  EXPECT_EQ(names(table.named(std::string(199, 'A'))), CityNames());
}

TEST(CityTable, OneOfTenTimesThePeopleIsMeantAndOneOfAHundredthIsNoChoice) {
  EXPECT_EQ(
      names(tableOf({{"A", "aa", 0, 0, 99}, {"B", "same", 0, 0, 50}, {"C", "same", 0, 0, 5}}).named("same")),
      CityNames{"B"});
  EXPECT_EQ(
      names(tableOf({{"A", "aa", 0, 0, 99}, {"B", "same", 0, 0, 50}, {"C", "same", 0, 0, 6}}).named("same")),
      (CityNames{"B", "C"}));
  EXPECT_EQ(names(tableOf({{"A", "same", 0, 0, 600}, {"B", "same", 0, 0, 600}, {"C", "same", 0, 0, 5}})
                      .named("same")),
            (CityNames{"A", "B"}));
}

TEST(CityTable, TheCityThatAZoneIsNamedAfterIsMeant) {
  EXPECT_EQ(names(tableOf({{"A", "town", 0, 0, 7}, {"B", "town", 0, 0, 6}}).named("Town")), CityNames{"A"});
}

TEST(CityTable, MatchesAreTheMostPopulousOfThePrefix) {
  const CityTable table = tableOf({{"A", "pa", 0, 0, 9}, {"B", "pb", 0, 0, 8}, {"C", "pc", 0, 0, 7}});
  EXPECT_EQ(names(table.matches("p", 2)), (CityNames{"A", "B"}));
  EXPECT_EQ(names(table.matches("PB", 2)), CityNames{"B"});
  EXPECT_EQ(names(table.matches("pb, Ma", 2)), CityNames{"B"});
  EXPECT_EQ(names(table.matches("p, Ma", 2)), CityNames());
  EXPECT_EQ(names(table.matches("p", 0)), CityNames());
  EXPECT_EQ(names(table.matches("", 9)), (CityNames{"A", "B", "C"}));
}

TEST(CityTable, NearestIsTheSpellingWithFewestChangedLetters) {
  const CityTable table =
      tableOf({{"A", "oslo", 0, 0, 9}, {"B", "ostrava", 0, 0, 8}, {"C", "oulu", 0, 0, 7}});
  EXPECT_EQ(names(table.nearest("osla", 3)), (CityNames{"A", "C"}));
  EXPECT_EQ(names(table.nearest("oslo", 3)), CityNames{"A"});
  EXPECT_EQ(names(table.nearest("osla", 1)), CityNames{"A"});
}

TEST(CityTable, EditDistanceCountsLettersInsertedRemovedAndReplaced) {
  EXPECT_EQ(editDistance("", ""), 0U);
  EXPECT_EQ(editDistance("abc", ""), 3U);
  EXPECT_EQ(editDistance("", "abc"), 3U);
  EXPECT_EQ(editDistance("kitten", "sitting"), 3U);
  EXPECT_EQ(editDistance("sitting", "kitten"), 3U);
}

TEST(CityTable, ZonesOfOldStandForThoseOfToday) {
  const CityTable table = tableOf({{"Town", "town", 0, 0, 7}});
  EXPECT_EQ(table.zones(), (CityNames{"Area/Old", "Area/Town"}));
  EXPECT_EQ(table.zoneToday("Area/Old"), "Area/Town");
  EXPECT_EQ(table.zoneToday("Area/Town"), "Area/Town");
}

}  // namespace
}  // namespace velmora
