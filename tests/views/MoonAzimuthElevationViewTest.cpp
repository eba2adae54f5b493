#include <velmora/views/MoonAzimuthElevationView.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "tests/views/DrawnView.h"

namespace velmora {
namespace {

using testing::drawn;

void expectNear(Point actual, Point expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-4);
  EXPECT_NEAR(actual.y, expected.y, 1e-4);
}

class MoonAzimuthElevationViewTest : public ::testing::Test {
 protected:
  MoonAzimuthElevationViewTest() {
    view->setFrame({0, 0, 200, 200});
    view->setStrokeColor(Color::orange());
    view->setCircleFillColor(Color::yellow());
    view->setRadius(80, 90, 270);
  }

  // Where the middle of the object's disc lies.
  Point object() const { return view->objectLayer()->path().boundingBox()->center(); }

  std::shared_ptr<MoonAzimuthElevationView> view = std::make_shared<MoonAzimuthElevationView>();
};

TEST_F(MoonAzimuthElevationViewTest, StartsWithoutLayersAndWithClearColors) {
  const MoonAzimuthElevationView fresh;
  EXPECT_EQ(fresh.pathLayer(), nullptr);
  EXPECT_EQ(fresh.objectLayer(), nullptr);
  EXPECT_EQ(fresh.strokeColor(), Color::clear());
  EXPECT_EQ(fresh.circleFillColor(), Color::clear());
  EXPECT_EQ(fresh.arcCenter(), (Point{0, 0}));
  EXPECT_EQ(fresh.arcRadius(), 0);
}

TEST_F(MoonAzimuthElevationViewTest, DrawsAHalfCircleFromTheBottomOverTheLeftToTheTopAndTheObjectOnIt) {
  view->updateLayer();
  view->setObjectAzimuth(90, 0);
  EXPECT_EQ(drawn(*view),
            "save\nconcat 1 0 0 1 0 0\n"
            "save\nclip rect 0 0 200 200\nbeginGroup 1\nendGroup\nrestore\n"
            "save\nconcat 1 0 0 1 0 0\nsetStrokeColor #FF8000FF\nsetLineWidth 6\n"
            "stroke arc 100 100 radius 80 from 1.5708 to 4.7124 clockwise\nrestore\n"
            "save\nconcat 1 0 0 1 0 0\nsetFillColor #FFFF00FF\nfill ellipse 92 172 16 16\n"
            "setStrokeColor #FFFF00FF\nsetLineWidth 1\nstroke ellipse 92 172 16 16\nrestore\n"
            "restore\n");
}

TEST_F(MoonAzimuthElevationViewTest, TheArcsMiddleLiesBetweenTheTwoPointsOfTheCompass) {
  view->setRadius(100, 60, 120);
  EXPECT_EQ(view->radius(), 100);
  EXPECT_EQ(view->startAngle(), 60);
  EXPECT_EQ(view->endAngle(), 120);
  expectNear(view->arcCenter(), {100, 186.6025});
  EXPECT_NEAR(view->arcRadius(), 50, 1e-9);
  EXPECT_EQ(view->pathCenter(), view->arcCenter());
  EXPECT_EQ(view->pathRadius(), view->arcRadius());
}

TEST_F(MoonAzimuthElevationViewTest, TheArcFollowsTheBoundsTheObjectsCircleTheLastRadiusSet) {
  view->setFrame({0, 0, 300, 400});
  expectNear(view->pathCenter(), {150, 200});
  expectNear(view->arcCenter(), {100, 100});
  view->setRadius(80, 90, 270);
  expectNear(view->arcCenter(), {150, 200});
}

TEST_F(MoonAzimuthElevationViewTest, TheArcsLayerHasTheViewsBoundsWhereverTheViewLies) {
  view->setFrame({30, 40, 200, 200});
  view->updateLayer();
  EXPECT_EQ(view->pathLayer()->frame(), (Rect{0, 0, 200, 200}));
}

TEST_F(MoonAzimuthElevationViewTest, TheObjectStandsAtElevationPlusNinetyDegrees) {
  view->updateLayer();
  const struct {
    float azimuth, elevation;
    Point expected;
  } places[] = {
      {90, 0, {100, 180}},           // 90 degrees, the bottom of the half circle
      {180, 0, {100, 180}},          // due south still counts as eastern
      {90, 90, {20, 100}},           // 180 degrees, the zenith
      {0, 45, {43.4315, 156.5685}},  // 135 degrees
      {180, 45, {43.4315, 156.5685}},
      {90, -90, {180, 100}},       // 0 degrees
      {90, -30, {140, 169.2820}},  // 60 degrees
  };
  for (const auto& [azimuth, elevation, expected] : places) {
    SCOPED_TRACE(std::to_string(azimuth) + ", " + std::to_string(elevation));
    view->setObjectAzimuth(azimuth, elevation);
    EXPECT_EQ(view->objectAzimuth(), azimuth);
    EXPECT_EQ(view->objectElevation(), elevation);
    expectNear(object(), expected);
  }
}

TEST_F(MoonAzimuthElevationViewTest, InTheWesternSkyTheAngleIsMirrored) {
  view->updateLayer();
  const struct {
    float azimuth, elevation;
    Point expected;
  } places[] = {
      {270, 0, {100, 20}},               // 270 degrees, the top
      {180.5F, 45, {43.4315, 43.4315}},  // 225 degrees
      {270, 90, {20, 100}},              // 180 degrees, the zenith again
      {359, -30, {140, 30.7180}},        // 300 degrees
  };
  for (const auto& [azimuth, elevation, expected] : places) {
    SCOPED_TRACE(std::to_string(azimuth) + ", " + std::to_string(elevation));
    view->setObjectAzimuth(azimuth, elevation);
    expectNear(object(), expected);
  }
}

TEST_F(MoonAzimuthElevationViewTest, TheObjectIsFadedMoreThanADegreeBelowTheHorizon) {
  view->updateLayer();
  const std::pair<float, double> opacities[] = {{45, 1}, {0, 1}, {-1, 1}, {-1.01F, 0.3}, {-90, 0.3}, {-1, 1}};
  for (const auto& [elevation, opacity] : opacities) {
    view->setObjectAzimuth(90, elevation);
    EXPECT_EQ(view->objectLayer()->opacity(), opacity) << elevation;
  }
}

TEST_F(MoonAzimuthElevationViewTest, AnObjectSetBeforeTheLayersStandIsRememberedButNotPlaced) {
  view->setObjectAzimuth(90, -30);
  view->updateLayer();
  EXPECT_TRUE(view->objectLayer()->path().isEmpty());
  EXPECT_EQ(view->objectLayer()->opacity(), 1);
  view->updateObjectPosition();
  expectNear(object(), {140, 169.2820});
}

TEST_F(MoonAzimuthElevationViewTest, UpdatingTwiceBuildsOnce) {
  view->updateLayer();
  view->setObjectAzimuth(90, 0);
  const auto path = view->pathLayer();
  const auto disc = view->objectLayer();
  view->setBackgroundColor(Color::white());
  view->updateLayer();
  EXPECT_EQ(view->pathLayer(), path);
  EXPECT_EQ(view->objectLayer(), disc);
  EXPECT_EQ(view->layer().sublayers(), (std::vector<std::shared_ptr<Layer>>{path, disc}));
  EXPECT_EQ(view->backgroundColor(), Color::white());
}

TEST_F(MoonAzimuthElevationViewTest, ResettingBuildsBothLayersAnew) {
  view->setBackgroundColor(Color::white());
  view->updateLayer();
  EXPECT_EQ(view->backgroundColor(), Color::clear());
  view->setObjectAzimuth(90, -30);
  const auto path = view->pathLayer();
  const auto disc = view->objectLayer();
  view->setStrokeColor(Color::cyan());
  view->setCircleFillColor(Color::white());
  view->setRadius(60, 90, 270);
  view->resetAndUpdateLayer();

  EXPECT_EQ(path->superlayer(), nullptr);
  EXPECT_EQ(disc->superlayer(), nullptr);
  EXPECT_EQ(view->layer().sublayers(),
            (std::vector<std::shared_ptr<Layer>>{view->pathLayer(), view->objectLayer()}));
  EXPECT_EQ(view->pathLayer()->strokeColor(), Color::cyan());
  EXPECT_EQ(view->objectLayer()->fillColor(), Color::white());
  EXPECT_EQ(view->objectLayer()->strokeColor(), Color::white());
  EXPECT_TRUE(view->objectLayer()->path().isEmpty()) << "the object has to be placed again";
  view->setObjectAzimuth(90, 0);
  expectNear(object(), {100, 160});
}

TEST_F(MoonAzimuthElevationViewTest, TheRotationPointIsTheArcsCentreInUnitsOfTheBounds) {
  view->setFrame({30, 40, 200, 400});
  view->setRadius(100, 60, 120);
  expectNear(view->rotationPoint(), {0.5, 286.6025 / 400});
}

TEST_F(MoonAzimuthElevationViewTest, AViewWithoutWidthOrHeightHasItsRotationPointInPoints) {
  for (const Rect frame : {Rect{0, 0, 0, 0}, Rect{0, 0, 0, 100}, Rect{0, 0, 100, 0}}) {
    view->setFrame(frame);
    view->setRadius(80, 90, 180);
    EXPECT_EQ(view->rotationPoint(), view->arcCenter());
    expectNear(view->rotationPoint(), {frame.width / 2 - 40, frame.height / 2 + 40});
  }
}

TEST_F(MoonAzimuthElevationViewTest, MovingTheAnchorPointLeavesTheViewInPlaceUnderAnyTransform) {
  const AffineTransform transforms[] = {
      AffineTransform::identity(), AffineTransform::rotation(0.7),
      AffineTransform::scaling(2, 0.5).concat(AffineTransform::rotation(-2)).translated(10, 20)};
  for (const AffineTransform& transform : transforms) {
    view->setTransform(transform);
    const AffineTransform before = view->layer().transformToSuperlayer();
    for (const Point anchor : {Point{0.25, 0.75}, Point{0, 0}, Point{1.5, -1}, Point{0.5, 0.5}}) {
      view->setAnchorPoint(anchor);
      EXPECT_EQ(view->layer().anchorPoint(), anchor);
      for (const Point corner : {Point{0, 0}, Point{200, 0}, Point{0, 200}}) {
        expectNear(view->layer().transformToSuperlayer().apply(corner), before.apply(corner));
      }
    }
  }
}

TEST_F(MoonAzimuthElevationViewTest, TurnsAroundItsRotationPointOnceThatIsTheAnchorPoint) {
  view->setRadius(100, 60, 120);
  const Point center = view->arcCenter();
  view->setAnchorPoint(view->rotationPoint());
  view->setTransform(AffineTransform::rotation(1.2));
  expectNear(view->layer().transformToSuperlayer().apply(center), center);
}

TEST_F(MoonAzimuthElevationViewTest, EveryChangeOfWhatIsSeenAsksToBeDrawnAgain) {
  view->updateLayer();
  drawn(*view);
  EXPECT_FALSE(view->needsDisplay());
  view->setObjectAzimuth(120, 30);
  EXPECT_TRUE(view->needsDisplay());
  drawn(*view);
  view->setAnchorPoint({0, 0});
  EXPECT_TRUE(view->needsDisplay());
  drawn(*view);
  view->resetAndUpdateLayer();
  EXPECT_TRUE(view->needsDisplay());
}

TEST_F(MoonAzimuthElevationViewTest, SharesTheCompassesGeometry) {
  EXPECT_EQ(MoonAzimuthElevationView::pointOnCircleWithCenter({1, 2}, 0, 3), (Point{4, 2}));
  EXPECT_EQ(MoonAzimuthElevationView::CGPointDistanceSquared({0, 0}, {3, 4}), 25);
  EXPECT_EQ(MoonAzimuthElevationView::CGPointDistance({0, 0}, {3, 4}), 5);
}

}  // namespace
}  // namespace velmora
