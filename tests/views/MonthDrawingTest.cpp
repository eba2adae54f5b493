#include <tuple>

#include "tests/support/RecordedDrawing.h"
#include "tests/views/DrawnView.h"
#include "tests/views/MonthViewTesting.h"

namespace velmora {
namespace {

using testing::drawsAsRecorded;
using testing::honolulu;
using testing::mirroredDevice;
using testing::MonthViewTest;
using testing::placeAt;
using testing::RecordingCanvas;
using testing::utc;
using Lines = std::vector<std::string>;

constexpr const char* light = "#CCCCCCFF";
constexpr const char* selectedColor = "#E3C796FF";

class MonthDrawingTest : public MonthViewTest {
 protected:
  /// The line that draws the day's number, in a month without an alternate calendar.
  std::string number(std::int64_t day) { return drawn("drawText \"" + std::to_string(day) + "\" ").at(0); }
};

// February 2026 begins on a Sunday: four rows without a blank cell. Full Moon is on the 1st, Last Quarter on
// the 9th, New Moon with an annular solar eclipse on the 17th, First Quarter on the 24th, which is today.
class MonthInFullTest : public MonthViewTest {
 protected:
  MonthInFullTest() { select(utc(2026, 2, 14)); }

  void useTablet() {
    SettingsModel::setIsIPad(true);
    view->setFrame({0, 0, 774, 650});  // cells of 100 by 150 points
  }
};

TEST_F(MonthInFullTest, OnAPhone) { EXPECT_TRUE(drawsAsRecorded(draw(), "month-phone")); }

TEST_F(MonthInFullTest, OnAPhoneFromRightToLeft) {
  const ScopedDevice mirrored(mirroredDevice);
  EXPECT_TRUE(drawsAsRecorded(draw(), "month-phone-rtl"));
}

TEST_F(MonthInFullTest, OnATablet) {
  useTablet();
  EXPECT_TRUE(drawsAsRecorded(draw(), "month-tablet"));
}

TEST_F(MonthInFullTest, OnATabletFromRightToLeft) {
  useTablet();
  const ScopedDevice mirrored(mirroredDevice);
  EXPECT_TRUE(drawsAsRecorded(draw(), "month-tablet-rtl"));
}

TEST_F(MonthDrawingTest, TheHeaderIsABandWithTheWeekdaysNames) {
  const Lines lines = draw().lines();
  ASSERT_EQ(lines.size(), 9U);
  EXPECT_EQ(lines[0], "setFillColor #36407353");
  EXPECT_EQ(lines[1], "fill roundedRect 6 4 373 32 corners 3 radii 4 0");
  EXPECT_EQ(lines[2], "drawText \"Sun\" at 21.75 13 AvenirNext medium 13 #CCCCCCFF");
  EXPECT_EQ(lines[8], "drawText \"Sat\" at 339.75 13 AvenirNext medium 13 #CCCCCCFF");
}

TEST_F(MonthDrawingTest, BeforeADayIsSelectedThereIsNothingBelowTheHeader) {
  EXPECT_EQ(draw().lines().size(), 9U);
}

TEST_F(MonthDrawingTest, TheNamesStartOnTheWeekStartDay) {
  for (const auto& [start, first, last] :
       {std::tuple{1, "Mon", "Sun"}, {6, "Sat", "Fri"}, {8, "Mon", "Sun"}}) {
    view->setWeekStartDay(start);
    const Lines names = drawn("drawText ");
    EXPECT_TRUE(names.at(0).starts_with("drawText \"" + std::string(first))) << names.at(0);
    EXPECT_TRUE(names.at(6).starts_with("drawText \"" + std::string(last))) << names.at(6);
  }
}

TEST_F(MonthDrawingTest, FromRightToLeftTheNamesAreMirroredAndTheBandIsNot) {
  const ScopedDevice mirrored(mirroredDevice);
  const Lines lines = draw().lines();
  EXPECT_EQ(lines[1], "fill roundedRect 6 4 373 32 corners 3 radii 4 0");
  EXPECT_EQ(lines[2], "drawText \"Sun\" at 347.75 13 AvenirNext medium 13 #CCCCCCFF");
}

TEST_F(MonthDrawingTest, NamesAreLargerOnATablet) {
  SettingsModel::setIsIPad(true);
  EXPECT_EQ(drawn("drawText ").at(0), "drawText \"Sun\" at 18.75 11 AvenirNext medium 17 #CCCCCCFF");
}

TEST_F(MonthDrawingTest, TheNamesKeepTheirFirstFontAndColor) {
  draw();
  SettingsModel::setIsIPad(true);
  view->setColorTheme(std::make_shared<VelmoraTheme>());
  EXPECT_EQ(drawn("drawText ").at(0), "drawText \"Sun\" at 21.75 13 AvenirNext medium 13 #CCCCCCFF");
}

TEST_F(MonthDrawingTest, AnOffsetShiftsTheNames) {
  RecordingCanvas canvas;
  view->drawWeekdaysHeaders(canvas, {10, 0, 350, 30}, 50, 4.5);
  EXPECT_EQ(canvas.lines().at(0), "drawText \"Sun\" at 28.25 8 AvenirNext medium 13 #CCCCCCFF");
  EXPECT_EQ(canvas.lines().at(1), "drawText \"Mon\" at 78.25 8 AvenirNext medium 13 #CCCCCCFF");
}

struct WeekStart {
  std::int64_t weekStartDay;
  const char* firstDay;  ///< the line that draws the number 1
};

// June 2024 begins on a Saturday: six rows in weeks from Sunday, five in weeks from Monday or Saturday.
TEST_F(MonthDrawingTest, TheWeekStartDayMovesTheFirstDay) {
  select(utc(2024, 6, 20));
  for (const WeekStart& row : {WeekStart{0, "drawText \"1\" at 342.25 95.8333 System 17 #CCCCCCFF"},
                               WeekStart{1, "drawText \"1\" at 289.25 102.5 System 17 #CCCCCCFF"},
                               WeekStart{6, "drawText \"1\" at 24.25 102.5 System 17 #CCCCCCFF"}}) {
    view->setWeekStartDay(row.weekStartDay);
    EXPECT_EQ(number(1), row.firstDay);
  }
}

TEST_F(MonthDrawingTest, OnlyTheSelectedDayIsFramedAndHighlighted) {
  select(utc(2026, 2, 12));
  EXPECT_EQ(number(12), "drawText \"12\" at 232 212.5 System 17 " + std::string(selectedColor));
  EXPECT_EQ(number(11), "drawText \"11\" at 179 212.5 System 17 " + std::string(light));
  EXPECT_EQ(drawn("stroke roundedRect"), Lines{"stroke roundedRect 214 163.5 53 69 corners 15 radii 8 8"});
  EXPECT_EQ(drawn("setLineDash"), (Lines{"setLineDash 3 3", "setLineDash solid"}));
}

TEST_F(MonthDrawingTest, TodayHasABarUnderItsNumber) {
  const ScopedNow now12(utc(2026, 2, 12));
  select(utc(2026, 2, 14));
  EXPECT_EQ(drawn("fillRect"), Lines{"fillRect 223 232.5 35 4"});
}

TEST_F(MonthDrawingTest, BesideAMarkerTheBarMovesWithTheNumber) {
  select(utc(2026, 2, 14));
  EXPECT_EQ(number(24), "drawText \"24\" at 132 412.5 System 17 #CCCCCCFF");
  EXPECT_EQ(drawn("fillRect"), Lines{"fillRect 123 432.5 35 4"});
}

TEST_F(MonthDrawingTest, TheFrameOfTodayHoldsTheBarToo) {
  const ScopedNow now12(utc(2026, 2, 12));
  select(utc(2026, 2, 12));
  EXPECT_EQ(drawn("stroke roundedRect"), Lines{"stroke roundedRect 214 163.5 53 77 corners 15 radii 8 8"});
}

TEST_F(MonthDrawingTest, AnotherMonthHasNoToday) {
  select(utc(2026, 3, 14));
  EXPECT_TRUE(drawn("fillRect").empty());
}

TEST_F(MonthDrawingTest, TodayIsThatOfTheProcesssZone) {
  const ScopedNow lateEvening(utc(2026, 2, 11, 23));
  const ScopedDefaultTimeZone tokyo("Asia/Tokyo");
  select(utc(2026, 2, 14));
  EXPECT_EQ(drawn("fillRect"), Lines{"fillRect 223 232.5 35 4"}) << "the 12th";
}

// Besides the 28 discs, of which New Moon's is stroked alone.
TEST_F(MonthDrawingTest, PrincipalPhasesAreMarkedBesideTheirNumbers) {
  select(utc(2026, 2, 14));
  EXPECT_EQ(drawn("fillEllipse 5 113.25 18.5").size(), 1U) << "Full Moon on the 1st";
  EXPECT_EQ(drawn("strokeEllipse 58 213.25 18.5").size(), 1U) << "Last Quarter on the 9th";
  EXPECT_EQ(drawn("strokeEllipse 111 313.25 18.5").size(), 1U) << "New Moon on the 17th";
  EXPECT_EQ(drawn("strokeEllipse 111 413.25 18.5").size(), 1U) << "First Quarter on the 24th";
  EXPECT_EQ(number(1), "drawText \"1\" at 28.25 112.5 System 17 #CCCCCCFF") << "4 points right of the middle";
  EXPECT_EQ(number(9), "drawText \"9\" at 81.25 212.5 System 17 #CCCCCCFF");
  EXPECT_EQ(number(17), "drawText \"17\" at 132 312.5 System 17 #CCCCCCFF") << "6 points";
}

TEST_F(MonthDrawingTest, ANumberMovesFurtherOnATablet) {
  SettingsModel::setIsIPad(true);
  view->setFrame({0, 0, 774, 650});
  select(utc(2026, 2, 14));
  EXPECT_EQ(number(1), "drawText \"1\" at 57.75 165 System 17 #CCCCCCFF") << "6 points right of the middle";
  EXPECT_EQ(number(17), "drawText \"17\" at 271.5 465 System 17 #CCCCCCFF") << "8 points";
}

TEST_F(MonthDrawingTest, BesideAnAlternateCalendarNoPhaseIsMarked) {
  select(utc(2026, 2, 14));
  const std::string highlighted = "setStrokeColor " + std::string(selectedColor);
  EXPECT_EQ(drawn(highlighted).size(), 5U) << "four markers and the selected day";
  view->setAlternateCalendarType(kBuddhistCalendar);
  EXPECT_EQ(drawn(highlighted).size(), 1U);
}

TEST_F(MonthDrawingTest, ThePaddingMakesDiscsNarrower) {
  select(utc(2026, 2, 14));
  view->setPadding(5);
  EXPECT_EQ(drawn("fillEllipse 8.5 67.5 40 40").size(), 1U);
}

TEST_F(MonthDrawingTest, SouthOfTheEquatorDiscsAreMirrored) {
  select(utc(2026, 2, 14), placeAt(-33.9));
  EXPECT_EQ(drawn("clip rect 81.5 167.5 22.5 45").size(), 1U) << "Last Quarter is lit on the right";
  select(utc(2026, 2, 14));
  EXPECT_EQ(drawn("clip rect 59 167.5 22.5 45").size(), 1U);
}

// July 2000 begins on a Saturday, in the last column: six rows of cells 66 2/3 points high.
TEST_F(MonthDrawingTest, EclipsesAreRinged) {
  select(utc(2000, 7, 5), honolulu());
  const Lines lines = draw().lines();
  Lines rings;
  for (std::size_t i = 1; i + 3 < lines.size(); ++i) {
    if (lines[i + 1] != "setLineWidth 3") continue;
    EXPECT_EQ(lines[i - 1], "save");
    EXPECT_EQ(lines[i + 3], "restore") << "the width does not reach the discs that follow";
    rings.push_back(lines[i] + ", " + lines[i + 2]);
  }
  EXPECT_EQ(rings, (Lines{"setStrokeColor #FF8000FF, strokeEllipse 324 50.8333 45 45",
                          "setStrokeColor #00FFFFFF, strokeEllipse 6 248.8333 45 45",
                          "setStrokeColor #FF8000FF, strokeEllipse 6 380.8333 45 45"}));
}

TEST_F(MonthDrawingTest, EclipsesCanBeHidden) {
  select(utc(2000, 7, 5), honolulu());
  view->setHideEclipeInfo(true);
  EXPECT_TRUE(drawn("setLineWidth 3").empty());
}

TEST_F(MonthDrawingTest, ARingIsStrokedAroundTheDisc) {
  view->setPadding(6);
  RecordingCanvas canvas;
  view->strokeCircleIn({10, 20, 46, 90}, Color::cyan(), 3, canvas);
  EXPECT_EQ(canvas.lines(), (Lines{"save", "setStrokeColor #00FFFFFF", "setLineWidth 3",
                                   "strokeEllipse 13 20 40 40", "restore"}));
}

TEST_F(MonthDrawingTest, AThemeOfItsOwnColorsDaysFrameAndHeader) {
  const auto theme = std::make_shared<VelmoraTheme>();
  theme->lightTextColor = Color::cyan();
  theme->selectedBackgroundColor = Color::yellow();
  theme->headerBackgroundColor = Color::purple();
  theme->backgroundColor = Color::orange();
  view->setColorTheme(theme);
  select(utc(2026, 2, 12));
  EXPECT_EQ(draw().lines().at(0), "setFillColor #800080FF");
  EXPECT_TRUE(number(11).ends_with("#00FFFFFF"));
  EXPECT_TRUE(number(12).ends_with("#FFFF00FF"));
  EXPECT_FALSE(drawn("setFillColor #FF8000FF").empty()) << "the dark part of crescents";
}

TEST_F(MonthDrawingTest, WithoutItsThemeItIsDrawnInTheSharedOneAgain) {
  select(utc(2026, 2, 12));
  const Lines shared = draw().lines();
  view->setColorTheme(std::make_shared<VelmoraTheme>());
  EXPECT_NE(draw().lines(), shared);
  view->setColorTheme(nullptr);
  EXPECT_EQ(draw().lines(), shared);
}

TEST_F(MonthDrawingTest, AYearWithoutATableShowsNumbersWithoutDiscs) {
  select(utc(2050, 2, 14));
  EXPECT_EQ(dayTexts().size(), 28U);
  EXPECT_TRUE(drawn("fillEllipse").empty());
  EXPECT_TRUE(drawn("strokeEllipse").empty());
}

TEST_F(MonthDrawingTest, NumbersAreInTheLocaleInWhichTheViewWasMade) {
  const ScopedLocale arabic("ar_EG");
  select(utc(2026, 2, 14));
  EXPECT_EQ(dayTexts().at(11), "12");
  view = std::make_shared<iPhoneCalendarView>();
  EXPECT_EQ(dayTexts().at(11), "١٢");
}

struct AlternateDays {
  std::int64_t type;
  const char* on17February2026;
  const char* on18February2026;
};

// 18 February 2026 is the first of Adar and of Ramadan, the 17th the Chinese new year, the 28th of Magha.
constexpr AlternateDays alternateDays[] = {
    {kHebrewCalendar, "17 (30)", "18 (1)"},
    {kIslamicUmmAlQuraCalendar, "17 (٢٩)", "18 (١)"},
    {kBuddhistCalendar, "17 (17)", "18 (18)"},
    {kJapaneseCalendar, "17 (17)", "18 (18)"},
    {kChineseCalendar, "17 (1)", "18 (2)"},
    {kIndianCalendar, "17 (28)", "18 (29)"},
    {kNoAlternateCalendar, "17", "18"},
    {7, "17", "18"},
    {-1, "17", "18"},
};

TEST_F(MonthDrawingTest, AlternateCalendarsStandInBracketsWithTheirOwnDigits) {
  select(utc(2026, 2, 14));
  for (const AlternateDays& row : alternateDays) {
    view->setAlternateCalendarType(row.type);
    EXPECT_EQ(dayTexts().at(16), row.on17February2026) << row.type;
    EXPECT_EQ(dayTexts().at(17), row.on18February2026) << row.type;
  }
}

TEST_F(MonthDrawingTest, OtherAlternateCalendarsUseTheUsersDigits) {
  const ScopedLocale arabic("ar_EG");
  view = std::make_shared<iPhoneCalendarView>();
  select(utc(2026, 2, 14));
  view->setAlternateCalendarType(kIndianCalendar);
  EXPECT_EQ(dayTexts().at(16), "١٧ (٢٨)");
  view->setAlternateCalendarType(kHebrewCalendar);
  EXPECT_EQ(dayTexts().at(16), "١٧ (30)");
}

TEST_F(MonthDrawingTest, AlternateDaysAreThoseOfThePlace) {
  select(utc(2026, 2, 14), placeAt(35.7, "Asia/Tokyo"));
  view->setAlternateCalendarType(kHebrewCalendar);
  EXPECT_EQ(dayTexts().at(17), "18 (1)");
  select(utc(2026, 2, 14), honolulu());
  EXPECT_EQ(dayTexts().at(17), "18 (1)");
}

TEST_F(MonthDrawingTest, TheBracketsHaveAColorOfTheirOwnButOnTheSelectedDay) {
  view->setFrame({0, 0, 774, 650});
  select(utc(2026, 2, 12));
  view->setAlternateCalendarType(kBuddhistCalendar);
  EXPECT_EQ(drawn("drawText \"11 (11)\"").at(0),
            "drawText \"11 (11)\" at 350.25 315 \"11 \" System 17 #CCCCCCFF \"(11)\" System 17 "
            "#6699FFFF");
  EXPECT_EQ(drawn("drawText \"12 (12)\"").at(0).substr(0, 28), "drawText \"12 (12)\" at 458.25");
  EXPECT_EQ(drawn("drawText \"12 (12)\"").at(0).find("#6699FF"), std::string::npos);
}

// At 389 points a label is 45 points wide, "11 (11)" is 59.5 in the tests' text.
TEST_F(MonthDrawingTest, TextWiderThanItsLabelIsCutAtIt) {
  select(utc(2026, 2, 14));
  view->setAlternateCalendarType(kBuddhistCalendar);
  EXPECT_EQ(drawn("clip rect 165 212.5 45 17").size(), 1U);
}

}  // namespace
}  // namespace velmora
