#include <velmora/platform/time/AlternateCalendar.h>

#include <gtest/gtest.h>

#include <cmath>

#include <velmora/platform/time/Calendar.h>

namespace velmora {
namespace {

using Kind = AlternateCalendar::Kind;

const TimeZone gmt = TimeZone::fixed(0);

Instant noonOf(std::int64_t year, std::int64_t month, std::int64_t day, const TimeZone& zone = gmt) {
  return Calendar(zone).date({.year = year, .month = month, .day = day, .hour = 12});
}

struct Day {
  Kind kind;
  std::int64_t year, month, day;  // Gregorian
  std::int64_t alternateDay;
  const char* known;
};

// Days that almanacs name, not read from any program.
const Day days[] = {
    {Kind::hebrew, 2024, 10, 3, 1, "Rosh Hashanah 5785"},
    {Kind::hebrew, 2024, 10, 12, 10, "Yom Kippur 5785"},
    {Kind::hebrew, 2024, 4, 23, 15, "first day of Passover 5784"},
    {Kind::hebrew, 2023, 12, 8, 25, "first day of Hanukkah 5784"},
    {Kind::islamicUmmAlQura, 2024, 3, 11, 1, "1 Ramadan 1445 in Saudi Arabia"},
    {Kind::islamicUmmAlQura, 2024, 4, 10, 1, "Eid al-Fitr 1445 in Saudi Arabia"},
    {Kind::islamicUmmAlQura, 2024, 6, 16, 10, "Eid al-Adha 1445"},
    {Kind::islamicUmmAlQura, 2024, 7, 7, 1, "1 Muharram 1446"},
    {Kind::buddhist, 2024, 2, 29, 29, "months are Gregorian"},
    {Kind::japanese, 2019, 5, 1, 1, "first day of Reiwa"},
    {Kind::chinese, 2024, 2, 10, 1, "new year of the Dragon"},
    {Kind::chinese, 2024, 2, 24, 15, "Lantern Festival"},
    {Kind::chinese, 2024, 9, 17, 15, "Mid-Autumn Festival"},
    {Kind::chinese, 2023, 3, 22, 1, "first day of the leap second month"},
    {Kind::indian, 2024, 3, 21, 1, "1 Chaitra 1946, a leap year"},
    {Kind::indian, 2023, 3, 22, 1, "1 Chaitra 1945"},
    {Kind::indian, 2024, 1, 26, 6, "Republic Day, 6 Magha 1945"},
    {Kind::indian, 2023, 8, 15, 24, "Independence Day, 24 Shravana 1945"},
};

TEST(AlternateCalendar, KnowsTheDaysThatAlmanacsName) {
  for (const Day& known : days) {
    const Instant noon = noonOf(known.year, known.month, known.day);
    EXPECT_EQ(AlternateCalendar(known.kind, gmt).day(noon), known.alternateDay) << known.known;
  }
}

TEST(AlternateCalendar, EachKindCountsADayItsOwnWay) {
  const Instant noon = noonOf(2024, 10, 3);
  EXPECT_EQ(AlternateCalendar(Kind::hebrew, gmt).day(noon), 1);
  EXPECT_EQ(AlternateCalendar(Kind::buddhist, gmt).day(noon), 3);
  EXPECT_EQ(AlternateCalendar(Kind::indian, gmt).day(noon), 11);
}

TEST(AlternateCalendar, TheDayIsThatOfTheZone) {
  const Instant evening = noonOf(2024, 10, 2) + std::chrono::hours(11);
  EXPECT_EQ(AlternateCalendar(Kind::hebrew, gmt).day(evening), 29);
  EXPECT_EQ(AlternateCalendar(Kind::hebrew, *TimeZone::named("Asia/Jerusalem")).day(evening), 1);
}

TEST(AlternateCalendar, IsTheSameFromMidnightToMidnight) {
  for (const char* zone : {"Asia/Shanghai", "America/Los_Angeles", "Pacific/Kiritimati"}) {
    const TimeZone timeZone = *TimeZone::named(zone);
    const AlternateCalendar chinese(Kind::chinese, timeZone);
    const Instant start = Calendar(timeZone).date({.year = 2024, .month = 2, .day = 10});
    EXPECT_EQ(chinese.day(start - std::chrono::seconds(1)), 30) << zone;
    EXPECT_EQ(chinese.day(start), 1) << zone;
    EXPECT_EQ(chinese.day(start + std::chrono::hours(24) - std::chrono::seconds(1)), 1) << zone;
  }
}

TEST(AlternateCalendar, InstantsBeyondEveryCalendarDoNoHarm) {
  for (const double seconds : {std::nan(""), 1e300, -1e300}) {
    EXPECT_GE(AlternateCalendar(Kind::hebrew, gmt).day(instantFromUnixSeconds(seconds)), 1);
  }
}

TEST(AlternateCalendar, EveryDayFrom2000To2040IsTheNextOrTheFirst) {
  for (const Kind kind :
       {Kind::hebrew, Kind::islamicUmmAlQura, Kind::buddhist, Kind::japanese, Kind::chinese, Kind::indian}) {
    const AlternateCalendar calendar(kind, gmt);
    const Instant end = noonOf(2041, 1, 1);
    std::int64_t before = calendar.day(noonOf(1999, 12, 31));
    for (Instant noon = noonOf(2000, 1, 1); noon < end; noon += std::chrono::hours(24)) {
      const std::int64_t day = calendar.day(noon);
      EXPECT_TRUE(day == before + 1 || (day == 1 && before >= 28 && before <= 31)) << unixSeconds(noon);
      before = day;
    }
  }
}

}  // namespace
}  // namespace velmora
