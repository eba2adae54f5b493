#pragma once

#include <gtest/gtest.h>

#include <string>

#include <velmora/platform/ui/Device.h>
#include <velmora/platform/ui/View.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora::testing {

inline const Device mirroredDevice{.forcedDirection = LayoutDirection::rightToLeft};

/// What the view draws, an operation a line.
inline std::string drawn(View& view) {
  RecordingCanvas canvas;
  view.render(canvas);
  EXPECT_TRUE(canvas.isBalanced());
  return canvas.text();
}

}  // namespace velmora::testing
