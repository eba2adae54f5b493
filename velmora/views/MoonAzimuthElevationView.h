#pragma once

#include <memory>
#include <vector>

#include <velmora/platform/ui/ShapeLayer.h>
#include <velmora/platform/ui/View.h>
#include <velmora/views/CircleGeometry.h>

namespace velmora {

/// The path of an object, the Moon, over the sky: a thick half circle between two points of a compass, and a
/// small disc where the object stands on it by its azimuth and elevation.
///
/// Set the frame, the colours and the radius with its two angles, call `updateLayer`, then
/// `setObjectAzimuth` whenever the object moves. To turn the view around its arc, give `rotationPoint` to
/// `setAnchorPoint` first.
class MoonAzimuthElevationView : public View, public CircleGeometry {
 public:
  float radius() const { return _radius; }          ///< of the compass, in points
  float startAngle() const { return _startAngle; }  ///< degrees, clockwise from the positive x axis
  float endAngle() const { return _endAngle; }      ///< degrees, clockwise from the positive x axis

  /// Sets the compass's radius and the angles of the two points on it, and with them `arcCenter` and
  /// `arcRadius` for the bounds as they are now.
  void setRadius(float radius, float withStartAngle, float andEndAngle);

  /// Where the object's circle lies, as of the last `setRadius`.
  Point arcCenter() const { return _arcCenter; }
  double arcRadius() const { return _arcRadius; }

  /// Of the half circle; clear unless set.
  const Color& strokeColor() const { return _strokeColor; }
  void setStrokeColor(const Color& color) { _strokeColor = color; }

  /// Of the object's disc; clear unless set.
  const Color& circleFillColor() const { return _circleFillColor; }
  void setCircleFillColor(const Color& color) { _circleFillColor = color; }

  /// The layers as last built; none before the first `updateLayer`.
  const std::shared_ptr<ShapeLayer>& pathLayer() const { return _pathLayer; }
  const std::shared_ptr<ShapeLayer>& objectLayer() const { return _objectLayer; }

  /// The middle of the two points, and its distance from the first, for the bounds as they are now.
  Point pathCenter() const;
  double pathRadius() const;

  /// Builds the layers that do not stand yet. The half circle runs from the lowest point of its circle over
  /// the left to the highest; the disc has no place until `setObjectAzimuth`.
  void updateLayer();

  /// Builds both layers anew, as after a change of size, arc or colours.
  void resetAndUpdateLayer();

  float objectAzimuth() const { return _objectAzimuth; }      ///< degrees
  float objectElevation() const { return _objectElevation; }  ///< degrees

  /// Moves the object's disc, azimuth and elevation in degrees. It is faded where the elevation is below −1.
  void setObjectAzimuth(float azimuth, float elevation);

  /// One element, the Moon: its bearing and its height; none while its disc has no place.
  std::vector<AccessibilityElement> accessibilityElements() override;

  /// Places the disc on its circle: at elevation + 90 degrees, for azimuths above 180, the western sky,
  /// mirrored to the other side.
  void updateObjectPosition();

  /// `arcCenter` in units of the bounds, as an anchor point is given; in points where the bounds have no
  /// width or no height.
  Point rotationPoint() const;

  /// Moves the layer's anchor point, in units of the bounds, without moving the view on the screen.
  void setAnchorPoint(Point anchorPoint);

 private:
  Point pointOfCompass(float angle) const;
  void addPathLayer();
  void addObjectLayer();

  float _radius = 0;
  float _startAngle = 0;
  float _endAngle = 0;
  Point _arcCenter;
  double _arcRadius = 0;
  Color _strokeColor = Color::clear();
  Color _circleFillColor = Color::clear();
  float _objectAzimuth = 0;
  float _objectElevation = 0;
  std::shared_ptr<ShapeLayer> _pathLayer;
  std::shared_ptr<ShapeLayer> _objectLayer;
};

}  // namespace velmora
