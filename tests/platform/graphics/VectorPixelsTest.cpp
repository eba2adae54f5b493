#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <velmora/platform/graphics/TextLayout.h>

#include "tests/platform/graphics/WrittenPicture.h"

namespace velmora {
namespace {

using testing::holdsImage;
using testing::written;

constexpr Rect openRoom = {20, 20, 30, 20};

/// What clears along a shape that cannot be filled with what lies below.
const std::vector<std::pair<const char*, std::function<void(Canvas&)>>>& clearedShapes() {
  static const std::vector<std::pair<const char*, std::function<void(Canvas&)>>> all = {
      {"a straight line",
       [](Canvas& canvas) {
         canvas.strokeLine({10, 10}, {40, 40});
       }},
      {"a round line", [](Canvas& canvas) { canvas.strokeEllipse(openRoom); }},
      {"a text", [](Canvas& canvas) {
         TextLayout(AttributedText("14")).drawAtPoint(canvas, {20, 20});
       }}};
  return all;
}

TEST(VectorPixels, AreMadeOfThePageForAClearedLineOrText) {
  for (const PictureFormat format : {PictureFormat::svg, PictureFormat::pdf}) {
    for (const auto& [name, draw] : clearedShapes()) {
      for (const bool isPainted : {true, false}) {
        CairoCanvas canvas(format, {100, 50});
        if (isPainted) canvas.fillRect({0, 0, 100, 50});
        canvas.setBlendMode(BlendMode::clear);
        draw(canvas);
        EXPECT_EQ(holdsImage(written(canvas)), isPainted) << name;
        EXPECT_EQ(canvas.becamePixels(), isPainted) << name;
      }
    }
  }
}

void makePixelsOfThePage(Canvas& canvas) {
  canvas.fillRect({0, 0, 100, 50});
  canvas.clearRect(openRoom);
  canvas.save();  // ends the wait for what covers the hole
  canvas.translate(1, 1);
  canvas.restore();
}

void overlayEllipse(Canvas& canvas, Rect box) {
  canvas.save();
  canvas.setBlendMode(BlendMode::overlay);
  canvas.fillEllipse(box);
  canvas.restore();
}

void expectTooManyPixels(CairoCanvas& canvas) {
  std::ostringstream output;
  for (const auto& failure : {canvas.error(), canvas.write(output)}) {
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->kind, PictureError::Kind::size);
    EXPECT_EQ(failure->message,
              "the picture cannot stay vector and would be made of more than 64 million pixels; "
              "accepted: a smaller size, or an opaque background");
  }
  EXPECT_TRUE(output.str().empty());
}

TEST(VectorPixels, AreAtMost64Million) {
  for (const PictureFormat format : {PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas page(format, {1919, 1920}), largerPage(format, {1921, 1920}),
        largestPage(format, {16384, 16384});
    for (CairoCanvas* canvas : {&page, &largerPage, &largestPage}) makePixelsOfThePage(*canvas);
    EXPECT_EQ(page.error(), std::nullopt);
    expectTooManyPixels(largerPage);
    expectTooManyPixels(largestPage);

    CairoCanvas overlaid(format, {2001, 2000}), hugeOverlaid(format, {16384, 16384});
    overlayEllipse(overlaid, {0, 0, 2001, 2000});
    expectTooManyPixels(overlaid);
    overlayEllipse(hugeOverlaid, {0, 0, 16384, 16384});
    expectTooManyPixels(hugeOverlaid);
  }
}

TEST(VectorPixels, OfThePageAndOfEachOverlayCountTogether) {
  CairoCanvas canvas(PictureFormat::svg, {1905, 1905});
  overlayEllipse(canvas, {0, 0, 200, 200});
  makePixelsOfThePage(canvas);
  EXPECT_EQ(canvas.error(), std::nullopt);
  overlayEllipse(canvas, {0, 0, 200, 200});
  expectTooManyPixels(canvas);
}

TEST(VectorPixels, OfOverlayOrOfAPngAreNoPage) {
  CairoCanvas svg(PictureFormat::svg, {100, 50}), png(PictureFormat::png, {100, 50});
  for (CairoCanvas* canvas : {&svg, &png}) {
    canvas->fillRect({0, 0, 100, 50});
    canvas->setBlendMode(BlendMode::overlay);
    canvas->fillEllipse({20, 20, 10, 10});
  }
  png.clearRect(openRoom);
  for (CairoCanvas* canvas : {&svg, &png}) {
    written(*canvas);
    EXPECT_FALSE(canvas->becamePixels());
  }
}

TEST(VectorPixels, AreMadeOfALongPageAsWell) {
  for (const PictureFormat format : {PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas canvas(format, {16384, 4});
    canvas.fillRect({0, 0, 16384, 4});
    canvas.clearRect({1, 1, 2, 2});
    EXPECT_TRUE(holdsImage(written(canvas)));
  }
}

}  // namespace
}  // namespace velmora
