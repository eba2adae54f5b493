#include "tests/support/RecordedDrawing.h"
#include "tests/views/DrawnView.h"
#include "tests/views/YearViewTesting.h"

namespace velmora {
namespace {

using testing::drawsAsRecorded;
using testing::mirroredDevice;
using testing::placeAt;
using testing::RecordingCanvas;
using testing::utc;
using testing::YearViewTest;
using Lines = std::vector<std::string>;

constexpr const char* plain = "#B3B3B3FF";
constexpr const char* highlighted = "#E3C796FF";

// Full moons of 2018 in Greenwich: January and March have two, February has none. On a phone of 390 points
// cells are 53 3/7 points wide and columns 53.
class YearInFullTest : public YearViewTest {
 protected:
  YearInFullTest() {
    show(utc(2018, 3, 31));
    year->setFrame({0, 0, 390, 573});
  }

  void useTablet() {
    SettingsModel::setIsIPad(true);
    year->setFrame({0, 0, 768, 1053});
  }
};

TEST_F(YearInFullTest, OnAPhone) { EXPECT_TRUE(drawsAsRecorded(draw(), "year-phone")); }

TEST_F(YearInFullTest, OnAPhoneFromRightToLeft) {
  const ScopedDevice mirrored(mirroredDevice);
  EXPECT_TRUE(drawsAsRecorded(draw(), "year-phone-rtl"));
}

TEST_F(YearInFullTest, OnATablet) {
  useTablet();
  EXPECT_TRUE(drawsAsRecorded(draw(), "year-tablet"));
}

TEST_F(YearInFullTest, OnATabletFromRightToLeft) {
  useTablet();
  const ScopedDevice mirrored(mirroredDevice);
  EXPECT_TRUE(drawsAsRecorded(draw(), "year-tablet-rtl"));
}

class YearDrawingTest : public YearViewTest {
 protected:
  /// The dates under the moons, in the order of drawing: the texts without weekdays and header.
  Lines dates() {
    Lines found;
    for (const std::string& line : drawn("drawText ")) {
      const std::size_t begin = line.find('"') + 1;
      found.push_back(line.substr(begin, line.find('"', begin) - begin));
    }
    const std::ptrdiff_t headerTexts = year->selectedPhaseItem() ? 2 : 1;
    return {found.begin() + 7, found.end() - headerTexts};
  }
};

TEST_F(YearDrawingTest, WithoutEventsNothingIsDrawn) {
  select(utc(2026, 5, 15));
  EXPECT_TRUE(draw().lines().empty());
}

TEST_F(YearDrawingTest, AYearWithoutATableIsAnEmptyGrid) {
  show(utc(2050, 1, 1));
  EXPECT_TRUE(dates().empty());
  EXPECT_EQ(drawn("strokeLine").size(), 7U);
  EXPECT_EQ(drawn("drawText").back(),
            "drawText \"Full Moon - Year Calendar (2050)\" at 55 12 System bold 16 #B3B3B3FF");
}

TEST_F(YearDrawingTest, ABlueMoonStandsBesideTheFirstOfItsMonth) {
  show(utc(2026, 1, 1));
  EXPECT_EQ(drawn("drawText \"May 1\"").at(0), "drawText \"May 1\" at 266.75 276 System 13 #B3B3B3FF")
      << "a Friday";
  EXPECT_EQ(drawn("drawText \"May 31\"").at(0), "drawText \"May 31\" at 13.5 276 System 13 #B3B3B3FF")
      << "a Sunday";
}

TEST_F(YearDrawingTest, AMonthWithoutAFullMoonHasAnEmptyRow) {
  show(utc(2018, 5, 1));
  EXPECT_EQ(dates(), (Lines{"Jan 2", "Jan 31", "Mar 2", "Mar 31", "Apr 30", "May 29", "Jun 28", "Jul 27",
                            "Aug 26", "Sep 25", "Oct 24", "Nov 23", "Dec 22"}));
}

TEST_F(YearDrawingTest, NewMoonsAreDrawnAsOutlines) {
  year->setFilteredPhase(kNewMoon);
  show(utc(2026, 5, 1));
  EXPECT_EQ(dates().size(), 12U);
  EXPECT_EQ(drawn("strokeEllipse").size(), 12U);
  EXPECT_TRUE(drawn("fillEllipse").empty());
}

TEST_F(YearDrawingTest, AnotherPhaseIsDrawnWithTheTextsOfNewMoons) {
  year->setFilteredPhase(kFirstQuarter);
  show(utc(2026, 5, 1));
  EXPECT_EQ(dates().size(), drawn("clip rect").size());
  EXPECT_EQ(drawn("drawText \"New Moon - Year Calendar (2026)\"").size(), 1U);
}

TEST_F(YearDrawingTest, DatesAreThoseOfThePlace) {
  show(utc(2026, 5, 1), placeAt(48.9, "Europe/Paris"));
  EXPECT_EQ(drawn("drawText \"Jun 30\"").size(), 1U);
  EXPECT_TRUE(drawn("drawText \"Jun 29\"").empty());
}

TEST_F(YearDrawingTest, TheSelectedMoonIsHighlighted) {
  show(utc(2026, 5, 31));
  EXPECT_EQ(drawn(std::string("setFillColor ") + highlighted).size(), 1U);
  EXPECT_EQ(drawn(std::string("setStrokeColor ") + highlighted).size(), 1U);
  EXPECT_TRUE(drawn("drawText \"May 31\"").at(0).ends_with(highlighted));
  EXPECT_TRUE(drawn("drawText \"May 1\"").at(0).ends_with(plain));
}

// Only the names follow the first day of the week; the moons stay in the columns from Sunday on.
TEST_F(YearDrawingTest, TheWeekStartDayMovesTheNamesAlone) {
  show(utc(2026, 1, 1));
  const Lines discs = drawn("fillEllipse");
  year->setWeekStartDay(8);
  EXPECT_EQ(drawn("drawText").at(0), "drawText \"Mon\" at 23.25 48 System bold 13 #B3B3B3FF");
  EXPECT_EQ(drawn("drawText").at(6), "drawText \"Sun\" at 323.25 48 System bold 13 #B3B3B3FF");
  EXPECT_EQ(drawn("fillEllipse"), discs);
}

TEST_F(YearDrawingTest, WeekdaysStandInTheBandAboveALine) {
  RecordingCanvas canvas;
  year->drawWeekdaysHeaders(canvas, {8.5, 20, 300, 30}, 40);
  ASSERT_EQ(canvas.lines().size(), 10U);
  EXPECT_EQ(canvas.lines()[0], "setLineWidth 0.5");
  EXPECT_EQ(canvas.lines()[1], "setStrokeColor #666666FF");
  EXPECT_EQ(canvas.lines()[2], "strokeLine 8.5 50 to 288.5 50");
  EXPECT_EQ(canvas.lines()[3], "drawText \"Sun\" at 18.25 28 System bold 13 #B3B3B3FF");
  EXPECT_EQ(canvas.lines()[9], "drawText \"Sat\" at 258.25 28 System bold 13 #B3B3B3FF");
}

TEST_F(YearDrawingTest, RulesStandBetweenTheColumns) {
  RecordingCanvas canvas;
  year->drawWeekdaysBorders(canvas, {8.75, 20, 300, 100}, 40.5);
  EXPECT_EQ(canvas.lines(), (Lines{"setLineWidth 0.5", "setStrokeColor #666666FF",
                                   "strokeLine 49 20 to 49 120", "strokeLine 89.5 20 to 89.5 120",
                                   "strokeLine 130 20 to 130 120", "strokeLine 170.5 20 to 170.5 120",
                                   "strokeLine 211 20 to 211 120", "strokeLine 251.5 20 to 251.5 120"}));
}

TEST_F(YearDrawingTest, ColorsAreThoseOfTheSharedDefaultThemeWhateverTheViewsOwn) {
  show(utc(2026, 5, 31));
  const Lines shared = draw().lines();
  year->setColorTheme(std::make_shared<VelmoraTheme>());
  EXPECT_EQ(draw().lines(), shared);
}

TEST_F(YearDrawingTest, TheDarkPartOfACrescentIsOfTheViewsTheme) {
  select(utc(2026, 5, 15));
  showAlone(moon(2026, 1, 3, 7, kWaxingCrescent));
  year->setFilteredPhase(kWaxingCrescent);
  EXPECT_EQ(drawn("setFillColor #0E0C16FF").size(), 1U);
}

TEST_F(YearDrawingTest, TheDefaultThemesColorsMayBeChanged) {
  show(utc(2026, 5, 15));
  const VelmoraTheme former = *VelmoraTheme::defaultTheme();
  VelmoraTheme::defaultTheme()->borderColor = Color::cyan();
  VelmoraTheme::defaultTheme()->defaultTextColor = Color::yellow();
  EXPECT_EQ(drawn("setStrokeColor #00FFFFFF").size(), 3U) << "band, rules and frame";
  EXPECT_EQ(drawn("setFillColor #FFFF00FF").size(), 13U);
  *VelmoraTheme::defaultTheme() = former;
}

TEST_F(YearDrawingTest, TheGivenRectangleIsCleared) {
  show(utc(2026, 5, 15));
  RecordingCanvas canvas;
  year->drawRect(canvas, {1, 2, 30, 40});
  EXPECT_EQ(canvas.lines().at(0), "clearRect 1 2 30 40");
}

// Columns of 26 points: "Jan 3" is 32.5 wide in the tests' text on a phone, 42.5 on a tablet.
TEST_F(YearDrawingTest, ADateWiderThanItsColumnIsCutAtIt) {
  year->setFrame({0, 0, 200, 573});
  show(utc(2026, 5, 15));
  EXPECT_EQ(drawn("clip rect 164 116").at(0), "clip rect 164 116 26 16");
  startAfresh();
  SettingsModel::setIsIPad(true);
  show(utc(2026, 5, 15));
  EXPECT_EQ(drawn("clip rect 164 116").at(0), "clip rect 164 116 26 21");
}

TEST_F(YearDrawingTest, NamesAreInTheProcesssFirstLanguageAndNumbersInTheViews) {
  const ScopedLocale arabic("ar_EG");
  useNewView();
  show(utc(2026, 5, 1));
  EXPECT_EQ(dates().at(0), "يناير ٣");
  const ScopedLocale englishAgain("en_US");
  EXPECT_EQ(dates().at(0), "يناير ٣");
  useNewView();
  show(utc(2026, 5, 1));
  EXPECT_EQ(dates().at(0), "يناير 3");
}

// A host may show events of its own making.
TEST_F(YearDrawingTest, TheRowsMonthIsWrittenAndNoOtherRowsAreDrawn) {
  select(utc(2026, 5, 15));
  year->setPhaseDictionary(std::make_shared<const MoonPhaseYearView::YearItems>(MoonPhaseYearView::YearItems{
      {0, {moon(2026, 0, 1, 1)}}, {2, {moon(2026, 0, 5, 3)}}, {13, {moon(2026, 13, 1, 1)}}}));
  EXPECT_EQ(dates(), Lines{"Feb 5"});
}

}  // namespace
}  // namespace velmora
