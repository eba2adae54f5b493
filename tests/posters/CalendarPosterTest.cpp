#include <velmora/posters/CalendarPoster.h>

#include <gtest/gtest.h>

#include <sstream>

#include "tests/posters/PosterTesting.h"
#include "tests/support/GoldenPicture.h"

#include <velmora/platform/time/DateFormatter.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/posters/CalendarLayout.h>
#include <velmora/posters/CalendarMonth.h>
#include <velmora/posters/NameLines.h>

namespace velmora {
namespace {

using std::chrono::year;
using std::chrono::year_month;
using std::chrono::year_month_day;
using testing::contains;
using testing::overlap;

constexpr std::chrono::year_month may{year(2026), std::chrono::May};

/// Room for the rounding of sums.
void expectApart(const std::vector<Rect>& rooms, const Rect& within) {
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    EXPECT_TRUE(contains(within, rooms[i])) << i;
    for (std::size_t other = 0; other < i; ++other)
      EXPECT_FALSE(overlap(rooms[i], rooms[other])) << i << " and " << other;
  }
}

Rect around(Point center, double radius) {
  return {center.x - radius, center.y - radius, 2 * radius, 2 * radius};
}

std::vector<std::string> textsOf(const CalendarPoster& poster) {
  std::vector<std::string> texts;
  for (const Label& label : testing::labelsOf(poster, paperSize(Paper::a4))) texts.push_back(label.text);
  return texts;
}

std::size_t countOf(const std::vector<std::string>& texts, const std::string& text) {
  return static_cast<std::size_t>(std::count(texts.begin(), texts.end(), text));
}

TEST(CalendarLayout, KeepsItsRoomsApartAndOffTheEdges) {
  for (const Size size : {Size{595, 842}, Size{612, 792}, Size{1728, 2592}}) {
    const double unit = std::min(size.width / 595, size.height / 842);
    const CalendarLayout layout = CalendarLayout::of(
        size, unit, {.weeks = 6, .phases = 5, .eclipses = 2, .hasNotes = true, .hasWeekNumbers = true});
    std::vector<Rect> rooms = {layout.caption, layout.title, layout.place,
                               layout.grid,    layout.keys,  layout.note};
    for (const auto* list : {&layout.weekdays, &layout.weekNumbers, &layout.eclipses})
      rooms.insert(rooms.end(), list->begin(), list->end());
    for (const CalendarLayout::Phase& phase : layout.phases)
      rooms.insert(rooms.end(), {around(phase.center, phase.radius), phase.name, phase.date, phase.time});
    expectApart(rooms, Rect{0, 0, size.width, size.height}.inset(30 * unit, 30 * unit));
  }
}

TEST(CalendarLayout, HoldsAllOfADayInItsCell) {
  for (const std::size_t weeks : {4U, 5U, 6U}) {
    const CalendarLayout layout =
        CalendarLayout::of({595, 842}, 1, {.weeks = weeks, .eclipses = 2, .hasNotes = true});
    const CalendarLayout::Cell cell = layout.cell(weeks - 1, 6);
    EXPECT_TRUE(contains(layout.grid, cell.room));
    EXPECT_GT(cell.radius, 12);
    std::vector<Rect> rooms = {cell.day, cell.second, cell.phase, around(cell.center, cell.radius)};
    rooms.insert(rooms.end(), cell.names.begin(), cell.names.end());
    for (const auto* times : {&cell.sun, &cell.moon})
      rooms.insert(rooms.end(), {times->body, times->rise, times->riseTime, times->set, times->setTime});
    expectApart(rooms, cell.room);
  }
}

TEST(CalendarMonth, PutsItsDaysIntoWeeks) {
  const CalendarMonth fromMonday = {may, 1, {}}, fromSunday = {may, 0, {}};
  EXPECT_EQ(fromMonday.weekCount(), 5U) << "a Friday to a Sunday";
  EXPECT_EQ(fromSunday.weekCount(), 6U);
  EXPECT_EQ(fromMonday.weekdayOf(may / 1), 4U);
  EXPECT_EQ(fromMonday.weekOf(may / 31), 4U);
  EXPECT_EQ(fromSunday.weekOf(may / 31), 5U);
  EXPECT_EQ(fromMonday.startOf(0), year(2026) / 4 / 27);
  EXPECT_EQ(fromMonday.startOf(1), year(2026) / 5 / 4);
  EXPECT_EQ((CalendarMonth{year(2027) / 2, 1, {}}.weekCount()), 4U) << "a Monday to a Sunday";
}

TEST(CalendarMonth, NumbersItsWeeksAsIcuDoes) {
  DateFormatter formatter;
  formatter.setLocale(Locale("en_GB"));
  formatter.setTimeZone(TimeZone::fixed(0));
  formatter.setDateFormat("w");
  int compared = 0;
  for (auto day = std::chrono::sys_days(year(2000) / 1 / 1); day < std::chrono::sys_days(year(2041) / 1 / 1);
       day += std::chrono::days(1)) {
    ASSERT_EQ(std::to_string(isoWeek(day)), formatter.stringFromDate(day + std::chrono::hours(12)));
    ++compared;
  }
  EXPECT_EQ(compared, 14976);
}

TEST(CalendarMonth, PacificApiaSkippedADay) {
  const PosterPlace apia = {{-13.8333, -171.7667, 0}, TimeZone::named("Pacific/Apia").value(), "Apia"};
  const auto month = CalendarMonth::of(apia, year(2011) / 12, 1);
  ASSERT_TRUE(month);
  EXPECT_EQ(month->days.size(), 30U);
  EXPECT_EQ(month->days.back().moon.date, year(2011) / 12 / 31);
}

TEST(CalendarPoster, TellsRiseAndSetAndThePhases) {
  const ScopedLocale german("de_DE");
  const auto texts = textsOf(CalendarPoster(testing::helsinki(), may));
  EXPECT_EQ(countOf(texts, "Mai"), 1U);
  EXPECT_EQ(countOf(texts, "2026"), 1U);
  EXPECT_EQ(countOf(texts, "Vollmond"), 2U);
  EXPECT_EQ(countOf(texts, "1. Mai"), 1U);
  EXPECT_EQ(countOf(texts, "20:23"), 2U) << "of the full Moon, above and in its day";
  EXPECT_EQ(countOf(texts, "05:18"), 1U) << "sunrise of the first";
  EXPECT_EQ(countOf(texts, "22"), 2U) << "a day and a week";
}

TEST(CalendarPoster, NumbersNoWeeksThatDoNotBeginOnMonday) {
  const ScopedLocale german("de_DE");
  const auto texts = textsOf(CalendarPoster(testing::helsinki(), may, {.firstWeekday = 0}));
  EXPECT_EQ(countOf(texts, "22"), 1U);
}

TEST(CalendarPoster, SaysOfThePolarNightThatTheSunIsDown) {
  const ScopedLocale english("en_US");
  const auto night = textsOf(CalendarPoster(testing::tromso(), year(2026) / 12));
  EXPECT_GE(countOf(night, "down all day"), 31U);
  const auto day = textsOf(CalendarPoster(testing::tromso(), year(2026) / 6));
  EXPECT_GE(countOf(day, "up all day"), 30U);
}

TEST(CalendarPoster, NamesItsDays) {
  const ScopedLocale english("en_US");
  const auto texts = textsOf(CalendarPoster(
      testing::helsinki(), may,
      {.notes = {{may / 1, "May Day"}, {may / 1, "Vappu"}, {year(2026) / 6 / 1, "Another month"}}}));
  EXPECT_EQ(countOf(texts, "May Day, Vappu"), 1U);
  EXPECT_EQ(countOf(texts, "Another month"), 0U);
}

// Passover of 5786 began in the evening before 15 Nisan, 2 April 2026; 1 May is 14 Iyar.
TEST(CalendarPoster, ShowsTheDaysOfASecondCalendar) {
  const ScopedLocale english("en_US");
  const auto plain = textsOf(CalendarPoster(testing::helsinki(), may));
  const auto hebrew = textsOf(CalendarPoster(testing::helsinki(), may, {.secondCalendar = kHebrewCalendar}));
  EXPECT_EQ(hebrew.size(), plain.size() + 31);
  const auto first = std::find(hebrew.begin(), hebrew.end(), "1");
  ASSERT_NE(first, hebrew.end());
  NumberFormatter formatter;
  formatter.setLocale(Locale("he"));
  EXPECT_EQ(*(first + 1), formatter.stringFromNumber(std::int64_t{14}));
}

TEST(CalendarPoster, TellsAnEclipseSeenFromThePlace) {
  const ScopedLocale german("de_DE");
  const auto texts = textsOf(CalendarPoster(testing::helsinki(), year(2026) / 8));
  const auto tells = [&](const std::string& moment) {
    return std::any_of(texts.begin(), texts.end(),
                       [&](const std::string& text) { return text.starts_with(moment); });
  };
  EXPECT_TRUE(tells("12. Aug., 20:53 "));
  EXPECT_TRUE(tells("28. Aug., 06:10 "));
  EXPECT_EQ(countOf(texts, "12. Aug."), 1U);
}

TEST(CalendarPoster, IsReadableInEveryLanguage) {
  const std::vector<CalendarNote> notes = {{year(2026) / 8 / 1, "Swiss National Day"},
                                           {year(2026) / 8 / 15, "Himmelfahrt der Jungfrau Maria und mehr"},
                                           {year(2026) / 8 / 11, "山の日"}};
  for (const std::string& locale : testing::posterLocales) {
    const ScopedLocale current(locale);
    const auto firstWeekday = static_cast<unsigned>(Locale::current().firstWeekday() - 1);
    for (const auto& [place, month] : {std::pair{testing::helsinki(), 8U}, {testing::tromso(), 12U}}) {
      const Size size = paperSize(Paper::letter);
      const CalendarPoster poster(
          place, year(2026) / std::chrono::month(month),
          {.firstWeekday = firstWeekday, .secondCalendar = kIslamicUmmAlQuraCalendar, .notes = notes});
      testing::expectReadable(testing::labelsOf(poster, size), size, 0.6, locale + " " + place.name);
    }
  }
}

TEST(CalendarPoster, CoversWhatTheAlmanacDoes) {
  EXPECT_TRUE(CalendarPoster(testing::helsinki(), year(2100) / 6).isCovered());
  EXPECT_FALSE(CalendarPoster(testing::helsinki(), year(2101) / 1).isCovered());
}

TEST(CalendarPoster, OfAYearIsASmallFile) {
  const Size size = paperSize(Paper::a4);
  CairoCanvas canvas(PictureFormat::pdf, size);
  for (unsigned month = 1; month <= 12; ++month) {
    if (month > 1) canvas.nextPage();
    CalendarPoster page(testing::helsinki(), year(2026) / std::chrono::month(month));
    page.setFrame({0, 0, size.width, size.height});
    page.render(canvas);
  }
  std::ostringstream file;
  ASSERT_EQ(canvas.write(file), std::nullopt);
  EXPECT_LT(file.str().size(), 600000U);
}

TEST(CalendarPoster, LooksLikeAMonth) {
  const ScopedLocale english("en_US");
  CairoCanvas canvas(PictureFormat::png, {298, 421});
  CalendarPoster poster(testing::sydney(), may, {.isTilted = true, .notes = {{may / 10, "Mother’s Day"}}});
  poster.setFrame({0, 0, 298, 421});
  poster.render(canvas);
  EXPECT_TRUE(testing::looksLikeGolden(canvas, "calendar"));
}

TEST(NameLines, BreakANameAtItsBlanks) {
  const LabelStyle style = {.size = 10, .color = {}};
  const double width = Sheet::widthOf("Independence", style) + 1;
  const NameLines lines = NameLines::of("Independence Day", style, width, 2);
  EXPECT_EQ(lines.lines, (std::vector<std::string>{"Independence", "Day"}));
  EXPECT_EQ(lines.style.size, 10);
}

/// The name in two lines at its full size, in a room that is too narrow for it by the share.
std::vector<std::string> inTwoLines(const std::string& name, double share) {
  const LabelStyle style = {.size = 10, .color = {}};
  const NameLines lines = NameLines::of(name, style, share * Sheet::widthOf(name, style), 2);
  EXPECT_EQ(lines.style.size, 10);
  return lines.lines;
}

TEST(NameLines, BreakWhereALanguageWritesNoBlanks) {
  const ScopedLocale japanese("ja_JP");
  EXPECT_EQ(inTwoLines("国民の休日振替休日", 0.7), (std::vector<std::string>{"国民の休日振", "替休日"}));
  EXPECT_EQ(inTwoLines("振替（休日）", 0.85), (std::vector<std::string>{"振替（休", "日）"}))
      << "no line begins with a closing bracket";
}

TEST(NameLines, BreakBetweenTheWordsOfThai) {
  const ScopedLocale thai("th_TH");
  EXPECT_EQ(inTwoLines("วันหยุดราชการ", 0.8), (std::vector<std::string>{"วันหยุด", "ราชการ"}));
}

TEST(NameLines, BreakBehindAHyphen) {
  const ScopedLocale french("fr_CA");
  EXPECT_EQ(inTwoLines("Saint-Jean-Baptiste", 0.6), (std::vector<std::string>{"Saint-Jean-", "Baptiste"}));
}

TEST(NameLines, AreSmallerBeforeTheyEndEarly) {
  const LabelStyle style = {.size = 10, .color = {}};
  const double width = Sheet::widthOf("Independence", style);
  const NameLines smaller = NameLines::of("Independence", style, 0.8 * width, 1);
  EXPECT_EQ(smaller.lines, std::vector<std::string>{"Independence"});
  EXPECT_LT(smaller.style.size, 10);
  const NameLines ended = NameLines::of("Independence", style, 0.4 * width, 1);
  EXPECT_TRUE(ended.lines.front().ends_with("…"));
  EXPECT_LE(Sheet::widthOf(ended.lines.front(), ended.style), 0.4 * width);
}

}  // namespace
}  // namespace velmora
