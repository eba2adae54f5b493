#include "tests/support/FixedTextEngine.h"

#include <algorithm>

namespace velmora::testing {
namespace {

constexpr double widthShare = 0.5, ascentShare = 0.75;

bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

/// Lead bytes of U+0580 to U+07FF, which holds the Hebrew and the Arabic letters.
bool beginsRightToLeftCharacter(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0xD6 && value <= 0xDF;
}

}  // namespace

TextMetrics FixedTextEngine::measure(const AttributedText& text) {
  TextMetrics metrics;
  double size = text.isEmpty() ? TextAttributes().font.size : 0;
  for (const AttributedText::Run& run : text.runs()) size = std::max(size, run.attributes.font.size);
  for (const Rect& box : glyphBoxes(text)) metrics.width += box.width;
  metrics.ascent = size * ascentShare;
  metrics.descent = size - metrics.ascent;
  metrics.isRightToLeft = std::any_of(text.text().begin(), text.text().end(),
                                      [](char c) { return beginsRightToLeftCharacter(c); });
  return metrics;
}

std::vector<Rect> FixedTextEngine::glyphBoxes(const AttributedText& text) {
  std::vector<Rect> boxes;
  double x = 0, height = 0;
  bool isRightToLeft = false;
  for (const AttributedText::Run& run : text.runs()) {
    const double width = run.attributes.font.size * widthShare;
    height = std::max(height, run.attributes.font.size);
    for (std::size_t i = run.begin; i < run.end; ++i) {
      if (!beginsCharacter(text.text()[i])) continue;
      isRightToLeft |= beginsRightToLeftCharacter(text.text()[i]);
      boxes.push_back({x, 0, width, 0});
      x += width;
    }
  }
  for (Rect& box : boxes) {
    box.height = height;
    if (isRightToLeft) box.x = x - box.x - box.width;
  }
  return boxes;
}

}  // namespace velmora::testing
