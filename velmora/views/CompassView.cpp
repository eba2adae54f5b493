#include <velmora/views/CompassView.h>

#include <cmath>
#include <numbers>

#include <velmora/platform/ui/Device.h>
#include <velmora/views/LocalizedText.h>
#include <velmora/views/SpokenTexts.h>

namespace velmora {
namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2;
constexpr double kFullTurn = std::numbers::pi * 2;
constexpr double kNorth = 0, kEast = kQuarterTurn, kSouth = 2 * kQuarterTurn, kWest = 3 * kQuarterTurn;

constexpr double kLineWidth = 6;
constexpr float kTickLength = 20;
constexpr double kLetterSide = 20;
constexpr Color kLetterColor = Color::withWhite(0.8, 1);

}  // namespace

CompassView::CompassView() { setIsUserInteractionEnabled(false); }

std::vector<AccessibilityElement> CompassView::accessibilityElements() {
  const Point north = transform().apply({1, 0}) - transform().apply({0, 0});
  const double clockwiseFromTop = std::atan2(north.x, -north.y) / radiansFromDegrees(1);
  return {{.frame = bounds(),
           .label = localizedText("Compass"),
           .value = localizedText("%@ at the top", spokenBearing(-clockwiseFromTop))}};
}

void CompassView::updateLayer() {
  if (_pathLayer != nullptr) return;
  setBackgroundColor(Color::clear());
  addLetters();
  addRing();
  setNeedsDisplay();
}

void CompassView::resetAndUpdateLayer() {
  if (_pathLayer != nullptr) _pathLayer->removeFromSuperlayer();
  _pathLayer.reset();
  updateLayer();
}

void CompassView::addLetters() {
  _northLabel = addLetter("N");
  _eastLabel = addLetter("E");
  _westLabel = addLetter("W");
  _southLabel = addLetter("S");

  const Point center = {bounds().width * 0.5, bounds().height * 0.5};
  const auto place = [&](TextLayer& letter, double angle, Point fromTick) {
    letter.setPosition(pointOnCircleWithCenter(center, angle, _radius) + fromTick);
  };
  place(*_northLabel, kNorth, {12, 6});
  place(*_eastLabel, kEast, {-4, 20});
  place(*_southLabel, kSouth, {-16, 6});
  place(*_westLabel, kWest, {-4, -10});
}

std::shared_ptr<TextLayer> CompassView::addLetter(const char* letter) {
  auto label = std::make_shared<TextLayer>();
  label->setAttributedText(AttributedText(letter, {.font = Font::captionFont(), .color = kLetterColor}));
  label->setContentsScale(Device::current().screenScale);
  label->setAffineTransform(AffineTransform::rotation(kQuarterTurn));
  label->setFrame({0, 0, kLetterSide, kLetterSide});
  layer().addSublayer(label);
  return label;
}

void CompassView::addRing() {
  _pathLayer = std::make_shared<ShapeLayer>();
  _pathLayer->setLineWidth(kLineWidth);
  _pathLayer->setStrokeColor(_strokeColor);
  _pathLayer->setFillColor(Color::clear());
  _pathLayer->setFrame(frame());
  _pathLayer->setPath(ringAndTicks());
  layer().addSublayer(_pathLayer);
}

Path CompassView::ringAndTicks() const {
  const Point center = {bounds().width * 0.5, bounds().height * 0.5};
  Path path = Path::arc(center, _radius, 0, kFullTurn, true);
  for (const double angle : {kNorth, kEast, kSouth, kWest}) {
    path.moveTo(pointOnCircleWithCenter(center, angle, _radius - kTickLength));
    path.lineTo(pointOnCircleWithCenter(center, angle, _radius));
  }
  return path;
}

}  // namespace velmora
