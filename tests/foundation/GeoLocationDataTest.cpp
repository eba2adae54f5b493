#include <velmora/foundation/GeoLocationData.h>

#include <gtest/gtest.h>

#include <stdexcept>

#include <tests/support/Instants.h>
#include <velmora/platform/time/Clock.h>

namespace velmora {
namespace {

using testing::utc;

constexpr std::int64_t hour = 3600;

const Instant january = utc(2024, 1, 15, 12);
const Instant july = utc(2024, 7, 15, 12);

GeoLocationData placeWith(const std::optional<std::string>& zone, std::int64_t offset, bool isCustom) {
  GeoLocationData place;
  place.SetLocation(10, 20, "Somewhere", zone, offset, isCustom);
  return place;
}

TEST(GeoLocationData, AFreshRecordIsUnset) {
  const GeoLocationData fresh;
  EXPECT_EQ(fresh.latitude, 0);
  EXPECT_EQ(fresh.longitude, 0);
  EXPECT_EQ(fresh.secondsFromGMT, 0);
  EXPECT_EQ(fresh.name, std::nullopt);
  EXPECT_EQ(fresh.timezoneId, std::nullopt);
  EXPECT_EQ(fresh.timezone, std::nullopt);
  EXPECT_EQ(fresh.locationText, "--");
  EXPECT_EQ(fresh.timezoneText, "Auto");
  EXPECT_FALSE(fresh.locationInitialized);
  EXPECT_EQ(fresh.customSecondsFromGMT, 0);
  EXPECT_FALSE(fresh.useCustomTimezone);
  EXPECT_EQ(fresh.GetTimezoneIntervalFromGMT(july), 0);
}

TEST(GeoLocationData, CoordinateTextNamesTheHemispheres) {
  struct Case {
    double latitude, longitude;
    const char* text;
  };
  for (const Case& c :
       {Case{-33.8688, 151.2093, "33.8688° S, 151.2093° E"}, Case{0, 0, "0.0000° N, 0.0000° E"},
        Case{-0.0, -0.0, "0.0000° N, 0.0000° E"}, Case{37.78549082, -122.39184303, "37.7855° N, 122.3918° W"},
        Case{-0.00001, -0.00001, "0.0000° S, 0.0000° W"}, Case{90, -180, "90.0000° N, 180.0000° W"}}) {
    GeoLocationData place;
    place.UpdateLocation(c.latitude, c.longitude);
    EXPECT_EQ(place.locationText, c.text);
    EXPECT_EQ(place.latitude, c.latitude);
    EXPECT_EQ(place.longitude, c.longitude);
    EXPECT_TRUE(place.locationInitialized);
    EXPECT_EQ(place.timezoneText, "Auto");
  }
}

TEST(GeoLocationData, TheDefaultLocationIsSanFrancisco) {
  const auto& shared = GeoLocationData::DefaultLocation();
  EXPECT_EQ(shared->latitude, 37.78549082);
  EXPECT_EQ(shared->longitude, -122.39184303);
  EXPECT_EQ(shared->name, "San Francisco, CA");
  EXPECT_EQ(shared->timezoneId, "America/Los_Angeles");
  EXPECT_EQ(shared->timezoneText, "America/Los_Angeles");
  EXPECT_EQ(shared->locationText, "37.7855° N, 122.3918° W");
  EXPECT_EQ(shared->secondsFromGMT, 0);
  EXPECT_FALSE(shared->useCustomTimezone);
  EXPECT_TRUE(shared->locationInitialized);
  EXPECT_EQ(shared->GetTimezoneIntervalFromGMT(july), -7 * hour);
}

TEST(GeoLocationData, TheDefaultLocationIsSharedByAllCallers) {
  const std::string former = *GeoLocationData::DefaultLocation()->name;
  GeoLocationData::DefaultLocation()->name = "Moved";
  EXPECT_EQ(GeoLocationData::DefaultLocation()->name, "Moved");
  GeoLocationData::DefaultLocation()->name = former;
}

TEST(GeoLocationData, ANamedZoneFollowsDaylightSaving) {
  const GeoLocationData place = placeWith("America/Los_Angeles", -12345, false);
  EXPECT_EQ(place.name, "Somewhere");
  EXPECT_EQ(place.timezoneId, "America/Los_Angeles");
  EXPECT_EQ(place.timezoneText, "America/Los_Angeles");
  EXPECT_EQ(place.timezone, TimeZone::named("America/Los_Angeles"));
  EXPECT_EQ(place.secondsFromGMT, -12345);
  EXPECT_EQ(place.customSecondsFromGMT, 0);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), -25200);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(january), -28800);
}

TEST(GeoLocationData, ACustomOffsetDropsTheZoneIdentifier) {
  const GeoLocationData place = placeWith("America/Los_Angeles", 19800, true);
  EXPECT_EQ(place.timezoneId, std::nullopt);
  EXPECT_EQ(place.timezone, std::nullopt);
  EXPECT_EQ(place.timezoneText, "GMT +05:30");
  EXPECT_EQ(place.customSecondsFromGMT, 19800);
  EXPECT_EQ(place.secondsFromGMT, 0);
  EXPECT_TRUE(place.useCustomTimezone);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), 19800);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(january), 19800);
}

TEST(GeoLocationData, AFixedOffsetIsWrittenWithTheSignOfTheWholeOffset) {
  const std::pair<std::int64_t, const char*> cases[] = {
      {0, "GMT +00:00"},
      {-1800, "GMT -00:30"},
      {-12600, "GMT -03:30"},
      {20700, "GMT +05:45"},
      {-59, "GMT -00:00"},
      {50400, "GMT +14:00"},
      {400'000, "GMT +111:06"},
      {(std::int64_t{1} << 32) + 3600, "GMT +01:00"},   // only the low 32 bits give digits
      {-(std::int64_t{1} << 32) - 3600, "GMT -01:00"},  //
      {(std::int64_t{1} << 32) - 3600, "GMT +01:00"},   // low bits of −3600, sign of the whole
      {std::int64_t{1} << 31, "GMT +596523:14"},        // low bits of −2147483648
  };
  for (const auto& [offset, text] : cases) {
    EXPECT_EQ(placeWith(std::nullopt, offset, true).timezoneText, text) << offset;
  }
}

TEST(GeoLocationData, WithoutZoneAndFlagTheOffsetIsStoredAsCustomButNotReadBack) {
  for (const std::optional<std::string>& none :
       {std::optional<std::string>(), std::optional<std::string>("")}) {
    GeoLocationData place = placeWith(none, 7200, false);
    EXPECT_EQ(place.timezoneId, std::nullopt);
    EXPECT_EQ(place.timezoneText, "GMT +02:00");
    EXPECT_EQ(place.customSecondsFromGMT, 7200);
    EXPECT_FALSE(place.useCustomTimezone);
    EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), 0);
    place.secondsFromGMT = 1234;
    EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), 1234);
  }
}

TEST(GeoLocationData, AFixedOffsetLeavesTheFormerZoneInPlace) {
  GeoLocationData place = placeWith("Asia/Tokyo", 32400, false);
  place.SetLocation(1, 2, std::nullopt, std::nullopt, 3600, true);
  EXPECT_EQ(place.name, std::nullopt);
  EXPECT_EQ(place.timezoneId, std::nullopt);
  EXPECT_EQ(place.timezone, TimeZone::named("Asia/Tokyo"));
  EXPECT_EQ(place.secondsFromGMT, 32400);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), 3600);
  place.SetLocation(1, 2, std::nullopt, "", 7200, false);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), 32400);  // by the zone left from before
}

TEST(GeoLocationData, AnUnknownIdentifierStaysTheTextWithoutAZone) {
  GeoLocationData place = placeWith("Asia/Tokyo", 32400, false);
  place.SetLocation(1, 2, "Atlantis", "Atlantis/Poseidonis", -1800, false);
  EXPECT_EQ(place.timezoneId, "Atlantis/Poseidonis");
  EXPECT_EQ(place.timezoneText, "Atlantis/Poseidonis");
  EXPECT_EQ(place.timezone, std::nullopt);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), -1800);
}

class FailingRules final : public ZoneRules {
  std::int64_t secondsFromGMT(Instant) const override { throw std::runtime_error("no rule"); }
  LocalLookup lookup(LocalTime) const override { throw std::runtime_error("no rule"); }
};

TEST(GeoLocationData, AZoneThatFailsFallsBackToTheOffsetGivenWithIt) {
  GeoLocationData place = placeWith("Asia/Tokyo", 30000, false);
  place.timezone = TimeZone("Failing", std::make_shared<FailingRules>());
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(july), 30000);
}

TEST(GeoLocationData, APlacemarkGivesItsZonesOffsetOfNow) {
  const ScopedNow now(july);
  const auto place = GeoLocationData::locationFromPlaceMark(
      {60.1699, 24.9384, "Helsinki", TimeZone::named("Europe/Helsinki")});
  EXPECT_EQ(place->locationText, "60.1699° N, 24.9384° E");
  EXPECT_EQ(place->name, "Helsinki");
  EXPECT_EQ(place->timezoneId, "Europe/Helsinki");
  EXPECT_EQ(place->secondsFromGMT, 3 * hour);
  EXPECT_FALSE(place->useCustomTimezone);
  EXPECT_EQ(place->GetTimezoneIntervalFromGMT(january), 2 * hour);
}

TEST(GeoLocationData, APlacemarkWithoutAZoneIsAtGMT) {
  const auto place = GeoLocationData::locationFromPlaceMark({-45, 170, "At sea", std::nullopt});
  EXPECT_EQ(place->timezoneId, std::nullopt);
  EXPECT_EQ(place->timezoneText, "GMT +00:00");
  EXPECT_EQ(place->GetTimezoneIntervalFromGMT(july), 0);
}

TEST(GeoLocationData, EveryPlacemarkGivesANewRecord) {
  const Placemark mark{1, 2, "Here", std::nullopt};
  EXPECT_NE(GeoLocationData::locationFromPlaceMark(mark), GeoLocationData::locationFromPlaceMark(mark));
}

TEST(GeoLocationData, TheDaysOffsetIsThatOfNineInTheMorning) {
  const Calendar helsinki(*TimeZone::named("Europe/Helsinki"));
  const GeoLocationData place = placeWith("Europe/Helsinki", 0, false);
  const Instant lateOnTheDayBefore = utc(2024, 3, 30, 21);  // 23:00
  const Instant beforeTheChange = utc(2024, 3, 30, 23);     // 01:00 on 31 March, clocks change at 03:00
  EXPECT_EQ(place.gmtIntervalForDate(lateOnTheDayBefore, helsinki), 2 * hour);
  EXPECT_EQ(place.GetTimezoneIntervalFromGMT(beforeTheChange), 2 * hour);
  EXPECT_EQ(place.gmtIntervalForDate(beforeTheChange, helsinki), 3 * hour);
  EXPECT_EQ(place.gmtIntervalForDate(utc(2024, 10, 26, 21), helsinki), 2 * hour);  // 27 October, 00:00
}

TEST(GeoLocationData, TheDayIsThatOfTheGivenCalendar) {
  const GeoLocationData place = placeWith("Europe/Helsinki", 0, false);
  const Instant eveningInUtc = utc(2024, 3, 30, 23);
  EXPECT_EQ(place.gmtIntervalForDate(eveningInUtc, Calendar(TimeZone::fixed(0))), 2 * hour);
}

TEST(GeoLocationData, CairosDayWithoutMidnightHasTheSummerOffset) {
  const GeoLocationData place = placeWith("Africa/Cairo", 0, false);
  const Calendar cairo(*TimeZone::named("Africa/Cairo"));
  EXPECT_EQ(place.gmtIntervalForDate(utc(2024, 4, 25, 22), cairo), 3 * hour);
}

/// A calendar's zone in which clocks jump from 08:30 to 09:30 every day.
class NoNineOClock final : public ZoneRules {
  std::int64_t secondsFromGMT(Instant) const override { return 0; }
  LocalLookup lookup(LocalTime reading) const override {
    const Instant same(reading.time_since_epoch());
    const Instant nine(std::chrono::floor<std::chrono::days>(same) + std::chrono::hours(9));
    return {same == nine ? LocalLookup::Kind::skipped : LocalLookup::Kind::unique, same, same, same};
  }
};

TEST(GeoLocationData, WhereNineInTheMorningIsSkippedTheStartOfTheDayCounts) {
  const GeoLocationData place = placeWith("Europe/Helsinki", 0, false);
  const Calendar withoutNine(TimeZone("NoNine", std::make_shared<NoNineOClock>()));
  EXPECT_EQ(place.gmtIntervalForDate(utc(2024, 3, 31, 12), withoutNine), 2 * hour);
}

TEST(GeoLocationData, TheDaysOffsetIgnoresTheFixedOffset) {
  const Calendar calendar(TimeZone::fixed(0));
  EXPECT_EQ(placeWith(std::nullopt, 19800, true).gmtIntervalForDate(july, calendar), 0);
  GeoLocationData place = placeWith("Asia/Tokyo", 0, false);
  place.SetLocation(1, 2, "Fixed", std::nullopt, 19800, true);
  EXPECT_EQ(place.gmtIntervalForDate(july, calendar), 9 * hour);
}

TEST(GeoLocationData, CalendarsUseTheNamedZoneElseTheOffsetInForce) {
  EXPECT_EQ(placeWith("Asia/Tokyo", 0, false).calendarZone(7200).name(), "Asia/Tokyo");
  EXPECT_EQ(placeWith(std::nullopt, 19800, true).calendarZone(19800).name(), "GMT+05:30");
}

TEST(GeoLocationData, AZoneLeftFromBeforeAFixedOffsetStillServesCalendars) {
  GeoLocationData place = placeWith("Asia/Tokyo", 0, false);
  place.SetLocation(1, 2, "Fixed", std::nullopt, 19800, true);
  EXPECT_EQ(place.calendarZone(19800).name(), "Asia/Tokyo");
}

}  // namespace
}  // namespace velmora
