#include <gtest/gtest.h>

#include <tests/phases/Places.h>
#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/phases/Phase.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

constexpr std::int64_t hour = 3600;

class MonthEvents : public ::testing::Test {
 protected:
  /// The events of a month of a table, as "day code time", in the order of the list.
  static std::vector<std::string> listed(const YearTable& table, std::int64_t year, std::int64_t month,
                                         const GeoLocationData& place, bool use24Hour = true) {
    Calendar calendar;
    std::vector<std::string> texts;
    for (const auto& item : MoonPhaseCalc::GetMoonPhaseDataForMonth(table, year, month, calendar, 0, year,
                                                                    month, place, use24Hour)) {
      texts.push_back(std::to_string(item->day) + " " + std::to_string(item->phase) + " " + item->time);
    }
    return texts;
  }

  static std::vector<std::int64_t> daysOf(std::int64_t year, std::int64_t month,
                                          const GeoLocationData& place) {
    std::vector<std::int64_t> days;
    for (const auto& item : eventsOf(year, month, place)) days.push_back(item->day);
    return days;
  }

  const ScopedLocale _locale{"en_US"};
  const ScopedDefaultTimeZone _zone{"UTC"};
};

using Texts = std::vector<std::string>;

TEST_F(MonthEvents, OfMarch2024InGreenwich) {
  const auto events = eventsOf(2024, 2, placeAtOffset(0));
  ASSERT_EQ(events.size(), 4U);
  EXPECT_EQ(events[3]->day, 25);
  EXPECT_EQ(events[3]->phase, kFullMoon);
  EXPECT_EQ(events[3]->time, "07:00");
  EXPECT_EQ(events[3]->localDate, utc(2024, 3, 25, 7));
  EXPECT_EQ(events[3]->fullFactor, 1.0F);
}

TEST_F(MonthEvents, TheTimeTextFollowsTheClockForm) {
  const YearTable table = {{"3", {"25 07:00 FM", "26 19:05 LQ"}}};
  EXPECT_EQ(listed(table, 2024, 2, placeAtOffset(0), true), (Texts{"25 0 07:00", "26 2 19:05"}));
  EXPECT_EQ(listed(table, 2024, 2, placeAtOffset(0), false), (Texts{"25 0 07:00 AM", "26 2 07:05 PM"}));
}

TEST_F(MonthEvents, TheTimeTextIsTheShiftedInstantInTheDefaultZone) {
  const YearTable table = {{"7", {"21 10:17 FM"}}};
  const GeoLocationData tokyo = placeInZone("Asia/Tokyo");
  EXPECT_EQ(listed(table, 2024, 6, tokyo), Texts{"21 0 19:17"});
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  EXPECT_EQ(listed(table, 2024, 6, tokyo), Texts{"21 0 04:17"}) << "shifted twice";
}

TEST_F(MonthEvents, TheInstantIsTheTrueOneInEveryZone) {
  const YearTable table = {{"7", {"21 10:17 FM"}}};
  Calendar calendar;
  const auto events = MoonPhaseCalc::GetMoonPhaseDataForMonth(table, 2024, 6, calendar, 0, 2024, 6,
                                                              placeInZone("Asia/Tokyo"), true);
  EXPECT_EQ(events.at(0)->localDate, utc(2024, 7, 21, 10, 17));
}

TEST_F(MonthEvents, AnOffsetChosenOverANamedZoneMovesTheTimeTextAlone) {
  const YearTable table = {{"3", {"31 16:00 FM"}}};
  GeoLocationData place = placeInZone("Asia/Tokyo");
  place.SetLocation(0, 0, "Tokyo", std::nullopt, 5 * hour + 1800, true);
  EXPECT_EQ(listed(table, 2024, 2, place), Texts()) << "1 April in Tokyo, still 31 March by the offset";
  EXPECT_EQ(listed(table, 2024, 3, place), Texts{"1 0 21:30"});
}

TEST_F(MonthEvents, WithoutAZoneTheOffsetInForceCountsNotOneKeptWithoutTheFlag) {
  const YearTable table = {{"3", {"31 16:00 FM"}}};
  GeoLocationData place;
  place.SetLocation(0, 0, "no zone, no flag", std::nullopt, 9 * hour, false);
  EXPECT_EQ(listed(table, 2024, 2, place), Texts{"31 0 16:00"});
}

TEST_F(MonthEvents, AnEventOnTheFirstMayBelongToThePreviousMonthInTheWest) {
  const YearTable table = {{"6", {"1 02:00 LQ"}}};
  const GeoLocationData place = placeAtOffset(-5 * hour);
  EXPECT_EQ(listed(table, 2024, 4, place), Texts{"31 2 21:00"});
  EXPECT_EQ(listed(table, 2024, 5, place), Texts());
}

TEST_F(MonthEvents, AnEventOnTheLastMayBelongToTheNextMonthInTheEast) {
  const YearTable table = {{"5", {"31 23:00 LQ"}}};
  const GeoLocationData place = placeAtOffset(2 * hour);
  EXPECT_EQ(listed(table, 2024, 5, place), Texts{"1 2 01:00"});
  EXPECT_EQ(listed(table, 2024, 4, place), Texts());
}

TEST_F(MonthEvents, ZonesMoveAnEventToAnotherDay) {
  const YearTable table = {{"3", {"15 11:00 FQ"}}};
  const std::pair<std::int64_t, std::string> expected[] = {
      {-12 * hour, "14 1 23:00"}, {-11 * hour - 1800, "14 1 23:30"}, {-11 * hour, "15 1 00:00"},
      {0, "15 1 11:00"},          {5 * hour + 2700, "15 1 16:45"},   {12 * hour + 2700, "15 1 23:45"},
      {13 * hour, "16 1 00:00"},  {14 * hour, "16 1 01:00"}};
  for (const auto& [offset, text] : expected) {
    EXPECT_EQ(listed(table, 2024, 2, placeAtOffset(offset)), Texts{text}) << offset;
  }
}

TEST_F(MonthEvents, ListThePreviousMonthThenTheMonthThenTheNext) {
  const YearTable table = {
      {"4", {"30 23:30 FM"}}, {"5", {"3 12:00 LQ", "31 23:00 FM"}}, {"6", {"1 10:00 LQ"}}};
  EXPECT_EQ(listed(table, 2024, 4, placeAtOffset(hour)), (Texts{"1 0 00:30", "3 2 13:00"}));
  const YearTable eastAndWest = {{"5", {"10 12:00 LQ", "3 12:00 NM"}}, {"6", {"1 01:00 FM"}}};
  EXPECT_EQ(listed(eastAndWest, 2024, 4, placeAtOffset(-2 * hour)),
            (Texts{"10 2 10:00", "3 3 10:00", "31 0 23:00"}))
      << "a month's own events keep the order of the table";
}

TEST_F(MonthEvents, PutThePreviousDecemberLastInJanuary) {
  const TemporaryFolder folder;
  folder.write("Data/2023.plist", propertyListOf({{"12", {"31 23:30 LQ"}}}));
  const ScopedLibraryBundle bundle(folder.path());
  const YearTable table = {{"1", {"11 11:57 NM"}}, {"2", {"1 00:30 FQ"}}};
  EXPECT_EQ(listed(table, 2024, 0, placeAtOffset(hour)), (Texts{"11 3 12:57", "1 2 00:30"}));
  const YearTable late = {{"1", {"11 11:57 NM"}}, {"2", {"1 00:30 FQ"}}};
  EXPECT_EQ(listed(late, 2024, 0, placeAtOffset(-hour)), (Texts{"11 3 10:57", "31 1 23:30"}));
}

TEST_F(MonthEvents, ReadTheNextYearsJanuaryInDecember) {
  const TemporaryFolder folder;
  folder.write("Data/2025.plist", propertyListOf({{"1", {"1 00:30 LQ"}}}));
  const ScopedLibraryBundle bundle(folder.path());
  const YearTable table = {{"11", {"30 23:30 NM"}}, {"12", {"15 09:00 FM"}}};
  EXPECT_EQ(listed(table, 2024, 11, placeAtOffset(-hour)), (Texts{"15 0 08:00", "31 2 23:30"}));
  EXPECT_EQ(listed(table, 2024, 11, placeAtOffset(hour)), (Texts{"1 3 00:30", "15 0 10:00"}));
}

TEST_F(MonthEvents, TheTablesBefore2000AndAfter2040AreNotRead) {
  const TemporaryFolder folder;
  for (const char* year : {"1999", "2000", "2040", "2041"}) {
    folder.write(std::string("Data/") + year + ".plist",
                 propertyListOf({{"1", {"1 00:30 NM"}}, {"12", {"31 23:30 FM"}}}));
  }
  const ScopedLibraryBundle bundle(folder.path());
  EXPECT_EQ(listed({}, 2000, 0, placeAtOffset(hour)), Texts()) << "January 2000";
  EXPECT_EQ(listed({}, 2001, 0, placeAtOffset(hour)), Texts{"1 0 00:30"}) << "January 2001";
  EXPECT_EQ(listed({}, 2039, 11, placeAtOffset(-hour)), Texts{"31 3 23:30"}) << "December 2039";
  EXPECT_EQ(listed({}, 2040, 11, placeAtOffset(-hour)), Texts()) << "December 2040";
}

TEST_F(MonthEvents, AMissingNeighbourYearGivesNoEvents) {
  const TemporaryFolder folder;
  const ScopedLibraryBundle bundle(folder.path());
  const YearTable table = {{"1", {"11 11:57 NM"}}, {"12", {"15 09:00 FM"}}};
  EXPECT_EQ(listed(table, 2024, 0, placeAtOffset(hour)), Texts{"11 3 12:57"});
  EXPECT_EQ(listed(table, 2024, 11, placeAtOffset(hour)), Texts{"15 0 10:00"});
}

TEST_F(MonthEvents, AnEventOfNewYearsNightMayBelongToAnotherYear) {
  const GeoLocationData losAngeles = placeInZone("America/Los_Angeles");
  EXPECT_EQ(shippedTable(2012).at("1").at(0), "1  06:15 FQ");
  EXPECT_EQ(daysOf(2011, 11, losAngeles), (std::vector<std::int64_t>{2, 10, 17, 24, 31}));
  EXPECT_EQ(daysOf(2012, 0, losAngeles), (std::vector<std::int64_t>{8, 16, 22, 30}));
}

TEST_F(MonthEvents, MonthsAreFoundByTheirNumberWithoutZeros) {
  const YearTable table = {
      {"1", {"1 12:00 FM"}}, {"10", {"10 12:00 LQ"}}, {"2", {"2 12:00 NM"}}, {"02", {"3 12:00 FQ"}}};
  EXPECT_EQ(listed(table, 2024, 1, placeAtOffset(0)), Texts{"2 3 12:00"});
  EXPECT_EQ(listed(table, 2024, 9, placeAtOffset(0)), Texts{"10 2 12:00"});
}

TEST_F(MonthEvents, LinesThatCannotBeReadArePassedOver) {
  const YearTable table = {{"3", {"", "3", "3 15:23", "32 15:23 LQ", "3 25:23 LQ", "10 09:00 NM", "moon"}}};
  EXPECT_EQ(listed(table, 2024, 2, placeAtOffset(0)), Texts{"10 3 09:00"});
}

TEST_F(MonthEvents, AnUnknownCodeGivesAnItemWithoutPhase) {
  const YearTable table = {{"3", {"10 09:00 XX"}}};
  Calendar calendar;
  const auto events =
      MoonPhaseCalc::GetMoonPhaseDataForMonth(table, 2024, 2, calendar, 0, 2024, 2, placeAtOffset(0), true);
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0]->phase, -1);
  EXPECT_EQ(events[0]->fullFactor, 0.0F);
  EXPECT_EQ(events[0]->phaseString(), std::nullopt);
}

TEST_F(MonthEvents, AMonthOutsideTheYearHasNone) {
  const YearTable table = shippedTable(2024);
  for (const std::int64_t month : {-2, -1, 12, 13}) {
    EXPECT_EQ(listed(table, 2024, month, placeAtOffset(0)), Texts()) << month;
  }
}

TEST_F(MonthEvents, LeaveTheCalendarInThePlacesZone) {
  Calendar calendar(TimeZone::fixed(0));
  MoonPhaseCalc::GetMoonPhaseDataForMonth({}, 2024, 2, calendar, 0, 2024, 2, placeInZone("Asia/Tokyo"), true);
  EXPECT_EQ(calendar.timeZone().name(), "Asia/Tokyo");
  MoonPhaseCalc::GetMoonPhaseDataForMonth({}, 2024, 2, calendar, 0, 2024, 2, placeAtOffset(19800), true);
  EXPECT_EQ(calendar.timeZone().name(), "GMT+05:30");
}

TEST_F(MonthEvents, OfOneMonthsLinesAreAppended) {
  Calendar calendar;
  MoonPhaseCalc::MonthEvents events;
  const auto process = [&](std::int64_t secondsFromGMT, const std::string& pattern, std::int64_t zoneOffset) {
    DateFormatter formatter = VelmoraCalendar::calendarDateFormatter();
    formatter.setDateFormat(pattern);
    MoonPhaseCalc::InternalProcessData({"10 09:00 NM"}, 2024, 2, calendar, secondsFromGMT, 2024, 2, formatter,
                                       TimeZone::fixed(zoneOffset), events, placeAtOffset(0), true);
  };
  process(0, "EEE MMM d',' hh:mm a", 0);
  process(86400, "yyyy", 3600);
  ASSERT_EQ(events.size(), 2U);
  EXPECT_EQ(events[0]->time, events[1]->time) << "offset, formatter and zone have no effect";
  EXPECT_EQ(events[0]->day, events[1]->day);
}

}  // namespace
}  // namespace velmora
