#include <tests/service/ServiceTest.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora {
namespace {

class YearItems : public ServiceTest {
 protected:
  static MoonPhaseData::YearItems of(std::int64_t year) {
    return service().GetRiseSetPhaseItemsForYear(year);
  }
};

TEST_F(YearItems, StandUnderTheirMonthsInOrder) {
  select(greenwich(), 2024, 1, 1);
  const auto year = of(2024);
  ASSERT_EQ(year.size(), 12U);
  std::string march;
  for (const auto& item : year.at(3)) {
    march += std::to_string(item->day) + ":" + std::to_string(item->phase) + " ";
    EXPECT_EQ(item->month, 3);
    EXPECT_EQ(item->year, 2024);
  }
  EXPECT_EQ(march, "3:2 10:3 17:1 25:0 ");
}

TEST_F(YearItems, ListEveryEventOfTheTable) {
  select(tokyo(), 2024, 1, 1);
  for (const std::int64_t year : {2000, 2024, 2040}) {
    std::size_t events = 0, items = 0;
    for (const auto& [month, lines] : shippedTable(year)) events += lines.size();
    for (const auto& [month, list] : of(year)) items += list.size();
    EXPECT_EQ(items, events) << year;
  }
}

TEST_F(YearItems, CarryAllOfAnEvent) {
  const Place place = losAngeles();
  select(place, 2030, 1, 1);
  const auto item = of(2024).at(3).at(1);
  EXPECT_EQ(item->day, 10);
  EXPECT_EQ(item->month, 3);
  EXPECT_EQ(item->year, 2024);
  EXPECT_EQ(item->weekDay, 1);
  EXPECT_EQ(item->phase, 3);
  EXPECT_EQ(item->fullFactor, 0.0F);
  EXPECT_EQ(item->moonAge, 0);
  EXPECT_EQ(item->timeText, "1:00\u202fAM");
  EXPECT_EQ(item->localDate, utc(2024, 3, 10, 1)) << "09:00 UTC less eight hours";
}

TEST_F(YearItems, HaveTheLitFractionOfTheirPhase) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"1 09:00 FM", "2 09:00 FQ", "3 09:00 LQ", "4 09:00 NM", "5 09:00 XX"}}});
  select(greenwich(), 2024, 3, 1);
  const std::pair<std::int64_t, float> expected[] = {{0, 1.0F}, {1, 0.5F}, {2, 0.5F}, {3, 0.0F}, {-1, 0.0F}};
  const auto items = of(2024).at(3);
  ASSERT_EQ(items.size(), 5U);
  for (std::size_t i = 0; i < items.size(); ++i) {
    EXPECT_EQ(items[i]->phase, expected[i].first);
    EXPECT_EQ(items[i]->fullFactor, expected[i].second);
  }
}

TEST_F(YearItems, HaveRiseAndSetOfTheShiftedInstant) {
  const Place place = losAngeles();
  select(place, 2024, 1, 1);
  const auto newMoon = of(2024).at(3).at(1);  // at 01:00 on the 10th; shifted once more, that is the 9th
  const RiseSetData ninth = service().GetRiseSetDataForDate(localTime(place, 2024, 3, 9, 12));
  const RiseSetData tenth = service().GetRiseSetDataForDate(localTime(place, 2024, 3, 10, 12));
  ASSERT_NE(ninth.moonRiseMinutesFromMidnight, tenth.moonRiseMinutesFromMidnight);
  EXPECT_EQ(newMoon->riseSetData->moonRiseMinutesFromMidnight, ninth.moonRiseMinutesFromMidnight);
  EXPECT_EQ(newMoon->riseSetData->sunRiseMinutesFromMidnight, ninth.sunRiseMinutesFromMidnight);
  const auto fullMoon = of(2024).at(12).at(1);  // at 01:01 on the 15th
  EXPECT_EQ(fullMoon->day, 15);
  EXPECT_EQ(fullMoon->riseSetData->sunRiseMinutesFromMidnight,
            service().GetRiseSetDataForDate(localTime(place, 2024, 12, 14, 12)).sunRiseMinutesFromMidnight);
}

TEST_F(YearItems, TakeTheOffsetOfTheTrueInstantForRiseAndSet) {
  const Place place = helsinki();
  select(place, 2024, 1, 1);
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"31 00:30 FM"}}});  // 02:30, before the change at 03:00
  const auto item = of(2024).at(3).at(0);
  EXPECT_EQ(item->localDate, utc(2024, 3, 31, 2, 30));
  EXPECT_EQ(item->riseSetData->sunRiseMinutesFromMidnight,
            RiseAndSetCalc::Compute(utc(2024, 3, 31, 2, 30), *place, 7200, 0).sunRiseMinutesFromMidnight);
}

TEST_F(YearItems, HaveTextsInTheUsersStyle) {
  const Place place = losAngeles();
  select(place, 2024, 1, 1);
  const auto data = *of(2024).at(3).at(3)->riseSetData;
  EXPECT_EQ(data.sunRiseText.substr(data.sunRiseText.size() - 5), "\u202fAM");
  const ScopedLocale locale("de_DE");
  EXPECT_EQ(of(2024).at(3).at(3)->timeText, "00:00");
  EXPECT_EQ(of(2024).at(3).at(3)->riseSetData->sunRiseText.find("AM"), std::string::npos);
}

TEST_F(YearItems, JoinTheMonthOfTheirLocalDate) {
  const OwnResources resources;
  resources.writeTable(2024,
                       {{"3", {"31 23:30 FM"}}, {"4", {"8 12:00 LQ", "30 12:00 NM"}}, {"5", {"1 02:00 FQ"}}});
  select(greenwich(), 2024, 3, 1);
  EXPECT_EQ(of(2024).at(3).size(), 1U);
  EXPECT_EQ(of(2024).at(4).size(), 2U);
  service().SetSelectedLocation(tokyo());
  EXPECT_EQ(of(2024).count(3), 0U);
  EXPECT_EQ(of(2024).at(4).at(0)->day, 1);
  service().SetSelectedLocation(losAngeles());
  EXPECT_EQ(of(2024).count(5), 0U);
  EXPECT_EQ(of(2024).at(4).back()->day, 30);
  EXPECT_EQ(of(2024).at(4).back()->phase, 1);
}

TEST_F(YearItems, OfNewYearsNightStandInTheYearOfTheirTable) {
  select(losAngeles(), 2012, 1, 1);
  EXPECT_EQ(shippedTable(2012).at("1").at(0), "1  06:15 FQ");
  const auto year = of(2012);
  const auto item = year.at(12).at(0);
  EXPECT_EQ(item->day, 31);
  EXPECT_EQ(item->month, 12);
  EXPECT_EQ(item->year, 2011);
  EXPECT_EQ(item->phase, 1);
  EXPECT_EQ(year.at(12).at(1)->year, 2012);
  EXPECT_EQ(year.at(1).at(0)->day, 8);
  EXPECT_EQ(of(2011).at(12).back()->day, 24) << "missing in its own year";
}

TEST_F(YearItems, OfNewYearsEveMayStandInJanuary) {
  select(tokyo(), 2009, 1, 1);
  EXPECT_EQ(shippedTable(2009).at("12").back(), "31 19:13 FM");
  const auto item = of(2009).at(1).back();
  EXPECT_EQ(item->year, 2010);
  EXPECT_EQ(item->day, 1);
}

TEST_F(YearItems, PassOverLinesThatCannotBeRead) {
  const OwnResources resources;
  resources.writeTable(
      2024, {{"3", {"", "3", "10   09:00 NM", "32 09:00 LQ", "17  04:11 FQ", "25 7:00 FM extra"}}});
  select(greenwich(), 2024, 3, 1);
  ASSERT_EQ(of(2024).at(3).size(), 2U);
  EXPECT_EQ(of(2024).at(3).at(0)->day, 17);
  EXPECT_EQ(of(2024).at(3).at(1)->day, 25);
}

TEST_F(YearItems, AreEmptyWithoutATableUntilItIsThere) {
  const OwnResources resources;
  select(greenwich(), 2024, 3, 1);
  EXPECT_TRUE(of(2024).empty()) << "missing";
  resources.folder.write("Data/2024.plist", "\xff\xfe garbage");
  EXPECT_TRUE(of(2024).empty()) << "garbage";
  resources.folder.write("Data/2024.plist", "<plist version=\"1.0\"><array/></plist>");
  EXPECT_TRUE(of(2024).empty()) << "no dictionary";
  resources.writeTable(2024, {{"3", {"10 09:00 NM"}}});
  EXPECT_EQ(of(2024).at(3).size(), 1U);
  EXPECT_EQ(service().rawDataDictionary(), nullptr) << "read for the answer alone";
}

TEST_F(YearItems, AreEmptyOutsideTheTables) {
  select(greenwich(), 2024, 3, 1);
  EXPECT_TRUE(of(1999).empty());
  EXPECT_TRUE(of(2041).empty());
}

TEST_F(YearItems, AreNeverKept) {
  select(greenwich(), 2024, 3, 1);
  EXPECT_NE(of(2024).at(3).at(0), of(2024).at(3).at(0));
}

TEST_F(YearItems, AtAPlaceWithoutANamedZoneFollowItsFixedOffset) {
  select(placeWithoutZone(-5 * 3600), 2024, 3, 1);
  const auto item = of(2024).at(3).at(3);
  EXPECT_EQ(item->day, 25);
  EXPECT_EQ(item->timeText, "2:00\u202fAM");
  EXPECT_EQ(item->localDate, utc(2024, 3, 25, 2));
}

TEST_F(YearItems, NeedNoPlace) {
  const auto item = of(2024).at(3).at(3);
  EXPECT_EQ(item->timeText, "7:00\u202fAM");
  EXPECT_EQ(item->localDate, utc(2024, 3, 25, 7));
}

}  // namespace
}  // namespace velmora
