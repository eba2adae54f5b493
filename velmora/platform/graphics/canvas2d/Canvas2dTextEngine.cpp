#include <velmora/platform/graphics/canvas2d/Canvas2dTextEngine.h>

#include <velmora/platform/time/Locale.h>

// In texts.js.
extern "C" {
void velmora_canvas2d_forget_lines(const char* locale);
void velmora_canvas2d_begin_line(double number);
void velmora_canvas2d_add_run(double number, const char* text, std::size_t size, const char* family,
                              double fontSize, int weight, const char* color);
/// Width, ascent, descent, and 1 for a line that reads from right to left.
void velmora_canvas2d_measure_line(double number, double* metrics);
/// How many glyphs the line has; left edge and advance of each, as many as there is room for.
std::size_t velmora_canvas2d_glyph_boxes(double number, double* boxes, std::size_t room);
}

namespace velmora {
namespace {

std::string keyOf(const AttributedText& text) {
  std::string key = text.text();
  for (const AttributedText::Run& run : text.runs()) {
    const auto& [font, color, alignment, lineBreak] = run.attributes;
    key += '\0' + std::to_string(run.end) + '\n' + font.family + '\n' + std::to_string(font.size) + '\n' +
           std::to_string(static_cast<int>(font.weight)) + color.text();
  }
  return key;
}

}  // namespace

TextEngine& TextEngine::drawingEngine() { return Canvas2dTextEngine::shared(); }

Canvas2dTextEngine& Canvas2dTextEngine::shared() {
  static Canvas2dTextEngine engine;
  return engine;
}

const Canvas2dTextEngine::Line& Canvas2dTextEngine::line(const AttributedText& text) {
  followLocale();
  const auto [found, isNew] = _lines.try_emplace(keyOf(text));
  if (!isNew) return found->second;
  const double number = ++_lastNumber;
  velmora_canvas2d_begin_line(number);
  for (const AttributedText::Run& run : text.runs()) {
    const Font& font = run.attributes.font;
    velmora_canvas2d_add_run(number, text.text().data() + run.begin, run.end - run.begin, font.family.c_str(),
                             font.size, static_cast<int>(font.weight), run.attributes.color.text().c_str());
  }
  double measured[4] = {};
  velmora_canvas2d_measure_line(number, measured);
  found->second = {number,
                   {.width = measured[0],
                    .ascent = measured[1],
                    .descent = measured[2],
                    .isRightToLeft = measured[3] != 0}};
  return found->second;
}

void Canvas2dTextEngine::makeRoom() {
  constexpr std::size_t mostLines = 4000;
  if (_lines.size() >= mostLines) forget();
}

std::vector<Rect> Canvas2dTextEngine::glyphBoxes(const AttributedText& text) {
  const Line& measured = line(text);
  std::vector<double> edges(2 * text.text().size());
  const std::size_t count = velmora_canvas2d_glyph_boxes(measured.number, edges.data(), text.text().size());
  std::vector<Rect> boxes;
  for (std::size_t glyph = 0; glyph < count; ++glyph) {
    boxes.push_back(
        {edges[2 * glyph], 0, edges[2 * glyph + 1], measured.metrics.ascent + measured.metrics.descent});
  }
  return boxes;
}

/// The browser chooses faces by the language.
void Canvas2dTextEngine::followLocale() {
  const std::string locale = Locale::current().identifier();
  if (locale == _locale) return;
  _locale = locale;
  forget();
}

void Canvas2dTextEngine::forget() {
  _lines.clear();
  velmora_canvas2d_forget_lines(_locale.c_str());
}

}  // namespace velmora
