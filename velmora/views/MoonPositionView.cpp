#include <velmora/views/MoonPositionView.h>

#include <string>

#include <velmora/views/CircleGeometry.h>

namespace velmora {
namespace {

constexpr double margin = 40;
constexpr double ringWidth = 1;
constexpr double arcWidth = 15;
constexpr double arcSpacing = 16;
constexpr double labelDepth = 4;  // of the label's circle inside the arc's

// Degrees, clockwise from the positive x axis.
constexpr double firstAngle = 180;
constexpr double angleStep = 20;
constexpr double arcAngle = 140;
constexpr double flippedFrom = 180;

constexpr std::size_t firstDay = 21;

TextAttributes labelAttributes() { return {.font = Font::systemFont(12), .color = Color::withWhite(0.8, 1)}; }

Point middleOf(Rect bounds) { return {bounds.width * 0.5, bounds.height * 0.5}; }

}  // namespace

MoonPositionView::MoonPositionView() {
  for (auto& textView : _textViews) {
    textView = std::make_shared<ArcTextView>();
    addSubview(textView);
  }
}

void MoonPositionView::drawRect(Canvas& canvas, Rect rect) {
  canvas.clearRect(rect);
  const Point center = middleOf(bounds());
  const double radius = bounds().width * 0.5 - margin;
  canvas.setStrokeColor(Color::purple());
  canvas.setLineWidth(ringWidth);
  canvas.strokeEllipse({center.x - radius, center.y - radius, 2 * radius, 2 * radius});
  for (std::size_t i = 0; i < dayCount; ++i) {
    drawDay(canvas, i, radius - arcSpacing * static_cast<double>(i));
  }
}

void MoonPositionView::drawDay(Canvas& canvas, std::size_t index, double radius) {
  const double angle = firstAngle + angleStep * static_cast<double>(index);
  canvas.setLineWidth(arcWidth);
  canvas.stroke(Path::arc(middleOf(bounds()), radius, radiansFromDegrees(angle),
                          radiansFromDegrees(angle + arcAngle), true));

  ArcTextView& label = *_textViews[index];
  label.setFrame(frame());
  label.setAttributedString(AttributedText("Jan " + std::to_string(firstDay + index), labelAttributes()));
  label.setArcRadius(radius - labelDepth);
  label.setArcTheta(angle, angle >= flippedFrom);
}

}  // namespace velmora
