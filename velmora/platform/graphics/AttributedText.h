#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <velmora/platform/graphics/Color.h>
#include <velmora/platform/graphics/Font.h>

namespace velmora {

/// Where a line lies in its rectangle; natural is left for text that reads from left to right, else right.
enum class TextAlignment { natural, left, center, right };

/// What becomes of a line that is wider than its rectangle. Text never wraps.
enum class LineBreak {
  none,      ///< it hangs out
  clipping,  ///< it is cut at the rectangle's edges
};

/// How a stretch of text looks; alignment and line break hold for a whole line.
struct TextAttributes {
  /// The face, its colour, and how the line lies in its rectangle.
  Font font = Font::systemFont(12);
  Color color = Color::black();
  TextAlignment alignment = TextAlignment::natural;
  LineBreak lineBreak = LineBreak::none;

  friend bool operator==(const TextAttributes&, const TextAttributes&) = default;
};

/// A text in UTF-8 and the attributes of its parts. Positions count bytes and lie between characters.
class AttributedText {
 public:
  /// A stretch of text with the same attributes.
  struct Run {
    /// From begin up to end, and how it looks.
    std::size_t begin;
    std::size_t end;
    TextAttributes attributes;

    friend bool operator==(const Run&, const Run&) = default;
  };

  AttributedText() = default;
  /// The whole text with the same attributes.
  explicit AttributedText(std::string text, TextAttributes attributes = {});

  /// The text alone.
  const std::string& text() const { return _text; }
  bool isEmpty() const { return _text.empty(); }

  /// The runs in order; they cover the text without gaps, and none is empty.
  const std::vector<Run>& runs() const { return _runs; }

  /// Alignment and line break of the whole line: those of its first run.
  TextAttributes paragraph() const { return _runs.empty() ? TextAttributes() : _runs.front().attributes; }

  /// Gives the stretch from begin up to end another colour; what lies outside the text is left out.
  void setColor(const Color& color, std::size_t begin, std::size_t end);

  /// Adds the other text at the end, to the last run as far as it has the same attributes.
  void append(const AttributedText& other);

  /// The stretch from begin up to end with its attributes.
  AttributedText substring(std::size_t begin, std::size_t end) const;

  friend bool operator==(const AttributedText&, const AttributedText&) = default;

 private:
  void splitRunAt(std::size_t position);

  std::string _text;
  std::vector<Run> _runs;
};

}  // namespace velmora
