#include "tests/support/GoldenPicture.h"

#include <numbers>
#include <sstream>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

using testing::areAlike;
using testing::looksLikeGolden;

constexpr testing::PictureTolerance exact = {0, 0};

/// A picture of 10 x 10 pixels with a grey square in it.
std::shared_ptr<const Image> square(double grey, double side = 2, Size size = {10, 10}) {
  CairoCanvas canvas(PictureFormat::png, size, 1, Color::black());
  canvas.setFillColor(Color::withWhite(grey, 1));
  canvas.fillRect({0, 0, side, side});
  std::ostringstream png;
  EXPECT_EQ(canvas.write(png), std::nullopt);
  return Image::fromBytes("square", png.str());
}

TEST(GoldenPicture, TheSamePictureIsAlike) { EXPECT_TRUE(areAlike(*square(0.5), *square(0.5), exact)); }

TEST(GoldenPicture, APixelDiffersBeyondTheChannelsTolerance) {
  const auto darker = square(100 / 255.0), lighter = square(105 / 255.0);
  EXPECT_TRUE(areAlike(*darker, *lighter, {5, 0}));
  EXPECT_FALSE(areAlike(*darker, *lighter, {4, 0}));
  EXPECT_FALSE(areAlike(*lighter, *darker, {4, 0}));
}

TEST(GoldenPicture, AShareOfThePixelsMayDiffer) {
  EXPECT_TRUE(areAlike(*square(0.2), *square(1), {5, 0.04}));
  EXPECT_FALSE(areAlike(*square(0.2), *square(1), {5, 0.039}));
}

TEST(GoldenPicture, PicturesOfDifferentSizesAreNotAlike) {
  EXPECT_FALSE(areAlike(*square(0.5), *square(0.5, 2, {10, 11}), {255, 1}));
}

void drawLine(Canvas& canvas, const char* locale, const std::string& text, const Font& font, Point point) {
  const ScopedLocale scope{std::string(locale)};
  TextLayout(AttributedText(text, {.font = font, .color = Color::withWhite(0.9, 1)}))
      .drawAtPoint(canvas, point);
}

void drawTexts(Canvas& canvas) {
  drawLine(canvas, "en", "Full Moon 14 (3)", Font::systemFont(13), {8, 4});
  drawLine(canvas, "en", "Wed", Font::named("AvenirNext-Medium", 17), {130, 2});
  drawLine(canvas, "en", "12:15 AM", Font::boldSystemFont(12), {180, 5});
  drawLine(canvas, "he", "ירח מלא 14 (ט״ו)", Font::systemFont(13), {8, 26});
  drawLine(canvas, "ar", "بدر كامل ١٤", Font::systemFont(13), {130, 26});
  drawLine(canvas, "hi", "पूर्णिमा १४", Font::systemFont(13), {8, 48});
  drawLine(canvas, "ja", "満月 直", Font::systemFont(13), {90, 48});
  drawLine(canvas, "zh-Hans", "满月 直", Font::systemFont(13), {145, 48});
  drawLine(canvas, "ko", "보름달", Font::systemFont(13), {200, 48});
}

void drawShapes(Canvas& canvas) {
  const Rect disc = {10, 80, 50, 50};
  canvas.save();
  canvas.setLineWidth(2);
  canvas.clip(Path::ellipse(disc));
  canvas.setFillColor(Color::withWhite(0.8, 1));
  canvas.fillEllipse(disc);
  canvas.setBlendMode(BlendMode::clear);
  canvas.fillEllipse({10, 80, 35, 50});
  canvas.setBlendMode(BlendMode::normal);
  canvas.setStrokeColor(Color::withWhite(0.8, 1));
  canvas.strokeEllipse(disc);
  canvas.restore();

  canvas.setFillColor({0.4, 0.2, 0.5, 0.4});
  canvas.fill(Path::roundedRect({75, 80, 70, 22}, Corners::topRight | Corners::bottomRight, {8, 8}));
  canvas.setStrokeColor(Color::cyan());
  canvas.setLineDash({3, 3});
  canvas.stroke(Path::roundedRect({75.5, 108.5, 69, 22}, 8));
  canvas.setLineDash({});
  canvas.setStrokeColor(Color::purple());
  canvas.setLineWidth(6);
  canvas.stroke(Path::arc({195, 125}, 40, std::numbers::pi, 2 * std::numbers::pi, true));
}

TEST(GoldenPicture, ShapesAndTextsOfTheCanvas) {
  CairoCanvas canvas(PictureFormat::png, {250, 140}, 2, Color::withWhite(0.06, 1));
  canvas.beginGroup(1);
  drawTexts(canvas);
  drawShapes(canvas);
  canvas.endGroup();
  EXPECT_TRUE(looksLikeGolden(canvas, "canvas"));
}

}  // namespace
}  // namespace velmora
