#include <tests/service/SelectionTest.h>

namespace velmora {
namespace {

using Selection = SelectionTest;

TEST_F(Selection, NotificationNamesKeepTheirSpelling) {
  EXPECT_STREQ(kCalenderDateChangedNotification, "CalenderDateChanged");
  EXPECT_STREQ(kCalenderLocationChangedNotification, "CalenderLocationChanged");
  EXPECT_EQ(std::string_view(kCalenderDateChangedNotification), "CalenderDateChanged");
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

}  // namespace
}  // namespace velmora
