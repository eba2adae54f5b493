#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include <velmora/platform/graphics/canvas2d/Canvas2dCanvas.h>
#include <velmora/platform/graphics/canvas2d/Operations.h>

namespace velmora {
namespace {

/// How many numbers an operation has; an outline tells it itself.
std::size_t numbersOf(Operation operation, const double* next) {
  switch (operation) {
    case Operation::transform:
    case Operation::image:
    case Operation::beginGroup:
      return 6;
    case Operation::fillColor:
    case Operation::strokeColor:
      return 2;
    case Operation::lineWidth:
    case Operation::alpha:
    case Operation::blendMode:
      return 1;
    case Operation::lineDash:
      return 2 + static_cast<std::size_t>(next[1]);
    case Operation::fillRect:
    case Operation::clearRect:
    case Operation::glyph:
      return 4;
    case Operation::text:
      return 3;
    case Operation::fill:
    case Operation::stroke:
    case Operation::clip:
    case Operation::clear: {
      constexpr std::size_t numbersOfStep[] = {3, 3, 7, 1};
      std::size_t count = 1;
      for (double step = 0; step < next[0]; ++step)
        count += numbersOfStep[static_cast<std::size_t>(next[count])];
      return count;
    }
    default:
      return 0;
  }
}

/// An operation as a list tells it.
struct Told {
  Operation operation;
  std::vector<double> numbers;
};

std::vector<Told> toldBy(Canvas2dCanvas& canvas) {
  const std::vector<double>& list = canvas.operations();
  std::vector<Told> told;
  for (std::size_t at = 0; at < list.size();) {
    const auto operation = static_cast<Operation>(list[at++]);
    const std::size_t count = numbersOf(operation, list.data() + at);
    const auto begin = list.begin() + static_cast<std::ptrdiff_t>(at);
    told.push_back({operation, {begin, begin + static_cast<std::ptrdiff_t>(count)}});
    at += count;
  }
  return told;
}

constexpr Size size = {100, 80};
constexpr double scale = 2;
constexpr Rect square = {10, 20, 30, 30};

class Canvas2dCanvasTest : public ::testing::Test {
 protected:
  std::vector<Operation> operations() {
    std::vector<Operation> found;
    for (const Told& told : toldBy(canvas)) found.push_back(told.operation);
    return found;
  }

  std::size_t count(Operation operation) {
    const std::vector<Operation> all = operations();
    return static_cast<std::size_t>(std::count(all.begin(), all.end(), operation));
  }

  /// The numbers of the first operation of its kind.
  std::vector<double> numbers(Operation operation) {
    for (const Told& told : toldBy(canvas)) {
      if (told.operation == operation) return told.numbers;
    }
    ADD_FAILURE() << "it is not in the list";
    return {};
  }

  bool isLayer() { return numbers(Operation::beginGroup).at(0) == 1; }

  Canvas2dCanvas canvas{size, scale};
};

TEST_F(Canvas2dCanvasTest, AGroupThatOnlyPaintsIsDrawnThrough) {
  canvas.fillRect(square);
  canvas.beginGroup(1);
  canvas.fillRect(square);
  canvas.endGroup();
  EXPECT_FALSE(isLayer());
}

TEST_F(Canvas2dCanvasTest, AGroupThatClearsItsOwnPaintOverOtherIsALayerAsLargeAsItsClip) {
  canvas.fillRect(square);
  canvas.clip(Path::rect(square));
  canvas.beginGroup(1);
  canvas.fillRect(square);
  canvas.clearRect({20, 30, 5, 5});
  canvas.endGroup();
  EXPECT_EQ(numbers(Operation::beginGroup), (std::vector<double>{1, 1, 20, 40, 60, 60}));
}

TEST_F(Canvas2dCanvasTest, AGroupWithNothingBelowIsDrawnThroughThoughItClears) {
  canvas.fillRect({60, 60, 10, 10});
  canvas.clip(Path::rect(square));
  canvas.beginGroup(1);
  canvas.fillRect(square);
  canvas.clearRect({20, 30, 5, 5});
  canvas.endGroup();
  EXPECT_FALSE(isLayer());
  EXPECT_EQ(count(Operation::clearRect), 1U);
}

TEST_F(Canvas2dCanvasTest, AGroupThatOverlaysOverPaintIsALayer) {
  canvas.fillRect(square);
  canvas.beginGroup(1);
  canvas.setBlendMode(BlendMode::overlay);
  canvas.fillRect(square);
  canvas.endGroup();
  EXPECT_TRUE(isLayer());
}

TEST_F(Canvas2dCanvasTest, AFadedGroupIsALayer) {
  canvas.beginGroup(0.5);
  canvas.fillRect(square);
  canvas.endGroup();
  EXPECT_TRUE(isLayer());
  EXPECT_EQ(numbers(Operation::beginGroup).at(1), 0.5);
}

TEST_F(Canvas2dCanvasTest, ClearingWhereNothingIsPaintedIsLeftOut) {
  canvas.fillRect(square);
  canvas.clearRect({60, 60, 10, 10});
  EXPECT_EQ(operations(), std::vector{Operation::fillRect});
}

TEST_F(Canvas2dCanvasTest, AHoleThatTheSamePathFillsAtOnceIsNoHole) {
  canvas.fillEllipse(square);
  canvas.setBlendMode(BlendMode::clear);
  canvas.fillEllipse({15, 20, 25, 30});
  canvas.setBlendMode(BlendMode::normal);
  canvas.setFillColor(Color::purple());
  canvas.fillEllipse({15, 20, 25, 30});
  EXPECT_EQ(operations(), (std::vector{Operation::fill, Operation::fillColor, Operation::fill}));
}

TEST_F(Canvas2dCanvasTest, AHoleStaysUnderATranslucentColour) {
  canvas.fillEllipse(square);
  canvas.setBlendMode(BlendMode::clear);
  canvas.fillEllipse(square);
  canvas.setBlendMode(BlendMode::normal);
  canvas.setFillColor({1, 0, 0, 0.5});
  canvas.fillEllipse(square);
  EXPECT_EQ(count(Operation::clear), 1U);
}

TEST_F(Canvas2dCanvasTest, AHoleLiesInTheFrameInWhichItWasCut) {
  canvas.fillRect(square);
  canvas.clearRect(square);
  canvas.translate(5, 5);
  canvas.fillRect(square);
  EXPECT_EQ(operations(), (std::vector{Operation::fillRect, Operation::clearRect, Operation::transform,
                                       Operation::fillRect}));
}

TEST_F(Canvas2dCanvasTest, AColourIsToldOnceAndAgainAfterTheStateWasPutBack) {
  canvas.save();
  canvas.setFillColor(Color::cyan());
  canvas.fillRect(square);
  canvas.fillRect(square);
  canvas.restore();
  canvas.setFillColor(Color::cyan());
  canvas.fillRect(square);
  EXPECT_EQ(count(Operation::fillColor), 2U);
  EXPECT_EQ(numbers(Operation::fillColor), (std::vector<double>{0x00FFFF, 1}));
}

TEST_F(Canvas2dCanvasTest, ACleanStateOfAGroupIsThatOfBeforeAfterwards) {
  canvas.setAlpha(0.25);
  canvas.fillRect(square);
  canvas.beginGroup(1);
  canvas.fillRect(square);
  canvas.endGroup();
  canvas.fillRect(square);
  EXPECT_EQ(operations(),
            (std::vector{Operation::alpha, Operation::fillRect, Operation::beginGroup, Operation::alpha,
                         Operation::fillRect, Operation::endGroup, Operation::fillRect}));
}

TEST_F(Canvas2dCanvasTest, NothingIsToldOfWhatLiesOutsideTheClip) {
  canvas.clip(Path::rect({0, 0, 5, 5}));
  canvas.fillRect(square);
  canvas.strokeEllipse(square);
  EXPECT_EQ(operations(), std::vector{Operation::clip});
}

TEST_F(Canvas2dCanvasTest, AFrameWithoutAreaShowsNothingUntilItIsPutBack) {
  canvas.save();
  canvas.scale(0, 1);
  canvas.fillRect(square);
  canvas.scale(NAN, 1);
  canvas.fillRect(square);
  canvas.restore();
  canvas.fillRect(square);
  EXPECT_EQ(operations(), std::vector{Operation::fillRect});
}

TEST_F(Canvas2dCanvasTest, ALineWithoutWidthIsNotDrawn) {
  canvas.setLineWidth(0);
  canvas.strokeEllipse(square);
  EXPECT_TRUE(operations().empty());
}

TEST_F(Canvas2dCanvasTest, WhatIsStillOpenEndsWithTheList) {
  canvas.save();
  canvas.beginGroup(1);
  canvas.save();
  canvas.fillRect(square);
  EXPECT_EQ(operations(),
            (std::vector{Operation::save, Operation::beginGroup, Operation::save, Operation::fillRect,
                         Operation::restore, Operation::endGroup, Operation::restore}));
}

TEST_F(Canvas2dCanvasTest, ARestoreOrAnEndWithoutABeginningDoesNothing) {
  canvas.restore();
  canvas.endGroup();
  canvas.beginGroup(1);
  canvas.fillRect(square);
  canvas.restore();
  canvas.endGroup();
  EXPECT_EQ(operations(), (std::vector{Operation::beginGroup, Operation::fillRect, Operation::endGroup}));
}

TEST_F(Canvas2dCanvasTest, NothingIsToldOfAStateInWhichNothingIsPainted) {
  canvas.save();
  canvas.clip(Path::rect({0, 0, 5, 5}));
  canvas.translate(1, 1);
  canvas.beginGroup(0.5);
  canvas.fillRect(square);
  canvas.endGroup();
  canvas.restore();
  EXPECT_TRUE(operations().empty());
}

TEST_F(Canvas2dCanvasTest, AHoleIsToldThoughNothingIsPaintedAfterIt) {
  canvas.fillRect(square);
  canvas.save();
  canvas.translate(1, 1);
  canvas.clearRect({20, 30, 5, 5});
  canvas.restore();
  EXPECT_EQ(operations(), (std::vector{Operation::fillRect, Operation::save, Operation::transform,
                                       Operation::clearRect, Operation::restore}));
}

TEST_F(Canvas2dCanvasTest, AnOutlineIsToldStepByStep) {
  Path path;
  path.moveTo({1, 2});
  path.lineTo({3, 4});
  path.close();
  canvas.fill(path);
  EXPECT_EQ(numbers(Operation::fill), (std::vector<double>{3, 0, 1, 2, 1, 3, 4, 3}));
}

TEST_F(Canvas2dCanvasTest, LengthsOfDashesThatAreNoneMakeASolidLine) {
  canvas.setLineDash({2, 4}, 1);
  canvas.setLineDash({0, 0}, 0);
  const std::vector<Told> told = toldBy(canvas);
  EXPECT_EQ(told.at(0).numbers, (std::vector<double>{1, 2, 2, 4}));
  EXPECT_EQ(told.at(1).numbers, (std::vector<double>{0, 0}));
}

/// In which squares of 64 pixels the drawings differ, of a canvas of 4 by 3.
std::vector<std::size_t> differing(const std::function<void(Canvas&)>& one,
                                   const std::function<void(Canvas&)>& other) {
  Canvas2dCanvas first(size, scale), second(size, scale);
  one(first);
  other(second);
  const std::vector<double> before = first.squares(), after = second.squares();
  EXPECT_EQ(before.size(), 12U);
  std::vector<std::size_t> found;
  for (std::size_t at = 0; at < before.size(); ++at) {
    if (before.at(at) != after.at(at)) found.push_back(at);
  }
  return found;
}

TEST(CanvasSquares, AreThoseOfWhatChanged) {
  const auto drawn = [](const Color& color) {
    return [color](Canvas& canvas) {
      canvas.fillRect({0, 0, 100, 80});
      canvas.save();
      canvas.setFillColor(color);
      canvas.fillRect({40, 5, 20, 20});
      canvas.restore();
      canvas.fillRect({70, 70, 5, 5});
    };
  };
  EXPECT_TRUE(differing(drawn(Color::white()), drawn(Color::white())).empty());
  EXPECT_EQ(differing(drawn(Color::white()), drawn(Color::black())), (std::vector<std::size_t>{1}));
}

TEST(CanvasSquares, AreThoseOfWhatIsThereAloneInOneDrawing) {
  const auto nothing = [](Canvas&) {};
  EXPECT_EQ(differing(nothing,
                      [](Canvas& canvas) {
                        canvas.fillRect({30, 30, 4, 4});
                      }),
            (std::vector<std::size_t>{0, 1, 4, 5}));
}

TEST(CanvasSquares, FollowClipsDashesFramesAndFading) {
  const auto line = [](Canvas& canvas) { canvas.strokeLine({1, 5}, {20, 5}); };
  const auto after = [&](const std::function<void(Canvas&)>& change) {
    return differing(line, [&](Canvas& canvas) {
      change(canvas);
      line(canvas);
    });
  };
  const std::vector<std::size_t> first = {0};
  EXPECT_EQ(after([](Canvas& canvas) { canvas.clip(Path::rect({0, 0, 10, 10})); }), first);
  EXPECT_EQ(after([](Canvas& canvas) { canvas.setLineDash({1, 2}, 0); }), first);
  EXPECT_EQ(after([](Canvas& canvas) { canvas.translate(1, 0); }), first);
  EXPECT_EQ(after([](Canvas& canvas) { canvas.beginGroup(0.5); }), first);
}

TEST(CanvasSquares, AreOtherWhereWhatLiesAboveIsBelow) {
  const auto inOrder = [](double one, double other) {
    return [=](Canvas& canvas) {
      for (const double white : {one, other}) {
        canvas.setFillColor(Color::withWhite(white, 1));
        canvas.fillRect({1, 1, 10, 10});
      }
    };
  };
  EXPECT_EQ(differing(inOrder(0, 1), inOrder(1, 0)), (std::vector<std::size_t>{0}));
}

}  // namespace
}  // namespace velmora
