#include <velmora/views/PhaseDisc.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include <velmora/phases/Phase.h>
#include <velmora/phases/PhaseItem.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::RecordingCanvas;

constexpr PhaseDisc disc = {10, 20, 40};
constexpr Color dark = {0, 0, 1, 1};

PhaseItem day(std::int64_t phase, float fullFactor) {
  PhaseItem item;
  item.phase = phase;
  item.fullFactor = fullFactor;
  return item;
}

std::string operationsOf(const PhaseItem& item, bool isSouthern) {
  RecordingCanvas canvas;
  disc.draw(canvas, item, isSouthern, dark);
  EXPECT_TRUE(canvas.isBalanced());
  return canvas.text();
}

struct RecordedDisc {
  const char* name;
  std::int64_t phase;
  float fullFactor;
  bool isSouthern;
  const char* operations;
};

void PrintTo(const RecordedDisc& row, std::ostream* out) { *out << row.name; }

const RecordedDisc recordedDiscs[] = {
    {"FullMoonNorth", kFullMoon, 1.0F, false,
     "setLineWidth 1\n"
     "fillEllipse 10 20 40 40\n"},
    {"FullMoonSouth", kFullMoon, 1.0F, true,
     "setLineWidth 1\n"
     "fillEllipse 10 20 40 40\n"},
    {"FirstQuarterNorth", kFirstQuarter, 0.5F, false,
     "save\n"
     "setLineWidth 1\n"
     "clip rect 30 20 20 40\n"
     "fill ellipse 10 20 40 40\n"
     "restore\n"
     "strokeEllipse 10 20 40 40\n"},
    {"FirstQuarterSouth", kFirstQuarter, 0.5F, true,
     "save\n"
     "setLineWidth 1\n"
     "clip rect 10 20 20 40\n"
     "fill ellipse 10 20 40 40\n"
     "restore\n"
     "strokeEllipse 10 20 40 40\n"},
    {"LastQuarterNorth", kLastQuarter, 0.5F, false,
     "save\n"
     "setLineWidth 1\n"
     "clip rect 10 20 20 40\n"
     "fill ellipse 10 20 40 40\n"
     "restore\n"
     "strokeEllipse 10 20 40 40\n"},
    {"LastQuarterSouth", kLastQuarter, 0.5F, true,
     "save\n"
     "setLineWidth 1\n"
     "clip rect 30 20 20 40\n"
     "fill ellipse 10 20 40 40\n"
     "restore\n"
     "strokeEllipse 10 20 40 40\n"},
    {"NewMoonNorth", kNewMoon, 0.0F, false,
     "setLineWidth 1\n"
     "strokeEllipse 10 20 40 40\n"},
    {"NewMoonSouth", kNewMoon, 0.0F, true,
     "setLineWidth 1\n"
     "strokeEllipse 10 20 40 40\n"},
    {"WaxingCrescentNorth", kWaxingCrescent, 0.25F, false,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fillEllipse 10 20 40 40\n"
     "setBlendMode clear\n"
     "setFillColor #00000000\n"
     "fillEllipse 10 20 30 40\n"
     "setBlendMode normal\n"
     "setFillColor #0000FFFF\n"
     "fillEllipse 10 20 30 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
    {"WaxingCrescentSouth", kWaxingCrescent, 0.25F, true,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fillEllipse 10 20 40 40\n"
     "setBlendMode clear\n"
     "setFillColor #00000000\n"
     "fillEllipse 20 20 40 40\n"
     "setBlendMode normal\n"
     "setFillColor #0000FFFF\n"
     "fillEllipse 20 20 40 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
    {"WaxingGibbousNorth", kWaxingGibbous, 0.75F, false,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fill ellipse 20 20 20 40, rect 30 20 20 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
    {"WaxingGibbousSouth", kWaxingGibbous, 0.75F, true,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fill ellipse 20 20 20 40, rect 10 20 20 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
    {"WaningGibbousNorth", kWaningGibbous, 0.75F, false,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fill ellipse 20 20 20 40, rect 10 20 20 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
    {"WaningGibbousSouth", kWaningGibbous, 0.75F, true,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fill ellipse 20 20 20 40, rect 30 20 20 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
    {"WaningCrescentNorth", kWaningCrescent, 0.25F, false,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fillEllipse 10 20 40 40\n"
     "setBlendMode clear\n"
     "setFillColor #00000000\n"
     "fillEllipse 20 20 30 40\n"
     "setBlendMode normal\n"
     "setFillColor #0000FFFF\n"
     "fillEllipse 20 20 30 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
    {"WaningCrescentSouth", kWaningCrescent, 0.25F, true,
     "save\n"
     "setLineWidth 2\n"
     "clip ellipse 10 20 40 40\n"
     "fillEllipse 10 20 40 40\n"
     "setBlendMode clear\n"
     "setFillColor #00000000\n"
     "fillEllipse 0 20 40 40\n"
     "setBlendMode normal\n"
     "setFillColor #0000FFFF\n"
     "fillEllipse 0 20 40 40\n"
     "strokeEllipse 10 20 40 40\n"
     "restore\n"},
};

class RecordedPhaseDisc : public ::testing::TestWithParam<RecordedDisc> {};

TEST_P(RecordedPhaseDisc, IsDrawnByTheseOperations) {
  const RecordedDisc& row = GetParam();
  EXPECT_EQ(operationsOf(day(row.phase, row.fullFactor), row.isSouthern), row.operations);
}

INSTANTIATE_TEST_SUITE_P(EveryPhase, RecordedPhaseDisc, ::testing::ValuesIn(recordedDiscs),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(PhaseDiscTest, AnUnlitWaxingCrescentIsDarkAllOver) {
  EXPECT_EQ(operationsOf(day(kWaxingCrescent, 0.0F), false),
            "save\n"
            "setLineWidth 2\n"
            "clip ellipse 10 20 40 40\n"
            "fillEllipse 10 20 40 40\n"
            "setBlendMode clear\n"
            "setFillColor #00000000\n"
            "fillEllipse 10 20 40 40\n"
            "setBlendMode normal\n"
            "setFillColor #0000FFFF\n"
            "fillEllipse 10 20 40 40\n"
            "strokeEllipse 10 20 40 40\n"
            "restore\n");
}

TEST(PhaseDiscTest, AHalfLitGibbousMoonHasAnEllipseWithoutWidth) {
  EXPECT_EQ(operationsOf(day(kWaxingGibbous, 0.5F), false),
            "save\n"
            "setLineWidth 2\n"
            "clip ellipse 10 20 40 40\n"
            "fill ellipse 30 20 0 40, rect 30 20 20 40\n"
            "strokeEllipse 10 20 40 40\n"
            "restore\n");
}

TEST(PhaseDiscTest, AGibbousMoonBelowHalfLitHasAnEllipseOfNegativeWidth) {
  EXPECT_EQ(operationsOf(day(kWaningGibbous, 0.25F), false),
            "save\n"
            "setLineWidth 2\n"
            "clip ellipse 10 20 40 40\n"
            "fill ellipse 40 20 -20 40, rect 10 20 20 40\n"
            "strokeEllipse 10 20 40 40\n"
            "restore\n");
}

TEST(PhaseDiscTest, APhaseOutsideTheNumbersDrawsNothing) {
  for (const std::int64_t phase : {-2, -1, 8, 9, 100}) {
    EXPECT_EQ(operationsOf(day(phase, 0.5F), false), "") << phase;
    EXPECT_EQ(operationsOf(day(phase, 0.5F), true), "") << phase;
  }
}

TEST(PhaseDiscTest, TheHemisphereDoesNotMatterToFullAndNewMoon) {
  for (const std::int64_t phase : {kFullMoon, kNewMoon}) {
    EXPECT_EQ(operationsOf(day(phase, 0.5F), false), operationsOf(day(phase, 0.5F), true)) << phase;
  }
}

TEST(PhaseDiscTest, TheLitFractionDoesNotMatterToPrincipalPhases) {
  for (const std::int64_t phase : {kFullMoon, kFirstQuarter, kLastQuarter, kNewMoon}) {
    EXPECT_EQ(operationsOf(day(phase, 0.0F), false), operationsOf(day(phase, 1.0F), false)) << phase;
  }
}

TEST(PhaseDiscTest, InAnIconItIsAsHighAsTheIconAndAPointRightOfTheMiddle) {
  EXPECT_EQ(PhaseDisc::inIcon({10, 20, 50, 50}).square(), (Rect{12, 21, 48, 48}));
  EXPECT_EQ(PhaseDisc::inIcon({10, 20, 80, 50}).square(), (Rect{27, 21, 48, 48}));
}

TEST(PhaseDiscTest, InACalendarCellItIsAsWideAsTheCellWithoutPadding) {
  EXPECT_EQ(PhaseDisc::inCalendarCell({10, 20, 50, 90}, 0).square(), (Rect{10, 20, 50, 50}));
  EXPECT_EQ(PhaseDisc::inCalendarCell({10, 20, 50, 90}, 20).square(), (Rect{20, 20, 30, 30}));
}

TEST(PhaseDiscTest, InARiseSetDayItIsEightPointsLowerThanTheRow) {
  EXPECT_EQ(PhaseDisc::inRiseSetDay({10, 11, 50, 50}).square(), (Rect{14, 11, 42, 42}));
  EXPECT_EQ(PhaseDisc::inRiseSetDay({10, 11, 80, 50}).square(), (Rect{29, 11, 42, 42}));
}

TEST(PhaseDiscTest, ATinyRectangleGivesANegativeDiameterAndStillDraws) {
  const PhaseDisc tiny = PhaseDisc::inIcon({0, 0, 1, 1});
  EXPECT_EQ(tiny.square(), (Rect{2, 1, -1, -1}));
  RecordingCanvas canvas;
  tiny.draw(canvas, day(kWaxingGibbous, 0.75F), false, dark);
  EXPECT_TRUE(canvas.isBalanced());
  EXPECT_EQ(canvas.lines().size(), 6U);
}

}  // namespace
}  // namespace velmora
