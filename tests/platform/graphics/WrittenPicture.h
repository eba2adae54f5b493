#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>

namespace velmora::testing {

inline std::string written(CairoCanvas& canvas) {
  std::ostringstream output;
  const auto failure = canvas.write(output);
  EXPECT_EQ(failure ? failure->message : "", "");
  return output.str();
}

/// Without the date of a PDF and the numbers that surfaces of an SVG are counted by.
std::string comparable(const std::string& picture);

/// Whether a written SVG or PDF holds pixels.
inline bool holdsImage(const std::string& picture) {
  return picture.find("<image") != std::string::npos || picture.find("/Subtype /Image") != std::string::npos;
}

/// The crescent as every view draws it.
inline void drawCrescent(Canvas& canvas, Rect disc, const Color& dark) {
  canvas.save();
  canvas.setLineWidth(2);
  canvas.clip(Path::ellipse(disc));
  canvas.setFillColor(Color::white());
  canvas.fillEllipse(disc);
  canvas.setBlendMode(BlendMode::clear);
  canvas.setFillColor(Color::clear());
  const Rect hidden = {disc.x, disc.y, disc.width * 0.7, disc.height};
  canvas.fillEllipse(hidden);
  canvas.setBlendMode(BlendMode::normal);
  canvas.setFillColor(dark);
  canvas.fillEllipse(hidden);
  canvas.setStrokeColor(Color::white());
  canvas.strokeEllipse(disc);
  canvas.restore();
}

}  // namespace velmora::testing
