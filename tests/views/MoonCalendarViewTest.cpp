#include <velmora/views/MoonCalendarView.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/GoldenPicture.h"
#include "tests/support/RecordingCanvas.h"
#include "tests/views/MonthViewTesting.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;
using testing::utc;

constexpr const char* white = "#FFFFFFFF";
constexpr const char* yellow = "#FFFF00FF";

std::shared_ptr<GeoLocationData> greenwich() {
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(51.48, 0, "Greenwich", "Etc/UTC", 0, false);
  return place;
}

class MoonCalendarViewTest : public ::testing::Test {
 protected:
  MoonCalendarViewTest() {
    MoonPhaseData::resetSharedInstance();
    view->setFrame({20, 30, 354, 690});
  }
  ~MoonCalendarViewTest() override { MoonPhaseData::resetSharedInstance(); }

  static void select(Instant date) { MoonPhaseData::sharedInstance().SetSelectedLocation(greenwich(), date); }

  std::vector<std::string> drawn() {
    RecordingCanvas canvas;
    view->drawRect(canvas, view->bounds());
    EXPECT_TRUE(canvas.isBalanced());
    return canvas.lines();
  }

  /// The line that draws the day's number.
  std::string number(std::int64_t day) {
    for (const std::string& line : drawn()) {
      if (line.starts_with("drawText \"" + std::to_string(day) + "\" ")) return line;
    }
    return {};
  }

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
  ScopedDefaultTimeZone zone{"Etc/UTC"};
  ScopedNow now{utc(2024, 6, 14)};
  ScopedTextEngine textEngine{std::make_shared<FixedTextEngine>()};
  std::shared_ptr<MoonCalendarView> view = std::make_shared<MoonCalendarView>();
};

struct DrawnDay {
  int day;
  int picture;
  Point corner;  ///< of the picture
};

// June 2024 begins on a Saturday. New Moon is on the 6th, First Quarter on the 14th, Full Moon on the 22nd
// and Last Quarter on the 28th.
const DrawnDay june2024[] = {
    {1, 44, {305, 90}},   {2, 46, {5, 190}},    {3, 48, {55, 190}},   {4, 50, {105, 190}},
    {5, 52, {155, 190}},  {6, 0, {205, 190}},   {7, 1, {255, 190}},   {8, 3, {305, 190}},
    {9, 5, {5, 290}},     {10, 7, {55, 290}},   {11, 9, {105, 290}},  {12, 11, {155, 290}},
    {13, 13, {205, 290}}, {14, 15, {255, 290}}, {15, 16, {305, 290}}, {16, 18, {5, 390}},
    {17, 19, {55, 390}},  {18, 21, {105, 390}}, {19, 22, {155, 390}}, {20, 24, {205, 390}},
    {21, 25, {255, 390}}, {22, 27, {305, 390}}, {23, 29, {5, 490}},   {24, 31, {55, 490}},
    {25, 33, {105, 490}}, {26, 35, {155, 490}}, {27, 37, {205, 490}}, {28, 40, {255, 490}},
    {29, 42, {305, 490}}, {30, 44, {5, 590}},
};

std::vector<std::string> expectedLines(const DrawnDay& row, const std::string& color) {
  const double labelX = row.corner.x + (row.day < 10 ? 25 : 21), labelY = row.corner.y + 50;
  const std::string label = testing::numberText(labelX) + " " + testing::numberText(labelY);
  const std::string text = testing::numberText(labelX) + " " + testing::numberText(labelY + 4);
  return {
      "drawImage IMG_" + std::to_string(row.picture) + " in " + testing::numberText(row.corner.x) + " " +
          testing::numberText(row.corner.y) + " 50 50",
      "setFillColor #000000FF",
      "fillRect " + label + " 18 18",
      "drawText \"" + std::to_string(row.day) + "\" at " + text + " Helvetica 10 " + color,
  };
}

TEST_F(MoonCalendarViewTest, DrawsEachDaysPictureAndNumber) {
  select(utc(2024, 6, 20));
  std::vector<std::string> expected;
  for (const DrawnDay& row : june2024) {
    const auto lines = expectedLines(row, row.day == 14 ? yellow : white);
    expected.insert(expected.end(), lines.begin(), lines.end());
  }
  EXPECT_EQ(drawn(), expected);
}

TEST_F(MoonCalendarViewTest, AMonthBeginningOnTheSeventhWeekdayFillsTheLastColumnFirst) {
  select(utc(2024, 6, 20));
  const std::vector<std::string> lines = drawn();
  EXPECT_EQ(lines.at(0), "drawImage IMG_44 in 305 90 50 50");
  EXPECT_EQ(lines.at(4), "drawImage IMG_46 in 5 190 50 50");
}

TEST_F(MoonCalendarViewTest, AMonthBeginningOnTheFirstWeekdayStartsInTheFirstColumn) {
  select(utc(2024, 9, 20));
  EXPECT_TRUE(drawn().at(0).ends_with(" in 5 90 50 50")) << drawn().at(0);
  EXPECT_TRUE(drawn().at(4 * 7).ends_with(" in 5 190 50 50")) << drawn().at(4 * 7);
}

TEST_F(MoonCalendarViewTest, OnlyTheDevicesPresentDayIsYellow) {
  select(utc(2024, 6, 20));
  EXPECT_TRUE(number(14).ends_with(yellow));
  EXPECT_TRUE(number(20).ends_with(white)) << "the selected day";
  select(utc(2024, 5, 20));
  EXPECT_TRUE(number(14).ends_with(white)) << "the same day of another month";
  select(utc(2023, 6, 20));
  EXPECT_TRUE(number(14).ends_with(white)) << "the same day of another year";
}

TEST_F(MoonCalendarViewTest, TodayIsThatOfTheProcesssZone) {
  const ScopedNow lateEvening(utc(2024, 6, 14, 23));
  const ScopedDefaultTimeZone tokyo("Asia/Tokyo");
  select(utc(2024, 6, 20));
  EXPECT_TRUE(number(14).ends_with(white));
  EXPECT_TRUE(number(15).ends_with(yellow));
}

// Midnight of 1 June in Tokyo is still Friday, 31 May, in Greenwich.
TEST_F(MoonCalendarViewTest, TheFirstColumnIsThatOfTheProcesssMidnightAtThePlace) {
  const ScopedDefaultTimeZone tokyo("Asia/Tokyo");
  select(utc(2024, 6, 20));
  EXPECT_EQ(drawn().at(0), "drawImage IMG_44 in 255 90 50 50");
}

TEST_F(MoonCalendarViewTest, NumbersStayAtTheLeftOfTheirLabels) {
  select(utc(2024, 6, 20));
  EXPECT_EQ(number(9), "drawText \"9\" at 30 344 Helvetica 10 #FFFFFFFF");
  EXPECT_EQ(number(10), "drawText \"10\" at 76 344 Helvetica 10 #FFFFFFFF");
}

TEST_F(MoonCalendarViewTest, RightToLeftItIsTheSame) {
  select(utc(2024, 6, 20));
  const std::vector<std::string> leftToRight = drawn();
  const ScopedLocale arabic("ar_EG");
  EXPECT_EQ(drawn(), leftToRight);
}

TEST_F(MoonCalendarViewTest, SouthOfTheEquatorThePicturesAreTheSame) {
  select(utc(2024, 6, 20));
  const std::vector<std::string> north = drawn();
  auto place = greenwich();
  place->latitude = -51.48;
  MoonPhaseData::sharedInstance().SetSelectedLocation(place);
  EXPECT_EQ(drawn(), north);
}

TEST_F(MoonCalendarViewTest, AMissingPictureLeavesItsNumber) {
  select(utc(2024, 6, 20));
  const auto complete = drawn();
  const ScopedLibraryBundle empty("/nowhere");
  const auto lines = drawn();
  EXPECT_EQ(lines.size(), 30U * 3);
  EXPECT_EQ(lines.at(0), complete.at(1));
  EXPECT_EQ(lines.at(2), complete.at(3));
}

TEST_F(MoonCalendarViewTest, NothingIsDrawnBeforeAMonthIsSelected) { EXPECT_TRUE(drawn().empty()); }

TEST_F(MoonCalendarViewTest, NothingIsDrawnForAYearWithoutATable) {
  select(utc(2050, 6, 20));
  EXPECT_TRUE(drawn().empty());
}

TEST_F(MoonCalendarViewTest, AnySizeIsDrawnWithoutAnError) {
  select(utc(2024, 6, 20));
  for (const Size size : {Size{0, 0}, Size{1, 1}, Size{8, 3}, Size{80, 100}}) {
    view->setFrame({0, 0, size.width, size.height});
    CairoCanvas canvas(PictureFormat::png, {100, 100});
    view->render(canvas);
    EXPECT_EQ(canvas.error(), std::nullopt) << size.width;
  }
}

TEST(MoonCalendarPictureTest, AMonthOfPicturesLooksAsItShould) {
  const ScopedLocale english("en_US");
  const ScopedDefaultTimeZone zone("Etc/UTC");
  const ScopedNow now(utc(2024, 6, 14));
  MoonPhaseData::resetSharedInstance();
  MoonPhaseData::sharedInstance().SetSelectedLocation(greenwich(), utc(2024, 6, 14));
  const auto view = std::make_shared<MoonCalendarView>();
  view->setFrame({0, 0, 264, 445});
  CairoCanvas canvas(PictureFormat::png, {264, 445}, 1, {14.0 / 255, 12.0 / 255, 22.0 / 255, 1});
  view->render(canvas);
  EXPECT_TRUE(testing::looksLikeGolden(canvas, "picture-month"));
  MoonPhaseData::resetSharedInstance();
}

}  // namespace
}  // namespace velmora
