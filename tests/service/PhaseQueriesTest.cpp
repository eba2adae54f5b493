#include <tests/service/ServiceTest.h>
#include <velmora/platform/time/Clock.h>

namespace velmora {
namespace {

using Item = std::shared_ptr<RiseSetPhaseItem>;

/// "25/3 phase 0 age 14", "none" without an item.
std::string textOf(const Item& item) {
  if (!item) return "none";
  return std::to_string(item->day) + "/" + std::to_string(item->month) + " phase " +
         std::to_string(item->phase) + " age " + std::to_string(item->moonAge);
}

class NextEvent : public ServiceTest {
 protected:
  static std::string nextFrom(std::int64_t day, std::int64_t month, std::int64_t year) {
    service().changeSelectedDay(day, month, year);
    return textOf(service().nextEventSinceToday());
  }
};

TEST_F(NextEvent, IsANewOrFullMoonWithTheDaysUntilIt) {
  select(losAngeles(), 2024, 3, 1);
  EXPECT_EQ(nextFrom(2, 3, 2024), "10/3 phase 3 age 8") << "not the last quarter on the third";
  EXPECT_EQ(nextFrom(10, 3, 2024), "10/3 phase 3 age 0") << "the selected day counts";
  EXPECT_EQ(nextFrom(11, 3, 2024), "25/3 phase 0 age 14") << "not the first quarter on the sixteenth";
  EXPECT_EQ(nextFrom(26, 3, 2024), "8/4 phase 3 age 13") << "in the next month";
  EXPECT_EQ(nextFrom(31, 12, 2024), "13/1 phase 0 age 13") << "in the next year";
}

TEST_F(NextEvent, CountsTheDaysAcrossTheMonthsEnd) {
  const OwnResources resources;
  resources.writeTable(2024, {{"4", {"1 12:00 NM"}}, {"5", {"5 12:00 FM"}}});
  select(greenwich(), 2024, 4, 30);
  EXPECT_EQ(textOf(service().nextEventSinceToday()), "5/5 phase 0 age 5");
}

TEST_F(NextEvent, CountsTheLeapDay) {
  const OwnResources resources;
  for (const std::int64_t year : {2023, 2024}) resources.writeTable(year, {{"3", {"1 12:00 NM"}}});
  select(greenwich(), 2024, 2, 28);
  EXPECT_EQ(textOf(service().nextEventSinceToday()), "1/3 phase 3 age 2");
  EXPECT_EQ(nextFrom(28, 2, 2023), "1/3 phase 3 age 1");
}

TEST_F(NextEvent, IsSoughtInTwoMonthsAlone) {
  const OwnResources resources;
  resources.writeTable(2024,
                       {{"3", {"9 12:00 NM", "17 12:00 FQ"}}, {"4", {"2 12:00 LQ"}}, {"5", {"1 12:00 FM"}}});
  select(greenwich(), 2024, 3, 10);
  EXPECT_EQ(service().nextEventSinceToday(), nullptr);
}

TEST_F(NextEvent, IsNoneAfterTheTables) {
  select(greenwich(), 2040, 12, 19);
  EXPECT_EQ(service().nextEventSinceToday(), nullptr) << "full moon was on the 18th";
  EXPECT_EQ(nextFrom(18, 12, 2040), "18/12 phase 0 age 0");
}

TEST_F(NextEvent, IsNoneWithoutASelectionOrATable) {
  EXPECT_EQ(service().nextEventSinceToday(), nullptr);
  service().SetSelectedLocation(greenwich(), utc(1999, 5, 5));
  EXPECT_EQ(service().nextEventSinceToday(), nullptr);
}

TEST_F(NextEvent, WritesTheDaysIntoTheSharedItemWhereTheyStay) {
  const Place place = losAngeles();
  select(place, 2024, 3, 11);
  const auto month = service().GetRiseSetPhaseItemsForCurrentMonth();
  EXPECT_EQ(month->at(25)->moonAge, 16) << "the age that the calendar counts";
  const auto next = service().nextEventSinceToday();
  EXPECT_EQ(next, month->at(25));
  EXPECT_EQ(month->at(25)->moonAge, 14);
  service().changeSelectedDay(20, 3, 2024);
  EXPECT_EQ(service().GetRiseSetPhaseItemsForCurrentMonth()->at(25)->moonAge, 14) << "kept with the month";
  EXPECT_EQ(service().nextEventSinceToday()->moonAge, 5);
  service().SetSelectedLocation(place);
  EXPECT_EQ(service().GetRiseSetPhaseItemsForCurrentMonth()->at(25)->moonAge, 16) << "built anew";
  EXPECT_EQ(service().currentMonthPhaseDictionary()->at(25)->moonAge, 16) << "another item";
}

TEST_F(NextEvent, OfGivenItemsLeavesTheirAgeAlone) {
  select(losAngeles(), 2024, 3, 11);
  const auto month = service().GetRiseSetPhaseItemsForCurrentMonth();
  EXPECT_EQ(service().nextEventSince(11, *month), month->at(25));
  EXPECT_EQ(month->at(25)->moonAge, 16);
  EXPECT_EQ(service().nextEventSince(10, *month), month->at(10));
  EXPECT_EQ(service().nextEventSince(-5, *month), month->at(10));
  EXPECT_EQ(service().nextEventSince(26, *month), nullptr);
  EXPECT_EQ(service().nextEventSince(1, {}), nullptr);
}

TEST_F(NextEvent, OfGivenItemsIsNeverAQuarterOrAnIntermediatePhase) {
  MoonPhaseData::RiseSetItems items;
  for (std::int64_t phase = 7; phase >= -1; --phase) {
    const auto item = std::make_shared<RiseSetPhaseItem>();
    item->phase = phase;
    items[10 - phase] = item;
  }
  EXPECT_EQ(service().nextEventSince(1, items)->phase, 3);
  EXPECT_EQ(service().nextEventSince(8, items)->phase, 0);
  EXPECT_EQ(service().nextEventSince(11, items), nullptr);
}

class NextEventOfAPhase : public ServiceTest {
 protected:
  static std::string nextAt(Instant now, std::int64_t phase) {
    const ScopedNow fixed(now);
    return textOf(service().nextEventSinceTodayWithPhase(phase));
  }
};

TEST_F(NextEventOfAPhase, IsTheFirstAfterNowInTheSelectedMonthAndTheNext) {
  select(greenwich(), 2024, 3, 1);
  EXPECT_EQ(nextAt(utc(2024, 3, 1), 3), "10/3 phase 3 age 0");
  EXPECT_EQ(nextAt(utc(2024, 3, 10, 8, 59), 3), "10/3 phase 3 age 0");
  EXPECT_EQ(nextAt(utc(2024, 3, 10, 9, 0), 3), "8/4 phase 3 age 0") << "strictly later";
  EXPECT_EQ(nextAt(utc(2024, 3, 20), 0), "25/3 phase 0 age 0");
  EXPECT_EQ(nextAt(utc(2024, 3, 20), 1), "15/4 phase 1 age 0");
  EXPECT_EQ(nextAt(utc(2024, 3, 20), 2), "2/4 phase 2 age 0");
}

TEST_F(NextEventOfAPhase, IsBoundToTheSelectedMonthWhateverNowIs) {
  select(greenwich(), 2024, 3, 1);
  EXPECT_EQ(nextAt(utc(2024, 4, 30), 3), "none") << "the selected month lies in the past";
  EXPECT_EQ(nextAt(utc(2020, 1, 1), 3), "10/3 phase 3 age 0") << "or in the future";
}

TEST_F(NextEventOfAPhase, InDecemberIsSoughtInJanuaryToo) {
  select(greenwich(), 2024, 12, 1);
  EXPECT_EQ(nextAt(utc(2024, 12, 31), 0), "13/1 phase 0 age 0");
  select(greenwich(), 2040, 12, 1);
  EXPECT_EQ(nextAt(utc(2040, 12, 31), 0), "none") << "after the tables";
}

TEST_F(NextEventOfAPhase, ComparesTheShiftedInstant) {
  const Instant fullMoon = utc(2024, 3, 25, 7);
  select(tokyo(), 2024, 3, 1);
  EXPECT_EQ(nextAt(fullMoon + std::chrono::hours(8), 0), "25/3 phase 0 age 0") << "nine hours late in Tokyo";
  EXPECT_EQ(nextAt(fullMoon + std::chrono::hours(9), 0), "24/4 phase 0 age 0");
  select(losAngeles(), 2024, 3, 1);
  EXPECT_EQ(nextAt(fullMoon - std::chrono::hours(7), 0), "23/4 phase 0 age 0")
      << "seven hours early in Los Angeles";
}

TEST_F(NextEventOfAPhase, IsNoneForOtherPhasesAndWithoutASelection) {
  EXPECT_EQ(nextAt(utc(2024, 3, 1), 0), "none");
  select(greenwich(), 2024, 3, 1);
  for (const std::int64_t phase : {-1, 4, 7}) EXPECT_EQ(nextAt(utc(2024, 3, 1), phase), "none") << phase;
}

class PhaseOfAnInstant : public ServiceTest {
 protected:
  static std::int64_t on(std::int64_t day, Instant date) {
    service().changeSelectedDay(day, 3, 2024);
    return service().phaseEventForDate(date);
  }
};

TEST_F(PhaseOfAnInstant, IsTheSelectedDaysEventWhateverTheInstant) {
  select(greenwich(), 2024, 3, 1);
  EXPECT_EQ(on(25, utc(2024, 3, 1)), 0);
  EXPECT_EQ(on(10, utc(2030, 1, 1)), 3);
}

TEST_F(PhaseOfAnInstant, IsElseThatWhichFollowsTheLatestEvent) {
  select(greenwich(), 2024, 3, 1);
  const std::pair<Instant, std::int64_t> cases[] = {
      {utc(2024, 3, 1), -1},        {utc(2024, 3, 3, 15, 22), -1}, {utc(2024, 3, 3, 15, 23), 7},
      {utc(2024, 3, 10, 8, 59), 7}, {utc(2024, 3, 10, 9, 0), 4},   {utc(2024, 3, 18), 5},
      {utc(2024, 3, 25, 7, 0), 6},  {utc(2024, 5, 1), 6},
  };
  for (const auto& [date, phase] : cases) EXPECT_EQ(on(20, date), phase) << unixSeconds(date);
}

TEST_F(PhaseOfAnInstant, OfTwoEventsAtOneInstantTheLaterInTheListCounts) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"10 09:00 NM", "10 09:00 FQ", "2 09:00 FM"}}});
  select(greenwich(), 2024, 3, 20);
  EXPECT_EQ(on(20, utc(2024, 3, 15)), 5);
}

TEST_F(PhaseOfAnInstant, AfterAnUnknownCodeIsUnknown) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"2 09:00 FM", "10 09:00 XX"}}});
  select(greenwich(), 2024, 3, 20);
  EXPECT_EQ(on(20, utc(2024, 3, 15)), -1);
  EXPECT_EQ(on(10, utc(2024, 3, 5)), -1) << "the selected day's own";
}

TEST_F(PhaseOfAnInstant, IsUnknownWithoutEvents) {
  EXPECT_EQ(service().phaseEventForDate(utc(2024, 3, 15)), -1);
}

TEST_F(PhaseOfAnInstant, IsThatOfTheSharedInstance) {
  select(greenwich(), 2024, 3, 20);
  EXPECT_EQ(MoonPhaseData().phaseEventForDate(utc(2024, 3, 18)), 5);
}

}  // namespace
}  // namespace velmora
