#include <tests/service/ServiceTest.h>

namespace velmora {
namespace {

using SelectedMonth = ServiceTest;

bool areAlike(const PhaseItem& a, const PhaseItem& b) {
  return a.day == b.day && a.month == b.month && a.year == b.year && a.moonAge == b.moonAge &&
         a.phase == b.phase && a.fullFactor == b.fullFactor && a.localDate == b.localDate;
}

void expectAlike(const MoonPhaseCalc::PhaseCalendar& actual, const MoonPhaseCalc::PhaseCalendar& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (const auto& [day, item] : expected) EXPECT_TRUE(areAlike(*actual.at(day), *item)) << day;
}

TEST_F(SelectedMonth, PhasesAreThoseOfThePhaseCalendar) {
  const Place place = tokyo();
  select(place, 2024, 2, 20);
  const auto phases = service().currentMonthPhaseDictionary();
  ASSERT_NE(phases, nullptr);
  expectAlike(*phases, MoonPhaseCalc::GetPhaseCalendar(shippedTable(2024), 1, 2024, *service().currentDate(),
                                                       *place, false));
  EXPECT_EQ(service().currentPhaseDictionary(), phases);
  EXPECT_EQ(service().currentMonthPhaseDictionary(), phases) << "built once";
}

TEST_F(SelectedMonth, PicturesAreThoseOfTheImageCalendar) {
  const Place place = tokyo();
  select(place, 2024, 2, 20);
  const auto pictures = service().currentMonthImageDictionary();
  ASSERT_NE(pictures, nullptr);
  EXPECT_EQ(*pictures, MoonPhaseCalc::GetImageCalendar(shippedTable(2024), 1, 2024, *service().currentDate(),
                                                       *place, false));
  EXPECT_EQ(service().currentImageDictionary(), pictures);
  EXPECT_EQ(service().currentMonthImageDictionary(), pictures) << "built once";
}

TEST_F(SelectedMonth, HasNoDictionariesWithoutATable) {
  EXPECT_EQ(service().currentMonthPhaseDictionary(), nullptr);
  EXPECT_EQ(service().currentMonthImageDictionary(), nullptr);
  EXPECT_EQ(service().monthPhaseDictionaryForDate(utc(2024, 3, 10)), nullptr);
  service().SetSelectedLocation(greenwich(), utc(1999, 5, 5));
  EXPECT_EQ(service().currentMonthPhaseDictionary(), nullptr);
  EXPECT_EQ(service().currentMonthImageDictionary(), nullptr);
  EXPECT_EQ(service().monthPhaseDictionaryForDate(utc(1999, 5, 5)), nullptr);
}

TEST_F(SelectedMonth, IsWorkedOutAtZeroDegreesInGreenwichWithoutAPlace) {
  service().SetSelectedDate(utc(2024, 3, 10));
  expectAlike(*service().currentMonthPhaseDictionary(),
              MoonPhaseCalc::GetPhaseCalendar(shippedTable(2024), 2, 2024, utc(2024, 3, 10),
                                              GeoLocationData(), false));
}

TEST_F(SelectedMonth, AnotherMonthsPhasesAreNeverKept) {
  const Place place = losAngeles();
  select(place, 2024, 3, 10);
  const Instant inJuly = localTime(place, 2024, 7, 31, 23);
  const auto july = service().monthPhaseDictionaryForDate(inJuly);
  ASSERT_NE(july, nullptr);
  EXPECT_EQ(july->size(), 31U);
  EXPECT_EQ(july->at(5)->phase, 3) << "new moon on 5 July at 22:57 UTC";
  EXPECT_EQ(july->at(1)->month, 7);
  EXPECT_NE(service().monthPhaseDictionaryForDate(inJuly), july);
  EXPECT_EQ(service().currentPhaseDictionary(), nullptr);
  EXPECT_EQ(service().currentMonth(), 3);
}

TEST_F(SelectedMonth, AnotherYearsMonthIsWorkedOutFromTheSelectedYearsTable) {
  const Place place = greenwich();
  select(place, 2024, 3, 10);
  const Instant date = utc(2025, 3, 10);
  expectAlike(*service().monthPhaseDictionaryForDate(date),
              MoonPhaseCalc::GetPhaseCalendar(shippedTable(2024), 2, 2025, date, *place, false));
}

TEST_F(SelectedMonth, TheSelectedDaysEventIsFoundOnItsDayAlone) {
  select(losAngeles(), 2024, 3, 10);
  ASSERT_NE(service().monthDataItemForCurrentDay(), nullptr);
  EXPECT_EQ(service().monthDataItemForCurrentDay()->phase, 3);
  EXPECT_EQ(service().monthDataItemForCurrentDay(), service().currentMonthPhases().at(1));
  service().changeSelectedDay(11, 3, 2024);
  EXPECT_EQ(service().monthDataItemForCurrentDay(), nullptr);
}

TEST_F(SelectedMonth, OfTwoEventsOnADayTheFirstIsTheSelectedDays) {
  const OwnResources resources;
  resources.writeTable(2024, {{"3", {"10 09:00 FQ", "10 21:00 FM"}}});
  select(greenwich(), 2024, 3, 10);
  EXPECT_EQ(service().monthDataItemForCurrentDay()->phase, 1);
}

TEST_F(SelectedMonth, TheSelectedDaysEventIsTheSharedInstances) {
  select(losAngeles(), 2024, 3, 10);
  const MoonPhaseData another;
  EXPECT_EQ(another.monthDataItemForCurrentDay(), service().monthDataItemForCurrentDay());
  EXPECT_NE(another.monthDataItemForCurrentDay(), nullptr);
}

TEST_F(SelectedMonth, PhasesAreNamedInEnglish) {
  const char* const names[] = {"Full Moon",       "First Quarter",  "Last Quarter",   "New Moon",
                               "Waxing Crescent", "Waxing Gibbous", "Waning Gibbous", "Waning Crescent"};
  const ScopedLocale locale("de_DE");
  for (std::int64_t phase = 0; phase < 8; ++phase) EXPECT_EQ(service().nameForPhase(phase), names[phase]);
  EXPECT_EQ(service().nameForPhase(-1), std::nullopt);
  EXPECT_EQ(service().nameForPhase(8), std::nullopt);
}

TEST_F(SelectedMonth, TheSouthernHemisphereBeginsBelowTheEquator) {
  EXPECT_FALSE(service().isSouthernHemisphere()) << "no place";
  const std::pair<double, bool> cases[] = {
      {0.0, false}, {-0.0, false}, {-0.1, true}, {0.1, false}, {-90, true}};
  for (const auto& [latitude, isSouthern] : cases) {
    service().SetSelectedLocation(placeAt(latitude, 10, "GMT"));
    EXPECT_EQ(service().isSouthernHemisphere(), isSouthern) << latitude;
  }
}

TEST_F(SelectedMonth, TheLitFractionOfTheSelectedDayIsAConstant) {
  EXPECT_EQ(service().phaseFullFactorForCurrentDay(), 0.2F);
  select(losAngeles(), 2024, 3, 25);
  EXPECT_EQ(service().phaseFullFactorForCurrentDay(), 0.2F) << "full moon";
}

}  // namespace
}  // namespace velmora
