#include <tests/service/ServiceTest.h>
#include <velmora/almanac/Events.h>
#include <velmora/service/AlmanacRecords.h>

namespace velmora {
namespace {

Place tromso() { return placeAt(69.6489, 18.9551, "Europe/Oslo"); }
Place chicago() { return placeAt(41.85, -87.65, "America/Chicago"); }

class RecordsOfTheAlmanac : public ServiceTest {
 protected:
  RecordsOfTheAlmanac() {
    SettingsModel::sharedInstance().setTimeFormat(1);
    service().setRiseSetSource(AlmanacRecords::riseSetSource());
    service().setEclipseSource(AlmanacRecords::eclipseSource());
  }

  static RiseSetData dayAt(const Place& place, std::int64_t year, std::int64_t month, std::int64_t day) {
    select(place, year, month, day);
    return service().GetRiseSetDataForDate(localTime(place, year, month, day, 12));
  }

  static std::string eclipseAt(const Place& place, std::int64_t year, std::int64_t month, std::int64_t day) {
    select(place, year, month, day);
    const auto eclipse = service().eventsOnDate(localTime(place, year, month, day, 12), *place->timezone);
    return eclipse ? eclipse->key : "none";
  }
};

TEST_F(RecordsOfTheAlmanac, AreTheEventsOfTheCivilDay) {
  const RiseSetData day = dayAt(helsinki(), 2024, 6, 20);
  EXPECT_EQ(day.sunRiseText, "03:54");
  EXPECT_EQ(day.sunSetText, "22:50");
  EXPECT_EQ(day.sunRiseMinutesFromMidnight, 3 * 60 + 54);
  EXPECT_EQ(day.sunSetMinutesFromMidnight, 22 * 60 + 50);
  EXPECT_EQ(day.dayLengthMinutes, 18 * 60 + 56);
  EXPECT_EQ(day.moonRiseText, "22:25");
  EXPECT_EQ(day.moonSetText, "01:53");
  EXPECT_EQ(day.moonSetMinutesFromMidnight, 60 + 53) << "before the rise, on this day";
  EXPECT_EQ(day.twilightBeginText, "02:02");
  EXPECT_EQ(day.twilightEndText, "00:42");
}

TEST_F(RecordsOfTheAlmanac, TheSunsetAfterTheSunriseIsTaken) {
  const Place fairbanks = placeAt(64.8, -147.7, "America/Anchorage");
  const RiseSetData day = dayAt(fairbanks, 2024, 7, 14);  // sets at 00:02 and 23:59
  EXPECT_EQ(day.sunSetText, "23:59");
  EXPECT_EQ(day.sunSetMinutesFromMidnight, 23 * 60 + 59);
}

TEST_F(RecordsOfTheAlmanac, OfADayInThePolarNightHaveNoTextAndMinutesPastTheDay) {
  const RiseSetData day = dayAt(tromso(), 2024, 12, 21);
  EXPECT_EQ(day.sunRiseText + day.sunSetText, "");
  EXPECT_EQ(day.sunRiseMinutesFromMidnight, AlmanacRecords::afterTheDay);
  EXPECT_EQ(day.sunSetMinutesFromMidnight, AlmanacRecords::afterTheDay);
  EXPECT_NE(day.twilightBeginText, "");
}

TEST_F(RecordsOfTheAlmanac, OfADayOfMidnightSunReachBeyondBothItsEnds) {
  const RiseSetData day = dayAt(tromso(), 2024, 6, 21);
  EXPECT_EQ(day.sunRiseText + day.sunSetText, "");
  EXPECT_EQ(day.sunRiseMinutesFromMidnight, AlmanacRecords::beforeTheDay);
  EXPECT_EQ(day.sunSetMinutesFromMidnight, AlmanacRecords::afterTheDay);
}

TEST_F(RecordsOfTheAlmanac, SayOfTheMoonWhereItIsWhenItOnlyRisesOrSets) {
  const RiseSetData onlySets = dayAt(helsinki(), 2024, 6, 22);
  EXPECT_EQ(onlySets.moonRiseMinutesFromMidnight, AlmanacRecords::beforeTheDay);
  EXPECT_EQ(onlySets.moonRiseText, "");
  EXPECT_EQ(onlySets.moonSetText, "02:34");
}

TEST_F(RecordsOfTheAlmanac, TakeTheHeightAboveTheHorizon) {
  const std::int64_t fromTheGround = dayAt(helsinki(), 2024, 3, 20).dayLengthMinutes;
  service().setRiseSetSource(AlmanacRecords::riseSetSource(1000));
  EXPECT_GT(dayAt(helsinki(), 2024, 3, 20).dayLengthMinutes, fromTheGround + 10);
}

TEST_F(RecordsOfTheAlmanac, TellTheEclipseThatIsSeenAndOfWhichKindThere) {
  EXPECT_EQ(eclipseAt(chicago(), 2024, 4, 8), "PSE");
  EXPECT_EQ(eclipseAt(placeAt(32.78, -96.8, "America/Chicago"), 2024, 4, 8), "TSE");  // Dallas
  EXPECT_EQ(eclipseAt(helsinki(), 2024, 4, 8), "none");
  EXPECT_EQ(eclipseAt(helsinki(), 2024, 9, 18), "PLE");
}

TEST_F(RecordsOfTheAlmanac, StandInTheMonthsItemsOfTheService) {
  select(tromso(), 2024, 12, 21);
  const auto item = service().GetRiseSetPhaseItemForCurrentDate();
  ASSERT_TRUE(item);
  EXPECT_EQ(item->riseSetData->sunRiseMinutesFromMidnight, AlmanacRecords::afterTheDay);
  service().setRiseSetSource(nullptr);
  EXPECT_EQ(service().GetRiseSetPhaseItemForCurrentDate()->riseSetData->sunRiseText, "--");
}

}  // namespace
}  // namespace velmora
