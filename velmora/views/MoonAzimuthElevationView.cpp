#include <velmora/views/MoonAzimuthElevationView.h>

#include <numbers>

#include <velmora/views/LocalizedText.h>
#include <velmora/views/SpokenTexts.h>

namespace velmora {
namespace {

constexpr double bottom = std::numbers::pi / 2;
constexpr double top = std::numbers::pi * 3 / 2;

constexpr double arcWidth = 6;
constexpr double objectOutlineWidth = 1;
constexpr double objectRadius = 8;

constexpr float fadedBelow = -1;  // degrees of elevation
constexpr double fadedOpacity = 0.3;

void removeLayer(std::shared_ptr<ShapeLayer>& layer) {
  if (layer != nullptr) layer->removeFromSuperlayer();
  layer.reset();
}

}  // namespace

void MoonAzimuthElevationView::setRadius(float radius, float withStartAngle, float andEndAngle) {
  _radius = radius;
  _startAngle = withStartAngle;
  _endAngle = andEndAngle;
  _arcCenter = pathCenter();
  _arcRadius = pathRadius();
}

Point MoonAzimuthElevationView::pathCenter() const {
  const Point start = pointOfCompass(_startAngle), end = pointOfCompass(_endAngle);
  return {(start.x + end.x) * 0.5, (start.y + end.y) * 0.5};
}

double MoonAzimuthElevationView::pathRadius() const {
  return CGPointDistance(pathCenter(), pointOfCompass(_startAngle));
}

Point MoonAzimuthElevationView::pointOfCompass(float angle) const {
  const Point center = {bounds().width * 0.5, bounds().height * 0.5};
  return pointOnCircleWithCenter(center, radiansFromDegrees(angle), _radius);
}

void MoonAzimuthElevationView::updateLayer() {
  if (_pathLayer == nullptr) addPathLayer();
  if (_objectLayer == nullptr) addObjectLayer();
  setNeedsDisplay();
}

void MoonAzimuthElevationView::resetAndUpdateLayer() {
  removeLayer(_pathLayer);
  removeLayer(_objectLayer);
  updateLayer();
}

void MoonAzimuthElevationView::addPathLayer() {
  _pathLayer = std::make_shared<ShapeLayer>();
  _pathLayer->setLineWidth(arcWidth);
  _pathLayer->setStrokeColor(_strokeColor);
  _pathLayer->setFillColor(Color::clear());
  _pathLayer->setFrame(layer().bounds());
  _pathLayer->setPath(Path::arc(pathCenter(), pathRadius(), bottom, top, true));
  layer().addSublayer(_pathLayer);
  setBackgroundColor(Color::clear());
}

void MoonAzimuthElevationView::addObjectLayer() {
  _objectLayer = std::make_shared<ShapeLayer>();
  _objectLayer->setLineWidth(objectOutlineWidth);
  _objectLayer->setStrokeColor(_circleFillColor);
  _objectLayer->setFillColor(_circleFillColor);
  layer().addSublayer(_objectLayer);
}

void MoonAzimuthElevationView::setObjectAzimuth(float azimuth, float elevation) {
  _objectAzimuth = azimuth;
  _objectElevation = elevation;
  if (_objectLayer != nullptr) _objectLayer->setOpacity(elevation >= fadedBelow ? 1 : fadedOpacity);
  updateObjectPosition();
}

std::vector<AccessibilityElement> MoonAzimuthElevationView::accessibilityElements() {
  if (_objectLayer == nullptr || _objectLayer->path().isEmpty()) return {};
  return {{.frame = bounds(),
           .label = localizedText("Moon"),
           .value = spokenBearing(_objectAzimuth) + ", " + spokenHeight(_objectElevation)}};
}

void MoonAzimuthElevationView::updateObjectPosition() {
  if (_objectLayer == nullptr) return;
  const float eastern = _objectElevation + 90;
  const float angle = _objectAzimuth > 180 ? 360 - eastern : eastern;
  const Point place = pointOnCircleWithCenter(_arcCenter, radiansFromDegrees(angle), _arcRadius);
  _objectLayer->setPath(
      Path::ellipse({place.x - objectRadius, place.y - objectRadius, 2 * objectRadius, 2 * objectRadius}));
  setNeedsDisplay();
}

Point MoonAzimuthElevationView::rotationPoint() const {
  const Size size = bounds().size();
  if (size.width == 0 || size.height == 0) return _arcCenter;
  return {_arcCenter.x / size.width, _arcCenter.y / size.height};
}

void MoonAzimuthElevationView::setAnchorPoint(Point anchorPoint) {
  const Size size = bounds().size();
  const auto transformed = [&](Point unit) {
    return transform().apply({unit.x * size.width, unit.y * size.height});
  };
  layer().setPosition(layer().position() + transformed(anchorPoint) - transformed(layer().anchorPoint()));
  layer().setAnchorPoint(anchorPoint);
  setNeedsDisplay();
}

}  // namespace velmora
