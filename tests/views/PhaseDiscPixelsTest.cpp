#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include <velmora/phases/Phase.h>
#include <velmora/phases/PhaseItem.h>
#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/views/PhaseDisc.h>

#include "tests/support/GoldenPicture.h"

namespace velmora {
namespace {

constexpr PhaseDisc disc = {5, 5, 200};
constexpr Size pictureSize = {210, 210};
constexpr double discArea = std::numbers::pi * 100 * 100;
constexpr Color night = {14.0 / 255, 12.0 / 255, 22.0 / 255, 1};
constexpr std::array<std::int64_t, 4> intermediatePhases = {kWaxingCrescent, kWaxingGibbous, kWaningGibbous,
                                                            kWaningCrescent};

PhaseItem day(std::int64_t phase, double fullFactor) {
  PhaseItem item;
  item.phase = phase;
  item.fullFactor = static_cast<float>(fullFactor);
  return item;
}

/// The disc in white on black, with its outline or without.
CairoCanvas drawn(const PhaseItem& item, bool isSouthern, const Color& outline = Color::clear()) {
  CairoCanvas canvas(PictureFormat::png, pictureSize);
  canvas.setFillColor(Color::white());
  canvas.setStrokeColor(outline);
  disc.draw(canvas, item, isSouthern, Color::black());
  EXPECT_EQ(canvas.error(), std::nullopt);
  return canvas;
}

/// The white share of the disc, an edge pixel counting by how much of it is white.
double paintedShare(const CairoCanvas& canvas) {
  const std::vector<std::uint8_t> pixels = canvas.pixels();
  double sum = 0;
  for (std::size_t red = 0; red < pixels.size(); red += 4) sum += pixels[red] / 255.0;
  return sum / discArea;
}

struct Interval {
  double from, to;
};

double overlap(Interval a, Interval b) {
  return std::max(0.0, std::min(a.to, b.to) - std::max(a.from, b.from));
}

/// The lit share of a disc of radius 1 by the shapes that make it, row by row. The Moon is lit on the right;
/// the mirror image has the same area.
double expectedShare(std::int64_t phase, double fullFactor, bool isSouthern) {
  constexpr int rows = 4000;
  const bool isGibbous = phase == kWaxingGibbous || phase == kWaningGibbous;
  double lit = 0;
  for (int row = 0; row < rows; ++row) {
    const double y = -1 + (row + 0.5) * 2 / rows;
    const double half = std::sqrt(1 - y * y);
    const Interval chord = {-half, half};
    if (isGibbous) {  // the right half and an ellipse around the middle
      const double reach = std::abs(2 * fullFactor - 1) * half;
      lit += half + reach;
    } else if (isSouthern) {  // without the same disc moved by the lit share of its width
      const Interval moved = {2 * fullFactor - half, 2 * fullFactor + half};
      lit += 2 * half - overlap(chord, moved);
    } else {  // without an ellipse at the left edge, narrower by the lit share
      const double reach = (1 - fullFactor) * half;
      const Interval narrowed = {-fullFactor - reach, -fullFactor + reach};
      lit += 2 * half - overlap(chord, narrowed);
    }
  }
  return lit * (2.0 / rows) / std::numbers::pi;
}

/// 40 values of the lit fraction from 0 to 1.
std::vector<double> fractions() {
  std::vector<double> values;
  for (int i = 0; i < 40; ++i) values.push_back(i / 39.0);
  return values;
}

constexpr double areaTolerance = 0.002;  // of the disc's area, for the rounding of pixels along the edges

TEST(PhaseDiscPixelsTest, TheLitAreaIsThatOfTheShapes) {
  for (const std::int64_t phase : intermediatePhases) {
    for (const bool isSouthern : {false, true}) {
      for (const double fraction : fractions()) {
        const double painted = paintedShare(drawn(day(phase, fraction), isSouthern));
        EXPECT_NEAR(painted, expectedShare(phase, fraction, isSouthern), areaTolerance)
            << "phase " << phase << " fraction " << fraction << " southern " << isSouthern;
      }
    }
  }
}

TEST(PhaseDiscPixelsTest, TheOutlineAddsAtMostARingOfAPoint) {
  constexpr double ringShare = 4.0 / 200;  // circumference by area, a point wide
  for (const std::int64_t phase : intermediatePhases) {
    for (const double fraction : fractions()) {
      const double bare = paintedShare(drawn(day(phase, fraction), false));
      const double outlined = paintedShare(drawn(day(phase, fraction), false, Color::white()));
      EXPECT_GE(outlined, bare) << "phase " << phase << " fraction " << fraction;
      EXPECT_LE(outlined, bare + ringShare) << "phase " << phase << " fraction " << fraction;
    }
  }
}

TEST(PhaseDiscPixelsTest, AGibbousMoonShowsItsLitFraction) {
  for (const double fraction : {0.5, 0.6, 0.75, 0.9, 1.0}) {
    EXPECT_NEAR(paintedShare(drawn(day(kWaxingGibbous, fraction), false)), fraction, areaTolerance);
    EXPECT_NEAR(paintedShare(drawn(day(kWaningGibbous, fraction), true)), fraction, areaTolerance);
  }
}

TEST(PhaseDiscPixelsTest, BelowHalfAGibbousMoonIsLitAsMuchAsAboveHalf) {
  EXPECT_NEAR(paintedShare(drawn(day(kWaxingGibbous, 0.25), false)), 0.75, areaTolerance);
}

TEST(PhaseDiscPixelsTest, AWaxingCrescentOfNothingIsDarkInsideItsOutline) {
  EXPECT_NEAR(paintedShare(drawn(day(kWaxingCrescent, 0), false)), 0, areaTolerance);
  EXPECT_NEAR(paintedShare(drawn(day(kWaxingCrescent, 0), false, Color::white())), 4.0 / 200, areaTolerance);
}

/// The lit share of the disc's left half.
double leftShare(const CairoCanvas& canvas) {
  const std::vector<std::uint8_t> pixels = canvas.pixels();
  const auto width = static_cast<std::size_t>(pictureSize.width);
  double sum = 0;
  for (std::size_t pixel = 0; pixel * 4 < pixels.size(); ++pixel) {
    if (pixel % width < width / 2) sum += pixels[pixel * 4] / 255.0;
  }
  return sum / (discArea / 2);
}

struct LitSide {
  std::int64_t phase;
  double fraction;
  bool isLeftInTheNorth;
};

TEST(PhaseDiscPixelsTest, TheLitSideChangesWithTheHemisphere) {
  const LitSide rows[] = {
      {kFirstQuarter, 0.5, false},   {kLastQuarter, 0.5, true},    {kWaxingCrescent, 0.25, false},
      {kWaxingGibbous, 0.75, false}, {kWaningGibbous, 0.75, true}, {kWaningCrescent, 0.25, true},
  };
  for (const LitSide& row : rows) {
    for (const bool isSouthern : {false, true}) {
      const CairoCanvas canvas = drawn(day(row.phase, row.fraction), isSouthern);
      const double left = leftShare(canvas), right = 2 * paintedShare(canvas) - left;
      EXPECT_EQ(left > right, row.isLeftInTheNorth != isSouthern)
          << "phase " << row.phase << " southern " << isSouthern;
    }
  }
}

TEST(PhaseDiscPixelsTest, ATranslucentDarkPartLetsTheBackgroundThroughAndNotTheLitDisc) {
  CairoCanvas canvas(PictureFormat::png, pictureSize);
  canvas.setFillColor(Color::white());
  canvas.setStrokeColor(Color::white());
  disc.draw(canvas, day(kWaxingCrescent, 0.25), false, {0, 0, 0, 0.5});
  const std::size_t darkPixel = (105 * 210 + 60) * 4;
  const std::vector<std::uint8_t> pixels = canvas.pixels();
  EXPECT_EQ(pixels.at(darkPixel), 0);
  EXPECT_NEAR(pixels.at(darkPixel + 3), 128, 1);
}

/// Every phase in a row of its own, its lit fraction growing to the right; on the left as in the north, on
/// the right as in the south.
void drawSheet(Canvas& canvas) {
  constexpr double pitch = 36, side = 32;
  constexpr int steps = 5;
  canvas.setFillColor(Color::withWhite(0.8, 1));
  canvas.setStrokeColor(Color::withWhite(0.8, 1));
  for (int phase = kFullMoon; phase <= kWaningCrescent; ++phase) {
    for (int step = 0; step < 2 * steps; ++step) {
      const PhaseDisc cell = {step * pitch + 2, phase * pitch + 2, side};
      cell.draw(canvas, day(phase, (step % steps) * 0.25), step >= steps, night);
    }
  }
}

TEST(PhaseDiscPixelsTest, EveryPhaseLooksAsItShould) {
  CairoCanvas canvas(PictureFormat::png, {360, 288}, 1, night);
  drawSheet(canvas);
  EXPECT_TRUE(testing::looksLikeGolden(canvas, "phase-discs"));
}

TEST(PhaseDiscPixelsTest, AVectorPictureOfDiscsHoldsNoPixels) {
  CairoCanvas canvas(PictureFormat::svg, {360, 288}, 1, night);
  drawSheet(canvas);
  std::ostringstream svg;
  ASSERT_EQ(canvas.write(svg), std::nullopt);
  EXPECT_NE(svg.str().find("<path"), std::string::npos);
  EXPECT_EQ(svg.str().find("<image"), std::string::npos);
}

TEST(PhaseDiscPixelsTest, DiscsOfAnySizeAreDrawnWithoutAnError) {
  for (const double side : {-3.0, -1.0, 0.0, 0.5, 1.0, 2.0, 3.0}) {
    CairoCanvas canvas(PictureFormat::png, {4, 4});
    for (int phase = kFullMoon; phase <= kWaningCrescent; ++phase) {
      PhaseDisc{1, 1, side}.draw(canvas, day(phase, 0.3), false, night);
    }
    EXPECT_EQ(canvas.error(), std::nullopt) << side;
  }
}

}  // namespace
}  // namespace velmora
