#include <velmora/views/MoonPhaseIconView.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

#include <velmora/phases/Phase.h>
#include <velmora/phases/PhaseItem.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::RecordingCanvas;

std::shared_ptr<PhaseItem> day(std::int64_t phase, float fullFactor) {
  auto item = std::make_shared<PhaseItem>();
  item->phase = phase;
  item->fullFactor = fullFactor;
  return item;
}

std::string drawn(MoonPhaseIconView& view) {
  RecordingCanvas canvas;
  view.drawRect(canvas, view.bounds());
  EXPECT_TRUE(canvas.isBalanced());
  return canvas.text();
}

class MoonPhaseIconViewTest : public ::testing::Test {
 protected:
  MoonPhaseIconViewTest() { view->setFrame({100, 200, 50, 50}); }

  std::shared_ptr<MoonPhaseIconView> view = std::make_shared<MoonPhaseIconView>();
};

TEST_F(MoonPhaseIconViewTest, StartsWhiteOnBlackOnAClearBackgroundWithoutADay) {
  EXPECT_EQ(view->phaseItem(), nullptr);
  EXPECT_EQ(view->strokeColor(), Color::white());
  EXPECT_EQ(view->fillColor(), Color::white());
  EXPECT_EQ(view->phaseBackgroundColor(), Color::black());
  EXPECT_FALSE(view->isSouthernHemisphere());
  EXPECT_EQ(view->backgroundColor(), Color::clear());
}

TEST_F(MoonPhaseIconViewTest, WithoutADayNothingIsDrawnNorCleared) { EXPECT_EQ(drawn(*view), ""); }

TEST_F(MoonPhaseIconViewTest, DrawsTheDayInItsColors) {
  view->setPhaseItem(day(kWaxingCrescent, 0.25F));
  view->setStrokeColor(Color::yellow());
  view->setFillColor(Color::cyan());
  view->setPhaseBackgroundColor(Color::purple());
  EXPECT_EQ(drawn(*view),
            "clearRect 0 0 50 50\n"
            "setStrokeColor #FFFF00FF\n"
            "setFillColor #00FFFFFF\n"
            "save\n"
            "setLineWidth 2\n"
            "clip ellipse 2 1 48 48\n"
            "fillEllipse 2 1 48 48\n"
            "setBlendMode clear\n"
            "setFillColor #00000000\n"
            "fillEllipse 2 1 36 48\n"
            "setBlendMode normal\n"
            "setFillColor #800080FF\n"
            "fillEllipse 2 1 36 48\n"
            "strokeEllipse 2 1 48 48\n"
            "restore\n");
}

TEST_F(MoonPhaseIconViewTest, SouthOfTheEquatorTheOtherHalfIsLit) {
  view->setPhaseItem(day(kFirstQuarter, 0.5F));
  view->setIsSouthernHemisphere(true);
  EXPECT_EQ(drawn(*view),
            "clearRect 0 0 50 50\n"
            "setStrokeColor #FFFFFFFF\n"
            "setFillColor #FFFFFFFF\n"
            "save\n"
            "setLineWidth 1\n"
            "clip rect 2 1 24 48\n"
            "fill ellipse 2 1 48 48\n"
            "restore\n"
            "strokeEllipse 2 1 48 48\n");
}

TEST_F(MoonPhaseIconViewTest, AnUnknownPhaseIsClearedAndLeftEmpty) {
  view->setPhaseItem(day(kUnknownPhase, 0.5F));
  EXPECT_EQ(drawn(*view),
            "clearRect 0 0 50 50\n"
            "setStrokeColor #FFFFFFFF\n"
            "setFillColor #FFFFFFFF\n");
}

TEST_F(MoonPhaseIconViewTest, ADayGivenOrTakenAsksToBeDrawn) {
  RecordingCanvas canvas;
  view->render(canvas);
  EXPECT_FALSE(view->needsDisplay());
  view->setPhaseItem(day(kFullMoon, 1.0F));
  EXPECT_TRUE(view->needsDisplay());
  view->render(canvas);
  view->setPhaseItem(nullptr);
  EXPECT_TRUE(view->needsDisplay());
}

TEST_F(MoonPhaseIconViewTest, DrawsAnyDayWithTheCanvassOwnColors) {
  RecordingCanvas canvas;
  view->drawMoonPhaseInRect({10, 10, 30, 22}, *day(kNewMoon, 0.0F), canvas);
  EXPECT_EQ(canvas.text(),
            "setLineWidth 1\n"
            "strokeEllipse 16 11 20 20\n");
}

}  // namespace
}  // namespace velmora
