#pragma once

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <velmora/platform/graphics/AttributedText.h>
#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

/// The size of one line of text, in points.
struct TextMetrics {
  double width = 0;    ///< the advance of the whole line
  double ascent = 0;   ///< from the top of the line to its baseline: the tallest of the fonts asked for
  double descent = 0;  ///< from the baseline to the bottom of the line
  bool isRightToLeft = false;  ///< whether the line reads from right to left
};

/// What shapes and measures text. The process has one, which a test may replace by one of fixed sizes.
class TextEngine {
 public:
  virtual ~TextEngine() = default;

  /// The size of the text as one line.
  virtual TextMetrics measure(const AttributedText& text) = 0;

  /// The box of each glyph, in reading order: from its left edge on the line over its advance, as high as the
  /// line; the line's top left is (0, 0).
  virtual std::vector<Rect> glyphBoxes(const AttributedText& text) = 0;

  /// The characters of the text that no installed face has a glyph for, each once; empty when all are
  /// covered.
  virtual std::set<std::string> uncoveredCharacters(const AttributedText& text) = 0;

  /// Where the text may go on in another line, as its language has it: the bytes before which it may break,
  /// ascending, at last its size. An engine that knows no language breaks behind blanks.
  virtual std::vector<std::size_t> lineBreaks(const std::string& text);

  /// The process's engine: the one last set, else the drawing library's.
  static TextEngine& current();
  /// Puts another engine in place and returns the one that was there; none stands for the drawing library's.
  static std::shared_ptr<TextEngine> setCurrent(std::shared_ptr<TextEngine> engine);

 private:
  /// The engine that draws; the adapter in cairo/ implements it.
  static TextEngine& drawingEngine();
};

/// Replaces the process's text engine for as long as it lives.
class ScopedTextEngine {
 public:
  /// Puts the engine in place.
  explicit ScopedTextEngine(std::shared_ptr<TextEngine> engine)
      : _former(TextEngine::setCurrent(std::move(engine))) {}
  ~ScopedTextEngine() { TextEngine::setCurrent(std::move(_former)); }
  ScopedTextEngine(const ScopedTextEngine&) = delete;
  ScopedTextEngine& operator=(const ScopedTextEngine&) = delete;

 private:
  std::shared_ptr<TextEngine> _former;
};

}  // namespace velmora
