#pragma once

#include <memory>
#include <vector>

#include <velmora/platform/ui/ShapeLayer.h>
#include <velmora/platform/ui/TextLayer.h>
#include <velmora/platform/ui/View.h>
#include <velmora/views/CircleGeometry.h>

namespace velmora {

/// A compass: a ring with four ticks and the letters N, E, S and W outside it. It takes no touches.
///
/// Set the frame, `radius` and `strokeColor`, then call `updateLayer`. North lies at the positive x axis:
/// turn the view by the heading less a quarter turn, and north is up and its letter upright.
class CompassView : public View, public CircleGeometry {
 public:
  CompassView();

  /// Of the ring, in points.
  float radius() const { return _radius; }
  void setRadius(float radius) { _radius = radius; }

  /// Of ring and ticks; clear unless set.
  const Color& strokeColor() const { return _strokeColor; }
  void setStrokeColor(const Color& color) { _strokeColor = color; }

  /// One element, the compass: which bearing is at the top as the view is turned.
  std::vector<AccessibilityElement> accessibilityElements() override;

  /// The layers as last built; none before the first `updateLayer`.
  const std::shared_ptr<TextLayer>& northLabel() const { return _northLabel; }
  const std::shared_ptr<TextLayer>& eastLabel() const { return _eastLabel; }
  const std::shared_ptr<TextLayer>& southLabel() const { return _southLabel; }
  const std::shared_ptr<TextLayer>& westLabel() const { return _westLabel; }
  const std::shared_ptr<ShapeLayer>& pathLayer() const { return _pathLayer; }

  /// Builds ring, ticks and letters; does nothing while they stand.
  /// Kept: the ring's layer is given the view's frame, not its bounds, so that a view that does not lie at
  /// its superview's origin has its ring shifted by as much.
  void updateLayer();

  /// Builds them anew, as after a change of size, radius or colour.
  /// Kept: the letters of before stay underneath.
  void resetAndUpdateLayer();

 private:
  std::shared_ptr<TextLayer> addLetter(const char* letter);
  void addLetters();
  void addRing();
  Path ringAndTicks() const;

  float _radius = 0;
  Color _strokeColor = Color::clear();
  std::shared_ptr<TextLayer> _northLabel;
  std::shared_ptr<TextLayer> _eastLabel;
  std::shared_ptr<TextLayer> _southLabel;
  std::shared_ptr<TextLayer> _westLabel;
  std::shared_ptr<ShapeLayer> _pathLayer;
};

}  // namespace velmora
