// Every operation that a whole poster is drawn by, with a text engine whose characters have one width.

#include <gtest/gtest.h>

#include "tests/posters/PosterTesting.h"
#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordedDrawing.h"
#include "tests/support/RecordingCanvas.h"

#include <velmora/platform/time/Locale.h>
#include <velmora/posters/CalendarPoster.h>
#include <velmora/posters/DarknessPoster.h>
#include <velmora/posters/NightPoster.h>
#include <velmora/posters/YearPoster.h>

namespace velmora {
namespace {

using std::chrono::year;

class RecordedPosters : public ::testing::Test {
 protected:
  static void expectRecorded(Poster&& poster, Size size, const std::string& name) {
    testing::RecordingCanvas canvas;
    poster.drawRect(canvas, {0, 0, size.width, size.height});
    EXPECT_TRUE(canvas.isBalanced());
    EXPECT_TRUE(testing::drawsAsRecorded(canvas, name));
  }

  const ScopedTextEngine _fixed{std::make_shared<testing::FixedTextEngine>()};
};

TEST_F(RecordedPosters, NightOnLightPaper) {
  const ScopedLocale english("en_US");
  expectRecorded(NightPoster(testing::helsinki(), year(2026) / 4 / 24, PaperTheme::light),
                 paperSize(Paper::a4, true), "poster-night");
}

TEST_F(RecordedPosters, YearInRowsFromRightToLeft) {
  const ScopedLocale arabic("ar_EG");
  expectRecorded(YearPoster(testing::sydney(), year(2026), {.alignsWeekdays = true, .isTilted = true}),
                 paperSize(Paper::a3, true), "poster-year");
}

TEST_F(RecordedPosters, DarknessOfAPolarYear) {
  const ScopedLocale english("en_US");
  expectRecorded(DarknessPoster(testing::tromso(), year(2026)), paperSize(Paper::letter), "poster-darkness");
}

TEST_F(RecordedPosters, MonthWithAnEclipseAndNames) {
  const ScopedLocale german("de_DE");
  expectRecorded(CalendarPoster(testing::helsinki(), year(2026) / 8,
                                {.secondCalendar = kHebrewCalendar,
                                 .notes = {{year(2026) / 8 / 15, "Mariä Himmelfahrt"}}}),
                 paperSize(Paper::a4), "poster-calendar");
}

TEST_F(RecordedPosters, TiltedMonthFromRightToLeft) {
  const ScopedLocale hebrew("he_IL");
  expectRecorded(CalendarPoster(testing::sydney(), year(2026) / 5,
                                {.theme = PaperTheme::dark, .isTilted = true, .firstWeekday = 0}),
                 paperSize(Paper::letter), "poster-calendar-rtl");
}

}  // namespace
}  // namespace velmora
