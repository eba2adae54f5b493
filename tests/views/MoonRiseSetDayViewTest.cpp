#include <velmora/views/MoonRiseSetDayView.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <velmora/foundation/SettingsModel.h>
#include <velmora/phases/Phase.h>
#include <velmora/phases/RiseSetPhaseItem.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/OncePerProcess.h>

#include "tests/support/FixedTextEngine.h"
#include "tests/support/RecordingCanvas.h"
#include "tests/support/SourceDirectory.h"

namespace velmora {
namespace {

using testing::FixedTextEngine;
using testing::RecordingCanvas;
using Lines = std::vector<std::string>;

RiseSetData risesAndSets() {
  RiseSetData data;
  data.moonRiseText = "10:00";
  data.moonRiseMinutesFromMidnight = 600;
  data.moonSetText = "20:00";
  data.moonSetMinutesFromMidnight = 1200;
  data.sunRiseText = "06:00";
  data.sunRiseMinutesFromMidnight = 360;
  data.sunSetText = "18:00";
  data.sunSetMinutesFromMidnight = 1080;
  data.dayLengthMinutes = 720;
  return data;
}

RiseSetData withMoon(std::int64_t rise, std::int64_t set) {
  RiseSetData data = risesAndSets();
  data.moonRiseMinutesFromMidnight = rise;
  data.moonSetMinutesFromMidnight = set;
  return data;
}

std::shared_ptr<RiseSetPhaseItem> fullMoonOn(RiseSetData data) {
  auto item = std::make_shared<RiseSetPhaseItem>();
  item->phase = kFullMoon;
  item->fullFactor = 1;
  item->riseSetData = std::move(data);
  return item;
}

class MoonRiseSetDayViewTest : public ::testing::Test {
 protected:
  MoonRiseSetDayViewTest() {
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
    row->setFrame({0, 160, 425, 80});
    row->setPhaseItem(fullMoonOn(risesAndSets()));
    row->setLabelText(AttributedText("14 Fri", {.font = Font::systemFont(13), .color = Color::white()}));
  }
  ~MoonRiseSetDayViewTest() override {
    SettingsModel::setIsIPad(false);
    MoonPhaseData::resetSharedInstance();
    ProcessValues::resetAll();
  }

  Lines drawn() {
    RecordingCanvas canvas;
    row->drawRect(canvas, row->bounds());
    EXPECT_TRUE(canvas.isBalanced());
    return canvas.lines();
  }

  Lines drawnStarting(const std::string& beginning) {
    Lines found;
    for (const std::string& line : drawn()) {
      if (line.starts_with(beginning)) found.push_back(line);
    }
    return found;
  }

  /// What the strip draws of the Moon: up to the first line in the colour of daylight.
  Lines drawnOfMoon(std::int64_t rise, std::int64_t set) {
    row->setPhaseItem(fullMoonOn(withMoon(rise, set)));
    const Lines all = drawn();
    const auto begin = std::find(all.begin(), all.end(), "setFillColor #2E4073CC");
    return {begin, std::find(begin, all.end(), "setFillColor #67518666")};
  }

  std::optional<std::string> lineOfText(const std::string& text) {
    const Lines found = drawnStarting("drawText \"" + text + "\"");
    return found.size() == 1 ? std::optional(found.front()) : std::nullopt;
  }

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
  ScopedMainBundle mainBundle{testing::sourceDirectory() + "/app/resources"};
  ScopedTextEngine textEngine{std::make_shared<FixedTextEngine>()};
  std::shared_ptr<MoonRiseSetDayView> row = std::make_shared<MoonRiseSetDayView>();
};

const char* const moonColor = "setFillColor #2E4073CC";

Lines iconLines(const std::string& name, const std::string& alpha, const std::string& rect) {
  return {"save", "setBlendMode overlay", "setAlpha " + alpha, "drawImage " + name + " in " + rect,
          "restore"};
}

std::string timeLine(const std::string& text, const std::string& place) {
  return "drawText \"" + text + "\" at " + place + " System bold 12 #999999FF";
}

Lines joined(const std::vector<Lines>& parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

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

TEST_F(MoonRiseSetDayViewTest, ADayOnWhichTheMoonIsUpAtMidnightHasTwoBarsRoundedWhereItSetsAndRises) {
  EXPECT_EQ(drawnOfMoon(1200, 400), joined({
                                        {
                                            moonColor,
                                            "fill roundedRect 65 5 100 30 corners 10 radii 8 8",
                                            "fill roundedRect 365 5 60 30 corners 5 radii 8 8",
                                        },
                                        iconLines("moonrise", "1", "367 10 20 20"),
                                        {timeLine("10:00", "330 18")},
                                        iconLines("moonset", "1", "143 10 20 20"),
                                        {timeLine("20:00", "170 18")},
                                    }));
}

TEST_F(MoonRiseSetDayViewTest, RightToLeftTheTwoBarsRoundTheOtherCorners) {
  const ScopedDevice mirrored(Device{.forcedDirection = LayoutDirection::rightToLeft});
  const Lines lines = drawnOfMoon(1200, 400);
  EXPECT_EQ(lines.at(1), "fill roundedRect 260 5 100 30 corners 5 radii 8 8");
  EXPECT_EQ(lines.at(2), "fill roundedRect 0 5 60 30 corners 10 radii 8 8");
}

TEST_F(MoonRiseSetDayViewTest, WithoutMoonriseTheBarBeginsWithTheDayAndOnlyTheSetIsMarked) {
  EXPECT_EQ(drawnOfMoon(-1, 1200), joined({
                                       {
                                           moonColor,
                                           "clearRect 65 5 300 30",
                                           "fill roundedRect 65 5 300 30 corners 15 radii 8 8",
                                       },
                                       iconLines("moonset", "1", "343 10 20 20"),
                                       {timeLine("20:00", "370 18")},
                                   }));
}

TEST_F(MoonRiseSetDayViewTest, WithoutMoonsetABarLastsToTheDaysEndAndOnlyTheRiseIsMarked) {
  EXPECT_EQ(drawnOfMoon(600, -1), joined({
                                      {
                                          moonColor,
                                          "fill roundedRect 65 5 -0.25 30 corners 10 radii 8 8",
                                          "fill roundedRect 215 5 210 30 corners 5 radii 8 8",
                                      },
                                      iconLines("moonrise", "1", "217 10 20 20"),
                                      {timeLine("10:00", "180 18")},
                                  }));
}

TEST_F(MoonRiseSetDayViewTest, WithNeitherMoonriseNorMoonsetTheBarFillsTheDayUnmarked) {
  EXPECT_EQ(drawnOfMoon(-1, -1),
            (Lines{moonColor, "clearRect 65 5 360 30", "fill roundedRect 65 5 360 30 corners 15 radii 8 8"}));
}

TEST_F(MoonRiseSetDayViewTest, AMoonsetOfTomorrowLetsTheBarRunOffUnmarked) {
  EXPECT_EQ(drawnOfMoon(1200, 1500), joined({
                                         {
                                             moonColor,
                                             "clearRect 365 5 75 30",
                                             "fill roundedRect 365 5 75 30 corners 15 radii 8 8",
                                         },
                                         iconLines("moonrise", "1", "367 10 20 20"),
                                         {timeLine("10:00", "330 18")},
                                     }));
}

TEST_F(MoonRiseSetDayViewTest, TheDaysLastMomentStillCounts) {
  const Lines lines = drawnOfMoon(600, 1440);
  EXPECT_EQ(lines.at(12), "drawImage moonset in 403 10 20 20");
  EXPECT_EQ(lines.at(14), timeLine("20:00", "368 18"));
}

TEST_F(MoonRiseSetDayViewTest, AMoonriseNearTheStripsEdgeIsWrittenBehindItsIcon) {
  drawnOfMoon(136, 1200);
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "126 18"));
  drawnOfMoon(140, 1200);
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "65 18"));
}

TEST_F(MoonRiseSetDayViewTest, AMoonsetNearTheStripsEdgeIsWrittenBeforeItsIcon) {
  drawnOfMoon(600, 1296);
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "394 18"));
  drawnOfMoon(600, 1304);
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "334 18"));
  drawnOfMoon(600, 1300);
  EXPECT_EQ(lineOfText("20:00"), std::nullopt) << "it would end at the very edge";
}

TEST_F(MoonRiseSetDayViewTest, RightToLeftTimesChangeSidesNearTheStripsOtherEdges) {
  const ScopedDevice mirrored(Device{.forcedDirection = LayoutDirection::rightToLeft});
  drawnOfMoon(0, 1440);
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "303 18"));
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "27 18"));
}

TEST_F(MoonRiseSetDayViewTest, AMoonsetSoonAfterMidnightHasNoRoomForItsIcon) {
  EXPECT_EQ(drawnOfMoon(1200, 87).size(), 3U + 5 + 1 + 1);
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "91 18"));
  EXPECT_EQ(drawnOfMoon(1200, 88).size(), 3U + 5 + 1 + 5 + 1);
  EXPECT_EQ(drawnStarting("drawImage moonset"), Lines{"drawImage moonset in 65 10 20 20"});
}

TEST_F(MoonRiseSetDayViewTest, ASunThatDoesNotSetFillsTheLowerHalfWithItsTextsBesideIt) {
  RiseSetData data = risesAndSets();
  data.sunRiseText = data.sunSetText = "--";
  data.sunRiseMinutesFromMidnight = data.sunSetMinutesFromMidnight = -1;
  data.dayLengthMinutes = 1440;
  row->setPhaseItem(fullMoonOn(data));
  EXPECT_EQ(drawnStarting("fill rounded").at(1), "fill roundedRect 64.75 45 360 30 corners 15 radii 8 8");
  EXPECT_EQ(drawnStarting("drawText \"--\""),
            (Lines{timeLine("--", "47.75 58"), timeLine("--", "429.75 58")}));
  EXPECT_EQ(drawnStarting("drawImage sun"),
            (Lines{"drawImage sunrise in 66.75 50 20 20", "drawImage sunset in 402.75 50 20 20"}));
}

TEST_F(MoonRiseSetDayViewTest, MissingIconsLeaveBarsAndTimes) {
  const Lines complete = drawn();
  const ScopedMainBundle empty("/nowhere");
  const Lines lines = drawn();
  EXPECT_EQ(drawnStarting("drawImage"), Lines());
  EXPECT_EQ(lines.size(), complete.size() - 4 * 5U);
  EXPECT_EQ(drawnStarting("drawText").size(), 5U);
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

TEST_F(MoonRiseSetDayViewTest, OnATabletTimesAreLarger) {
  SettingsModel::setIsIPad(true);
  EXPECT_EQ(lineOfText("10:00"), "drawText \"10:00\" at 172 15 System bold 15 #999999FF");
}

TEST_F(MoonRiseSetDayViewTest, OnANarrowScreenTimesAreSmaller) {
  const ScopedDevice narrow(Device{.screenWidth = 320});
  EXPECT_EQ(lineOfText("10:00"), "drawText \"10:00\" at 185 20 System bold 10 #999999FF");
}

TEST_F(MoonRiseSetDayViewTest, OnAScreenJustWiderTimesAreOfSmallSystemSize) {
  const ScopedDevice wider(Device{.screenWidth = 321});
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "180 18"));
}

TEST_F(MoonRiseSetDayViewTest, TheTimesAttributesAreMadeOnceAProcess) {
  const Lines first = drawn();
  SettingsModel::setIsIPad(true);
  EXPECT_EQ(drawn(), first);
  ProcessValues::resetAll();
  EXPECT_NE(drawn(), first);
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
  RecordingCanvas canvas;
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
    RecordingCanvas canvas;
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
