#include "tests/support/RecordingCanvas.h"

#include <initializer_list>

#include <velmora/platform/resources/Image.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::testing {
namespace {

std::string joined(std::initializer_list<double> numbers) {
  std::string text;
  for (const double number : numbers) text += (text.empty() ? "" : " ") + numberText(number);
  return text;
}

std::string text(Point point) { return joined({point.x, point.y}); }
std::string text(Rect rect) { return joined({rect.x, rect.y, rect.width, rect.height}); }

struct FigureText {
  std::string operator()(const Path::Move& move) const { return "move " + text(move.to); }
  std::string operator()(const Path::Line& line) const { return "line " + text(line.to); }
  std::string operator()(const Path::Curve& curve) const {
    return "curve " + text(curve.control1) + " " + text(curve.control2) + " " + text(curve.to);
  }
  std::string operator()(const Path::Close&) const { return "close"; }
  std::string operator()(const Path::Rectangle& figure) const { return "rect " + text(figure.rect); }
  std::string operator()(const Path::Ellipse& figure) const { return "ellipse " + text(figure.rect); }
  std::string operator()(const Path::RoundedRectangle& figure) const {
    return "roundedRect " + text(figure.rect) + " corners " + std::to_string(figure.corners) + " radii " +
           joined({figure.radii.width, figure.radii.height});
  }
  std::string operator()(const Path::Arc& figure) const {
    return "arc " + text(figure.center) + " radius " + numberText(figure.radius) + " from " +
           numberText(figure.startAngle) + " to " + numberText(figure.endAngle) +
           (figure.clockwise ? " clockwise" : " counterclockwise");
  }
};

std::string text(const Path& path) {
  std::string written;
  for (const Path::Figure& figure : path.figures()) {
    written += (written.empty() ? "" : ", ") + std::visit(FigureText(), figure);
  }
  return written;
}

std::string text(const Font& font) {
  std::string weight;
  if (font.weight == FontWeight::medium) weight = " medium";
  if (font.weight == FontWeight::semibold) weight = " semibold";
  if (font.weight == FontWeight::bold) weight = " bold";
  return font.family + weight + " " + numberText(font.size);
}

/// Font and colour of each run; with several runs each after the text it belongs to.
std::string runsText(const AttributedText& attributed) {
  std::string written;
  for (const AttributedText::Run& run : attributed.runs()) {
    if (attributed.runs().size() > 1) {
      written += " \"" + attributed.text().substr(run.begin, run.end - run.begin) + "\"";
    }
    written += " " + text(run.attributes.font) + " " + run.attributes.color.text();
  }
  return written;
}

std::string name(BlendMode mode) {
  switch (mode) {
    case BlendMode::normal:
      return "normal";
    case BlendMode::overlay:
      return "overlay";
    case BlendMode::clear:
      return "clear";
  }
  return "unknown";
}

}  // namespace

std::string numberText(double number) {
  std::string text = decimalText(number, 4);
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string RecordingCanvas::text() const {
  std::string all;
  for (const std::string& line : _lines) all += line + "\n";
  return all;
}

void RecordingCanvas::close(Open expected) {
  if (_open.empty() || _open.back() != expected) {
    _wasMisnested = true;
  } else {
    _open.pop_back();
  }
}

void RecordingCanvas::save() {
  _open.push_back(Open::save);
  write("save");
}

void RecordingCanvas::restore() {
  close(Open::save);
  write("restore");
}

void RecordingCanvas::setStrokeColor(const Color& color) { write("setStrokeColor " + color.text()); }
void RecordingCanvas::setFillColor(const Color& color) { write("setFillColor " + color.text()); }
void RecordingCanvas::setLineWidth(double width) { write("setLineWidth " + numberText(width)); }

void RecordingCanvas::setLineDash(const std::vector<double>& lengths, double phase) {
  std::string line = "setLineDash";
  for (const double length : lengths) line += " " + numberText(length);
  if (lengths.empty()) line += " solid";
  if (phase != 0) line += " phase " + numberText(phase);
  write(std::move(line));
}

void RecordingCanvas::setAlpha(double alpha) { write("setAlpha " + numberText(alpha)); }
void RecordingCanvas::setBlendMode(BlendMode mode) { write("setBlendMode " + name(mode)); }
void RecordingCanvas::translate(double dx, double dy) { write("translate " + joined({dx, dy})); }
void RecordingCanvas::rotate(double angle) { write("rotate " + numberText(angle)); }
void RecordingCanvas::scale(double sx, double sy) { write("scale " + joined({sx, sy})); }

void RecordingCanvas::concat(const AffineTransform& t) {
  write("concat " + joined({t.a, t.b, t.c, t.d, t.tx, t.ty}));
}

void RecordingCanvas::clip(const Path& path) { write("clip " + testing::text(path)); }
void RecordingCanvas::fill(const Path& path) { write("fill " + testing::text(path)); }
void RecordingCanvas::stroke(const Path& path) { write("stroke " + testing::text(path)); }
void RecordingCanvas::fillRect(Rect rect) { write("fillRect " + testing::text(rect)); }
void RecordingCanvas::fillEllipse(Rect rect) { write("fillEllipse " + testing::text(rect)); }
void RecordingCanvas::strokeEllipse(Rect rect) { write("strokeEllipse " + testing::text(rect)); }

void RecordingCanvas::strokeLine(Point from, Point to) {
  write("strokeLine " + testing::text(from) + " to " + testing::text(to));
}

void RecordingCanvas::clearRect(Rect rect) { write("clearRect " + testing::text(rect)); }

void RecordingCanvas::drawImage(const Image& image, Rect rect) {
  write("drawImage " + image.name() + (image.isMirrored() ? " mirrored" : "") + " in " + testing::text(rect));
}

void RecordingCanvas::drawText(const AttributedText& text, Point topLeft) {
  write("drawText \"" + text.text() + "\" at " + testing::text(topLeft) + runsText(text));
}

void RecordingCanvas::drawGlyph(const AttributedText& text, std::size_t glyph, Point topLeft) {
  write("drawGlyph " + std::to_string(glyph) + " of \"" + text.text() + "\" at " + testing::text(topLeft) +
        runsText(text));
}

void RecordingCanvas::beginGroup(double alpha) {
  _open.push_back(Open::group);
  write("beginGroup " + numberText(alpha));
}

void RecordingCanvas::endGroup() {
  close(Open::group);
  write("endGroup");
}

}  // namespace velmora::testing
