#pragma once

#include <string>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>

namespace velmora::testing {

/// Writes each operation as one readable line: "fillEllipse 1 1 48 48", "setFillColor #FFFFFFFF",
/// `drawText "14" at 10 20 System 17 #CCCCCCFF`. Numbers have at most four decimals.
class RecordingCanvas final : public Canvas {
 public:
  const std::vector<std::string>& lines() const { return _lines; }

  /// The lines, each ended by a line feed.
  std::string text() const;

  /// Forgets the lines, not what is open.
  void clear() { _lines.clear(); }

  /// Whether every save has been restored and every group ended, in the opposite order.
  bool isBalanced() const { return _open.empty() && !_wasMisnested; }

  void save() override;
  void restore() override;
  void setStrokeColor(const Color& color) override;
  void setFillColor(const Color& color) override;
  void setLineWidth(double width) override;
  void setLineDash(const std::vector<double>& lengths, double phase) override;
  void setAlpha(double alpha) override;
  void setBlendMode(BlendMode mode) override;
  void translate(double dx, double dy) override;
  void rotate(double angle) override;
  void scale(double sx, double sy) override;
  void concat(const AffineTransform& transform) override;
  void clip(const Path& path) override;
  void fill(const Path& path) override;
  void stroke(const Path& path) override;
  void fillRect(Rect rect) override;
  void fillEllipse(Rect rect) override;
  void strokeEllipse(Rect rect) override;
  void strokeLine(Point from, Point to) override;
  void clearRect(Rect rect) override;
  void drawImage(const Image& image, Rect rect) override;
  void drawText(const AttributedText& text, Point topLeft) override;
  void drawGlyph(const AttributedText& text, std::size_t glyph, Point topLeft) override;
  void beginGroup(double alpha) override;
  void endGroup() override;

 private:
  enum class Open { save, group };

  void write(std::string line) { _lines.push_back(std::move(line)); }
  void close(Open expected);

  std::vector<std::string> _lines;
  std::vector<Open> _open;
  bool _wasMisnested = false;
};

/// The number without needless digits: "12", "0.5", "-3.3333".
std::string numberText(double number);

}  // namespace velmora::testing
