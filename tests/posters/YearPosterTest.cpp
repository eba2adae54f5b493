#include <velmora/posters/YearPoster.h>

#include <sstream>

#include <gtest/gtest.h>

#include "tests/posters/PosterTesting.h"
#include "tests/support/GoldenPicture.h"

#include <velmora/platform/time/Locale.h>
#include <velmora/posters/MoonDays.h>
#include <velmora/posters/YearLayout.h>

namespace velmora {
namespace {

using std::chrono::year;
using testing::contains;
using testing::overlap;

std::vector<Rect> outsideGrid(const YearLayout& layout) {
  std::vector<Rect> rooms = {layout.caption, layout.title, layout.place, layout.note, layout.grid};
  for (const auto* list : {&layout.phases, &layout.eclipses, &layout.monthNames, &layout.lineNames})
    rooms.insert(rooms.end(), list->begin(), list->end());
  return rooms;
}

/// Room for the rounding of sums.
TEST(YearLayout, KeepsItsRoomsApartAndOffTheEdges) {
  for (const Size size : {Size{595, 842}, Size{842, 595}, Size{612, 792}, Size{2592, 1728}}) {
    for (const DayAlignment alignment : {DayAlignment::date, DayAlignment::weekday}) {
      const double unit = std::min(size.width, size.height) / 595;
      const auto rooms = outsideGrid(YearLayout::of(size, unit, alignment, 5));
      for (std::size_t i = 0; i < rooms.size(); ++i) {
        EXPECT_TRUE(contains(Rect{0, 0, size.width, size.height}.inset(30 * unit, 30 * unit), rooms[i])) << i;
        for (std::size_t other = 0; other < i; ++other)
          EXPECT_FALSE(overlap(rooms[i], rooms[other])) << i << " and " << other;
      }
    }
  }
}

TEST(YearLayout, HoldsDiscAndTextsInTheDaysCell) {
  for (const Size size : {Size{595, 842}, Size{842, 595}}) {
    const YearLayout layout = YearLayout::of(size, 1, DayAlignment::weekday, 4);
    EXPECT_EQ(layout.hasColumns, size.height > size.width);
    EXPECT_EQ(layout.lineCount(), 37U);
    for (const std::size_t line : {0, 36}) {
      const YearLayout::Cell cell = layout.cell(11, line);
      const Rect disc = {cell.center.x - cell.radius, cell.center.y - cell.radius, 2 * cell.radius,
                         2 * cell.radius};
      EXPECT_TRUE(contains(layout.grid, cell.room));
      for (const Rect& part : {disc, cell.day, cell.time}) EXPECT_TRUE(contains(cell.room, part));
      EXPECT_FALSE(overlap(disc, cell.day));
      EXPECT_FALSE(overlap(cell.day, cell.time));
    }
  }
}

TEST(YearLayout, BeginsAMonthAtItsWeekday) {
  const auto line = [](std::chrono::year_month month, unsigned firstWeekday) {
    return firstLine(month, DayAlignment::weekday, firstWeekday);
  };
  EXPECT_EQ(line(year(2026) / 1, 1), 3U) << "a Thursday in weeks from Monday";
  EXPECT_EQ(line(year(2026) / 1, 0), 4U) << "in weeks from Sunday";
  EXPECT_EQ(line(year(2026) / 3, 0), 0U) << "a Sunday";
  EXPECT_EQ(line(year(2026) / 3, 1), 6U);
  EXPECT_EQ(firstLine(year(2026) / 3, DayAlignment::date, 1), 0U);
}

TEST(MoonDays, HasItsPhasesOnTheLocalDate) {
  const auto tokyo = PosterPlace{{35.6895, 139.6917, 0}, TimeZone::named("Asia/Tokyo").value(), "東京"};
  // Full Moon of 2026-01-03 10:03 UT, new of 2026-08-12 17:37 UT.
  const MoonDays inHelsinki = MoonDays::of(testing::helsinki(), year(2026)).value();
  const MoonDays inTokyo = MoonDays::of(tokyo, year(2026)).value();
  EXPECT_EQ(inHelsinki.find(year(2026) / 1 / 3)->phase->phase, almanac::PrincipalPhase::fullMoon);
  EXPECT_EQ(inHelsinki.find(year(2026) / 8 / 12)->phase->phase, almanac::PrincipalPhase::newMoon);
  EXPECT_EQ(inTokyo.find(year(2026) / 8 / 13)->phase->phase, almanac::PrincipalPhase::newMoon);
  EXPECT_FALSE(inTokyo.find(year(2026) / 8 / 12)->phase);
  EXPECT_EQ(inHelsinki.days.size(), 365U);
}

TEST(MoonDays, RingsTheEclipsesSeenFromThePlace) {
  const MoonDays moons = MoonDays::of(testing::helsinki(), year(2026)).value();
  EXPECT_TRUE(moons.find(year(2026) / 8 / 12)->eclipse) << "partial of the Sun, in the evening";
  EXPECT_TRUE(moons.find(year(2026) / 8 / 28)->eclipse) << "partial of the Moon, at dawn";
  EXPECT_FALSE(moons.find(year(2026) / 2 / 17)->eclipse) << "annular of the Sun, in Antarctica";
}

TEST(MoonDays, PacificApiaSkippedADay) {
  const PosterPlace apia = {{-13.8333, -171.7667, 0}, TimeZone::named("Pacific/Apia").value(), "Apia"};
  const MoonDays moons = MoonDays::of(apia, year(2011)).value();
  EXPECT_EQ(moons.days.size(), 364U);
  EXPECT_EQ(moons.find(year(2011) / 12 / 30), nullptr);
  EXPECT_NE(moons.find(year(2011) / 12 / 31), nullptr);
}

TEST(YearPoster, IsReadableInEveryLanguage) {
  for (const std::string& locale : testing::posterLocales) {
    const ScopedLocale current(locale);
    for (const Size size : {paperSize(Paper::a4), paperSize(Paper::letter, true)}) {
      const YearPoster poster(testing::helsinki(), year(2026), {.alignsWeekdays = true});
      testing::expectReadable(testing::labelsOf(poster, size), size, 0.6, locale);
    }
  }
}

TEST(YearPoster, IsASmallVectorFile) {
  CairoCanvas canvas(PictureFormat::pdf, paperSize(Paper::inches24x36));
  YearPoster poster(testing::helsinki(), year(2024), {.isTilted = true});
  const Size size = paperSize(Paper::inches24x36);
  poster.setFrame({0, 0, size.width, size.height});
  poster.render(canvas);
  std::ostringstream file;
  ASSERT_EQ(canvas.write(file), std::nullopt);
  EXPECT_LT(file.str().size(), 1000000U);
  EXPECT_EQ(file.str().find("/Subtype /Image"), std::string::npos);
}

TEST(YearPoster, LooksLikeAYearOfMoons) {
  const ScopedLocale english("en_US");
  CairoCanvas canvas(PictureFormat::png, {298, 421});
  YearPoster poster(testing::sydney(), year(2026), {.alignsWeekdays = true});
  poster.setFrame({0, 0, 298, 421});
  poster.render(canvas);
  EXPECT_TRUE(testing::looksLikeGolden(canvas, "poster"));
}

}  // namespace
}  // namespace velmora
