#include <gtest/gtest.h>
#include <malloc.h>

#include <functional>
#include <map>
#include <memory>
#include <numbers>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/resources/Image.h>
#include <velmora/platform/time/Locale.h>

#include "tests/platform/graphics/Pixels.h"

namespace velmora {
namespace {

using testing::Pixels;

constexpr Size pictureSize = {60, 40};
constexpr double pixelsPerPoint = 3;
constexpr Rect discFrame = {5.3, 5.7, 20, 20};

using PictureBytes = std::vector<std::uint8_t>;
using Drawing = std::function<void(Canvas&)>;

PictureBytes drawn(const Drawing& drawing) {
  CairoCanvas canvas(PictureFormat::png, pictureSize, pixelsPerPoint);
  drawing(canvas);
  EXPECT_EQ(canvas.error(), std::nullopt);
  return canvas.pixels();
}

/// As drawn in a thread that has drawn nothing before.
PictureBytes drawnAfresh(const Drawing& drawing) {
  PictureBytes pixels;
  std::thread([&] { pixels = drawn(drawing); }).join();
  return pixels;
}

std::shared_ptr<const Image> halfRed() {
  CairoCanvas canvas(PictureFormat::png, {4, 4});
  canvas.setFillColor({1, 0, 0, 1});
  canvas.fillRect({0, 0, 2, 4});
  std::ostringstream png;
  EXPECT_EQ(canvas.write(png), std::nullopt);
  return Image::fromBytes("half red", png.str());
}

TextLayout layoutOf(const std::string& text, const Color& color = Color::black()) {
  return TextLayout(AttributedText(text, {.font = Font::systemFont(13), .color = color}));
}

void drawText(Canvas& canvas, const std::string& text, const Color& color = Color::black()) {
  layoutOf(text, color).drawAtPoint(canvas, {10.2, 10.4});
}

void drawGibbous(Canvas& canvas) {
  canvas.save();
  canvas.clip(Path::ellipse(discFrame));
  canvas.setFillColor({0.8, 0.8, 0.7, 0.9});
  Path lit = Path::ellipse({discFrame.midX() - 4, discFrame.y, 8, discFrame.height});
  lit.addRect({discFrame.midX(), discFrame.y, discFrame.width / 2, discFrame.height});
  canvas.fill(lit);
  canvas.setLineWidth(2);
  canvas.strokeEllipse(discFrame);
  canvas.restore();
}

void drawCutOut(Canvas& canvas) {
  canvas.fillRect({0, 0, 40, 40});
  canvas.setBlendMode(BlendMode::clear);
  canvas.fillEllipse(discFrame);
  canvas.setBlendMode(BlendMode::normal);
}

/// Its point stands out four times as far from the path as the line is wide.
void drawSpike(Canvas& canvas) {
  Path spike;
  spike.moveTo({20, 35});
  spike.lineTo({30, 16});
  spike.lineTo({40, 35});
  spike.curveTo({37, 40}, {23, 40}, {20, 35});
  spike.close();
  canvas.setLineWidth(8);
  canvas.stroke(spike);
}

void drawFadedImage(Canvas& canvas, double alpha) {
  static const auto image = halfRed();
  canvas.setFillColor(Color::withWhite(0.6, 1));
  canvas.fillRect({0, 0, 20, 40});
  canvas.setAlpha(alpha);
  canvas.setBlendMode(BlendMode::overlay);
  canvas.drawImage(*image, discFrame);
}

/// Each looks different from the others.
const std::vector<std::pair<const char*, Drawing>>& drawings() {
  static const std::vector<std::pair<const char*, Drawing>> all = {
      {"disc", [](Canvas& canvas) { canvas.fillEllipse(discFrame); }},
      {"coloured disc",
       [](Canvas& canvas) {
         canvas.setFillColor(Color::cyan());
         canvas.fillEllipse(discFrame);
       }},
      {"wider disc", [](Canvas& canvas) { canvas.fillEllipse(discFrame.inset(-1, 0)); }},
      {"ring", [](Canvas& canvas) { canvas.strokeEllipse(discFrame); }},
      {"thick ring",
       [](Canvas& canvas) {
         canvas.setLineWidth(4);
         canvas.strokeEllipse(discFrame);
       }},
      {"dashed ring",
       [](Canvas& canvas) {
         canvas.setLineDash({3, 2});
         canvas.strokeEllipse(discFrame);
       }},
      {"dashed ring that begins later",
       [](Canvas& canvas) {
         canvas.setLineDash({3, 2}, 1);
         canvas.strokeEllipse(discFrame);
       }},
      {"right half",
       [](Canvas& canvas) {
         canvas.clip(Path::rect({discFrame.midX(), 0, 60, 40}));
         canvas.fillEllipse(discFrame);
       }},
      {"right half, its lower part",
       [](Canvas& canvas) {
         canvas.clip(Path::rect({discFrame.midX(), 0, 60, 40}));
         canvas.clip(Path::ellipse({0, 18, 60, 40}));
         canvas.fillEllipse(discFrame);
       }},
      {"shifted by part of a pixel",
       [](Canvas& canvas) {
         canvas.translate(0.1, 0);
         canvas.fillEllipse(discFrame);
       }},
      {"scaled",
       [](Canvas& canvas) {
         canvas.scale(1.1, 1);
         canvas.fillEllipse(discFrame);
       }},
      {"turned",
       [](Canvas& canvas) {
         canvas.rotate(0.1);
         canvas.fill(Path::roundedRect(discFrame, 4));
       }},
      {"gibbous", drawGibbous},
      {"cut out", drawCutOut},
      {"text", [](Canvas& canvas) { drawText(canvas, "14 (3)"); }},
      {"other text", [](Canvas& canvas) { drawText(canvas, "14 (8)"); }},
      {"coloured text", [](Canvas& canvas) { drawText(canvas, "14 (3)", Color::cyan()); }},
      {"glyph",
       [](Canvas& canvas) {
         TextLayout(AttributedText("14 (3)", {.font = Font::systemFont(13)})).drawGlyph(canvas, 1, {10, 10});
       }},
      {"shifted text",
       [](Canvas& canvas) {
         canvas.translate(0.05, 0);
         drawText(canvas, "14 (3)");
       }},
      {"lowered text",
       [](Canvas& canvas) {
         canvas.translate(0, 0.05);
         drawText(canvas, "14 (3)");
       }},
      {"turned text",
       [](Canvas& canvas) {
         canvas.rotate(0.01);
         drawText(canvas, "14 (3)");
       }},
      {"text beginning further right",
       [](Canvas& canvas) {
         layoutOf("14 (3)").drawAtPoint(canvas, {10.3, 10.4});
       }},
      {"text beginning further down",
       [](Canvas& canvas) {
         layoutOf("14 (3)").drawAtPoint(canvas, {10.2, 10.5});
       }},
      {"spike", drawSpike},
      {"image", [](Canvas& canvas) { drawFadedImage(canvas, 0.7); }},
      {"fainter image", [](Canvas& canvas) { drawFadedImage(canvas, 0.6); }},
      {"mirrored image", [](Canvas& canvas) { canvas.drawImage(*halfRed()->mirrored(), discFrame); }},
      {"faded group",
       [](Canvas& canvas) {
         canvas.beginGroup(0.4);
         canvas.fillEllipse(discFrame);
         canvas.endGroup();
       }},
  };
  return all;
}

TEST(DrawnAgain, EverythingLooksTheSameToTheLastBit) {
  const ScopedLocale english("en_US");
  for (const auto& [name, drawing] : drawings()) {
    const PictureBytes fresh = drawnAfresh(drawing);
    EXPECT_EQ(drawn(drawing), fresh) << name;
    EXPECT_EQ(drawn(drawing), fresh) << name;
  }
}

TEST(DrawnAgain, NothingIsTakenForAnother) {
  const ScopedLocale english("en_US");
  std::map<PictureBytes, std::string> seen;
  for (const auto& [name, drawing] : drawings()) {
    const auto [former, isNew] = seen.emplace(drawn(drawing), name);
    EXPECT_TRUE(isNew) << name << " looks like " << former->second;
  }
}

TEST(DrawnAgain, ThePointOfASpikeIsNotCut) {
  Pixels picture(pictureSize, pixelsPerPoint);
  drawSpike(picture.canvas);
  EXPECT_EQ(picture.at(3 * 30, 3 * 9), "#000000FF");
  EXPECT_EQ(picture.at(3 * 30, 3 * 5), "#00000000");
}

TEST(DrawnAgain, CurvesAreAsFineAsTheScaleAsks) {
  const auto ringAt = [](double pictureScale) {
    Pixels picture({480 / pictureScale, 480 / pictureScale}, pictureScale);
    picture.canvas.scale(8 / pictureScale, 8 / pictureScale);
    picture.canvas.fillEllipse({0.3, 0.4, 50, 50});
    return picture.canvas.pixels();
  };
  const PictureBytes coarse = ringAt(8);
  EXPECT_NE(ringAt(1), coarse);
}

TEST(DrawnAgain, AGlyphIsNotTakenForItsLine) {
  const auto image = [](std::size_t glyphs) {
    return [glyphs](Canvas& canvas) {
      const AttributedText struck("W\u0335", {.font = Font::systemFont(13)});
      for (std::size_t glyph = 0; glyph < glyphs; ++glyph) canvas.drawGlyph(struck, glyph, {10, 10});
      if (glyphs == 0) canvas.drawText(struck, {10, 10});
    };
  };
  EXPECT_EQ(drawn(image(1)), drawnAfresh(image(1)));
  EXPECT_EQ(drawn(image(0)), drawnAfresh(image(0)));
  EXPECT_NE(drawn(image(0)), drawn(image(1)));
}

TEST(DrawnAgain, AGlyphIsNotTakenForItsNeighbourAtItsPlace) {
  const ScopedLocale english("en_US");
  for (const char* pair : {"69", "bd", "pq", "38", "35", "ao", "nu"}) {
    const TextLayout layout = layoutOf(pair);
    const auto glyphAtOnePlace = [&](std::size_t glyph) {
      return [&layout, glyph](Canvas& canvas) {
        layout.drawGlyph(canvas, glyph, {20 - layout.glyphRect(glyph).x, 10});
      };
    };
    for (const std::size_t glyph : {0U, 1U}) {
      EXPECT_EQ(drawn(glyphAtOnePlace(glyph)), drawnAfresh(glyphAtOnePlace(glyph))) << pair;
    }
  }
}

TEST(DrawnAgain, ATextKeepsItsPlaceWithinAPixel) {
  const ScopedLocale english("en_US");
  for (int i = 0; i < 10; ++i) {
    const double part = i / (10 * pixelsPerPoint);
    for (const Point topLeft : {Point{10 + part, 10}, {10, 10 + part}}) {
      const Drawing text = [&](Canvas& canvas) { layoutOf("14").drawAtPoint(canvas, topLeft); };
      EXPECT_EQ(drawn(text), drawnAfresh(text)) << topLeft.x << " " << topLeft.y;
    }
  }
}

TEST(DrawnAgain, AShapeElsewhereByWholePixelsLooksTheSame) {
  Pixels picture(pictureSize, pixelsPerPoint);
  drawGibbous(picture.canvas);
  picture.canvas.translate(28, 5);
  drawGibbous(picture.canvas);
  for (std::size_t y = 15; y < 80; ++y) {
    ASSERT_EQ(picture.at(y, y), picture.at(y + 84, y + 15)) << y;
  }
}

TEST(DrawnAgain, FiguresAtOtherPlacesLookTheSameToTheLastBit) {
  const auto figuresAt = [](double x, double y) {
    return [x, y](Canvas& canvas) {
      const Rect box{x, y, 15.3, 15.3};
      canvas.fillEllipse(box);
      canvas.setLineDash({2, 1}, 0);
      canvas.stroke(Path::ellipse(box.inset(0.7, 0.7)));
      canvas.clip(Path::rect({x + 4.2, y - 1, 40, 12.1}));
      canvas.setFillColor(Color::cyan());
      canvas.fillEllipse(box.inset(2.1, 2.1));
      canvas.clip(Path::rect({0, 0, 40, 20}));
      canvas.setFillColor(Color::black());
      canvas.fillEllipse(box.inset(4.1, 3.1));
    };
  };
  for (int i = 0; i < 60; ++i) {
    // Whole pixels apart, 256ths, and finer than Cairo tells apart.
    const double x = 3.1 + i % 7 * 5 / pixelsPerPoint + i / 20 / (pixelsPerPoint * 256),
                 y = 2.4 + i % 9 * 2 + i / 30 * 1e-4;
    ASSERT_EQ(drawn(figuresAt(x, y)), drawnAfresh(figuresAt(x, y))) << i;
  }
}

TEST(DrawnAgain, AShapeCutByThePicturesEdgeIsWholeElsewhere) {
  const auto discAt = [](double x) {
    return [x](Canvas& canvas) {
      canvas.translate(x, 0);
      canvas.fillEllipse({0, 0, 20, 20});
    };
  };
  const PictureBytes uncut = drawnAfresh(discAt(20));
  const PictureBytes cut = drawn(discAt(-10));
  EXPECT_NE(cut, uncut);
  EXPECT_EQ(drawn(discAt(20)), uncut);
  EXPECT_EQ(drawn(discAt(-10)), cut);
}

TEST(DrawnAgain, AShapeKeepsItsPlaceWhereTheClipHasParts) {
  const Drawing throughTwoWindows = [](Canvas& canvas) {
    Path windows = Path::rect({0, 0, 10, 10});
    windows.addRect({30, 20, 10, 10});
    canvas.clip(windows);
    canvas.fillEllipse({20, 10, 30, 30});
  };
  EXPECT_EQ(drawn(throughTwoWindows), drawnAfresh(throughTwoWindows));
  Pixels picture(pictureSize, pixelsPerPoint);
  throughTwoWindows(picture.canvas);
  EXPECT_EQ(picture.at(3 * 35, 3 * 25), "#000000FF");
  EXPECT_EQ(picture.at(3 * 31, 3 * 21), "#000000FF");
  EXPECT_EQ(picture.at(3 * 25, 3 * 15), "#00000000");
  EXPECT_EQ(picture.at(3 * 45, 3 * 25), "#00000000");
}

TEST(DrawnAgain, ATextFollowsTheLocale) {
  const Drawing han = [](Canvas& canvas) { drawText(canvas, "直"); };
  const auto drawnIn = [&](const char* locale) {
    const ScopedLocale scope{std::string(locale)};
    return drawn(han);
  };
  const PictureBytes chinese = drawnIn("zh-Hans");
  EXPECT_NE(drawnIn("ja"), chinese) << "the stroke at the left is drawn otherwise";
  EXPECT_EQ(drawnIn("zh-Hans"), chinese);
}

TEST(DrawnAgain, MoreShapesThanAreKeptLookTheSame) {
  constexpr Size large = {500, 500};
  const auto ellipse = [&](int narrowing) {
    CairoCanvas canvas(PictureFormat::png, large);
    canvas.fillEllipse(Rect{0, 0, 500, 500}.inset(narrowing, 0));
    return canvas.pixels();
  };
  const PictureBytes first = ellipse(0);
  for (int narrowing = 1; narrowing < 70; ++narrowing) ellipse(narrowing);
  EXPECT_EQ(ellipse(0), first);
}

// A window may keep one canvas for as long as it is open. Sanitizers count no memory here.
TEST(DrawnAgain, OnOneCanvasTheSameDrawingTakesNoMoreMemory) {
  CairoCanvas canvas(PictureFormat::png, pictureSize, pixelsPerPoint);
  const auto bytesInUseAfter = [&](int drawings) {
    for (int i = 0; i < drawings; ++i) {
      canvas.setFillColor(Color::white());
      canvas.fillRect({0, 0, 60, 40});
      canvas.beginGroup(0.5);
      canvas.setFillColor(Color::black());
      canvas.fillEllipse({i % 30 + 0.0, i % 20 + 0.0, 20, 20});
      canvas.clearRect({10, 10, 5, 5});
      canvas.endGroup();
    }
    const auto inUse = mallinfo2();
    return inUse.uordblks + inUse.hblkhd;
  };
  const std::size_t before = bytesInUseAfter(1000);
  EXPECT_LT(bytesInUseAfter(10'000), before + 100'000);
}

}  // namespace
}  // namespace velmora
