#include <velmora/posters/Sheet.h>

#include <algorithm>

#include <velmora/platform/graphics/TextLayout.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

/// By which a text that was made to fit may still be too wide: a size of its own is a font to look up.
constexpr double rounding = 0.01;

double unitOf(Size size) {
  const Size a4 = paperSize(Paper::a4, size.width > size.height);
  return std::min(size.width / a4.width, size.height / a4.height);
}

TextAlignment alignment(Side side, bool isRightToLeft) {
  if (side == Side::middle) return TextAlignment::center;
  return (side == Side::leading) == isRightToLeft ? TextAlignment::right : TextAlignment::left;
}

TextAttributes attributes(const LabelStyle& style) {
  return {.font = {"System", style.size, style.weight}, .color = style.color};
}

}  // namespace

Sheet::Sheet(Canvas& canvas, Size size, const Palette& palette, bool isRightToLeft)
    : _canvas(canvas), _size(size), _unit(unitOf(size)), _palette(palette), _isRightToLeft(isRightToLeft) {}

Point Sheet::onPaper(Point point) const {
  return _isRightToLeft ? Point{_size.width - point.x, point.y} : point;
}

Rect Sheet::onPaper(Rect rect) const {
  const Rect area = rect.standardised();
  return _isRightToLeft ? Rect{_size.width - area.maxX(), area.y, area.width, area.height} : area;
}

template <class Drawing>
void Sheet::mirrored(const Drawing& draw) {
  if (!_isRightToLeft) return draw();
  _canvas.save();
  _canvas.translate(_size.width, 0);
  _canvas.scale(-1, 1);
  draw();
  _canvas.restore();
}

void Sheet::fill(const Path& path, const Color& color) {
  _canvas.setFillColor(color);
  mirrored([&] { _canvas.fill(path); });
}

void Sheet::stroke(const Path& path, const Color& color, double width, const std::vector<double>& dash) {
  _canvas.setStrokeColor(color);
  _canvas.setLineWidth(width);
  _canvas.setLineDash(dash);
  mirrored([&] { _canvas.stroke(path); });
}

void Sheet::line(Point from, Point to, const Color& color, double width) {
  Path path;
  path.moveTo(from);
  path.lineTo(to);
  stroke(path, color, width);
}

double Sheet::widthOf(const std::string& text, const LabelStyle& style) {
  return TextLayout(AttributedText(text, attributes(style))).width();
}

LabelStyle Sheet::fitting(LabelStyle style, const std::vector<std::string>& texts, double width) {
  double widest = 0;
  for (const std::string& text : texts) widest = std::max(widest, widthOf(text, style));
  if (widest > width) style.size *= std::max(leastShare, width / widest);
  return style;
}

void Sheet::label(const std::string& text, Rect room, const LabelStyle& style) {
  if (text.empty()) return;
  TextAttributes wanted = attributes(style);
  wanted.alignment = alignment(style.side, _isRightToLeft);
  TextLayout line(AttributedText(text, wanted));
  const double wantedWidth = line.width();
  if (wantedWidth > room.width * (1 + rounding)) {
    wanted.font.size *= std::max(leastShare, room.width / wantedWidth);
    line = TextLayout(AttributedText(text, wanted));
  }
  const Rect area = onPaper(room);
  line.drawInRect(_canvas, {area.x, area.midY() - line.height() * 0.5, area.width, line.height()});
  _labels.push_back({text, area, wantedWidth, line.width(), line.height()});
}

}  // namespace velmora
