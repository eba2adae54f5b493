#pragma once

#include <velmora/platform/graphics/TextEngine.h>

namespace velmora::testing {

/// Text of fixed sizes, so that a test does not depend on installed fonts: every character is half its font
/// size wide, a line is as high as its largest font, three quarters of it above the baseline. Text with a
/// Hebrew or Arabic character reads from right to left.
class FixedTextEngine final : public TextEngine {
 public:
  TextMetrics measure(const AttributedText& text) override;
  std::vector<Rect> glyphBoxes(const AttributedText& text) override;
  std::set<std::string> uncoveredCharacters(const AttributedText&) override { return {}; }
};

}  // namespace velmora::testing
