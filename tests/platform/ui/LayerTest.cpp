#include <velmora/platform/ui/Layer.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include <velmora/platform/ui/ShapeLayer.h>
#include <velmora/platform/ui/TextLayer.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::RecordingCanvas;

constexpr double quarterTurn = 1.5707963267948966;

void expectNear(Rect actual, Rect expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-9);
  EXPECT_NEAR(actual.y, expected.y, 1e-9);
  EXPECT_NEAR(actual.width, expected.width, 1e-9);
  EXPECT_NEAR(actual.height, expected.height, 1e-9);
}

std::string drawing(const Layer& layer) {
  RecordingCanvas canvas;
  layer.render(canvas);
  EXPECT_TRUE(canvas.isBalanced());
  return canvas.text();
}

TEST(Layer, ItsFrameFollowsFromBoundsPositionAndAnchorPoint) {
  Layer layer;
  layer.setBounds({0, 0, 20, 10});
  layer.setPosition({50, 40});
  EXPECT_EQ(layer.frame(), (Rect{40, 35, 20, 10}));
}

TEST(Layer, SettingTheFrameSizesTheBoundsAndCentresThePosition) {
  Layer layer;
  layer.setFrame({10, 20, 40, 30});
  EXPECT_EQ(layer.bounds(), (Rect{0, 0, 40, 30}));
  EXPECT_EQ(layer.position(), (Point{30, 35}));
  EXPECT_EQ(layer.frame(), (Rect{10, 20, 40, 30}));
}

TEST(Layer, SettingTheFrameKeepsTheOriginOfTheBounds) {
  Layer layer;
  layer.setBounds({5, 6, 1, 1});
  layer.setFrame({10, 20, 40, 30});
  EXPECT_EQ(layer.bounds(), (Rect{5, 6, 40, 30}));
  EXPECT_EQ(layer.frame(), (Rect{10, 20, 40, 30}));
}

TEST(Layer, AFrameOfNegativeSizeIsTheSameArea) {
  Layer layer;
  layer.setFrame({50, 60, -40, -30});
  EXPECT_EQ(layer.frame(), (Rect{10, 30, 40, 30}));
}

TEST(Layer, ChangingTheAnchorPointMovesTheLayerSinceThePositionStays) {
  Layer layer;
  layer.setFrame({0, 0, 100, 50});
  layer.setAnchorPoint({0, 0});
  EXPECT_EQ(layer.frame(), (Rect{50, 25, 100, 50}));
  layer.setAnchorPoint({1, 1});
  EXPECT_EQ(layer.frame(), (Rect{-50, -25, 100, 50}));
}

TEST(Layer, ShiftingThePositionWithTheAnchorPointLeavesTheLayerInPlace) {
  Layer layer;
  layer.setFrame({0, 0, 100, 50});
  layer.setPosition(layer.position() + Point{(0.25 - 0.5) * 100, (0.75 - 0.5) * 50});
  layer.setAnchorPoint({0.25, 0.75});
  EXPECT_EQ(layer.frame(), (Rect{0, 0, 100, 50}));
}

TEST(Layer, ATurnHappensAroundTheAnchorPoint) {
  Layer layer;
  layer.setFrame({0, 0, 100, 50});
  layer.setAffineTransform(AffineTransform::rotation(quarterTurn));
  expectNear(layer.frame(), {25, -25, 50, 100});
  EXPECT_EQ(layer.untransformedFrame(), (Rect{0, 0, 100, 50}));

  layer.setAnchorPoint({0, 0});
  layer.setPosition({0, 0});
  expectNear(layer.frame(), {-50, 0, 50, 100});
}

TEST(Layer, AFrameSetUnderAQuarterTurnIsTheFrameOfTheTurnedLayer) {
  Layer layer;
  layer.setAnchorPoint({0, 0.25});
  layer.setAffineTransform(AffineTransform::rotation(quarterTurn));
  layer.setFrame({10, 20, 30, 60});
  expectNear(layer.bounds(), {0, 0, 60, 30});
  expectNear(layer.frame(), {10, 20, 30, 60});
}

TEST(Layer, PlacesAreConvertedIntoItsOwnCoordinates) {
  Layer layer;
  layer.setFrame({10, 20, 40, 30});
  EXPECT_EQ(layer.convertFromSuperlayer({15, 27}), (Point{5, 7}));
  layer.setAffineTransform(AffineTransform::scaling(2, 2));
  EXPECT_EQ(layer.convertFromSuperlayer({30, 35}), (Point{20, 15})) << "the anchor point stays";
  EXPECT_EQ(layer.convertFromSuperlayer({32, 39}), (Point{21, 17}));
  layer.setAffineTransform(AffineTransform::scaling(0, 1));
  EXPECT_EQ(layer.convertFromSuperlayer({15, 27}), (Point{15, 27}));
}

TEST(Layer, RectanglesAreConvertedIntoTheLayerAbove) {
  Layer layer;
  layer.setFrame({10, 20, 40, 30});
  EXPECT_EQ(layer.convertToSuperlayer({5, 7, 10, 2}), (Rect{15, 27, 10, 2}));
  layer.setAffineTransform(AffineTransform::rotation(quarterTurn));
  expectNear(layer.convertToSuperlayer({0, 0, 40, 30}), {15, 15, 30, 40});
  expectNear(layer.convertToSuperlayer({0, 0, 10, 0}), {45, 15, 0, 10});
}

TEST(Layer, HoldsSublayersUntilTheyAreRemoved) {
  const auto upper = std::make_shared<Layer>();
  const auto lower = std::make_shared<Layer>();
  EXPECT_EQ(lower->superlayer(), nullptr);
  upper->addSublayer(lower);
  EXPECT_EQ(lower->superlayer(), upper.get());
  EXPECT_EQ(upper->sublayers(), (std::vector{lower}));
  lower->removeFromSuperlayer();
  lower->removeFromSuperlayer();
  EXPECT_EQ(lower->superlayer(), nullptr);
  EXPECT_TRUE(upper->sublayers().empty());
}

TEST(Layer, ASublayerAddedElsewhereOrAgainLeavesItsPlace) {
  Layer first;
  Layer second;
  const auto a = std::make_shared<Layer>();
  const auto b = std::make_shared<Layer>();
  first.addSublayer(a);
  first.addSublayer(b);
  first.addSublayer(a);
  EXPECT_EQ(first.sublayers(), (std::vector{b, a}));
  second.addSublayer(a);
  EXPECT_EQ(first.sublayers(), std::vector{b});
  EXPECT_EQ(a->superlayer(), &second);
}

TEST(Layer, ASublayerThatNobodyElseHoldsMayRemoveItself) {
  Layer upper;
  upper.addSublayer(std::make_shared<Layer>());
  upper.sublayers().front()->removeFromSuperlayer();
  EXPECT_TRUE(upper.sublayers().empty());
}

TEST(Layer, ASublayerOutlivesTheLayerThatHeldIt) {
  const auto lower = std::make_shared<Layer>();
  { Layer().addSublayer(lower); }
  EXPECT_EQ(lower->superlayer(), nullptr);
}

TEST(Layer, IsDrawnWithItsPlaceTurnAndSublayersInOrder) {
  Layer layer;
  layer.setFrame({10, 20, 40, 40});
  layer.setAffineTransform(AffineTransform::scaling(2, 2));
  for (const double y : {1.0, 2.0}) {
    auto line = std::make_shared<ShapeLayer>();
    line->setPath(Path::rect({0, y, 5, 1}));
    layer.addSublayer(line);
  }
  EXPECT_EQ(drawing(layer),
            "save\n"
            "concat 2 0 0 2 -10 0\n"
            "save\nconcat 1 0 0 1 0 0\nsetFillColor #000000FF\nfill rect 0 1 5 1\nrestore\n"
            "save\nconcat 1 0 0 1 0 0\nsetFillColor #000000FF\nfill rect 0 2 5 1\nrestore\n"
            "restore\n");
}

TEST(Layer, AFadedLayerIsLaidDownAsOneWithItsSublayers) {
  Layer layer;
  layer.setOpacity(0.3);
  layer.addSublayer(std::make_shared<Layer>());
  EXPECT_EQ(drawing(layer),
            "save\nconcat 1 0 0 1 0 0\nbeginGroup 0.3\n"
            "save\nconcat 1 0 0 1 0 0\nrestore\n"
            "endGroup\nrestore\n");
}

TEST(Layer, SqueezedToNothingIsNotDrawn) {
  Layer layer;
  layer.setAffineTransform(AffineTransform::scaling(0, 1));
  EXPECT_EQ(drawing(layer), "");
}

TEST(ShapeLayer, FillsBlackAndDoesNotStrokeUnlessTold) {
  ShapeLayer layer;
  layer.setPath(Path::ellipse({0, 0, 16, 16}));
  EXPECT_EQ(layer.lineWidth(), 1);
  EXPECT_EQ(drawing(layer),
            "save\nconcat 1 0 0 1 0 0\nsetFillColor #000000FF\nfill ellipse 0 0 16 16\nrestore\n");
}

TEST(ShapeLayer, StrokesAboveItsFillAndLeavesOutAClearFill) {
  ShapeLayer layer;
  layer.setFrame({5, 5, 10, 10});
  layer.setPath(Path::ellipse({0, 0, 16, 16}));
  layer.setFillColor(Color::yellow());
  layer.setStrokeColor(Color::white());
  layer.setLineWidth(6);
  EXPECT_EQ(drawing(layer),
            "save\nconcat 1 0 0 1 5 5\n"
            "setFillColor #FFFF00FF\nfill ellipse 0 0 16 16\n"
            "setStrokeColor #FFFFFFFF\nsetLineWidth 6\nstroke ellipse 0 0 16 16\nrestore\n");
  layer.setFillColor(Color::clear());
  EXPECT_EQ(drawing(layer),
            "save\nconcat 1 0 0 1 5 5\n"
            "setStrokeColor #FFFFFFFF\nsetLineWidth 6\nstroke ellipse 0 0 16 16\nrestore\n");
}

TEST(TextLayer, DrawsFromItsTopLeft) {
  TextLayer layer;
  layer.setContentsScale(3);
  layer.setAttributedText(AttributedText("N", {Font::systemFont(12), Color::white()}));
  layer.setFrame({30, 40, 20, 20});
  EXPECT_EQ(layer.contentsScale(), 3);
  EXPECT_EQ(drawing(layer),
            "save\nconcat 1 0 0 1 30 40\ndrawText \"N\" at 0 0 System 12 #FFFFFFFF\nrestore\n");
}

TEST(TextLayer, AnEmptyTextDrawsNothing) {
  EXPECT_EQ(drawing(TextLayer()), "save\nconcat 1 0 0 1 0 0\nrestore\n");
}

}  // namespace
}  // namespace velmora
