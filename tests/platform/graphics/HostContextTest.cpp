#include <cairo-pdf.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <velmora/platform/graphics/TextLayout.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/graphics/cairo/CairoHandles.h>
#include <velmora/platform/graphics/cairo/CairoImage.h>

#include "tests/platform/graphics/WrittenPicture.h"

namespace velmora {
namespace {

const Color redPaint = {1, 0, 0, 1};

/// What a window system hands out: a surface of pixels, several a point on many screens, and a context on it.
struct Window {
  explicit Window(Size size, double deviceScale = 1)
      : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(size.width * deviceScale),
                                           static_cast<int>(size.height * deviceScale))) {
    cairo_surface_set_device_scale(surface.get(), deviceScale, deviceScale);
    context.reset(cairo_create(surface.get()));
  }

  void paint(double r, double g, double b) {
    cairo_set_source_rgb(context.get(), r, g, b);
    cairo_paint(context.get());
  }

  std::vector<std::uint8_t> pixels() const { return bytesOfSurface(surface.get()); }

  /// "#RRGGBBAA", premultiplied.
  std::string at(std::size_t x, std::size_t y) const {
    const std::vector<std::uint8_t> bytes = pixels();
    const auto width = static_cast<std::size_t>(cairo_image_surface_get_width(surface.get()));
    const std::uint8_t* const p = &bytes.at((y * width + x) * 4);
    return Color{p[0] / 255.0, p[1] / 255.0, p[2] / 255.0, p[3] / 255.0}.text();
  }

  CairoSurface surface;
  CairoContext context;
};

/// Discs, a hole, a layer, overlay and a text.
void drawAll(Canvas& canvas) {
  testing::drawCrescent(canvas, {4, 4, 40, 40}, {0.1, 0.1, 0.2, 1});
  testing::drawCrescent(canvas, {50.3, 4.7, 40, 40}, {0.1, 0.1, 0.2, 0.3});
  canvas.beginGroup(0.5);
  canvas.setFillColor(redPaint);
  canvas.fillRect({10, 50, 60, 20});
  canvas.clearRect({20, 55, 10, 10});
  canvas.endGroup();
  canvas.setBlendMode(BlendMode::overlay);
  canvas.setFillColor({0.2, 0.8, 0.4, 0.7});
  canvas.fillEllipse({30, 20, 40, 40});
  canvas.setBlendMode(BlendMode::normal);
  TextLayout(AttributedText("Full Moon")).drawAtPoint(canvas, {20.5, 75.25});
}

TEST(HostContext, IsDrawnOnInItsFrame) {
  Window window({100, 60});
  cairo_translate(window.context.get(), 10, 5);
  cairo_scale(window.context.get(), 2, 2);
  {
    CairoCanvas canvas(window.context.get(), {40, 25});
    EXPECT_EQ(canvas.size(), (Size{40, 25}));
    canvas.setFillColor(redPaint);
    canvas.fillRect({1, 2, 3, 4});
  }
  EXPECT_EQ(window.at(12, 9), "#FF0000FF");
  EXPECT_EQ(window.at(17, 16), "#FF0000FF");
  for (const auto& [x, y] : {std::pair{11, 9}, {12, 8}, {18, 16}, {17, 17}}) {
    EXPECT_EQ(window.at(static_cast<std::size_t>(x), static_cast<std::size_t>(y)), "#00000000")
        << x << ' ' << y;
  }
}

TEST(HostContext, ShowsWhatItHeldWhereSomethingIsCleared) {
  Window window({20, 20});
  window.paint(0, 0, 1);
  {
    CairoCanvas canvas(window.context.get(), {20, 20});
    canvas.setFillColor(redPaint);
    canvas.fillRect({0, 0, 20, 20});
    canvas.clearRect({5, 5, 5, 5});
  }
  EXPECT_EQ(window.at(2, 2), "#FF0000FF");
  EXPECT_EQ(window.at(7, 7), "#0000FFFF");
}

TEST(HostContext, HasNothingOfTheDrawingUntilTheCanvasIsGone) {
  Window window({20, 20});
  {
    CairoCanvas canvas(window.context.get(), {20, 20});
    canvas.fillRect({0, 0, 20, 20});
    EXPECT_EQ(window.at(2, 2), "#00000000");
    CairoCanvas moved = std::move(canvas);
    moved.clearRect({0, 0, 10, 10});
  }
  EXPECT_EQ(window.at(2, 2), "#00000000");
  EXPECT_EQ(window.at(12, 12), "#000000FF");
}

TEST(HostContext, IsLeftAloneOutsideTheSizeAndItsClip) {
  Window window({30, 30});
  cairo_rectangle(window.context.get(), 0, 0, 30, 8);
  cairo_clip(window.context.get());
  {
    CairoCanvas canvas(window.context.get(), {10, 10});
    canvas.fillRect({-5, -5, 40, 40});
  }
  EXPECT_EQ(window.at(9, 7), "#000000FF");
  EXPECT_EQ(window.at(10, 7), "#00000000");
  EXPECT_EQ(window.at(9, 8), "#00000000");
}

TEST(HostContext, IsGivenBackInTheStateItHad) {
  Window window({20, 20});
  cairo_t* const context = window.context.get();
  const double dash = 3;
  cairo_translate(context, 3, 4);
  cairo_set_line_width(context, 7);
  cairo_set_dash(context, &dash, 1, 0);
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
  cairo_set_operator(context, CAIRO_OPERATOR_ATOP);
  cairo_set_tolerance(context, 0.7);
  cairo_pattern_t* const source = cairo_get_source(context);
  {
    CairoCanvas canvas(context, {10, 10});
    canvas.save();
    canvas.beginGroup(0.5);
    canvas.setLineWidth(2);
    canvas.translate(1, 1);
    canvas.clip(Path::ellipse({0, 0, 4, 4}));
    canvas.fillRect({0, 0, 5, 5});
  }
  cairo_matrix_t frame;
  cairo_get_matrix(context, &frame);
  EXPECT_EQ(frame.x0, 3);
  EXPECT_EQ(frame.y0, 4);
  EXPECT_EQ(cairo_get_line_width(context), 7);
  EXPECT_EQ(cairo_get_dash_count(context), 1);
  EXPECT_EQ(cairo_get_fill_rule(context), CAIRO_FILL_RULE_EVEN_ODD);
  EXPECT_EQ(cairo_get_operator(context), CAIRO_OPERATOR_ATOP);
  EXPECT_EQ(cairo_get_tolerance(context), 0.7);
  EXPECT_EQ(cairo_get_source(context), source);
  EXPECT_EQ(cairo_get_group_target(context), window.surface.get());
  EXPECT_EQ(cairo_status(context), CAIRO_STATUS_SUCCESS);
}

/// Whatever the host has set, the pixels are those of a picture of one's own.
TEST(HostContext, LooksLikeAPictureOfAsManyPixelsToTheLastBit) {
  for (const double scale : {1.0, 2.0, 3.0}) {
    CairoCanvas picture(PictureFormat::png, {100, 100}, scale);
    drawAll(picture);
    Window scaledByFrame({100 * scale, 100 * scale}), scaledByDevice({100, 100}, scale);
    cairo_scale(scaledByFrame.context.get(), scale, scale);
    for (Window* window : {&scaledByFrame, &scaledByDevice}) {
      cairo_set_fill_rule(window->context.get(), CAIRO_FILL_RULE_EVEN_ODD);
      cairo_set_line_join(window->context.get(), CAIRO_LINE_JOIN_BEVEL);
      cairo_set_antialias(window->context.get(), CAIRO_ANTIALIAS_NONE);
      CairoCanvas canvas(window->context.get(), {100, 100});
      drawAll(canvas);
    }
    EXPECT_TRUE(scaledByFrame.pixels() == picture.pixels()) << scale;
    EXPECT_TRUE(scaledByDevice.pixels() == picture.pixels()) << scale;
  }
}

TEST(HostContext, LooksTheSameWhenItIsDrawnOnAgain) {
  std::vector<std::uint8_t> former;
  for (int drawing = 0; drawing < 3; ++drawing) {
    Window window({100, 100}, 2);
    cairo_arc(window.context.get(), 50, 50, 45, 0, 6.2832);
    cairo_clip(window.context.get());
    {
      CairoCanvas canvas(window.context.get(), {100, 100});
      drawAll(canvas);
    }
    if (!former.empty()) {
      EXPECT_TRUE(window.pixels() == former);
    }
    former = window.pixels();
  }
}

TEST(HostContext, StaysVectorInAPdf) {
  std::string pdf;
  const auto append = [](void* text, const unsigned char* bytes, unsigned int count) {
    static_cast<std::string*>(text)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
  };
  {
    const CairoSurface page(cairo_pdf_surface_create_for_stream(append, &pdf, 100, 100));
    const CairoContext context(cairo_create(page.get()));
    CairoCanvas canvas(context.get(), {100, 100});
    testing::drawCrescent(canvas, {4, 4, 40, 40}, {0.1, 0.1, 0.2, 1});
    TextLayout(AttributedText("Full Moon")).drawAtPoint(canvas, {20, 75});
  }
  EXPECT_EQ(pdf.substr(0, 4), "%PDF");
  EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos);
  EXPECT_NE(pdf.find("/Font"), std::string::npos);
}

TEST(HostContext, IsNoPictureToBeWrittenOrReadBack) {
  Window window({20, 20});
  CairoCanvas canvas(window.context.get(), {20, 20});
  canvas.fillRect({0, 0, 20, 20});
  std::ostringstream output;
  const auto error = canvas.write(output);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->kind, PictureError::Kind::drawing);
  EXPECT_EQ(output.str(), "");
  EXPECT_TRUE(canvas.pixels().empty());
  EXPECT_EQ(canvas.error(), std::nullopt);
}

TEST(HostContext, ThatCannotBeDrawnOnIsAnErrorAndNoHarm) {
  const CairoSurface refused(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, -1, -1));
  const CairoContext context(cairo_create(refused.get()));
  CairoCanvas canvas(context.get(), {20, 20});
  drawAll(canvas);
  ASSERT_TRUE(canvas.error());
  EXPECT_EQ(canvas.error()->kind, PictureError::Kind::drawing);
}

}  // namespace
}  // namespace velmora
