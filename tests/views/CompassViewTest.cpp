#include <velmora/views/CompassView.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <velmora/platform/ui/Device.h>

#include "tests/views/DrawnView.h"

namespace velmora {
namespace {

using testing::drawn;

class CompassViewTest : public ::testing::Test {
 protected:
  CompassViewTest() {
    view->setFrame({0, 0, 200, 200});
    view->setRadius(60);
    view->setStrokeColor(Color::orange());
  }

  std::shared_ptr<CompassView> view = std::make_shared<CompassView>();
};

TEST_F(CompassViewTest, TakesNoTouches) {
  EXPECT_FALSE(view->isUserInteractionEnabled());
  EXPECT_EQ(view->hitTest({100, 100}), nullptr);
}

TEST_F(CompassViewTest, StartsWithoutLayersAndStrokesNothingUntilToldAColor) {
  const CompassView fresh;
  EXPECT_EQ(fresh.radius(), 0);
  EXPECT_EQ(fresh.strokeColor(), Color::clear());
  EXPECT_EQ(fresh.pathLayer(), nullptr);
  EXPECT_EQ(fresh.northLabel(), nullptr);
  EXPECT_TRUE(fresh.layer().sublayers().empty());
}

TEST_F(CompassViewTest, DrawsTheLettersTurnedAQuarterThenTheRingWithItsTicks) {
  view->updateLayer();
  EXPECT_EQ(drawn(*view),
            "save\nconcat 1 0 0 1 0 0\n"
            "save\nclip rect 0 0 200 200\nbeginGroup 1\nendGroup\nrestore\n"
            "save\nconcat 0 1 -1 0 182 96\ndrawText \"N\" at 0 0 System 12 #CCCCCCFF\nrestore\n"
            "save\nconcat 0 1 -1 0 106 170\ndrawText \"E\" at 0 0 System 12 #CCCCCCFF\nrestore\n"
            "save\nconcat 0 1 -1 0 106 20\ndrawText \"W\" at 0 0 System 12 #CCCCCCFF\nrestore\n"
            "save\nconcat 0 1 -1 0 34 96\ndrawText \"S\" at 0 0 System 12 #CCCCCCFF\nrestore\n"
            "save\nconcat 1 0 0 1 0 0\nsetStrokeColor #FF8000FF\nsetLineWidth 6\n"
            "stroke arc 100 100 radius 60 from 0 to 6.2832 clockwise, move 140 100, line 160 100, "
            "move 100 140, line 100 160, move 60 100, line 40 100, move 100 60, line 100 40\nrestore\n"
            "restore\n");
}

TEST_F(CompassViewTest, EachLetterStandsOutsideItsTick) {
  view->updateLayer();
  const struct {
    const TextLayer& label;
    const char* letter;
    Point position;
  } letters[] = {{*view->northLabel(), "N", {172, 106}},
                 {*view->eastLabel(), "E", {96, 180}},
                 {*view->southLabel(), "S", {24, 106}},
                 {*view->westLabel(), "W", {96, 30}}};
  for (const auto& [label, letter, position] : letters) {
    EXPECT_EQ(label.attributedText().text(), letter);
    EXPECT_NEAR(label.position().x, position.x, 1e-9) << letter;
    EXPECT_NEAR(label.position().y, position.y, 1e-9) << letter;
    EXPECT_NEAR(label.frame().width, 20, 1e-9) << letter;
    EXPECT_NEAR(label.frame().height, 20, 1e-9) << letter;
  }
}

TEST_F(CompassViewTest, LettersAreMeantForTheScreensScale) {
  const ScopedDevice device({.screenScale = 3});
  view->updateLayer();
  EXPECT_EQ(view->northLabel()->contentsScale(), 3);
}

TEST_F(CompassViewTest, BuildingMakesTheBackgroundClear) {
  view->setBackgroundColor(Color::white());
  view->updateLayer();
  EXPECT_EQ(view->backgroundColor(), Color::clear());
}

TEST_F(CompassViewTest, UpdatingTwiceBuildsOnce) {
  view->updateLayer();
  const auto ring = view->pathLayer();
  const auto north = view->northLabel();
  view->setBackgroundColor(Color::white());
  view->setRadius(80);
  view->updateLayer();
  EXPECT_EQ(view->pathLayer(), ring);
  EXPECT_EQ(view->northLabel(), north);
  EXPECT_EQ(view->layer().sublayers().size(), 5U);
  EXPECT_EQ(view->backgroundColor(), Color::white());
}

TEST_F(CompassViewTest, ResettingBuildsTheRingAnewWithTheNewRadiusAndColor) {
  view->updateLayer();
  const auto ring = view->pathLayer();
  view->setRadius(80);
  view->setStrokeColor(Color::cyan());
  view->resetAndUpdateLayer();
  EXPECT_NE(view->pathLayer(), ring);
  EXPECT_EQ(ring->superlayer(), nullptr);
  EXPECT_EQ(view->pathLayer()->strokeColor(), Color::cyan());
  EXPECT_EQ(view->pathLayer()->path().figures().front(),
            Path::Figure(Path::Arc{{100, 100}, 80, 0, 6.283185307179586, true}));
  EXPECT_NEAR(view->northLabel()->position().x, 192, 1e-9);
}

TEST_F(CompassViewTest, TheLettersOfBeforeStayUnderneathWhenItIsBuiltAnew) {
  view->updateLayer();
  const auto formerNorth = view->northLabel();
  view->resetAndUpdateLayer();
  EXPECT_NE(view->northLabel(), formerNorth);
  EXPECT_EQ(formerNorth->superlayer(), &view->layer());
  EXPECT_EQ(view->layer().sublayers().size(), 9U);
  EXPECT_EQ(view->layer().sublayers().front(), formerNorth);
}

TEST_F(CompassViewTest, ResettingBeforeTheFirstUpdateBuilds) {
  view->resetAndUpdateLayer();
  EXPECT_EQ(view->layer().sublayers().size(), 5U);
}

TEST_F(CompassViewTest, TheRingsLayerTakesTheViewsFrameAndSoIsShiftedAwayFromTheOrigin) {
  view->setFrame({30, 40, 200, 200});
  view->updateLayer();
  EXPECT_EQ(view->pathLayer()->frame(), (Rect{30, 40, 200, 200}));
  EXPECT_NEAR(view->northLabel()->position().x, 172, 1e-9) << "the letters are not shifted";
  EXPECT_NE(drawn(*view).find("save\nconcat 1 0 0 1 30 40\nsetStrokeColor #FF8000FF\n"), std::string::npos);
}

TEST_F(CompassViewTest, AHostMayRestyleTheLayersItself) {
  view->updateLayer();
  view->pathLayer()->setStrokeColor(Color::yellow());
  view->pathLayer()->setLineWidth(2);
  EXPECT_NE(drawn(*view).find("setStrokeColor #FFFF00FF\nsetLineWidth 2\n"), std::string::npos);
}

TEST_F(CompassViewTest, BuildingAsksToBeDrawnAgain) {
  drawn(*view);
  view->updateLayer();
  EXPECT_TRUE(view->needsDisplay());
}

TEST(CircleGeometry, AnglesTurnClockwiseFromThePositiveXAxis) {
  const auto expectPoint = [](double quarterTurns, Point expected) {
    const Point point = CompassView::pointOnCircleWithCenter({10, 20}, quarterTurns * 1.5707963267948966, 5);
    EXPECT_NEAR(point.x, expected.x, 1e-12) << quarterTurns;
    EXPECT_NEAR(point.y, expected.y, 1e-12) << quarterTurns;
  };
  expectPoint(0, {15, 20});
  expectPoint(1, {10, 25});
  expectPoint(2, {5, 20});
  expectPoint(3, {10, 15});
}

TEST(CircleGeometry, DistancesBetweenPoints) {
  EXPECT_EQ(CompassView::CGPointDistanceSquared({1, 2}, {4, 6}), 25);
  EXPECT_EQ(CompassView::CGPointDistance({1, 2}, {4, 6}), 5);
  EXPECT_EQ(CompassView::CGPointDistance({4, 6}, {1, 2}), 5);
  EXPECT_EQ(CompassView::CGPointDistance({4, 6}, {4, 6}), 0);
}

}  // namespace
}  // namespace velmora
