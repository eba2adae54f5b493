#include <app/drawing/libical/HolidayFile.h>

#include <gtest/gtest.h>

#include <random>

#include <app/text/Errors.h>

#include "tests/platform/resources/TemporaryFolder.h"
#include "tests/support/Tables.h"

namespace velmora::app {
namespace {

using std::chrono::year;
using Dates = std::vector<std::string>;

std::string calendarOf(const std::string& events) {
  return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:test\r\n" + events + "END:VCALENDAR\r\n";
}

/// An event of a whole day with these lines besides its name.
std::string event(const std::string& name, const std::string& lines) {
  return "BEGIN:VEVENT\r\nUID:" + name + "\r\nSUMMARY:" + name + "\r\n" + lines + "END:VEVENT\r\n";
}

std::string line(const std::string& text) { return text + "\r\n"; }

std::string dateText(std::chrono::year_month_day date) {
  const auto twoDigits = [](unsigned number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  return twoDigits(static_cast<unsigned>(date.month())) + "-" + twoDigits(static_cast<unsigned>(date.day()));
}

const TimeZone greenwich = TimeZone::fixed(0);

/// The dates of 2026 that have a name.
Dates datesOf(const std::string& events, const TimeZone& zone = greenwich) {
  Dates dates;
  for (const CalendarNote& note : holidaysIn(calendarOf(events), "test", year(2026), zone))
    dates.push_back(dateText(note.date));
  return dates;
}

std::string faultOf(const std::string& text) {
  try {
    holidaysIn(text, "days.ics", year(2026), greenwich);
  } catch (const BadInput& fault) {
    return fault.what();
  }
  return "";
}

const std::string accepted = "; accepted: a calendar file (iCalendar)";
const std::string start = line("DTSTART;VALUE=DATE:20240501");

TEST(HolidayFile, NamesTheDaysOfItsYear) {
  const auto notes = holidaysIn(calendarOf(event("May Day\\, Vappu", line("DTSTART;VALUE=DATE:20260501")) +
                                           event("Elsewhen", line("DTSTART;VALUE=DATE:20250501"))),
                                "test", year(2026), greenwich);
  EXPECT_EQ(notes, (std::vector<CalendarNote>{{year(2026) / 5 / 1, "May Day, Vappu"}}));
}

TEST(HolidayFile, FollowsRecurrences) {
  EXPECT_EQ(datesOf(event("a", start + line("RRULE:FREQ=YEARLY"))), Dates{"05-01"});
  EXPECT_EQ(datesOf(event("a", start + line("RRULE:FREQ=YEARLY;UNTIL=20251231"))), Dates{});
  EXPECT_EQ(datesOf(event("a", start + line("RRULE:FREQ=YEARLY;COUNT=2"))), Dates{});
  EXPECT_EQ(datesOf(event(
                "a", line("DTSTART;VALUE=DATE:20200525") + line("RRULE:FREQ=YEARLY;BYMONTH=5;BYDAY=-1MO"))),
            Dates{"05-25"})
      << "the last Monday of May";
  EXPECT_EQ(datesOf(event(
                "a", line("DTSTART;VALUE=DATE:20201126") + line("RRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=4TH"))),
            Dates{"11-26"})
      << "the fourth Thursday of November";
  EXPECT_EQ(datesOf(event("a", line("DTSTART;VALUE=DATE:20240229") + line("RRULE:FREQ=YEARLY"))), Dates{})
      << "no leap day";
}

TEST(HolidayFile, FollowsExceptionsAndMoreDates) {
  EXPECT_EQ(datesOf(event("a", start + line("RRULE:FREQ=YEARLY") + line("EXDATE;VALUE=DATE:20260501"))),
            Dates{});
  EXPECT_EQ(
      datesOf(event("a", start + line("RDATE;VALUE=DATE:20260402") + line("RDATE;VALUE=DATE:20260612"))),
      (Dates{"04-02", "06-12"}));
  EXPECT_EQ(
      datesOf(event("a", start + line("RRULE:FREQ=YEARLY")) +
              event("a", line("DTSTART;VALUE=DATE:20260502") + line("RECURRENCE-ID;VALUE=DATE:20260501"))),
      Dates{"05-02"})
      << "moved by a day";
  EXPECT_EQ(datesOf(event("a", line("DTSTART;VALUE=DATE:20260501") + line("STATUS:CANCELLED"))), Dates{});
}

TEST(HolidayFile, NamesEachDayOfALongEvent) {
  EXPECT_EQ(datesOf(event("a", line("DTSTART;VALUE=DATE:20260403") + line("DTEND;VALUE=DATE:20260407"))),
            (Dates{"04-03", "04-04", "04-05", "04-06"}));
  EXPECT_EQ(datesOf(event("a", line("DTSTART;VALUE=DATE:20251231") + line("DURATION:P2D"))), Dates{"01-01"});
}

TEST(HolidayFile, NamesTheLocalDayOfAnEventAtATimeOfDay) {
  const TimeZone tokyo = TimeZone::fixed(9 * 3600);
  EXPECT_EQ(datesOf(event("a", line("DTSTART:20260501T203000"))), Dates{"05-01"});
  EXPECT_EQ(datesOf(event("a", line("DTSTART;TZID=America/New_York:20260501T203000")), tokyo), Dates{"05-01"})
      << "where it is";
  EXPECT_EQ(datesOf(event("a", line("DTSTART:20260501T203000Z")), tokyo), Dates{"05-02"});
  EXPECT_EQ(datesOf(event("a", line("DTSTART:20251231T203000Z")), tokyo), Dates{"01-01"});
  EXPECT_EQ(datesOf(event("a", line("DTSTART:20241231T203000Z") + line("RRULE:FREQ=YEARLY")), tokyo),
            Dates{"01-01"});
  EXPECT_EQ(datesOf(event("a", line("DTSTART:20260501T200000") + line("DTEND:20260502T000000"))),
            Dates{"05-01"});
  EXPECT_EQ(datesOf(event("a", line("DTSTART:20260501T200000") + line("DURATION:PT4H1S"))),
            (Dates{"05-01", "05-02"}));
}

TEST(HolidayFile, MindsNoEmptyProperty) {
  EXPECT_EQ(datesOf(event("a", line("DTSTART;VALUE=DATE:20260501") + line("DESCRIPTION:"))), Dates{"05-01"});
}

TEST(HolidayFile, MayBeginWithAByteOrderMark) {
  const std::string text = calendarOf(event("Vappu", line("DTSTART;VALUE=DATE:20260501")));
  EXPECT_EQ(holidaysIn("\xEF\xBB\xBF" + text, "test", year(2026), greenwich),
            (std::vector<CalendarNote>{{year(2026) / 5 / 1, "Vappu"}}));
}

TEST(HolidayFile, ReadsSeveralCalendarsOfOneFile) {
  const std::string one = calendarOf(event("a", line("DTSTART;VALUE=DATE:20260501")));
  const std::string two = calendarOf(event("b", line("DTSTART;VALUE=DATE:20260601")));
  EXPECT_EQ(holidaysIn(one + two, "test", year(2026), greenwich).size(), 2U);
}

/// The days of the year by python-dateutil: see tests/data/make_recurrences.py.
TEST(HolidayFile, RecursAsAnotherReaderSays) {
  for (auto& row : testing::tableRows("recurrences.txt")) {
    std::string first;
    row.fields >> first;
    Dates expected;
    for (std::string date; row.fields >> date;) expected.push_back(date);
    const std::string lines = line("DTSTART;VALUE=DATE:" + first) + line("RRULE:" + row.kind);
    EXPECT_EQ(datesOf(event("a", lines)), expected) << row.where << " " << row.kind;
  }
}

std::string faultOfRule(const std::string& rule) {
  return faultOf(calendarOf(event("a", start + line("RRULE:" + rule))));
}

TEST(HolidayFile, RefusesWhatNoWallCalendarCanFollow) {
  EXPECT_EQ(faultOfRule("FREQ=HOURLY"),
            "ics 'days.ics' has an event that recurs more often than daily" + accepted);
  EXPECT_EQ(faultOfRule("RSCALE=HEBREW;FREQ=YEARLY"),
            "ics 'days.ics' has an event that recurs by another calendar" + accepted);
}

// libical looks for the next day itself, for centuries and a second at a time, where there is none.
TEST(HolidayFile, LooksForNoDayThatNeverComes) {
  EXPECT_EQ(datesOf(event("a", start + line("RRULE:FREQ=MONTHLY;BYMONTH=2;BYMONTHDAY=30"))), Dates{});
  EXPECT_EQ(datesOf(event("a", start + line("RRULE:FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30"))), Dates{});
  EXPECT_EQ(datesOf(event("a", start + line("RRULE:FREQ=YEARLY;INTERVAL=32000"))), Dates{});
  EXPECT_NE(faultOfRule("FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30"), "");
}

TEST(HolidayFile, FollowsRecurrencesNoFurtherThanIsWorth) {
  std::string events;
  for (int i = 0; i < 1000; ++i)
    events += event("a", line("DTSTART;VALUE=DATE:00010101") + line("RRULE:FREQ=DAILY;COUNT=2000000000"));
  EXPECT_EQ(faultOf(calendarOf(events)),
            "ics 'days.ics' has events that recur too often to be followed" + accepted);
}

TEST(HolidayFile, WithALineOfPartsWithoutEndIsRefused) {
  std::string parts = "X-A";
  for (int i = 0; i < 1001; ++i) parts += ";B=c";
  EXPECT_EQ(faultOf(calendarOf(event("a", start + line(parts + ":d")))),
            "ics 'days.ics' has a line of more than 1000 parts" + accepted);
}

TEST(HolidayFile, OfALongEventNamesAYear) {
  EXPECT_EQ(datesOf(event("a", line("DTSTART;VALUE=DATE:20251230") + line("DURATION:P2000000000D"))).size(),
            364U);
}

// libical and what reads its components call themselves for each.
TEST(HolidayFile, WhoseComponentsDoNotEndIsRefused) {
  std::string begins, ends;
  for (int i = 0; i < 30'000; ++i) {
    begins += line("BEGIN:VCALENDAR");
    ends += line("END:VCALENDAR");
  }
  const std::string ofNothing = line("BEGIN") + line("END:VCALENDAR");
  for (const std::string& text : {begins, begins + ends, ends, ofNothing})
    EXPECT_EQ(faultOf(text), "ics 'days.ics' is no calendar, or not a whole one" + accepted);
}

TEST(HolidayFile, LargerThanAMegabyteIsRefused) {
  TemporaryFolder folder;
  folder.write("days.ics", calendarOf(event("a", start)) + std::string(std::size_t{1} << 20, ' '));
  const std::string file = (folder.path() / "days.ics").string();
  try {
    holidaysOf(file, year(2026), greenwich);
    FAIL();
  } catch (const BadInput& fault) {
    EXPECT_EQ(std::string(fault.what()), "ics '" + file + "' is larger than 1 MB" + accepted);
  }
}

TEST(HolidayFile, SaysWhatIsWrongWithADamagedOne) {
  EXPECT_EQ(faultOf("hello"), "ics 'days.ics' is no calendar, or not a whole one" + accepted);
  EXPECT_EQ(faultOf("\xff\xfe"), "ics 'days.ics' is not text" + accepted);
  const std::string whole = calendarOf(event("a", start));
  EXPECT_EQ(faultOf(whole), "");
  EXPECT_NE(faultOf(whole.substr(0, whole.size() / 2)), "") << "cut off";
  EXPECT_NE(faultOf(calendarOf(event("a", line("DTSTART;VALUE=DATE:2026xx01")))), "");
  EXPECT_NE(faultOf(calendarOf(event("a", start + line("RRULE:FREQ=SOMETIMES")))), "");
  EXPECT_NE(faultOf(calendarOf(event("a", start + "no property\r\n"))), "");
}

TEST(HolidayFile, AFileThatCannotBeReadIsBadInput) {
  EXPECT_THROW(holidaysOf("/nowhere/days.ics", year(2026), greenwich), BadInput);
  EXPECT_THROW(holidaysOf("/", year(2026), greenwich), BadInput);
}

// Whatever stands in the file: days of the year in order, each with a name, or bad input.
TEST(HolidayFile, OfAnyBytesNamesDaysOfTheYearOrIsRefused) {
  const std::string whole =
      calendarOf(event("a", start + line("RRULE:FREQ=YEARLY;BYMONTH=5;BYDAY=-1MO")) +
                 event("b", start + line("RRULE:FREQ=DAILY;INTERVAL=3")) +
                 event("c", line("DTSTART;VALUE=DATE:20260101") + line("DURATION:P9D")));
  ::testing::internal::CaptureStderr();
  std::mt19937 random(1);
  int refused = 0, read = 0;
  for (int i = 0; i < 2000; ++i) {
    std::string text = whole;
    for (unsigned changes = random() % 4 + 1; changes > 0; --changes)
      text[random() % text.size()] = static_cast<char>(' ' + random() % 95);
    try {
      const auto notes = holidaysIn(text, "test", year(2026), greenwich);
      for (std::size_t n = 0; n < notes.size(); ++n) {
        EXPECT_EQ(notes[n].date.year(), year(2026));
        EXPECT_FALSE(notes[n].text.empty());
        EXPECT_TRUE(n == 0 || notes[n - 1].date <= notes[n].date);
      }
      ++read;
    } catch (const BadInput&) {
      ++refused;
    }
  }
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
  EXPECT_GT(read, 100);
  EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace velmora::app
