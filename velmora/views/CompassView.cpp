#include <velmora/views/CompassView.h>

#include <cmath>
#include <numbers>

#include <velmora/platform/ui/Device.h>
#include <velmora/views/LocalizedText.h>
#include <velmora/views/SpokenTexts.h>

namespace velmora {
namespace {

constexpr double quarterTurn = std::numbers::pi / 2;
constexpr double fullTurn = std::numbers::pi * 2;
constexpr double north = 0, east = quarterTurn, south = 2 * quarterTurn, west = 3 * quarterTurn;

constexpr double lineWidth = 6;
constexpr float tickLength = 20;
constexpr double letterSide = 20;
constexpr Color letterColor = Color::withWhite(0.8, 1);

}  // namespace

CompassView::CompassView() { setIsUserInteractionEnabled(false); }

std::vector<AccessibilityElement> CompassView::accessibilityElements() {
  const Point northward = transform().apply({1, 0}) - transform().apply({0, 0});
  const double clockwiseFromTop = std::atan2(northward.x, -northward.y) / radiansFromDegrees(1);
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
  place(*_northLabel, north, {12, 6});
  place(*_eastLabel, east, {-4, 20});
  place(*_southLabel, south, {-16, 6});
  place(*_westLabel, west, {-4, -10});
}

std::shared_ptr<TextLayer> CompassView::addLetter(const char* letter) {
  auto label = std::make_shared<TextLayer>();
  label->setAttributedText(AttributedText(letter, {.font = Font::captionFont(), .color = letterColor}));
  label->setContentsScale(Device::current().screenScale);
  label->setAffineTransform(AffineTransform::rotation(quarterTurn));
  label->setFrame({0, 0, letterSide, letterSide});
  layer().addSublayer(label);
  return label;
}

void CompassView::addRing() {
  _pathLayer = std::make_shared<ShapeLayer>();
  _pathLayer->setLineWidth(lineWidth);
  _pathLayer->setStrokeColor(_strokeColor);
  _pathLayer->setFillColor(Color::clear());
  _pathLayer->setFrame(frame());
  _pathLayer->setPath(ringAndTicks());
  layer().addSublayer(_pathLayer);
}

Path CompassView::ringAndTicks() const {
  const Point center = {bounds().width * 0.5, bounds().height * 0.5};
  Path path = Path::arc(center, _radius, 0, fullTurn, true);
  for (const double angle : {north, east, south, west}) {
    path.moveTo(pointOnCircleWithCenter(center, angle, _radius - tickLength));
    path.lineTo(pointOnCircleWithCenter(center, angle, _radius));
  }
  return path;
}

}  // namespace velmora
