#include <cmath>
#include <limits>

#include <tests/service/ServiceTest.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace velmora {
namespace {

constexpr double pi = 3.14159265358979323846;
constexpr std::int64_t secondsPerHour = 3600;

/// Whether two records are the same in every field.
void expectSame(const std::optional<PositionData>& actual, const PositionData& expected) {
  ASSERT_TRUE(actual);
  EXPECT_EQ(actual->altitude, expected.altitude);
  EXPECT_EQ(actual->azimuth, expected.azimuth);
  EXPECT_EQ(actual->hour, expected.hour);
  EXPECT_EQ(actual->altitudeText, expected.altitudeText);
  EXPECT_EQ(actual->azimuthText, expected.azimuthText);
}

void expectSame(const std::optional<std::vector<PositionData>>& actual,
                const std::vector<PositionData>& expected) {
  ASSERT_TRUE(actual);
  ASSERT_EQ(actual->size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) expectSame((*actual)[i], expected[i]);
}

using Positions = ServiceTest;

TEST_F(Positions, AreTheEnginesWithTheOffsetOfTheInstant) {
  const Place place = helsinki();
  service().SetSelectedLocation(place);
  for (const auto& [date, offset] : {std::pair(utc(2024, 3, 31, 0, 59), 2 * secondsPerHour),
                                     std::pair(utc(2024, 3, 31, 1, 0), 3 * secondsPerHour)}) {
    expectSame(service().GetMoonPositionDataForDate(date),
               RiseAndSetCalc::ComputeMoonPosition(date, *place, offset));
    expectSame(service().GetSunPositionDataForDate(date),
               RiseAndSetCalc::ComputeSunPosition(date, *place, offset));
  }
}

TEST_F(Positions, OfAPlaceWithAnOffsetAloneComeWhenTheOffsetIsNamedAsAZone) {
  const Instant date = utc(2024, 3, 10, 12, 0);
  const auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(28.6, 77.2, "Delhi", std::nullopt, 19800, true);
  service().SetSelectedLocation(place);
  EXPECT_FALSE(service().GetMoonPositionDataForDate(date));
  const auto named = std::make_shared<GeoLocationData>();
  named->SetLocation(28.6, 77.2, "Delhi", "GMT+05:30", 0, false);
  service().SetSelectedLocation(named);
  expectSame(service().GetMoonPositionDataForDate(date),
             RiseAndSetCalc::ComputeMoonPosition(date, *named, 19800));
  EXPECT_EQ(service().GetMoonPositionDataForDate(date)->hour, 17.5);
}

TEST_F(Positions, AreNoneWithoutADateAPlaceOrAZone) {
  const Instant date = utc(2024, 3, 10);
  const auto expectNone = [](std::optional<Instant> asked) {
    EXPECT_FALSE(service().GetMoonPositionDataForDate(asked));
    EXPECT_FALSE(service().GetSunPositionDataForDate(asked));
    EXPECT_FALSE(service().GetMoonPositionDataForDate(asked, 60.0));
    EXPECT_FALSE(service().GetSunPositionDataForDate(asked, 60.0));
    EXPECT_FALSE(service().Get24HourMoonPositionsForDate(asked));
    EXPECT_FALSE(service().Get24HourSunPositionsForDate(asked));
  };
  expectNone(date);
  service().SetSelectedLocation(placeWithoutZone(3600));
  expectNone(date);
  service().SetSelectedLocation(helsinki());
  expectNone(std::nullopt);
  EXPECT_TRUE(service().GetMoonPositionDataForDate(date));
}

TEST_F(Positions, OfATimeOfDayAreThoseAtThatTimeOnTheClock) {
  const Place place = losAngeles();
  service().SetSelectedLocation(place);
  const Instant evening = localTime(place, 2024, 3, 9, 20, 30);
  const std::tuple<double, std::int64_t, std::int64_t> cases[] = {
      {0.0, 0, 0}, {59.99, 0, 59}, {60.0, 1, 0}, {725.5, 12, 5}, {1439.999, 23, 59}, {-0.5, 0, 0}};
  for (const auto& [minutes, hour, minute] : cases) {
    const Instant expected = localTime(place, 2024, 3, 9, hour, minute);
    expectSame(service().GetMoonPositionDataForDate(evening, minutes),
               *service().GetMoonPositionDataForDate(expected));
    expectSame(service().GetSunPositionDataForDate(evening, minutes),
               *service().GetSunPositionDataForDate(expected));
  }
}

TEST_F(Positions, OfTheMoonFrom24HoursOnMoveOneDayAlone) {
  const Place place = losAngeles();
  service().SetSelectedLocation(place);
  const Instant day = localTime(place, 2024, 3, 7, 12);
  const std::pair<double, std::int64_t> cases[] = {
      {1440, 0}, {1500, 1}, {2879, 23}, {2940, 1}, {4 * 1440 + 180, 3}};
  for (const auto& [minutes, hour] : cases) {
    const std::int64_t minute = minutes == 2879 ? 59 : 0;
    expectSame(service().GetMoonPositionDataForDate(day, minutes),
               *service().GetMoonPositionDataForDate(localTime(place, 2024, 3, 8, hour, minute)));
  }
}

TEST_F(Positions, OfTheMoonMoveTheDayByElapsedTime) {
  const Place place = losAngeles();
  service().SetSelectedLocation(place);
  const Instant midnight = localTime(place, 2024, 11, 3);  // of a day of 25 hours
  expectSame(service().GetMoonPositionDataForDate(midnight, 1500),
             *service().GetMoonPositionDataForDate(localTime(place, 2024, 11, 3, 1)));
}

TEST_F(Positions, OfTheSunFrom24HoursOnAreNone) {
  service().SetSelectedLocation(losAngeles());
  EXPECT_TRUE(service().GetSunPositionDataForDate(utc(2024, 3, 7), 1439.99));
  EXPECT_FALSE(service().GetSunPositionDataForDate(utc(2024, 3, 7), 1440));
  EXPECT_FALSE(service().GetSunPositionDataForDate(utc(2024, 3, 7), 1500));
}

TEST_F(Positions, BeforeMidnightAreNone) {
  service().SetSelectedLocation(losAngeles());
  for (const double minutes : {-1.0, -60.0, -1500.0, -1e300, -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(service().GetMoonPositionDataForDate(utc(2024, 3, 7), minutes)) << minutes;
    EXPECT_FALSE(service().GetSunPositionDataForDate(utc(2024, 3, 7), minutes)) << minutes;
  }
}

TEST_F(Positions, AfterCountlessMinutesAreStillDefined) {
  service().SetSelectedLocation(losAngeles());
  for (const double minutes : {1e12, 1e300, std::numeric_limits<double>::infinity()}) {
    EXPECT_TRUE(service().GetMoonPositionDataForDate(utc(2024, 3, 7), minutes)) << minutes;
    EXPECT_FALSE(service().GetSunPositionDataForDate(utc(2024, 3, 7), minutes)) << minutes;
  }
}

TEST_F(Positions, AtASkippedTimeAreThoseOfTheClockChange) {
  const Place place = helsinki();
  service().SetSelectedLocation(place);
  expectSame(service().GetMoonPositionDataForDate(utc(2024, 3, 31, 9), 210),
             *service().GetMoonPositionDataForDate(utc(2024, 3, 31, 1)));
}

TEST_F(Positions, OfTheDayAreTheEnginesSeries) {
  const Place place = losAngeles();
  service().SetSelectedLocation(place);
  const Instant date = localTime(place, 2024, 7, 4, 15, 20);
  expectSame(service().Get24HourSunPositionsForDate(date),
             RiseAndSetCalc::Get24HourSunPositionsForDate(date, *place, -7 * secondsPerHour));
  expectSame(service().Get24HourMoonPositionsForDate(date),
             RiseAndSetCalc::Get24HourMoonPositionsForDate(date, *place, -7 * secondsPerHour));
  EXPECT_EQ(service().Get24HourSunPositionsForDate(date)->size(), 24U);
  EXPECT_EQ(service().Get24HourMoonPositionsForDate(date)->size(), 25U);
}

TEST_F(Positions, OfTheDayTakeTheMorningsOffsetForTheMoonAlone) {
  const Place place = helsinki();
  service().SetSelectedLocation(place);
  const Instant date = utc(2024, 3, 30, 22, 30);  // 00:30 on the day of the change
  expectSame(service().Get24HourSunPositionsForDate(date),
             RiseAndSetCalc::Get24HourSunPositionsForDate(date, *place, 2 * secondsPerHour));
  expectSame(service().Get24HourMoonPositionsForDate(date),
             RiseAndSetCalc::Get24HourMoonPositionsForDate(date, *place, 3 * secondsPerHour));
}

TEST_F(Positions, TheMorningsOffsetIsThatAtNineOfThePlacesDay) {
  const TimeZone zone = *TimeZone::named("Europe/Helsinki");
  const Instant changeDay = utc(2024, 3, 30, 22, 30);
  EXPECT_EQ(service().gmtIntervalForDate(changeDay, zone), 2 * secondsPerHour)
      << "30 March in the default zone";
  service().SetSelectedLocation(helsinki());
  EXPECT_EQ(service().gmtIntervalForDate(changeDay, zone), 3 * secondsPerHour);
  EXPECT_EQ(service().gmtIntervalForDate(utc(2024, 10, 26, 21, 30), zone), 2 * secondsPerHour);
  EXPECT_EQ(service().gmtIntervalForDate(changeDay, *TimeZone::named("Asia/Tokyo")), 9 * secondsPerHour);
}

/// A zone in which clocks jump over nine in the morning every day.
class NoNineOClock final : public ZoneRules {
  std::int64_t secondsFromGMT(Instant) const override { return 0; }
  LocalLookup lookup(LocalTime reading) const override {
    const Instant same(reading.time_since_epoch());
    const Instant nine(std::chrono::floor<std::chrono::days>(same) + std::chrono::hours(9));
    return {same == nine ? LocalLookup::Kind::skipped : LocalLookup::Kind::unique, same, same, same};
  }
};

TEST_F(Positions, TheMorningsOffsetIsThatOfTheDaysStartWhereNineIsSkipped) {
  const auto place = placeAt(60, 25, "GMT");
  place->timezone = TimeZone("NoNine", std::make_shared<NoNineOClock>());
  service().SetSelectedLocation(place);
  EXPECT_EQ(service().gmtIntervalForDate(utc(2024, 3, 31, 12), *TimeZone::named("Europe/Helsinki")),
            2 * secondsPerHour);
}

PositionData at(double altitude, double azimuth) { return {altitude, azimuth, 0.0, "", ""}; }

double orientation(double moonAltitude, double moonAzimuth, double sunAltitude, double sunAzimuth) {
  return MoonPhaseData::sharedInstance().orientationRadiansForMoonAt(at(moonAltitude, moonAzimuth),
                                                                     at(sunAltitude, sunAzimuth));
}

TEST_F(Positions, TheLitSideFacesUpOrDownWhereTheSunStandsAboveOrBelow) {
  EXPECT_EQ(orientation(20, 130, 50, 130), 0.0);
  EXPECT_EQ(orientation(50, 130, 20, 130), pi);
  EXPECT_EQ(orientation(10, 130, -40, 130), pi);
}

TEST_F(Positions, TheLitSideFacesTowardsTheSun) {
  EXPECT_NEAR(orientation(0, 180, 0, 270), pi / 2, 1e-15) << "toward increasing azimuth";
  EXPECT_NEAR(orientation(0, 180, 0, 90), -pi / 2, 1e-15);
  EXPECT_NEAR(orientation(0, 350, 0, 80), pi / 2, 1e-14) << "across north";
  EXPECT_NEAR(orientation(30, 180, 0, 270), pi / 2, 1e-15)
      << "a quarter away the moon's height does not count";
  EXPECT_NEAR(orientation(0, 100, 45, 190), pi / 4, 1e-15);
  EXPECT_NEAR(orientation(0, 100, -45, 190), 3 * pi / 4, 1e-15);
}

TEST_F(Positions, TheOrientationLiesWithinAHalfTurn) {
  for (double moonAltitude = -90; moonAltitude <= 90; moonAltitude += 15) {
    for (double sunAltitude = -90; sunAltitude <= 90; sunAltitude += 15) {
      for (double azimuth = -360; azimuth <= 360; azimuth += 15) {
        const double angle = orientation(moonAltitude, 0, sunAltitude, azimuth);
        EXPECT_GE(angle, -pi);
        EXPECT_LE(angle, pi);
        EXPECT_NEAR(std::sin(angle), -std::sin(orientation(moonAltitude, azimuth, sunAltitude, 0)), 1e-9);
      }
    }
  }
}

TEST_F(Positions, ChangeNoSelection) {
  select(losAngeles(), 2024, 3, 10);
  const Instant selected = *service().currentDate();
  service().GetMoonPositionDataForDate(utc(2030, 1, 1), 2940);
  service().Get24HourMoonPositionsForDate(utc(2030, 1, 1));
  EXPECT_EQ(service().currentDate(), selected);
  EXPECT_EQ(service().calendar().timeZone().name(), "America/Los_Angeles");
}

}  // namespace
}  // namespace velmora
