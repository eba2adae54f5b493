#pragma once

#include <gtest/gtest.h>

#include <string>

#include <velmora/platform/graphics/cairo/CairoCanvas.h>
#include <velmora/platform/resources/Image.h>

namespace velmora::testing {

/// How far a drawn picture may be from its golden one.
struct PictureTolerance {
  int channelDifference;  ///< of a pixel in any of its four channels, 0 to 255, before it counts as differing
  double differingShare;  ///< of the pixels that may differ by more, 0 to 1
};

/// Room for another compiler's last bit at the edges of shapes, not for another font.
inline constexpr PictureTolerance edgeTolerance = {16, 0.001};

/// Whether two pictures have the same size and the same pixels within the tolerance.
::testing::AssertionResult areAlike(const Image& actual, const Image& golden,
                                    const PictureTolerance& tolerance);

/// Whether the PNG on the canvas looks like tests/golden/NAME.png; ends the canvas's picture. On a failure
/// the drawn picture is left in golden/NAME.png of the build folder. With VELMORA_UPDATE_GOLDEN set in the
/// environment it becomes the golden picture, which fails once so that somebody looks at it.
::testing::AssertionResult looksLikeGolden(CairoCanvas& canvas, const std::string& name,
                                           const PictureTolerance& tolerance = edgeTolerance);

}  // namespace velmora::testing
