#include <tests/service/ServiceTest.h>
#include <velmora/platform/events/NotificationCenter.h>

namespace velmora {
namespace {

/// Writes down each notification and what the service shows to an observer while it is being told.
class NotificationRecord {
 public:
  std::vector<std::string> texts;

 private:
  void note(const std::string& name) {
    MoonPhaseData& service = MoonPhaseData::sharedInstance();
    const auto phases = service.currentMonthPhaseDictionary();
    texts.push_back(name + " " + std::to_string(service.currentYear()) + "-" +
                    std::to_string(service.currentMonth()) + "-" + std::to_string(service.currentDay()) +
                    ", events " + std::to_string(service.currentMonthPhases().size()) + ", days " +
                    std::to_string(phases ? phases->size() : 0) + ", in " +
                    service.calendar().timeZone().name());
  }
  NotificationCenter::Subscription subscribe(const char* name) {
    return NotificationCenter::defaultCenter().subscribe(name, [this, name] { note(name); });
  }

  NotificationCenter::Subscription _dates = subscribe(kCalenderDateChangedNotification);
  NotificationCenter::Subscription _places = subscribe(kCalenderLocationChangedNotification);
};

using Texts = std::vector<std::string>;

class Selection : public ServiceTest {
 protected:
  static void buildMonth() {
    service().currentMonthPhaseDictionary();
    service().currentMonthImageDictionary();
    service().GetRiseSetPhaseItemsForCurrentMonth();
  }
  static bool hasWholeMonth() {
    return service().currentPhaseDictionary() && service().currentImageDictionary() &&
           service().currentRiseSetPhaseItemDictionary();
  }
  static bool hasNothingOfMonth() {
    return !service().currentPhaseDictionary() && !service().currentImageDictionary() &&
           !service().currentRiseSetPhaseItemDictionary();
  }
  static std::vector<std::int64_t> eventDays() {
    std::vector<std::int64_t> days;
    for (const auto& event : service().currentMonthData()) days.push_back(event->day);
    return days;
  }
  using Days = std::vector<std::int64_t>;
};

TEST_F(Selection, NotificationNamesKeepTheirSpelling) {
  EXPECT_STREQ(kCalenderDateChangedNotification, "CalenderDateChanged");
  EXPECT_STREQ(kCalenderLocationChangedNotification, "CalenderLocationChanged");
}

TEST_F(Selection, AFreshServiceHasNone) {
  const MoonPhaseData fresh;
  EXPECT_EQ(fresh.currentDate(), std::nullopt);
  EXPECT_EQ(fresh.currentDay(), 0);
  EXPECT_EQ(fresh.currentMonth(), 0);
  EXPECT_EQ(fresh.currentYear(), 0);
  EXPECT_EQ(fresh.currentLocation(), nullptr);
  EXPECT_EQ(fresh.rawDataDictionary(), nullptr);
  EXPECT_EQ(fresh.currentYearDictionary(), nullptr);
  EXPECT_TRUE(fresh.currentMonthData().empty());
  EXPECT_TRUE(fresh.currentMonthPhases().empty());
  EXPECT_EQ(fresh.currentImageDictionary(), nullptr);
  EXPECT_EQ(fresh.currentPhaseDictionary(), nullptr);
  EXPECT_EQ(fresh.currentRiseSetPhaseItemDictionary(), nullptr);
  EXPECT_EQ(fresh.eventsData(), nullptr);
  EXPECT_EQ(fresh.placeHolderImage(), nullptr);
  EXPECT_FALSE(fresh.use24HrTimeFormat());
}

TEST_F(Selection, AFreshServiceHasTheApplicationCalendar) {
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  EXPECT_EQ(MoonPhaseData().calendar().timeZone().name(), "Asia/Tokyo");
}

TEST_F(Selection, TheSharedInstanceIsOneUntilItIsReset) {
  MoonPhaseData& first = service();
  EXPECT_EQ(&first, &MoonPhaseData::sharedInstance());
  select(losAngeles(), 2024, 3, 10);
  first.setUse24HrTimeFormat(true);
  MoonPhaseData::resetSharedInstance();
  EXPECT_EQ(service().currentDate(), std::nullopt);
  EXPECT_EQ(service().currentLocation(), nullptr);
  EXPECT_FALSE(service().use24HrTimeFormat());
}

TEST_F(Selection, OfADatePostsOnceWhenTheServiceShowsIt) {
  service().SetSelectedLocation(losAngeles());
  const NotificationRecord told;
  service().SetSelectedDate(utc(2024, 3, 10, 20));
  EXPECT_EQ(told.texts, Texts{"CalenderDateChanged 2024-3-10, events 4, days 31, in America/Los_Angeles"});
}

TEST_F(Selection, OfTheSelectedInstantPostsNothing) {
  select(losAngeles(), 2024, 3, 10);
  const Instant selected = *service().currentDate();
  const NotificationRecord told;
  service().SetSelectedDate(selected);
  EXPECT_EQ(told.texts, Texts());
  service().SetSelectedDate(selected + std::chrono::seconds(1));
  EXPECT_EQ(told.texts.size(), 1U) << "the same day, but another instant";
}

TEST_F(Selection, OfNoDateChangesNothing) {
  const NotificationRecord told;
  service().SetSelectedDate(std::nullopt);
  select(losAngeles(), 2024, 3, 10);
  service().SetSelectedDate(std::nullopt);
  EXPECT_EQ(told.texts.size(), 1U) << "that of the place alone";
  EXPECT_EQ(service().currentDay(), 10);
}

TEST_F(Selection, OutsideTheYearsOfTheTablesIsIgnored) {
  select(greenwich(), 2024, 3, 10);
  const Instant selected = *service().currentDate();
  const NotificationRecord told;
  service().SetSelectedDate(utc(1999, 12, 31, 23, 59));
  service().SetSelectedDate(utc(2041, 1, 1));
  service().changeSelectedDay(31, 12, 1999);
  EXPECT_EQ(told.texts, Texts());
  EXPECT_EQ(service().currentDate(), selected);
  EXPECT_EQ(service().currentYear(), 2024);
}

TEST_F(Selection, OfTheFirstAndLastDayOfTheTablesIsAccepted) {
  service().SetSelectedLocation(greenwich());
  const NotificationRecord told;
  service().SetSelectedDate(utc(2000, 1, 1));
  service().SetSelectedDate(utc(2040, 12, 31, 23, 59));
  EXPECT_EQ(told.texts, (Texts{"CalenderDateChanged 2000-1-1, events 4, days 31, in GMT",
                               "CalenderDateChanged 2040-12-31, events 4, days 31, in GMT"}));
}

TEST_F(Selection, IsCheckedInTheDefaultZone) {
  service().SetSelectedLocation(losAngeles());
  service().SetSelectedDate(utc(2041, 1, 1, 1));
  EXPECT_EQ(service().currentDate(), std::nullopt) << "2040 in Los Angeles, but 2041 in the default zone";
  service().SetSelectedDate(utc(2000, 1, 1, 1));
  EXPECT_EQ(service().currentYear(), 1999) << "2000 in the default zone";
}

TEST_F(Selection, OfAnotherDayOfTheMonthKeepsTheMonth) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  const auto phases = service().currentPhaseDictionary();
  const auto images = service().currentImageDictionary();
  const auto items = service().currentRiseSetPhaseItemDictionary();
  const auto events = service().currentMonthData();
  const NotificationRecord told;
  service().SetSelectedDate(localTime(losAngeles(), 2024, 3, 31, 23, 59));
  EXPECT_EQ(told.texts.size(), 1U);
  EXPECT_EQ(service().currentDay(), 31);
  EXPECT_EQ(service().currentPhaseDictionary(), phases);
  EXPECT_EQ(service().currentImageDictionary(), images);
  EXPECT_EQ(service().currentRiseSetPhaseItemDictionary(), items);
  EXPECT_EQ(service().currentMonthData(), events);
}

TEST_F(Selection, OfAnotherMonthForgetsTheMonthAndKeepsTheTable) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  ASSERT_TRUE(hasWholeMonth());
  const auto table = service().rawDataDictionary();
  EXPECT_EQ(eventDays(), (Days{3, 10, 16, 25}));
  service().SetSelectedDate(localTime(losAngeles(), 2024, 4, 10));
  EXPECT_TRUE(hasNothingOfMonth());
  EXPECT_EQ(eventDays(), (Days{1, 8, 15, 23}));
  EXPECT_EQ(service().rawDataDictionary(), table);
}

TEST_F(Selection, OfTheSameMonthInAnotherYearLoadsItsTable) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  service().SetSelectedDate(localTime(losAngeles(), 2025, 3, 10));
  EXPECT_TRUE(hasNothingOfMonth());
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2025));
  EXPECT_EQ(*service().currentYearDictionary(), shippedTable(2025));
  EXPECT_EQ(eventDays(), (Days{6, 13, 22, 29}));
}

TEST_F(Selection, OfACalendarDayIsItsStartAtThePlace) {
  service().SetSelectedLocation(losAngeles());
  const NotificationRecord told;
  service().changeSelectedDay(10, 3, 2024);
  EXPECT_EQ(service().currentDate(), utc(2024, 3, 10, 8));
  EXPECT_EQ(told.texts, Texts{"CalenderDateChanged 2024-3-10, events 4, days 31, in America/Los_Angeles"});
}

TEST_F(Selection, OfTheSelectedCalendarDayDoesNothingAtAnyHour) {
  select(losAngeles(), 2024, 3, 10);
  const Instant noon = *service().currentDate();
  const NotificationRecord told;
  service().changeSelectedDay(10, 3, 2024);
  EXPECT_EQ(told.texts, Texts());
  EXPECT_EQ(service().currentDate(), noon);
}

TEST_F(Selection, OfACalendarDayCarriesOverLikeTheCalendar) {
  service().SetSelectedLocation(losAngeles());
  service().changeSelectedDay(31, 4, 2024);
  EXPECT_EQ(service().currentMonth(), 5);
  EXPECT_EQ(service().currentDay(), 1);
}

TEST_F(Selection, OfTheDayThatApiaSkippedIsTheDayAfter) {
  service().SetSelectedLocation(placeAt(-13.83, -171.76, "Pacific/Apia"));
  service().changeSelectedDay(30, 12, 2011);
  EXPECT_EQ(service().currentDay(), 31);
}

TEST_F(Selection, OfADayWithoutMidnightIsItsFirstInstant) {
  const Place cairo = placeAt(30.04, 31.24, "Africa/Cairo");
  service().SetSelectedLocation(cairo);
  service().changeSelectedDay(26, 4, 2024);
  EXPECT_EQ(service().currentDay(), 26);
  EXPECT_EQ(service().currentDate(), localTime(cairo, 2024, 4, 26, 1));
}

TEST_F(Selection, OfACalendarDayWithoutAPlaceIsItsStartInTheDefaultZone) {
  const ScopedDefaultTimeZone zone("America/Los_Angeles");
  MoonPhaseData::resetSharedInstance();
  service().changeSelectedDay(10, 3, 2024);
  EXPECT_EQ(service().currentDate(), utc(2024, 3, 10, 8));
  service().changeSelectedDay(9, 4, 2024);
  EXPECT_EQ(service().currentDate(), utc(2024, 4, 9, 7)) << "the calendar stays in the default zone";
  EXPECT_EQ(service().currentDay(), 9);
}

TEST_F(Selection, OfAPlacePostsThePlaceAlone) {
  select(losAngeles(), 2024, 3, 10);
  const NotificationRecord told;
  service().SetSelectedLocation(sydney());
  EXPECT_EQ(told.texts, Texts{"CalenderLocationChanged 2024-3-11, events 4, days 31, in Australia/Sydney"});
}

TEST_F(Selection, OfAPlaceAndADatePostsThePlaceAlone) {
  const NotificationRecord told;
  service().SetSelectedLocation(sydney(), utc(2024, 6, 5, 20));
  EXPECT_EQ(told.texts, Texts{"CalenderLocationChanged 2024-6-6, events 4, days 30, in Australia/Sydney"});
}

TEST_F(Selection, OfThePlaceBeforeAnyDateMovesTheCalendarAlone) {
  const NotificationRecord told;
  service().SetSelectedLocation(sydney());
  EXPECT_EQ(told.texts, Texts{"CalenderLocationChanged 0-0-0, events 0, days 0, in Australia/Sydney"});
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
}

TEST_F(Selection, OfAPlaceInTheSameMonthKeepsTheMonthsEvents) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  ASSERT_TRUE(hasWholeMonth());
  const auto events = service().currentMonthData();
  EXPECT_EQ(eventDays(), (Days{3, 10, 16, 25}));
  service().SetSelectedLocation(tokyo());
  EXPECT_TRUE(hasNothingOfMonth());
  EXPECT_EQ(service().currentMonthData(), events) << "as seen from Los Angeles, by intent";
  EXPECT_EQ(service().currentMonthPhaseDictionary()->at(17)->phase, 1) << "as seen from Tokyo";
}

TEST_F(Selection, OfAPlaceInAnotherMonthBuildsTheMonthAnew) {
  const Place west = losAngeles();
  service().SetSelectedLocation(west, localTime(west, 2024, 3, 31, 20));
  EXPECT_EQ(service().currentMonth(), 3);
  service().SetSelectedLocation(tokyo());
  EXPECT_EQ(service().currentMonth(), 4);
  EXPECT_EQ(service().currentDay(), 1);
  EXPECT_EQ(eventDays(), (Days{2, 9, 16, 24}));
}

TEST_F(Selection, OfAPlaceInAnotherYearLoadsItsTable) {
  const Place west = losAngeles();
  service().SetSelectedLocation(west, localTime(west, 2024, 12, 31, 20));
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2024));
  service().SetSelectedLocation(tokyo());
  EXPECT_EQ(service().currentYear(), 2025);
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2025));
}

TEST_F(Selection, OfTheSamePlaceAgainForgetsTheMonthAndPosts) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  buildMonth();
  int told = 0;
  const auto subscription =
      NotificationCenter::defaultCenter().subscribe(kCalenderLocationChangedNotification, [&] { ++told; });
  service().SetSelectedLocation(place);
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(hasNothingOfMonth());
}

TEST_F(Selection, OfAPlaceAndADateIsNotChecked) {
  const NotificationRecord told;
  service().SetSelectedLocation(greenwich(), utc(1999, 5, 5));
  EXPECT_EQ(service().currentYear(), 1999);
  EXPECT_EQ(service().currentDate(), utc(1999, 5, 5));
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  service().SetSelectedLocation(greenwich(), utc(1999, 5, 5));
  EXPECT_EQ(told.texts.size(), 2U) << "posted for the same instant, too";
}

TEST_F(Selection, OfAPlaceAndNoDateLeavesTheDayAsItWas) {
  select(losAngeles(), 2024, 3, 10);
  const NotificationRecord told;
  service().SetSelectedLocation(tokyo(), std::nullopt);
  EXPECT_EQ(service().currentDate(), std::nullopt);
  EXPECT_EQ(service().currentDay(), 10);
  EXPECT_EQ(told.texts.size(), 1U);
}

TEST_F(Selection, OfNoPlaceKeepsTheCalendarsZone) {
  select(losAngeles(), 2024, 3, 10);
  service().SetSelectedLocation(nullptr);
  EXPECT_EQ(service().currentLocation(), nullptr);
  EXPECT_EQ(service().calendar().timeZone().name(), "America/Los_Angeles");
  EXPECT_EQ(service().currentDay(), 10);
}

TEST_F(Selection, AtAPlaceWithoutANamedZoneFollowsItsFixedOffset) {
  service().SetSelectedLocation(placeWithoutZone(19800), utc(2024, 3, 10, 18, 30));
  EXPECT_EQ(service().calendar().timeZone().name(), "GMT+05:30");
  EXPECT_EQ(service().currentDay(), 11);
  service().changeSelectedDay(25, 3, 2024);
  EXPECT_EQ(service().currentDate(), utc(2024, 3, 24, 18, 30));
  EXPECT_EQ(service().currentMonthPhaseDictionary()->at(25)->phase, 0);
}

TEST_F(Selection, AnObserverMayMoveIt) {
  select(losAngeles(), 2024, 3, 10);
  Texts days;
  const auto subscription =
      NotificationCenter::defaultCenter().subscribe(kCalenderDateChangedNotification, [&] {
        days.push_back(std::to_string(service().currentDay()));
        service().changeSelectedDay(20, 3, 2024);
      });
  service().changeSelectedDay(15, 3, 2024);
  EXPECT_EQ(days, (Texts{"15", "20"}));
  EXPECT_EQ(service().currentDay(), 20);
}

TEST_F(Selection, TheMonthIsForgottenBeforeAMoveToAnotherMonthAlone) {
  select(losAngeles(), 2024, 3, 10);
  buildMonth();
  service().dateWillChangeTo(std::nullopt);
  service().dateWillChangeTo(localTime(losAngeles(), 2024, 3, 1));
  EXPECT_TRUE(hasWholeMonth());
  service().dateWillChangeTo(localTime(losAngeles(), 2024, 2, 29, 23, 59));
  EXPECT_TRUE(hasNothingOfMonth());
  buildMonth();
  service().dateWillChangeTo(localTime(losAngeles(), 2023, 3, 10));
  EXPECT_TRUE(hasNothingOfMonth()) << "the same month of another year";
  EXPECT_EQ(service().currentDay(), 10);
}

TEST_F(Selection, TheCacheFollowsTheDateWithoutSelectingIt) {
  select(losAngeles(), 2024, 3, 10);
  const Instant selected = *service().currentDate();
  const NotificationRecord told;
  service().updateCacheForDate(std::nullopt);
  EXPECT_EQ(service().currentDay(), 10);
  service().updateCacheForDate(localTime(losAngeles(), 2025, 4, 20));
  EXPECT_EQ(service().currentYear(), 2025);
  EXPECT_EQ(service().currentMonth(), 4);
  EXPECT_EQ(service().currentDay(), 20);
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2025));
  EXPECT_EQ(eventDays(), (Days{4, 12, 20, 27}));
  EXPECT_EQ(service().currentDate(), selected);
  EXPECT_EQ(told.texts, Texts());
}

TEST_F(Selection, AYearsTableIsReadWithOrWithoutKeepingIt) {
  EXPECT_EQ(*service().getDataForYear(2030), shippedTable(2030));
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  service().loadDataForYear(2031);
  EXPECT_EQ(*service().rawDataDictionary(), shippedTable(2031));
  service().loadDataForYear(1999);
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  EXPECT_EQ(service().getDataForYear(2041), nullptr);
}

TEST_F(Selection, AYearIsNamedByItsLow32Bits) {
  EXPECT_EQ(*service().getDataForYear((std::int64_t{1} << 32) + 2024), shippedTable(2024));
}

TEST_F(Selection, TheMonthsEventTimesFollowTheServicesClockForm) {
  service().SetSelectedLocation(greenwich());
  service().changeSelectedDay(1, 3, 2024);
  EXPECT_EQ(service().currentMonthData().at(0)->time, "03:23 PM");
  service().setUse24HrTimeFormat(true);
  EXPECT_EQ(service().currentMonthData().at(0)->time, "03:23 PM") << "until the month is built anew";
  service().calculateMoonPhases();
  EXPECT_EQ(service().currentMonthData().at(0)->time, "15:23");
}

TEST_F(Selection, WithoutATableKeepsTheFormerMonthsEvents) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"10 09:00 NM"}}});
  select(greenwich(), 2024, 3, 10);
  EXPECT_EQ(eventDays(), Days{10});
  service().SetSelectedDate(utc(2025, 7, 1));
  EXPECT_EQ(service().currentYear(), 2025);
  EXPECT_EQ(service().currentMonth(), 7);
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  EXPECT_EQ(eventDays(), Days{10});
  EXPECT_EQ(service().currentMonthPhaseDictionary(), nullptr);
}

TEST_F(Selection, OfAnUnreadableTableIsTriedAgainWhenTheYearIsSelectedAnew) {
  const OwnResources resources;
  resources.folder.write("Data/2024.plist", "no property list");
  resources.writeTable(2025, {});
  select(greenwich(), 2024, 3, 10);
  EXPECT_EQ(service().rawDataDictionary(), nullptr);
  resources.writeTable(2024, {{"3", {"10 09:00 NM"}}});
  service().changeSelectedDay(11, 3, 2024);
  EXPECT_EQ(service().rawDataDictionary(), nullptr) << "the year did not change";
  service().changeSelectedDay(1, 1, 2025);
  service().changeSelectedDay(11, 3, 2024);
  EXPECT_EQ(eventDays(), Days{10});
}

}  // namespace
}  // namespace velmora
