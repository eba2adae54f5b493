#include <velmora/views/RiseSetPainter.h>

#include "tests/views/RiseSetDayTesting.h"

namespace velmora {
namespace {

using RiseSetPainterTest = RiseSetDayTest;

TEST_F(RiseSetPainterTest, ADayOnWhichTheMoonIsUpAtMidnightHasTwoBarsRoundedWhereItSetsAndRises) {
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

TEST_F(RiseSetPainterTest, RightToLeftTheTwoBarsRoundTheOtherCorners) {
  const ScopedDevice mirrored(Device{.forcedDirection = LayoutDirection::rightToLeft});
  const Lines lines = drawnOfMoon(1200, 400);
  EXPECT_EQ(lines.at(1), "fill roundedRect 260 5 100 30 corners 5 radii 8 8");
  EXPECT_EQ(lines.at(2), "fill roundedRect 0 5 60 30 corners 10 radii 8 8");
}

TEST_F(RiseSetPainterTest, WithoutMoonriseTheBarBeginsWithTheDayAndOnlyTheSetIsMarked) {
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

TEST_F(RiseSetPainterTest, WithoutMoonsetABarLastsToTheDaysEndAndOnlyTheRiseIsMarked) {
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

TEST_F(RiseSetPainterTest, WithNeitherMoonriseNorMoonsetTheBarFillsTheDayUnmarked) {
  EXPECT_EQ(drawnOfMoon(-1, -1),
            (Lines{moonColor, "clearRect 65 5 360 30", "fill roundedRect 65 5 360 30 corners 15 radii 8 8"}));
}

TEST_F(RiseSetPainterTest, AMoonsetOfTomorrowLetsTheBarRunOffUnmarked) {
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

TEST_F(RiseSetPainterTest, TheDaysLastMomentStillCounts) {
  const Lines lines = drawnOfMoon(600, 1440);
  EXPECT_EQ(lines.at(12), "drawImage moonset in 403 10 20 20");
  EXPECT_EQ(lines.at(14), timeLine("20:00", "368 18"));
}

TEST_F(RiseSetPainterTest, AMoonriseNearTheStripsEdgeIsWrittenBehindItsIcon) {
  drawnOfMoon(136, 1200);
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "126 18"));
  drawnOfMoon(140, 1200);
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "65 18"));
}

TEST_F(RiseSetPainterTest, AMoonsetNearTheStripsEdgeIsWrittenBeforeItsIcon) {
  drawnOfMoon(600, 1296);
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "394 18"));
  drawnOfMoon(600, 1304);
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "334 18"));
  drawnOfMoon(600, 1300);
  EXPECT_EQ(lineOfText("20:00"), std::nullopt) << "it would end at the very edge";
}

TEST_F(RiseSetPainterTest, RightToLeftTimesChangeSidesNearTheStripsOtherEdges) {
  const ScopedDevice mirrored(Device{.forcedDirection = LayoutDirection::rightToLeft});
  drawnOfMoon(0, 1440);
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "303 18"));
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "27 18"));
}

TEST_F(RiseSetPainterTest, AMoonsetSoonAfterMidnightHasNoRoomForItsIcon) {
  EXPECT_EQ(drawnOfMoon(1200, 87).size(), 3U + 5 + 1 + 1);
  EXPECT_EQ(lineOfText("20:00"), timeLine("20:00", "91 18"));
  EXPECT_EQ(drawnOfMoon(1200, 88).size(), 3U + 5 + 1 + 5 + 1);
  EXPECT_EQ(drawnStarting("drawImage moonset"), Lines{"drawImage moonset in 65 10 20 20"});
}

TEST_F(RiseSetPainterTest, ASunThatDoesNotSetFillsTheLowerHalfWithItsTextsBesideIt) {
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

TEST_F(RiseSetPainterTest, MissingIconsLeaveBarsAndTimes) {
  const Lines complete = drawn();
  const ScopedMainBundle empty("/nowhere");
  const Lines lines = drawn();
  EXPECT_EQ(drawnStarting("drawImage"), Lines());
  EXPECT_EQ(lines.size(), complete.size() - 4 * 5U);
  EXPECT_EQ(drawnStarting("drawText").size(), 5U);
}

TEST_F(RiseSetPainterTest, OnATabletTimesAreLarger) {
  SettingsModel::setIsIPad(true);
  EXPECT_EQ(lineOfText("10:00"), "drawText \"10:00\" at 172 15 System bold 15 #999999FF");
}

TEST_F(RiseSetPainterTest, OnANarrowScreenTimesAreSmaller) {
  const ScopedDevice narrow(Device{.screenWidth = 320});
  EXPECT_EQ(lineOfText("10:00"), "drawText \"10:00\" at 185 20 System bold 10 #999999FF");
}

TEST_F(RiseSetPainterTest, OnAScreenJustWiderTimesAreOfSmallSystemSize) {
  const ScopedDevice wider(Device{.screenWidth = 321});
  EXPECT_EQ(lineOfText("10:00"), timeLine("10:00", "180 18"));
}

TEST_F(RiseSetPainterTest, TimesAreBoldOnTheLeftAndCut) {
  const TextAttributes times = {.font = Font::boldSystemFont(12),
                                .color = Color::withWhite(0.6, 1),
                                .alignment = TextAlignment::left,
                                .lineBreak = LineBreak::clipping};
  EXPECT_EQ(MoonRiseSetDayView::labelTextTextAttributes(), times);
}

TEST_F(RiseSetPainterTest, TheTimesAttributesAreMadeOnceAProcess) {
  const Lines first = drawn();
  SettingsModel::setIsIPad(true);
  EXPECT_EQ(drawn(), first);
  ProcessValues::resetAll();
  EXPECT_NE(drawn(), first);
}

}  // namespace
}  // namespace velmora
