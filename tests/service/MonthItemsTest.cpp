#include <tests/service/ServiceTest.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora {
namespace {

using RiseSetItems = MoonPhaseData::RiseSetItems;

class MonthItems : public ServiceTest {
 protected:
  static const RiseSetItems& currentMonth() { return *service().GetRiseSetPhaseItemsForCurrentMonth(); }
  static std::shared_ptr<const RiseSetItems> nextMonth() {
    return service().GetRiseSetPhaseItemsForNextMonth();
  }
};

void expectSameDay(const RiseSetPhaseItem& item, const PhaseItem& day) {
  EXPECT_EQ(item.day, day.day);
  EXPECT_EQ(item.month, day.month);
  EXPECT_EQ(item.year, day.year);
  EXPECT_EQ(item.moonAge, day.moonAge);
  EXPECT_EQ(item.phase, day.phase);
  EXPECT_EQ(item.fullFactor, day.fullFactor);
}

TEST_F(MonthItems, AreThePhaseCalendarsDays) {
  select(losAngeles(), 2024, 3, 10);
  const auto days = service().currentMonthPhaseDictionary();
  ASSERT_EQ(currentMonth().size(), 31U);
  for (const auto& [number, item] : currentMonth()) {
    EXPECT_EQ(item->day, number);
    expectSameDay(*item, *days->at(number));
  }
}

TEST_F(MonthItems, TakeNothingFromWhatACallerWroteIntoThePhases) {
  select(losAngeles(), 2024, 3, 10);
  service().currentMonthPhaseDictionary()->at(9)->moonAge = 99;
  EXPECT_NE(currentMonth().at(9)->moonAge, 99);
}

TEST_F(MonthItems, AreDescribedForTheEventOrForThreeInTheMorning) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  EXPECT_EQ(currentMonth().at(25)->localDate, utc(2024, 3, 25, 7)) << "full moon at midnight";
  EXPECT_EQ(currentMonth().at(25)->timeText, "12:00\u202fAM");
  EXPECT_EQ(currentMonth().at(24)->localDate, utc(2024, 3, 24, 10)) << "in summer time";
  EXPECT_EQ(currentMonth().at(24)->timeText, "3:00\u202fAM");
  EXPECT_EQ(currentMonth().at(9)->localDate, utc(2024, 3, 9, 11)) << "in standard time";
  EXPECT_EQ(currentMonth().at(9)->timeText, "3:00\u202fAM");
}

TEST_F(MonthItems, CarryRiseAndSetOfTheirInstant) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  for (const auto& [number, item] : currentMonth()) {
    RiseSetData expected = service().GetRiseSetDataForDate(*item->localDate);
    ASSERT_TRUE(item->riseSetData);
    EXPECT_EQ(item->riseSetData->sunRiseMinutesFromMidnight, expected.sunRiseMinutesFromMidnight);
    EXPECT_EQ(item->riseSetData->sunSetMinutesFromMidnight, expected.sunSetMinutesFromMidnight);
    EXPECT_EQ(item->riseSetData->moonRiseMinutesFromMidnight, expected.moonRiseMinutesFromMidnight);
    EXPECT_EQ(item->riseSetData->moonSetMinutesFromMidnight, expected.moonSetMinutesFromMidnight);
    EXPECT_EQ(item->riseSetData->twilightBeginText, expected.twilightBeginText) << "not rewritten";
  }
}

TEST_F(MonthItems, CarryTextsInTheUsersStyle) {
  const Place place = placeAt(37.78549082, -122.39184303, "America/Los_Angeles");
  select(place, 2024, 6, 21);
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunRiseText, "5:48\u202fAM");
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunSetText, "8:35\u202fPM");
  const ScopedLocale locale("de_DE");
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunSetText, "8:35\u202fPM")
      << "until the month is built anew";
  service().SetSelectedLocation(place);
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunSetText, "20:35");
  EXPECT_EQ(currentMonth().at(20)->timeText, "03:00");
}

TEST_F(MonthItems, Keep24HourTextsOfTheSettings) {
  SettingsModel::sharedInstance().setTimeFormat(1);
  select(placeAt(37.78549082, -122.39184303, "America/Los_Angeles"), 2024, 6, 21);
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunRiseText, "05:48");
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunSetText, "20:35");
}

TEST_F(MonthItems, OfAPolarNightKeepTwoDashes) {
  select(placeAt(78.0, 15.0, "Arctic/Longyearbyen"), 2024, 12, 21);
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunRiseText, "--");
  EXPECT_EQ(currentMonth().at(21)->riseSetData->sunSetText, "--");
}

TEST_F(MonthItems, CarryTheWeekdayOfThePlace) {
  select(tokyo(), 2024, 3, 10);
  for (const auto& [number, item] : currentMonth()) {
    EXPECT_EQ(item->weekDay, (number + 4) % 7 + 1) << "1 March 2024 was a Friday, the sixth day";
  }
}

TEST_F(MonthItems, AreKeptUntilTheMonthOrThePlaceChanges) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  const auto march = service().GetRiseSetPhaseItemsForCurrentMonth();
  service().changeSelectedDay(31, 3, 2024);
  EXPECT_EQ(service().GetRiseSetPhaseItemsForCurrentMonth(), march);
  service().changeSelectedDay(1, 4, 2024);
  EXPECT_EQ(service().GetRiseSetPhaseItemsForCurrentMonth()->size(), 30U);
  service().changeSelectedDay(31, 3, 2024);
  EXPECT_NE(service().GetRiseSetPhaseItemsForCurrentMonth(), march);
  service().SetSelectedLocation(tokyo());
  EXPECT_EQ(service().currentRiseSetPhaseItemDictionary(), nullptr);
  EXPECT_EQ(currentMonth().at(25)->localDate, utc(2024, 3, 25, 7));
  EXPECT_EQ(currentMonth().at(25)->timeText, "4:00\u202fPM");
}

TEST_F(MonthItems, OfTheSelectedDayAreTheMonths) {
  EXPECT_EQ(service().GetRiseSetPhaseItemForCurrentDate(), nullptr);
  select(losAngeles(), 2024, 3, 10);
  const auto item = service().GetRiseSetPhaseItemForCurrentDate();
  EXPECT_EQ(item, currentMonth().at(10));
  EXPECT_EQ(item->phase, 3);
}

TEST_F(MonthItems, AreNoneWithoutATable) {
  EXPECT_EQ(service().GetRiseSetPhaseItemsForCurrentMonth(), nullptr);
  EXPECT_EQ(nextMonth(), nullptr);
  service().SetSelectedLocation(greenwich(), utc(1999, 5, 5));
  EXPECT_EQ(service().GetRiseSetPhaseItemsForCurrentMonth(), nullptr);
  EXPECT_EQ(service().GetRiseSetPhaseItemForCurrentDate(), nullptr);
  EXPECT_EQ(nextMonth(), nullptr);
}

TEST_F(MonthItems, AreBuiltWithoutAPlaceToo) {
  service().SetSelectedDate(utc(2024, 3, 10));
  EXPECT_EQ(currentMonth().size(), 31U);
  EXPECT_EQ(currentMonth().at(9)->localDate, utc(2024, 3, 9, 3));
}

TEST_F(MonthItems, AtAPlaceWithoutANamedZoneFollowItsFixedOffset) {
  select(placeWithoutZone(19800), 2024, 3, 10);
  EXPECT_EQ(currentMonth().at(9)->localDate, utc(2024, 3, 8, 21, 30));
  EXPECT_EQ(currentMonth().at(9)->timeText, "3:00\u202fAM");
  EXPECT_EQ(currentMonth().at(9)->weekDay, 7);
}

struct ChangeDay {
  const char* name;
  const char* zone;
  std::int64_t month, day;  ///< of 2024
  Instant instant;
  const char* timeText;
};

TEST_F(MonthItems, WhereThreeInTheMorningIsSkippedOrRepeated) {
  const ChangeDay days[] = {
      {"Helsinki skips it", "Europe/Helsinki", 3, 31, utc(2024, 3, 31, 1), "4:00\u202fAM"},
      {"Helsinki repeats it", "Europe/Helsinki", 10, 27, utc(2024, 10, 27, 0), "3:00\u202fAM"},
      {"Athens skips it", "Europe/Athens", 3, 31, utc(2024, 3, 31, 1), "4:00\u202fAM"},
      {"Athens repeats it", "Europe/Athens", 10, 27, utc(2024, 10, 27, 0), "3:00\u202fAM"},
      {"Chatham skips it", "Pacific/Chatham", 9, 29, utc(2024, 9, 28, 14, 15), "4:00\u202fAM"},
      {"Chatham repeats it", "Pacific/Chatham", 4, 7, utc(2024, 4, 6, 13, 15), "3:00\u202fAM"},
  };
  for (const ChangeDay& change : days) {
    const Place place = placeAt(40, 20, change.zone);
    select(place, 2024, change.month, 1);
    const auto item = currentMonth().at(change.day);
    EXPECT_EQ(item->localDate, change.instant) << change.name;
    EXPECT_EQ(item->timeText, change.timeText) << change.name;
    EXPECT_EQ(item->weekDay, 1) << change.name << " on a Sunday";
  }
}

TEST_F(MonthItems, OfTheNextMonthAreAllDescribedForThreeInTheMorning) {
  const Place place = losAngeles();
  select(place, 2024, 2, 10);
  const auto march = nextMonth();
  ASSERT_NE(march, nullptr);
  ASSERT_EQ(march->size(), 31U);
  EXPECT_EQ(march->at(25)->phase, 0);
  EXPECT_EQ(march->at(25)->localDate, utc(2024, 3, 25, 10)) << "not the full moon's own instant";
  EXPECT_EQ(march->at(25)->riseSetData->sunRiseMinutesFromMidnight,
            service().GetRiseSetDataForDate(utc(2024, 3, 25, 10)).sunRiseMinutesFromMidnight);
}

TEST_F(MonthItems, OfTheNextMonthGiveTheTimeInTheDevicesZone) {
  const Place place = losAngeles();
  select(place, 2024, 2, 10);
  EXPECT_EQ(nextMonth()->at(9)->timeText, "11:00\u202fAM") << "universal time";
  EXPECT_EQ(nextMonth()->at(24)->timeText, "10:00\u202fAM");
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  EXPECT_EQ(nextMonth()->at(9)->timeText, "8:00\u202fPM");
}

TEST_F(MonthItems, OfTheNextMonthAreThatMonthsDaysOtherwise) {
  const Place place = losAngeles();
  select(place, 2024, 2, 10);
  const auto next = nextMonth();
  select(place, 2024, 3, 10);
  for (const auto& [number, item] : currentMonth()) {
    expectSameDay(*next->at(number), *item);
    EXPECT_EQ(next->at(number)->weekDay, item->weekDay);
  }
}

TEST_F(MonthItems, OfTheNextMonthCarryTheWeekdayOfThePlaceNotOfTheDevice) {
  const ScopedDefaultTimeZone zone("Pacific/Kiritimati");
  select(losAngeles(), 2024, 2, 10);
  const auto march = nextMonth();
  EXPECT_EQ(march->at(9)->timeText, "1:00\u202fAM") << "of the tenth on the device";
  for (const auto& [number, item] : *march) {
    EXPECT_EQ(item->weekDay, (number + 4) % 7 + 1) << "1 March 2024 was a Friday, the sixth day";
  }
}

TEST_F(MonthItems, OfTheNextMonthAreNeverKept) {
  select(losAngeles(), 2024, 2, 10);
  const auto next = nextMonth();
  EXPECT_NE(nextMonth(), next);
  EXPECT_EQ(service().currentRiseSetPhaseItemDictionary(), nullptr);
  EXPECT_EQ(service().currentMonth(), 2);
}

TEST_F(MonthItems, OfJanuaryComeAfterDecemberFromTheNextTable) {
  select(greenwich(), 2039, 12, 15);
  const auto january = nextMonth();
  ASSERT_NE(january, nullptr);
  EXPECT_EQ(january->at(1)->year, 2040);
  EXPECT_EQ(january->at(1)->month, 1);
  EXPECT_EQ(january->at(7)->phase, 2) << "last quarter on 7 January 2040";
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2039));
}

TEST_F(MonthItems, OfNoMonthComeAfterDecember2040) {
  select(greenwich(), 2040, 11, 15);
  EXPECT_EQ(nextMonth()->at(26)->phase, 2) << "last quarter on 26 December";
  service().changeSelectedDay(15, 12, 2040);
  EXPECT_EQ(nextMonth(), nullptr);
}

TEST_F(MonthItems, OfNoMonthComeAfterDecember2040WhateverTablesThereAre) {
  const OwnResources resources;
  for (const std::int64_t year : {2040, 2041}) resources.writeTable(year, {{"1", {"9 09:00 NM"}}});
  select(greenwich(), 2040, 12, 15);
  ASSERT_NE(service().getDataForYear(2041), nullptr);
  EXPECT_EQ(nextMonth(), nullptr);
  service().SetSelectedLocation(greenwich(), utc(2041, 1, 15));
  EXPECT_EQ(nextMonth(), nullptr) << "after January 2041";
}

TEST_F(MonthItems, OfJanuaryAreNoneWithoutItsTableUntilItIsThere) {
  const OwnResources resources;
  resources.writeTable(2024, {{"12", {"10 09:00 NM"}}});
  select(greenwich(), 2024, 12, 15);
  EXPECT_EQ(nextMonth(), nullptr) << "missing";
  resources.folder.write("Data/2025.plist", "<plist><dict>");
  EXPECT_EQ(nextMonth(), nullptr) << "garbage";
  resources.writeTable(2025, {{"1", {"9 09:00 NM"}}});
  ASSERT_NE(nextMonth(), nullptr);
  EXPECT_EQ(nextMonth()->at(9)->phase, 3);
}

}  // namespace
}  // namespace velmora
