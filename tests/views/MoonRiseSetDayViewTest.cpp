#include <velmora/views/MoonRiseSetDayView.h>

#include <algorithm>
#include <memory>
#include <string>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>

#include "tests/views/RiseSetDayTesting.h"

namespace velmora {
namespace {

using MoonRiseSetDayViewTest = RiseSetDayTest;

TEST_F(MoonRiseSetDayViewTest, DrawsDiscLabelSeparatorsAndStripFromLeftToRight) {
  EXPECT_EQ(drawn(), joined({
                         {
                             "clearRect 0 0 425 80",
                             "setStrokeColor #CCCCCCFF",
                             "setFillColor #CCCCCCFF",
                             "setLineWidth 1",
                             "fillEllipse 14 11 42 42",
                             "drawText \"14 Fri\" at 10 59 System 13 #FFFFFFFF",
                             "setLineWidth 0.5",
                             "setStrokeColor #4D4D4DCC",
                             "strokeLine 65 0 to 65 80",
                             "strokeLine 0 79 to 425 79",
                             moonColor,
                             "clearRect 215 5 150 30",
                             "fill roundedRect 215 5 150 30 corners 15 radii 8 8",
                         },
                         iconLines("moonrise", "1", "217 10 20 20"),
                         {timeLine("10:00", "180 18")},
                         iconLines("moonset", "1", "343 10 20 20"),
                         {timeLine("20:00", "370 18")},
                         {"setFillColor #67518666", "fill roundedRect 155 45 180 30 corners 15 radii 8 8"},
                         iconLines("sunrise", "0.7", "157 50 20 20"),
                         iconLines("sunset", "0.7", "313 50 20 20"),
                         {
                             timeLine("06:00", "120 58"),
                             timeLine("18:00", "340 58"),
                             "save",
                             "setLineWidth 0.5",
                             "setLineDash 2 4",
                             "setAlpha 0.9",
                             "setStrokeColor #4D4D4DCC",
                             "strokeLine 65 40 to 425 40",
                             "restore",
                         },
                     }));
}

TEST_F(MoonRiseSetDayViewTest, RightToLeftEverythingIsMirrored) {
  const ScopedDevice mirrored(Device{.forcedDirection = LayoutDirection::rightToLeft});
  EXPECT_EQ(drawn(), joined({
                         {
                             "clearRect 0 0 425 80",
                             "setStrokeColor #CCCCCCFF",
                             "setFillColor #CCCCCCFF",
                             "setLineWidth 1",
                             "fillEllipse 369 11 42 42",
                             "drawText \"14 Fri\" at 365 59 System 13 #FFFFFFFF",
                             "setLineWidth 0.5",
                             "setStrokeColor #4D4D4DCC",
                             "strokeLine 360 0 to 360 80",
                             "strokeLine 0 79 to 425 79",
                             moonColor,
                             "clearRect 60 5 150 30",
                             "fill roundedRect 60 5 150 30 corners 15 radii 8 8",
                         },
                         iconLines("moonrise", "1", "188 10 20 20"),
                         {timeLine("10:00", "215 18")},
                         iconLines("moonset", "1", "62 10 20 20"),
                         {timeLine("20:00", "25 18")},
                         {"setFillColor #67518666", "fill roundedRect 90 45 180 30 corners 15 radii 8 8"},
                         iconLines("sunrise", "0.7", "248 50 20 20"),
                         iconLines("sunset", "0.7", "92 50 20 20"),
                         {
                             timeLine("06:00", "275 58"),
                             timeLine("18:00", "55 58"),
                             "save",
                             "setLineWidth 0.5",
                             "setLineDash 2 4",
                             "setAlpha 0.9",
                             "setStrokeColor #4D4D4DCC",
                             "strokeLine 0 40 to 360 40",
                             "restore",
                         },
                     }));
}

TEST_F(MoonRiseSetDayViewTest, WithoutADayThereAreLabelSeparatorsAndMidlineAlone) {
  row->setPhaseItem(nullptr);
  EXPECT_EQ(drawn(), (Lines{
                         "clearRect 0 0 425 80",
                         "drawText \"14 Fri\" at 10 59 System 13 #FFFFFFFF",
                         "setLineWidth 0.5",
                         "setStrokeColor #4D4D4DCC",
                         "strokeLine 65 0 to 65 80",
                         "strokeLine 0 79 to 425 79",
                         "save",
                         "setLineWidth 0.5",
                         "setLineDash 2 4",
                         "setAlpha 0.9",
                         "setStrokeColor #4D4D4DCC",
                         "strokeLine 65 40 to 425 40",
                         "restore",
                     }));
}

TEST_F(MoonRiseSetDayViewTest, ADayWithoutRiseAndSetHasItsDiscAndAnEmptyStrip) {
  auto item = fullMoonOn({});
  item->riseSetData.reset();
  row->setPhaseItem(item);
  EXPECT_EQ(drawnStarting("fillEllipse").size(), 1U);
  EXPECT_EQ(drawnStarting("fill rounded"), Lines());
  EXPECT_EQ(drawnStarting("strokeLine").back(), "strokeLine 65 40 to 425 40");
}

TEST_F(MoonRiseSetDayViewTest, TheSelectedDaysDiscStandsOut) {
  EXPECT_FALSE(row->isSelected());
  row->setIsSelected(true);
  EXPECT_TRUE(row->isSelected());
  const Lines lines = drawn();
  EXPECT_EQ(lines.at(1), "setStrokeColor #E3C796FF");
  EXPECT_EQ(lines.at(2), "setFillColor #E3C796FF");
}

TEST_F(MoonRiseSetDayViewTest, SouthOfTheEquatorTheDiscIsMirroredAndDarkInTheThemesBackground) {
  auto item = fullMoonOn(risesAndSets());
  item->phase = kWaxingCrescent;
  item->fullFactor = 0.25F;
  row->setPhaseItem(item);
  EXPECT_FALSE(row->isSouthernHemisphere());
  EXPECT_EQ(drawnStarting("fillEllipse").at(1), "fillEllipse 14 11 31.5 42");
  auto place = std::make_shared<GeoLocationData>();
  place->SetLocation(-33.87, 151.21, "Sydney", "Australia/Sydney", 0, false);
  MoonPhaseData::sharedInstance().SetSelectedLocation(place);
  EXPECT_TRUE(row->isSouthernHemisphere());
  EXPECT_EQ(drawnStarting("fillEllipse").at(1), "fillEllipse 24.5 11 42 42");
  EXPECT_EQ(drawnStarting("setFillColor #0E0C16FF").size(), 1U);
}

TEST_F(MoonRiseSetDayViewTest, AThemeOfItsOwnColoursDiscAndLinesButNeitherBarsNorTimes) {
  const Lines shared = drawn();
  auto theme = std::make_shared<VelmoraTheme>(*VelmoraTheme::calendarTheme());
  theme->lightTextColor = theme->borderColor = Color::cyan();
  theme->moonLightColor = theme->dayLightColor = theme->darkTextColor = Color::orange();
  row->setColorTheme(theme);
  Lines expected = shared;
  std::replace(expected.begin(), expected.end(), std::string("setStrokeColor #CCCCCCFF"),
               std::string("setStrokeColor #00FFFFFF"));
  std::replace(expected.begin(), expected.end(), std::string("setFillColor #CCCCCCFF"),
               std::string("setFillColor #00FFFFFF"));
  std::replace(expected.begin(), expected.end(), std::string("setStrokeColor #4D4D4DCC"),
               std::string("setStrokeColor #00FFFFFF"));
  EXPECT_EQ(drawn(), expected);
}

TEST_F(MoonRiseSetDayViewTest, ARowWithoutAThemeTakesTheSharedCalendarTheme) {
  EXPECT_EQ(row->colorTheme(), nullptr);
  EXPECT_EQ(row->calendarTheme(), VelmoraTheme::calendarTheme());
  EXPECT_EQ(row->colorTheme(), VelmoraTheme::calendarTheme());
  const auto own = std::make_shared<VelmoraTheme>();
  row->setColorTheme(own);
  EXPECT_EQ(row->calendarTheme(), own);
  row->setColorTheme(nullptr);
  EXPECT_EQ(row->calendarTheme(), VelmoraTheme::calendarTheme());
}

TEST_F(MoonRiseSetDayViewTest, ALabelWiderThanItsColumnIsCutAtItsEdges) {
  row->setLabelText(AttributedText(
      "14 Wednesday",
      {.font = Font::systemFont(13), .alignment = TextAlignment::center, .lineBreak = LineBreak::clipping}));
  EXPECT_EQ(drawnStarting("clip"), Lines{"clip rect 10 59 50 18"});
}

TEST_F(MoonRiseSetDayViewTest, ARowIs80PointsHighAndAsWideAsItIs) {
  EXPECT_EQ(row->cellSize(), (Size{425, 80}));
  EXPECT_EQ(row->intrinsicContentSize(), row->cellSize());
  row->setFrame({0, 0, 300, 44});
  EXPECT_EQ(row->intrinsicContentSize(), (Size{300, 80}));
}

TEST_F(MoonRiseSetDayViewTest, ItsMetricsAreFixed) {
  EXPECT_EQ(kCornerRadius, 8.0);
  EXPECT_EQ(MoonRiseSetDayView::edgeInsets.top, 1);
  EXPECT_EQ(MoonRiseSetDayView::edgeInsets.left, 10);
  EXPECT_EQ(MoonRiseSetDayView::edgeInsets.bottom, 0);
  EXPECT_EQ(MoonRiseSetDayView::edgeInsets.right, 0);
  EXPECT_EQ(MoonRiseSetDayView::phasePadding, (Size{8, 10}));
}

TEST_F(MoonRiseSetDayViewTest, ItIsNeverOpaque) {
  row->setBackgroundColor(Color::black());
  EXPECT_FALSE(row->isOpaque());
}

TEST_F(MoonRiseSetDayViewTest, ATouchOnlyAsksForDrawing) {
  testing::RecordingCanvas canvas;
  row->render(canvas);
  ASSERT_FALSE(row->needsDisplay());
  const Lines before = canvas.lines();
  row->handleTouchEvent(Touch({10, 10}));
  EXPECT_TRUE(row->needsDisplay());
  canvas.clear();
  row->render(canvas);
  EXPECT_EQ(canvas.lines(), before);
}

TEST_F(MoonRiseSetDayViewTest, WhatIsSetAsksForDrawing) {
  const auto asks = [this](auto&& set) {
    testing::RecordingCanvas canvas;
    row->render(canvas);
    set();
    return row->needsDisplay();
  };
  EXPECT_TRUE(asks([this] { row->setPhaseItem(nullptr); }));
  EXPECT_TRUE(asks([this] { row->setLabelText(AttributedText("15")); }));
  EXPECT_TRUE(asks([this] { row->setIsSelected(true); }));
  EXPECT_TRUE(asks([this] { row->setColorTheme(nullptr); }));
}

TEST_F(MoonRiseSetDayViewTest, AnySizeIsDrawnWithoutAnError) {
  for (const double width : {0.0, 1.0, 64.0, 65.0, 66.0, 200.0}) {
    for (const std::int64_t rise : {-1, 0, 600, 1440}) {
      row->setFrame({0, 0, width, 80});
      row->setPhaseItem(fullMoonOn(withMoon(rise, 400)));
      CairoCanvas canvas(PictureFormat::png, {100, 100});
      row->render(canvas);
      EXPECT_EQ(canvas.error(), std::nullopt) << width << " " << rise;
    }
  }
}

}  // namespace
}  // namespace velmora
