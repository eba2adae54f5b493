#pragma once

#include <string>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>
#include <velmora/posters/Palette.h>
#include <velmora/posters/Poster.h>  // declares the sheet hidden, which only a first declaration can

namespace [[gnu::visibility("hidden")]] velmora {

/// Where a label lies in its room, by the direction of reading.
enum class Side { leading, middle, trailing };

/// How a label is set.
struct LabelStyle {
  double size = 0;  ///< in points
  Color color{};
  Side side = Side::leading;
  FontWeight weight = FontWeight::regular;
};

/// A line of text as it stands on the sheet.
struct Label {
  std::string text;
  Rect room;           ///< on the paper, mirrored where reading runs from right to left
  double wantedWidth;  ///< at the size wanted
  double width;        ///< as drawn: narrower where the room is
  double height;
};

/// What a poster is drawn on. Places are given as from left to right; where reading runs the other way the
/// sheet mirrors them, but never the Moon nor a text in itself.
class Sheet {
 public:
  /// A label that is wider than its room is set smaller, to this share of its size and no less.
  static constexpr double leastShare = 0.6;

  Sheet(Canvas& canvas, Size size, const Palette& palette, bool isRightToLeft);

  Size size() const { return _size; }
  const Palette& palette() const { return _palette; }
  Canvas& canvas() { return _canvas; }

  /// A point of the upright or lying A4 sheet that this one is an enlargement of.
  double unit() const { return _unit; }

  /// The same place and area on the paper.
  Point onPaper(Point point) const;
  Rect onPaper(Rect rect) const;

  void fill(const Path& path, const Color& color);
  void fillRect(Rect rect, const Color& color) { fill(Path::rect(rect), color); }
  void stroke(const Path& path, const Color& color, double width, const std::vector<double>& dash = {});
  void line(Point from, Point to, const Color& color, double width);

  /// Sets the text in the middle of the room's height.
  void label(const std::string& text, Rect room, const LabelStyle& style);

  /// The style at the largest size, up to its own, at which each text is no wider than the room.
  static LabelStyle fitting(LabelStyle style, const std::vector<std::string>& texts, double width);

  /// How wide the text is at its size.
  static double widthOf(const std::string& text, const LabelStyle& style);

  /// The labels so far, in reading order.
  const std::vector<Label>& labels() const { return _labels; }

 private:
  template <class Drawing>
  void mirrored(const Drawing& draw);

  Canvas& _canvas;
  const Size _size;
  const double _unit;
  const Palette& _palette;
  const bool _isRightToLeft;
  std::vector<Label> _labels;
};

}  // namespace velmora
