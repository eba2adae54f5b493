#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/resources/Image.h>

#include "tests/platform/graphics/WrittenPicture.h"

namespace velmora {
namespace {

using testing::comparable;
using testing::drawCrescent;
using testing::holdsImage;
using testing::written;

constexpr Rect hole = {20, 20, 30, 20};
const Color background = {0.9, 0.9, 1, 1}, below = {0.1, 0.1, 0.2, 1};

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::string crescents(PictureFormat format, const Color& dark) {
  CairoCanvas canvas(format, {100, 50});
  for (const double left : {0.0, 50.0}) {
    canvas.beginGroup(1);
    canvas.clearRect({left, 0, 50, 50});
    drawCrescent(canvas, {left + 5, 5, 40, 40}, dark);
    canvas.endGroup();
  }
  return written(canvas);
}

TEST(VectorPicture, ACrescentStaysVectorInSvg) {
  const std::string svg = crescents(PictureFormat::svg, {0.05, 0.05, 0.1, 1});
  EXPECT_TRUE(contains(svg, "<svg"));
  EXPECT_TRUE(contains(svg, "<path"));
  EXPECT_FALSE(contains(svg, "<image"));
  EXPECT_TRUE(contains(svg, "width=\"100px\""));
}

TEST(VectorPicture, ACrescentStaysVectorInPdf) {
  const std::string pdf = crescents(PictureFormat::pdf, {0.05, 0.05, 0.1, 1});
  EXPECT_EQ(pdf.substr(0, 4), "%PDF");
  EXPECT_FALSE(contains(pdf, "/Subtype /Image"));
}

TEST(VectorPicture, AHoleFilledWithATranslucentColourShowsThroughInSvg) {
  const std::string svg = crescents(PictureFormat::svg, {0.05, 0.05, 0.1, 0.3});
  EXPECT_TRUE(contains(svg, "<image"));
}

TEST(VectorPicture, AHoleFilledWithAFadedColourShowsThroughInSvg) {
  CairoCanvas canvas(PictureFormat::svg, {100, 50});
  canvas.fillRect({0, 0, 100, 50});
  canvas.clearRect(hole);
  canvas.setAlpha(0.5);
  canvas.fillRect(hole);
  EXPECT_TRUE(contains(written(canvas), "<image"));
}

/// What follows a hole, and must change nothing about it.
const std::vector<std::pair<const char*, std::function<void(Canvas&)>>>& whatFollowsAHole() {
  static const std::vector<std::pair<const char*, std::function<void(Canvas&)>>> all = {
      {"nothing", [](Canvas&) {}},
      {"a figure over it",
       [](Canvas& canvas) {
         canvas.fillRect({30, 10, 30, 20});
       }},
      {"a translucent figure that fills it",
       [](Canvas& canvas) {
         canvas.setFillColor({0, 0, 0, 0.5});
         canvas.fillRect(hole);
       }},
      {"the end of its frame",
       [](Canvas& canvas) {
         canvas.restore();
         canvas.fillRect({30, 10, 30, 20});
       }},
      {"a figure that would fill it in its frame",
       [](Canvas& canvas) {
         canvas.translate(15, 0);
         canvas.fillRect(hole);
       }},
      {"a clip",
       [](Canvas& canvas) {
         canvas.clip(Path::rect({0, 0, 30, 50}));
         canvas.fillRect({0, 0, 100, 15});
       }},
      {"a layer",
       [](Canvas& canvas) {
         canvas.beginGroup(0.5);
         canvas.fillRect({30, 10, 30, 20});
         canvas.endGroup();
       }},
      {"a line",
       [](Canvas& canvas) {
         canvas.strokeLine({0, 0}, {100, 50});
       }},
      {"a text",
       [](Canvas& canvas) {
         TextLayout(AttributedText("14")).drawAtPoint(canvas, {20, 20});
       }},
      {"another hole", [](Canvas& canvas) {
         canvas.clearRect({0, 0, 10, 10});
       }}};
  return all;
}

TEST(VectorPicture, AHoleShowsTheOpaqueBackgroundAsIfItWerePaintedInSvg) {
  const auto picture = [](bool isCleared, const auto& drawAfterwards) {
    CairoCanvas canvas(PictureFormat::svg, {100, 50}, 1, background);
    canvas.fillRect({0, 0, 100, 50});
    canvas.save();
    canvas.translate(1, 2);
    if (isCleared) {
      canvas.clearRect(hole);
    } else {
      canvas.save();
      canvas.setFillColor(background);
      canvas.fillRect(hole);
      canvas.restore();
    }
    drawAfterwards(canvas);
    return comparable(written(canvas));
  };
  for (const auto& [name, drawAfterwards] : whatFollowsAHole()) {
    EXPECT_TRUE(picture(true, drawAfterwards) == picture(false, drawAfterwards)) << name;
  }
}

TEST(VectorPicture, AHoleOverAnOpaqueBackgroundStaysVectorInSvgAndPdf) {
  for (const PictureFormat format : {PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas whole(format, {100, 50}, 1, Color::white()), pierced(format, {100, 50}, 1, Color::white());
    for (Canvas* canvas : {&whole, &pierced}) canvas->fillRect({0, 0, 100, 50});
    pierced.clearRect(hole);
    const std::string picture = comparable(written(pierced));
    EXPECT_FALSE(holdsImage(picture));
    EXPECT_TRUE(picture != comparable(written(whole)));
  }
}

/// What lies below a layer with a hole.
struct Ground {
  const char* name;
  std::optional<Color> shown;  ///< in the whole hole
  std::function<void(Canvas&)> draw;
};

const std::vector<Ground>& grounds() {
  static const std::vector<Ground> all = {
      {"the background", background, [](Canvas&) {}},
      {"a colour everywhere", below,
       [](Canvas& canvas) {
         canvas.fillRect({0, 0, 100, 50});
       }},
      {"a colour below the hole", below, [](Canvas& canvas) { canvas.fillRect(hole); }},
      {"a colour within a clip", below,
       [](Canvas& canvas) {
         canvas.clip(Path::rect({0, 0, 50, 50}));
         canvas.fillRect({0, 0, 100, 50});
       }},
      {"a colour in another place", background,
       [](Canvas& canvas) {
         canvas.fillRect({60, 0, 40, 50});
       }},
      {"a colour over something else", below,
       [](Canvas& canvas) {
         canvas.strokeLine({0, 0}, {100, 50});
         canvas.fillRect({0, 0, 100, 50});
       }},
      {"a colour below a part", std::nullopt,
       [](Canvas& canvas) {
         canvas.fillRect({21, 0, 79, 50});
       }},
      {"a colour that a clip cuts", std::nullopt,
       [](Canvas& canvas) {
         canvas.clip(Path::rect({0, 0, 49, 50}));
         canvas.fillRect({0, 0, 100, 50});
       }},
      {"a colour within a round clip", std::nullopt,
       [](Canvas& canvas) {
         canvas.clip(Path::ellipse({-50, -50, 200, 200}));
         canvas.fillRect({0, 0, 100, 50});
       }},
      {"a turned rectangle", std::nullopt,
       [](Canvas& canvas) {
         canvas.rotate(0.1);
         canvas.fillRect({-100, -100, 300, 300});
       }},
      {"a round figure", std::nullopt,
       [](Canvas& canvas) {
         canvas.fillEllipse({-50, -50, 200, 200});
       }},
      {"a translucent colour", std::nullopt,
       [](Canvas& canvas) {
         canvas.setFillColor({0, 0, 0, 0.5});
         canvas.fillRect({0, 0, 100, 50});
       }},
      {"a translucent layer", std::nullopt,
       [](Canvas& canvas) {
         canvas.beginGroup(0.5);
         canvas.fillRect({0, 0, 100, 50});
         canvas.endGroup();
       }},
      {"a text", std::nullopt,
       [](Canvas& canvas) {
         TextLayout(AttributedText("14")).drawAtPoint(canvas, {25, 22});
       }},
      {"something over a colour", std::nullopt, [](Canvas& canvas) {
         canvas.fillRect({0, 0, 100, 50});
         canvas.strokeLine({0, 0}, {100, 50});
       }}};
  return all;
}

TEST(VectorPicture, AHoleInALayerShowsWhatLiesBelowInSvg) {
  const auto picture = [](const Ground& ground, const std::optional<Color>& painted) {
    CairoCanvas canvas(PictureFormat::svg, {100, 50}, 1, background);
    canvas.setFillColor(below);
    canvas.save();
    ground.draw(canvas);
    canvas.restore();
    canvas.beginGroup(0.5);
    canvas.strokeLine({0, 50}, {100, 0});
    if (painted) {
      canvas.setFillColor(*painted);
      canvas.fillRect(hole);
    } else {
      canvas.clearRect(hole);
    }
    canvas.endGroup();
    return comparable(written(canvas));
  };
  for (const Ground& ground : grounds()) {
    const std::string pierced = picture(ground, {});
    EXPECT_EQ(holdsImage(pierced), !ground.shown) << ground.name;
    if (!ground.shown) continue;
    EXPECT_TRUE(pierced == picture(ground, ground.shown)) << ground.name;
  }
}

TEST(VectorPicture, SaysWhenItsPageBecamePixels) {
  for (const PictureFormat format : {PictureFormat::svg, PictureFormat::pdf}) {
    for (const Ground& ground : grounds()) {
      CairoCanvas canvas(format, {100, 50}, 1, background);
      canvas.setFillColor(below);
      canvas.save();
      ground.draw(canvas);
      canvas.restore();
      EXPECT_FALSE(canvas.becamePixels()) << ground.name;
      canvas.beginGroup(0.5);
      canvas.strokeLine({0, 50}, {100, 0});
      canvas.clearRect(hole);
      canvas.endGroup();
      EXPECT_EQ(holdsImage(written(canvas)), canvas.becamePixels()) << ground.name;
      EXPECT_EQ(canvas.becamePixels(), !ground.shown) << ground.name;
    }
  }
}

TEST(VectorPicture, ATextAtNoPlaceLeavesNoTraceInSvg) {
  CairoCanvas blank(PictureFormat::svg, {100, 50}), canvas(PictureFormat::svg, {100, 50});
  TextLayout(AttributedText("14 Mar")).drawAtPoint(canvas, {std::nan(""), 10});
  TextLayout(AttributedText("14 Mar")).drawAtPoint(canvas, {10, INFINITY});
  for (Canvas* each : {&blank, &canvas}) each->fillRect({0, 0, 10, 10});
  canvas.clearRect({50, 0, 50, 50});
  EXPECT_EQ(comparable(written(canvas)), comparable(written(blank)));
}

void drawOverlay(Canvas& canvas) {
  canvas.setFillColor(below);
  canvas.fillEllipse(hole);
  canvas.setBlendMode(BlendMode::overlay);
  canvas.setFillColor(Color::yellow());
  canvas.fillRect(hole.inset(5, 5));
}

TEST(VectorPicture, OverlayMakesPixelsOfItsOwnFigureAlone) {
  for (const PictureFormat format : {PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas canvas(format, {100, 50});
    TextLayout(AttributedText("14 Mar")).drawAtPoint(canvas, {10, 10});
    drawOverlay(canvas);
    const std::string picture = written(canvas);
    EXPECT_TRUE(holdsImage(picture));
    EXPECT_TRUE(contains(picture, format == PictureFormat::svg ? "<symbol" : "/Font"));
  }
}

TEST(VectorPicture, OverlayLiesAtItsPlaceInTheColoursOfItsLayer) {
  CairoCanvas plain(PictureFormat::svg, {100, 50}), layered(PictureFormat::svg, {100, 50});
  drawOverlay(plain);
  layered.fillRect({0, 0, 100, 50});
  layered.clip(Path::rect(hole));
  layered.beginGroup(0.5);
  drawOverlay(layered);
  layered.endGroup();
  const std::string svg = written(plain);
  const std::size_t image = svg.find("data:image/png"), end = svg.find('"', image);
  EXPECT_TRUE(contains(svg, "matrix(0.25,0,0,0.25,25,25)"));
  EXPECT_TRUE(contains(written(layered), svg.substr(image, end - image)));
}

TEST(VectorPicture, AnImageIsOneElementOfAnSvg) {
  CairoCanvas source(PictureFormat::png, {4, 4});
  source.fillRect({0, 0, 4, 4});
  CairoCanvas canvas(PictureFormat::svg, {80, 80});
  canvas.drawImage(*Image::fromBytes("black", written(source)), {10, 10, 60, 60});
  const std::string svg = written(canvas);
  EXPECT_TRUE(contains(svg, "<image"));
  EXPECT_EQ(svg.find("<image"), svg.rfind("<image"));
}

TEST(VectorPicture, ClearingWhatIsStillBlankLeavesNoTraceInSvg) {
  CairoCanvas canvas(PictureFormat::svg, {100, 50}, 1, Color::black());
  canvas.fillRect({0, 0, 40, 50});
  canvas.beginGroup(0.5);
  canvas.clearRect({0, 0, 100, 50});
  canvas.fillRect({60, 0, 40, 50});
  canvas.clearRect({0, 0, 55, 50});
  canvas.endGroup();
  EXPECT_FALSE(contains(written(canvas), "<image"));
}

TEST(VectorPicture, TextIsVectorInSvgAndPdf) {
  for (const PictureFormat format : {PictureFormat::svg, PictureFormat::pdf}) {
    CairoCanvas canvas(format, {100, 50});
    TextLayout(AttributedText("14 Mar")).drawAtPoint(canvas, {10, 10});
    const std::string picture = written(canvas);
    EXPECT_FALSE(contains(picture, "<image"));
    EXPECT_FALSE(contains(picture, "/Subtype /Image"));
    EXPECT_TRUE(contains(picture, format == PictureFormat::svg ? "<symbol" : "/Font"));
  }
}

}  // namespace
}  // namespace velmora
