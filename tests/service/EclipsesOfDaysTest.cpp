#include <tests/service/ServiceTest.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora {
namespace {

/// The code of the eclipse that is shown for the instant's day at the selected place, "none" without one.
std::string shownAt(Instant date) {
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const auto eclipse = service.eventsOnDate(date, service.calendar().timeZone());
  return eclipse ? eclipse->key : "none";
}

using RealEclipses = ServiceTest;

struct Sight {
  const char* name;
  double latitude, longitude;
  const char* zone;
  std::int64_t year, month, day;  ///< asked for, at the place
  const char* shown;
};

TEST_F(RealEclipses, AreShownWhereTheBodyIsUp) {
  const Sight sights[] = {
      {"Dallas", 32.7767, -96.7970, "America/Chicago", 2024, 4, 8, "TSE"},
      {"Sydney", -33.8688, 151.2093, "Australia/Sydney", 2024, 4, 8, "none"},
      {"Sydney, by its own date", -33.8688, 151.2093, "Australia/Sydney", 2024, 4, 9, "none"},
      {"Tokyo", 35.6762, 139.6503, "Asia/Tokyo", 2022, 11, 8, "TLE"},
      {"Paris", 48.8566, 2.3522, "Europe/Paris", 2022, 11, 8, "none"},
      {"Albuquerque", 35.0844, -106.6504, "America/Denver", 2023, 10, 14, "ASE"},
      {"Paris after sunset", 48.8566, 2.3522, "Europe/Paris", 2023, 10, 14, "none"},
      {"New York, the evening before", 40.7128, -74.0060, "America/New_York", 2025, 3, 13, "none"},
      {"New York", 40.7128, -74.0060, "America/New_York", 2025, 3, 14, "TLE"},
      {"New York, the day after", 40.7128, -74.0060, "America/New_York", 2025, 3, 15, "none"},
      {"Los Angeles, half an hour past midnight", 34.0522, -118.2437, "America/Los_Angeles", 2025, 3, 13,
       "TLE"},
      {"Sydney in daylight", -33.8688, 151.2093, "Australia/Sydney", 2025, 3, 14, "none"},
  };
  for (const Sight& sight : sights) {
    const Place place = placeAt(sight.latitude, sight.longitude, sight.zone);
    select(place, sight.year, sight.month, sight.day);
    EXPECT_EQ(shownAt(*service().currentDate()), sight.shown) << sight.name;
  }
}

TEST_F(RealEclipses, AreShownFromMidnightToMidnightOfTheirDay) {
  const Place newYork = placeAt(40.7128, -74.0060, "America/New_York");
  select(newYork, 2025, 3, 14);
  EXPECT_EQ(shownAt(localTime(newYork, 2025, 3, 13, 23, 59)), "none");
  EXPECT_EQ(shownAt(localTime(newYork, 2025, 3, 14, 0, 0)), "TLE");
  EXPECT_EQ(shownAt(localTime(newYork, 2025, 3, 14, 23, 59)), "TLE");
  EXPECT_EQ(shownAt(localTime(newYork, 2025, 3, 15, 0, 0)), "none");
}

TEST_F(RealEclipses, OfOneDayMatchTheRecord) {
  select(placeAt(32.7767, -96.7970, "America/Chicago"), 2024, 4, 8);
  const auto eclipse = service().eventsOnDate(utc(2024, 4, 8, 18), *TimeZone::named("America/Chicago"));
  ASSERT_NE(eclipse, nullptr);
  EXPECT_EQ(eclipse->title, "Total Solar Eclipse");
  EXPECT_EQ(eclipse->datetime, utc(2024, 4, 8, 18, 17));
  EXPECT_EQ(eclipse, service().eventsData()->at(eclipse->datetime)) << "the catalogue's own record";
}

/// Eclipses at chosen minutes of a day in Greenwich, where clocks show universal time.
class EclipsesOfDays : public ServiceTest {
 protected:
  /// Makes a catalogue of one eclipse at that minute after 0h universal time of the day and tells whether it
  /// is shown on the day.
  bool isShown(const std::string& code, Instant day, std::int64_t minute) {
    writeEclipses(day, {{minute, code}});
    return shownAt(day) == code;
  }
  void writeEclipses(Instant day, const std::vector<std::pair<std::int64_t, std::string>>& eclipses) {
    std::string text;
    for (const auto& [minute, code] : eclipses) {
      const DateComponents c = Calendar(TimeZone::fixed(0)).components(day + std::chrono::minutes(minute));
      text += integerText(c.month, 2) + "/" + integerText(c.day, 2) + "/" + std::to_string(c.year) + " " +
              integerText(c.hour, 2) + ":" + integerText(c.minute, 2) + "," + code + "\n";
    }
    resources.writeCatalogue(text);
    service().loadEventsFromFile();
  }
  RiseSetData dataOf(Instant day) const { return service().GetRiseSetDataForDate(day); }

  const OwnResources resources;
};

TEST_F(EclipsesOfDays, AMoonThatSetsAndRisesIsUpInTheMorningAndTheEvening) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 3, 25);
  const std::int64_t rise = dataOf(day).moonRiseMinutesFromMidnight,
                     set = dataOf(day).moonSetMinutesFromMidnight;
  ASSERT_GT(rise, 17 * 60);
  ASSERT_LT(set, 7 * 60);
  const std::pair<std::int64_t, bool> cases[] = {
      {0, true},        {3 * 60, true}, {set, true},          {set + 1, false},
      {12 * 60, false}, {rise, true},   {rise - 1, false},    {23 * 60 + 50, true},
      {1439, true},     {-1, false},    {24 * 60 + 1, false},
  };
  for (const auto& [minute, isUp] : cases) EXPECT_EQ(isShown("TLE", day, minute), isUp) << minute;
}

TEST_F(EclipsesOfDays, AMoonThatRisesAndSetsIsUpInBetween) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 3, 10);
  const std::int64_t rise = dataOf(day).moonRiseMinutesFromMidnight,
                     set = dataOf(day).moonSetMinutesFromMidnight;
  ASSERT_LT(rise, set);
  ASSERT_LT(set, 1440);
  const std::pair<std::int64_t, bool> cases[] = {
      {0, false}, {rise - 1, false}, {rise, true}, {set, true}, {set + 1, false}};
  for (const auto& [minute, isUp] : cases) EXPECT_EQ(isShown("PLE", day, minute), isUp) << minute;
}

TEST_F(EclipsesOfDays, AMoonThatSetsOnTheNextDayIsUpUntilMidnight) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 3, 14);
  const std::int64_t rise = dataOf(day).moonRiseMinutesFromMidnight,
                     set = dataOf(day).moonSetMinutesFromMidnight;
  ASSERT_GT(set, 1440);
  EXPECT_FALSE(isShown("TLE", day, rise - 1));
  EXPECT_TRUE(isShown("TLE", day, rise));
  EXPECT_TRUE(isShown("TLE", day, 1439));
  EXPECT_FALSE(isShown("TLE", day, set)) << "on the next day";
}

TEST_F(EclipsesOfDays, AMoonThatDoesNotRiseIsUpUntilItSets) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 3, 30);
  ASSERT_EQ(dataOf(day).moonRiseMinutesFromMidnight, -1);
  const std::int64_t set = dataOf(day).moonSetMinutesFromMidnight;
  EXPECT_TRUE(isShown("NLE", day, 0));
  EXPECT_TRUE(isShown("NLE", day, set));
  EXPECT_FALSE(isShown("NLE", day, set + 1));
}

TEST_F(EclipsesOfDays, TheSunIsUpFromItsRiseToItsSetBothIncluded) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 6, 20);
  const std::int64_t rise = dataOf(day).sunRiseMinutesFromMidnight,
                     set = dataOf(day).sunSetMinutesFromMidnight;
  const std::pair<std::int64_t, bool> cases[] = {{0, false},  {rise - 1, false}, {rise, true},
                                                 {720, true}, {set, true},       {set + 1, false}};
  for (const auto& [minute, isUp] : cases) EXPECT_EQ(isShown("TSE", day, minute), isUp) << minute;
}

TEST_F(EclipsesOfDays, ASunThatSetsAfterMidnightIsNotUpInTheFirstMinutes) {
  service().SetSelectedLocation(placeAt(65.0, 20.0, "GMT+03:00"));
  const Place place = service().currentLocation();
  const Instant day = localTime(place, 2024, 6, 21);
  const std::int64_t set = dataOf(day).sunSetMinutesFromMidnight;
  ASSERT_GT(set, 1440) << "sunset after midnight";
  EXPECT_TRUE(isShown("PSE", day, 1439));
  EXPECT_FALSE(isShown("PSE", day, 1)) << "the sun has no case for the small hours";
}

TEST_F(EclipsesOfDays, NothingIsUpInAPolarNight) {
  service().SetSelectedLocation(placeAt(78.0, 15.0, "GMT"));
  const Instant december = utc(2024, 12, 21);
  ASSERT_EQ(dataOf(december).sunRiseMinutesFromMidnight, -1);
  for (const std::int64_t minute : {0, 720, 1439}) EXPECT_FALSE(isShown("TSE", december, minute)) << minute;
}

TEST_F(EclipsesOfDays, TheMidnightSunIsNotUpEither) {
  service().SetSelectedLocation(placeAt(78.0, 15.0, "GMT"));
  for (const std::int64_t minute : {0, 720, 1439}) {
    EXPECT_FALSE(isShown("TSE", utc(2024, 6, 21), minute)) << "without rise and set: kept";
  }
}

TEST_F(EclipsesOfDays, MinutesAreElapsedTimeOnADayOfAClockChange) {
  const Place newYork = placeAt(40.7128, -74.0060, "America/New_York");
  service().SetSelectedLocation(newYork);
  const Instant noon = localTime(newYork, 2024, 3, 10, 12);
  const std::int64_t rise = dataOf(noon).sunRiseMinutesFromMidnight;
  const Instant start = localTime(newYork, 2024, 3, 10);
  const auto isShownAt = [&](std::int64_t minute) {
    writeEclipses(start, {{minute, "TSE"}});
    return shownAt(noon) == "TSE";
  };
  EXPECT_FALSE(isShownAt(rise - 60)) << "the sunrise by the clock: the day's first hours are one short";
  EXPECT_FALSE(isShownAt(rise - 1));
  EXPECT_TRUE(isShownAt(rise));
}

TEST_F(EclipsesOfDays, TheLastHourOf25CountsWithRiseAndSetOfTheInstantAskedFor) {
  const Place louisville = placeAt(38.2527, -85.7585, "America/Kentucky/Louisville");
  service().SetSelectedLocation(louisville);
  const Instant start = localTime(louisville, 2019, 11, 3);
  const std::int64_t set = dataOf(start).moonSetMinutesFromMidnight;
  ASSERT_GT(set, 1440) << "a midnight that the day's second clock shows as 23:00";
  writeEclipses(start, {{set, "TLE"}});
  EXPECT_EQ(shownAt(start), "TLE") << "more than 24 hours later";
  EXPECT_EQ(shownAt(localTime(louisville, 2019, 11, 3, 12)), "none") << "set an hour earlier by that clock";
}

TEST_F(EclipsesOfDays, AMoonThatIsUpAtMidnightIsUpFor24HoursOf25) {
  const Place newYork = placeAt(40.7128, -74.0060, "America/New_York");
  service().SetSelectedLocation(newYork);
  const Instant start = localTime(newYork, 2012, 11, 4);
  ASSERT_GT(dataOf(start).moonRiseMinutesFromMidnight, dataOf(start).moonSetMinutesFromMidnight);
  EXPECT_TRUE(isShown("TLE", start, 1440));
  EXPECT_FALSE(isShown("TLE", start, 1441)) << "at 23:01: kept";
  writeEclipses(start, {{15, "TLE"}});
  EXPECT_EQ(shownAt(localTime(newYork, 2012, 11, 4, 23, 30)), "TLE") << "more than 24 hours before";
}

TEST_F(EclipsesOfDays, OfTwoOnADayTheEarlierIsShown) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 6, 20);
  writeEclipses(day, {{800, "PSE"}, {700, "TSE"}, {900, "ASE"}});
  EXPECT_EQ(shownAt(day), "TSE");
}

TEST_F(EclipsesOfDays, AnEarlierOneThatIsNotUpIsPassedOver) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 6, 20);
  writeEclipses(day, {{10, "TSE"}, {700, "PSE"}});
  EXPECT_EQ(shownAt(day), "PSE");
}

TEST_F(EclipsesOfDays, OfUnknownKindsFollowTheirBody) {
  service().SetSelectedLocation(greenwich());
  const Instant day = utc(2024, 3, 25);
  EXPECT_TRUE(isShown("XLE", day, 3 * 60));
  EXPECT_FALSE(isShown("XXX", day, 3 * 60)) << "counts as solar";
  EXPECT_TRUE(isShown("XXX", day, 12 * 60));
}

TEST_F(EclipsesOfDays, TheDayIsThatOfTheZoneAskedFor) {
  service().SetSelectedLocation(greenwich());
  writeEclipses(utc(2024, 6, 20), {{720, "TSE"}});
  const TimeZone kiritimati = *TimeZone::named("Pacific/Kiritimati");
  EXPECT_EQ(service().eventsOnDate(utc(2024, 6, 20, 9), kiritimati), nullptr) << "20 June there";
  // 21 June there, and the instant 12:00 UTC is 02:00 of that day, before the minutes of a sunrise.
  EXPECT_EQ(service().eventsOnDate(utc(2024, 6, 20, 11), kiritimati), nullptr);
  const TimeZone east = TimeZone::fixed(3 * 3600);
  ASSERT_NE(service().eventsOnDate(utc(2024, 6, 20, 1), east), nullptr);
}

TEST_F(EclipsesOfDays, AreNoneWithoutACatalogue) {
  service().SetSelectedLocation(greenwich());
  EXPECT_EQ(shownAt(utc(2024, 4, 8, 18)), "none");
}

}  // namespace
}  // namespace velmora
