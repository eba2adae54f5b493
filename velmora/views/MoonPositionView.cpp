#include <velmora/views/MoonPositionView.h>

#include <string>

#include <velmora/views/CircleGeometry.h>

namespace velmora {
namespace {

constexpr double kMargin = 40;
constexpr double kRingWidth = 1;
constexpr double kArcWidth = 15;
constexpr double kArcSpacing = 16;
constexpr double kLabelDepth = 4;  // of the label's circle inside the arc's

// Degrees, clockwise from the positive x axis.
constexpr double kFirstAngle = 180;
constexpr double kAngleStep = 20;
constexpr double kArcAngle = 140;
constexpr double kFlippedFrom = 180;

constexpr std::size_t kFirstDay = 21;

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
  const double radius = bounds().width * 0.5 - kMargin;
  canvas.setStrokeColor(Color::purple());
  canvas.setLineWidth(kRingWidth);
  canvas.strokeEllipse({center.x - radius, center.y - radius, 2 * radius, 2 * radius});
  for (std::size_t i = 0; i < dayCount; ++i) {
    drawDay(canvas, i, radius - kArcSpacing * static_cast<double>(i));
  }
}

void MoonPositionView::drawDay(Canvas& canvas, std::size_t index, double radius) {
  const double angle = kFirstAngle + kAngleStep * static_cast<double>(index);
  canvas.setLineWidth(kArcWidth);
  canvas.stroke(Path::arc(middleOf(bounds()), radius, radiansFromDegrees(angle),
                          radiansFromDegrees(angle + kArcAngle), true));

  ArcTextView& label = *_textViews[index];
  label.setFrame(frame());
  label.setAttributedString(AttributedText("Jan " + std::to_string(kFirstDay + index), labelAttributes()));
  label.setArcRadius(radius - kLabelDepth);
  label.setArcTheta(angle, angle >= kFlippedFrom);
}

}  // namespace velmora
