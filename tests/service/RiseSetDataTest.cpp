#include <limits>

#include <tests/service/ServiceTest.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora {
namespace {

using RiseSetDataOfDays = ServiceTest;

TEST_F(RiseSetDataOfDays, AreThoseOfTheSelectedPlace) {
  const Place place = placeAt(37.78549082, -122.39184303, "America/Los_Angeles");
  service().SetSelectedLocation(place);
  const RiseSetData june = service().GetRiseSetDataForDate(localTime(place, 2024, 6, 21, 12));
  EXPECT_EQ(june.sunRiseText, "05:48 AM") << "not rewritten";
  EXPECT_EQ(june.sunSetMinutesFromMidnight, 20 * 60 + 35);
  const RiseSetData december = service().GetRiseSetDataForDate(localTime(place, 2024, 12, 21, 12));
  EXPECT_EQ(december.sunRiseMinutesFromMidnight, 7 * 60 + 22);
  EXPECT_EQ(december.twilightBeginText,
            RiseAndSetCalc::Compute(localTime(place, 2024, 12, 21, 12), *place, -28800, 0).twilightBeginText);
  EXPECT_EQ(december.date, Instant()) << "left alone";
}

TEST_F(RiseSetDataOfDays, FollowTheOffsetOfTheInstant) {
  const Place place = helsinki();
  service().SetSelectedLocation(place);
  const auto sunRise = [](Instant date) {
    return service().GetRiseSetDataForDate(date).sunRiseMinutesFromMidnight;
  };
  const std::int64_t before = sunRise(localTime(place, 2024, 3, 31, 2, 59));
  const std::int64_t after = sunRise(localTime(place, 2024, 3, 31, 4, 0));
  EXPECT_NEAR(static_cast<double>(after - before), 60, 3);
}

TEST_F(RiseSetDataOfDays, AtAPlaceWithoutANamedZoneFollowItsFixedOffset) {
  const Place place = placeWithoutZone(-25200);
  place->UpdateLocation(37.78549082, -122.39184303);
  service().SetSelectedLocation(place);
  EXPECT_EQ(service().GetRiseSetDataForDate(utc(2024, 6, 21, 19)).sunRiseText, "05:48 AM");
}

TEST_F(RiseSetDataOfDays, OfARangeAreOneADayWithItsDate) {
  const Place place = losAngeles();
  service().SetSelectedLocation(place);
  const Instant from = localTime(place, 2024, 3, 9, 12);
  const auto days = service().getRiseSetDataFrom(from, localTime(place, 2024, 3, 12, 12));
  ASSERT_EQ(days.size(), 4U);
  for (std::size_t i = 0; i < days.size(); ++i) {
    const Instant noon = localTime(place, 2024, 3, 9 + static_cast<std::int64_t>(i), 12);
    EXPECT_EQ(days[i].date, noon) << "at the same time on the clock through the change";
    EXPECT_EQ(days[i].sunSetText, service().GetRiseSetDataForDate(noon).sunSetText);
  }
}

TEST_F(RiseSetDataOfDays, OfARangeAlwaysHoldTheFirst) {
  service().SetSelectedLocation(greenwich());
  const Instant from = utc(2024, 3, 9, 12);
  const auto days = [&](Instant to) { return service().getRiseSetDataFrom(from, to).size(); };
  EXPECT_EQ(days(from), 1U);
  EXPECT_EQ(days(from + std::chrono::hours(24)), 2U);
  EXPECT_EQ(days(from + std::chrono::hours(24) - std::chrono::seconds(1)), 1U);
  EXPECT_EQ(days(utc(2020, 1, 1)), 1U) << "to before from";
}

TEST_F(RiseSetDataOfDays, OfARangeEndWithTheCalendar) {
  service().SetSelectedLocation(greenwich());
  const auto infinite = std::numeric_limits<double>::infinity();
  const Instant beyond = Instant(Seconds(1e12)), endless = Instant(Seconds(infinite));
  EXPECT_EQ(service().getRiseSetDataFrom(beyond, beyond).size(), 1U);
  EXPECT_EQ(service().getRiseSetDataFrom(endless, endless).size(), 1U);
  const Instant lastDayButOne = std::chrono::sys_days(std::chrono::year::max() / 12 / 30);
  const auto days = service().getRiseSetDataFrom(lastDayButOne, endless);
  ASSERT_EQ(days.size(), 2U);
  EXPECT_EQ(days[1].date, lastDayButOne + std::chrono::hours(24));
}

}  // namespace
}  // namespace velmora
