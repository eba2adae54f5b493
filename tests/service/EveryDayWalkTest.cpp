#include <tests/service/ServiceTest.h>
#include <velmora/platform/events/NotificationCenter.h>

namespace velmora {
namespace {

/// Walks the selection through the years of the tables and checks after each step what always holds.
class EveryDayFrom2000To2040 : public ServiceTest, public ::testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    MoonPhaseData::resetSharedInstance();
    service().SetSelectedLocation(_place);
  }

  /// The day, month and year that the selection shows are those of its instant at the place.
  static bool showsItsInstant() {
    const DateComponents split = service().calendar().components(*service().currentDate());
    return split.day == service().currentDay() && split.month == service().currentMonth() &&
           split.year == service().currentYear();
  }

  void expectMonthIsNew() const {
    EXPECT_EQ(service().currentPhaseDictionary(), nullptr);
    EXPECT_EQ(service().currentImageDictionary(), nullptr);
    EXPECT_EQ(service().currentRiseSetPhaseItemDictionary(), nullptr);
    Calendar calendar;
    const auto expected = MoonPhaseCalc::GetMoonPhaseDataForMonth(
        *service().rawDataDictionary(), service().currentYear(), service().currentMonth() - 1, calendar, 0,
        service().currentYear(), service().currentMonth() - 1, *_place, false);
    ASSERT_EQ(service().currentMonthData().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(service().currentMonthData()[i]->day, expected[i]->day);
      EXPECT_EQ(service().currentMonthData()[i]->localDate, expected[i]->localDate);
    }
  }

  void expectDictionariesOfMonth() const {
    const std::int64_t month = service().currentMonth(), year = service().currentYear();
    const auto length = static_cast<std::size_t>(MoonPhaseCalc::GetNumberOfDaysInMonth(month - 1, year));
    const auto phases = service().currentMonthPhaseDictionary();
    const auto pictures = service().currentMonthImageDictionary();
    ASSERT_EQ(phases->size(), length);
    ASSERT_EQ(pictures->size(), length);
    EXPECT_EQ(phases->at(1)->month, month);
    EXPECT_EQ(phases->at(1)->year, year);
  }

  /// One step; `day` is a day of the calendar.
  void walkTo(std::chrono::year_month_day day) {
    const auto month = static_cast<unsigned>(day.month());
    const auto year = static_cast<int>(day.year());
    const bool isNewYear = year != service().currentYear();
    const bool isNewMonth = isNewYear || month != service().currentMonth();
    const auto phases = service().currentPhaseDictionary();
    service().changeSelectedDay(static_cast<unsigned>(day.day()), month, year);
    ASSERT_TRUE(showsItsInstant());
    ASSERT_EQ(service().currentDay(), static_cast<unsigned>(day.day()));
    ASSERT_EQ(service().currentMonth(), month);
    ASSERT_EQ(service().currentYear(), year);
    if (isNewYear) {
      ASSERT_EQ(*service().rawDataDictionary(), shippedTable(year));
    }
    if (isNewMonth) {
      expectMonthIsNew();
      expectDictionariesOfMonth();
    } else {
      ASSERT_EQ(service().currentPhaseDictionary(), phases);
    }
  }

 private:
  const ScopedDefaultTimeZone _zone{GetParam()};
  const Place _place = placeAt(10, 20, GetParam());
};

bool apiaSkipped(const std::string& zone, std::chrono::year_month_day day) {
  using namespace std::chrono;
  return zone == "Pacific/Apia" && day == year(2011) / December / 30;
}

TEST_P(EveryDayFrom2000To2040, KeepsTheServiceInStep) {
  using namespace std::chrono;
  int told = 0, steps = 0;
  const auto subscription = NotificationCenter::defaultCenter().subscribe(
      kCalenderDateChangedNotification, [&] { told += showsItsInstant() ? 1 : 0; });
  for (sys_days day = year(2000) / January / 1; day <= sys_days(year(2040) / December / 31); day += days(1)) {
    if (apiaSkipped(GetParam(), day)) continue;
    ASSERT_NO_FATAL_FAILURE(walkTo(day)) << day.time_since_epoch().count();
    ++steps;
  }
  EXPECT_EQ(told, steps) << "one notification a step, each with the new selection to be seen";
}

TEST_P(EveryDayFrom2000To2040, KeepsTheServiceInStepInWideStridesBackToo) {
  using namespace std::chrono;
  const sys_days first = year(2000) / January / 1;
  constexpr int length = 14'976, stride = 3'331;  // without a common divisor
  for (int step = 0; step < 600; ++step) {
    const sys_days day = first + days(std::int64_t{step} * stride % length);
    if (apiaSkipped(GetParam(), day)) continue;
    ASSERT_NO_FATAL_FAILURE(walkTo(day)) << day.time_since_epoch().count();
  }
}

INSTANTIATE_TEST_SUITE_P(Zones, EveryDayFrom2000To2040,
                         ::testing::Values("UTC", "America/Los_Angeles", "Asia/Kathmandu", "Pacific/Apia",
                                           "Pacific/Chatham"));

}  // namespace
}  // namespace velmora
