#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <sstream>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/resources/Image.h>

#include "tests/platform/graphics/Pixels.h"

namespace velmora {
namespace {

using testing::Pixels;

const Color red = {1, 0, 0, 1};
const Color blue = {0, 0, 1, 1};
constexpr Rect whole = {0, 0, 20, 20};
constexpr Rect middle = {5, 5, 10, 10};

std::shared_ptr<const Image> blackSquare() {
  CairoCanvas canvas(PictureFormat::png, {4, 4});
  canvas.fillRect({0, 0, 4, 4});
  std::ostringstream png;
  EXPECT_EQ(canvas.write(png), std::nullopt);
  return Image::fromBytes("black square", png.str());
}

class CanvasPixelsTest : public ::testing::Test {
 protected:
  Pixels picture{{20, 20}};
  CairoCanvas& canvas = picture.canvas;
};

TEST_F(CanvasPixelsTest, ANewPictureIsTransparent) { EXPECT_EQ(picture.coverage(), 0); }

TEST_F(CanvasPixelsTest, FillsWithTheFillColour) {
  canvas.setFillColor(red);
  canvas.setStrokeColor(blue);
  canvas.fillRect(middle);
  EXPECT_EQ(picture.at(10, 10), "#FF0000FF");
  EXPECT_EQ(picture.at(4, 10), "#00000000");
  EXPECT_EQ(picture.inkBox(), middle);
}

TEST_F(CanvasPixelsTest, StrokesInTheMiddleOfThePath) {
  canvas.setStrokeColor(blue);
  canvas.setLineWidth(2);
  canvas.strokeLine({5, 10}, {15, 10});
  EXPECT_EQ(picture.inkBox(), (Rect{5, 9, 10, 2}));
  EXPECT_EQ(picture.at(10, 10), "#0000FFFF");
}

TEST_F(CanvasPixelsTest, DashesBeginWithALine) {
  canvas.setLineWidth(2);
  canvas.setLineDash({3, 3});
  canvas.strokeLine({0, 10}, {20, 10});
  EXPECT_EQ(picture.at(1, 10), "#000000FF");
  EXPECT_EQ(picture.at(4, 10), "#00000000");
  EXPECT_EQ(picture.at(7, 10), "#000000FF");
  canvas.setLineDash({});
  canvas.strokeLine({0, 10}, {20, 10});
  EXPECT_EQ(picture.at(4, 10), "#000000FF");
}

TEST_F(CanvasPixelsTest, ADashThatCannotBeDrawnIsASolidLine) {
  for (const std::vector<double>& dash : {std::vector<double>{0, 0}, {-1, 3}, {std::nan(""), 1}}) {
    canvas.setLineDash({3, 3});
    canvas.setLineDash(dash);
    canvas.strokeLine({0, 10}, {20, 10});
    EXPECT_EQ(canvas.error(), std::nullopt);
    EXPECT_NE(picture.at(4, 10), "#00000000");
    canvas.clearRect(whole);
  }
}

TEST_F(CanvasPixelsTest, OverlappingFiguresOfAPathMakeAUnion) {
  Path path = Path::ellipse({4, 0, 12, 20});
  path.addRect({10, 0, 10, 20});
  canvas.fill(path);
  EXPECT_EQ(picture.at(12, 10), "#000000FF");
  EXPECT_EQ(picture.at(6, 10), "#000000FF");
  EXPECT_EQ(picture.at(19, 1), "#000000FF");
}

TEST_F(CanvasPixelsTest, AnEllipseCoversItsArea) {
  canvas.fillEllipse({2, 3, 16, 10});
  EXPECT_NEAR(picture.coverage(), std::numbers::pi * 8 * 5, 1);
  EXPECT_EQ(picture.inkBox(), (Rect{2, 3, 16, 10}));
}

TEST_F(CanvasPixelsTest, ANegativeWidthDrawsTheSameEllipse) {
  canvas.fillEllipse({18, 3, -16, 10});
  EXPECT_NEAR(picture.coverage(), std::numbers::pi * 8 * 5, 1);
  EXPECT_EQ(picture.inkBox(), (Rect{2, 3, 16, 10}));
}

TEST_F(CanvasPixelsTest, AnEllipseOfNoWidthDrawsNothingAndHarmsNothing) {
  canvas.fillEllipse({10, 0, 0, 20});
  EXPECT_EQ(picture.coverage(), 0);
  EXPECT_EQ(canvas.error(), std::nullopt);
}

TEST_F(CanvasPixelsTest, CoordinatesThatAreNoNumbersDrawNothing) {
  const double none = std::nan(""), infinity = INFINITY;
  canvas.fillRect({none, 0, 10, 10});
  canvas.fillEllipse({0, 0, infinity, 10});
  canvas.strokeLine({0, 0}, {none, 10});
  canvas.setLineWidth(none);
  const TextLayout text(AttributedText("14"));
  for (const Point topLeft : {Point{none, 5}, {5, none}, {infinity, 5}, {5, -infinity}}) {
    text.drawAtPoint(canvas, topLeft);
    text.drawGlyph(canvas, 1, topLeft);
  }
  EXPECT_EQ(picture.coverage(), 0);
  EXPECT_EQ(canvas.error(), std::nullopt);
}

TEST(CanvasImage, InARectangleOfNoFiniteAreaDrawsNothing) {
  const double none = std::nan(""), infinity = INFINITY;
  const auto image = blackSquare();
  for (const Rect rect : {Rect{none, 0, 10, 10},
                          {0, infinity, 10, 10},
                          {0, 0, infinity, 10},
                          {0, 0, 10, none},
                          {0, 0, 1e200, 1e200},
                          {0, 0, 1e-200, 1e-200},
                          {0, 0, 1e-200, 10},
                          {0, 0, 1e-160, 1e-160},
                          {0, 0, 1e160, 1e-160},
                          {1e300, 0, 10, 10},
                          {0, 0, 0, 10}}) {
    Pixels picture({20, 20});
    picture.canvas.drawImage(*image, rect);
    EXPECT_EQ(picture.canvas.error(), std::nullopt) << rect.x << " " << rect.width << " " << rect.height;
    EXPECT_EQ(picture.coverage(), 0) << rect.x << " " << rect.width << " " << rect.height;
  }
}

TEST_F(CanvasPixelsTest, ClearLeavesTransparencyOnlyWhereTheShapeCovers) {
  canvas.setFillColor(red);
  canvas.fillRect(whole);
  canvas.setBlendMode(BlendMode::clear);
  canvas.setAlpha(0.5);
  canvas.setFillColor(Color::clear());
  canvas.fillRect(middle);
  EXPECT_EQ(picture.at(10, 10), "#00000000");
  EXPECT_EQ(picture.at(4, 10), "#FF0000FF");
  EXPECT_EQ(picture.at(15, 10), "#FF0000FF");
}

TEST_F(CanvasPixelsTest, WhatAGroupPaintedCanBeClearedAfterIt) {
  canvas.beginGroup(0.5);
  canvas.fillRect(whole);
  canvas.endGroup();
  canvas.clearRect(middle);
  EXPECT_EQ(picture.at(10, 10), "#00000000");
  EXPECT_EQ(picture.at(4, 10), "#00000080");
}

TEST_F(CanvasPixelsTest, ClearStaysInsideTheClip) {
  canvas.fillRect(whole);
  canvas.clip(Path::rect({0, 0, 10, 20}));
  canvas.setBlendMode(BlendMode::clear);
  canvas.fillRect(middle);
  EXPECT_EQ(picture.at(8, 10), "#00000000");
  EXPECT_EQ(picture.at(12, 10), "#000000FF");
}

TEST_F(CanvasPixelsTest, ClearingARectangleIgnoresBlendModeAndAlpha) {
  canvas.fillRect(whole);
  canvas.setBlendMode(BlendMode::overlay);
  canvas.setAlpha(0.1);
  canvas.clearRect(middle);
  EXPECT_EQ(picture.at(10, 10), "#00000000");
  EXPECT_EQ(picture.at(4, 10), "#000000FF");
}

TEST_F(CanvasPixelsTest, OverlayOnATransparentPicturePaintsAsNormalDoes) {
  canvas.setBlendMode(BlendMode::overlay);
  canvas.setFillColor(Color::withWhite(0.8, 1));
  canvas.fillRect(middle);
  EXPECT_EQ(picture.at(10, 10), "#CCCCCCFF");
}

TEST_F(CanvasPixelsTest, OverlayMultipliesDarkAndScreensLightBackdrops) {
  canvas.setFillColor(Color::withWhite(0.2, 1));
  canvas.fillRect({0, 0, 10, 20});
  canvas.setFillColor(Color::withWhite(0.8, 1));
  canvas.fillRect({10, 0, 10, 20});
  canvas.setBlendMode(BlendMode::overlay);
  canvas.setFillColor(Color::withWhite(0.4, 1));
  canvas.fillRect(whole);
  EXPECT_EQ(picture.at(5, 10), "#292929FF");   // 2 · 0.2 · 0.4
  EXPECT_EQ(picture.at(15, 10), "#C2C2C2FF");  // 1 − 2 · 0.2 · 0.6
}

TEST_F(CanvasPixelsTest, AlphaMultipliesTheColours) {
  canvas.setAlpha(0.5);
  canvas.setFillColor({1, 1, 1, 0.5});
  canvas.fillRect(middle);
  EXPECT_EQ(picture.at(10, 10), "#40404040");
}

TEST_F(CanvasPixelsTest, RestoreBringsEverythingBack) {
  canvas.setFillColor(red);
  canvas.save();
  canvas.setFillColor(blue);
  canvas.setAlpha(0.1);
  canvas.setBlendMode(BlendMode::clear);
  canvas.translate(100, 100);
  canvas.clip(Path::rect({0, 0, 1, 1}));
  canvas.setLineWidth(9);
  canvas.restore();
  canvas.fillRect(middle);
  EXPECT_EQ(picture.at(10, 10), "#FF0000FF");
  canvas.clearRect(whole);
  canvas.strokeLine({5, 9.5}, {15, 9.5});
  EXPECT_EQ(picture.inkBox(), (Rect{5, 9, 10, 1}));
}

TEST_F(CanvasPixelsTest, RestoresAndGroupEndsWithoutABeginningDoNothing) {
  canvas.restore();
  canvas.endGroup();
  canvas.beginGroup(0.5);
  canvas.restore();
  canvas.fillRect(middle);
  canvas.endGroup();
  EXPECT_EQ(picture.at(10, 10), "#00000080");
  EXPECT_EQ(canvas.error(), std::nullopt);
}

TEST_F(CanvasPixelsTest, FramesAreShiftedTurnedAndScaled) {
  canvas.translate(10, 10);
  canvas.rotate(std::numbers::pi / 2);
  canvas.scale(2, 1);
  canvas.fillRect({0, 0, 3, 4});
  EXPECT_EQ(picture.inkBox(), (Rect{6, 10, 4, 6}));
}

TEST_F(CanvasPixelsTest, AFrameThatHasNoAreaShowsNothingUntilItIsRestored) {
  canvas.save();
  canvas.scale(0, 1);
  canvas.fillRect(middle);
  canvas.strokeEllipse(middle);
  canvas.concat({std::nan(""), 0, 0, 1, 0, 0});
  canvas.fillRect(middle);
  canvas.restore();
  EXPECT_EQ(picture.coverage(), 0);
  canvas.fillRect(middle);
  EXPECT_EQ(picture.inkBox(), middle);
  EXPECT_EQ(canvas.error(), std::nullopt);
}

TEST_F(CanvasPixelsTest, AGroupBesideWhatIsPaintedClearsOnlyItself) {
  canvas.setFillColor(red);
  canvas.fillRect({0, 0, 10, 20});
  canvas.save();
  canvas.clip(Path::rect({10, 0, 10, 20}));
  canvas.beginGroup(1);
  canvas.setFillColor(blue);
  canvas.fillRect(whole);
  canvas.clearRect({5, 5, 10, 10});
  canvas.endGroup();
  canvas.restore();
  EXPECT_EQ(picture.at(7, 10), "#FF0000FF");
  EXPECT_EQ(picture.at(12, 10), "#00000000");
  EXPECT_EQ(picture.at(17, 10), "#0000FFFF");
}

TEST_F(CanvasPixelsTest, AGroupIsLaidDownAsOne) {
  canvas.setFillColor(Color::white());
  canvas.fillRect(whole);
  canvas.setFillColor(Color::black());
  canvas.beginGroup(0.5);
  canvas.fillRect({0, 0, 12, 20});
  canvas.fillRect({8, 0, 12, 20});
  canvas.endGroup();
  EXPECT_EQ(picture.at(4, 10), picture.at(10, 10));
  EXPECT_EQ(picture.at(10, 10), "#7F7F7FFF");
}

TEST_F(CanvasPixelsTest, ClearingInAGroupReachesOnlyTheGroup) {
  for (const double alpha : {1.0, 0.5}) {
    canvas.setFillColor(red);
    canvas.fillRect(whole);
    canvas.beginGroup(alpha);
    canvas.setFillColor(blue);
    canvas.fillRect(whole);
    canvas.clearRect(middle);
    canvas.endGroup();
    EXPECT_EQ(picture.at(10, 10), "#FF0000FF") << alpha;
    EXPECT_NE(picture.at(2, 10), "#FF0000FF") << alpha;
  }
}

TEST_F(CanvasPixelsTest, AGroupOnABlankPictureClearsOnlyItself) {
  canvas.beginGroup(1);
  canvas.fillRect(whole);
  canvas.beginGroup(1);
  canvas.setFillColor(red);
  canvas.fillRect(middle);
  canvas.clearRect({5, 5, 5, 10});
  canvas.endGroup();
  canvas.endGroup();
  EXPECT_EQ(picture.at(7, 10), "#000000FF");
  EXPECT_EQ(picture.at(12, 10), "#FF0000FF");
}

TEST_F(CanvasPixelsTest, AGroupBeginsWithFullAlphaAndGivesTheStateBack) {
  canvas.setAlpha(0.5);
  canvas.setFillColor(red);
  canvas.beginGroup(1);
  canvas.fillRect({0, 0, 10, 20});
  canvas.setFillColor(blue);
  canvas.translate(5, 0);
  canvas.endGroup();
  canvas.fillRect({10, 0, 10, 20});
  EXPECT_EQ(picture.at(5, 10), "#FF0000FF");
  EXPECT_EQ(picture.at(12, 10), "#80000080");
}

TEST_F(CanvasPixelsTest, AGroupEndsTheSavesLeftOpenInIt) {
  canvas.beginGroup(1);
  canvas.save();
  canvas.translate(100, 0);
  canvas.endGroup();
  canvas.fillRect(middle);
  EXPECT_EQ(picture.inkBox(), middle);
}

TEST_F(CanvasPixelsTest, ADiscWithAHoleFilledDarkKeepsItsOutline) {
  canvas.clip(Path::ellipse(whole));
  canvas.setFillColor(Color::white());
  canvas.fillEllipse(whole);
  canvas.setBlendMode(BlendMode::clear);
  canvas.fillEllipse({0, 0, 10, 20});
  canvas.setBlendMode(BlendMode::normal);
  canvas.setFillColor({0, 0, 0, 0.25});
  canvas.fillEllipse({0, 0, 10, 20});
  EXPECT_EQ(picture.at(5, 10), "#00000040");
  EXPECT_EQ(picture.at(15, 10), "#FFFFFFFF");
}

TEST(CanvasScale, APointHasAsManyPixelsAsTheScaleSays) {
  Pixels picture({10, 10}, 3);
  picture.canvas.fillRect({1, 2, 3, 4});
  EXPECT_EQ(picture.inkBox(), (Rect{3, 6, 9, 12}));
}

}  // namespace
}  // namespace velmora
