#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>

namespace velmora {

/// A rectangle that is drawn as one: it stands somewhere in the layer above it, may be turned, scaled and
/// faded, and holds further layers. Its anchor point, a place within its own bounds, comes to lie on its
/// position in the layer above, and the transform happens around it.
class Layer {
 public:
  Layer() = default;
  virtual ~Layer();
  Layer(const Layer&) = delete;
  Layer& operator=(const Layer&) = delete;

  /// The layer's own coordinates: what it draws and the layers it holds are placed in them.
  Rect bounds() const { return _bounds; }
  void setBounds(Rect bounds) { _bounds = bounds; }

  /// Where the anchor point lies in the layer above.
  Point position() const { return _position; }
  void setPosition(Point position) { _position = position; }

  /// In units of the bounds: (0, 0) is their origin, (1, 1) the opposite corner, (0.5, 0.5), the default, the
  /// centre. Setting it moves the layer, since the position stays.
  Point anchorPoint() const { return _anchorPoint; }
  void setAnchorPoint(Point anchorPoint) { _anchorPoint = anchorPoint; }

  /// Turns, scales or shifts the layer around its anchor point.
  AffineTransform affineTransform() const { return _affineTransform; }
  void setAffineTransform(const AffineTransform& transform) { _affineTransform = transform; }

  /// 1 is opaque; holds for the layer and all it holds as one.
  double opacity() const { return _opacity; }
  void setOpacity(double opacity) { _opacity = opacity; }

  /// The smallest rectangle in the layer above that holds the transformed bounds.
  Rect frame() const;
  /// Sizes the bounds and moves the position so that the frame becomes the rectangle. Under a transform that
  /// turns by other than quarter turns only its origin is met.
  void setFrame(Rect frame);

  /// The frame as it would be without the transform.
  Rect untransformedFrame() const;
  void setUntransformedFrame(Rect frame);

  /// From the layer's own coordinates to those of the layer above.
  AffineTransform transformToSuperlayer() const;
  /// The same place in the layer's own coordinates. A layer squeezed to nothing leaves the point as it is.
  Point convertFromSuperlayer(Point point) const;
  /// The smallest rectangle in the layer above that holds the rectangle of the layer's own coordinates.
  Rect convertToSuperlayer(Rect rect) const;

  /// Takes the layer from where it was and puts it on top of those held. It must not be above this one.
  void addSublayer(std::shared_ptr<Layer> layer);
  /// Does nothing for a layer that no other holds.
  void removeFromSuperlayer();
  Layer* superlayer() const { return _superlayer; }
  const std::vector<std::shared_ptr<Layer>>& sublayers() const { return _sublayers; }

  /// Draws the layer, then those it holds from the bottom up, in the coordinates of the layer above.
  void render(Canvas& canvas) const;
  void renderSublayers(Canvas& canvas) const;

  /// Runs the drawing in the layer's own coordinates and lays it down with the layer's opacity. A layer that
  /// its transform squeezes to nothing is not drawn.
  void drawWithin(Canvas& canvas, const std::function<void()>& drawing) const;

 private:
  /// Draws the layer's own content in its own coordinates; nothing in a plain layer.
  virtual void draw(Canvas&) const {}

  Rect _bounds;
  Point _position;
  Point _anchorPoint{0.5, 0.5};
  AffineTransform _affineTransform;
  double _opacity = 1;
  Layer* _superlayer = nullptr;
  std::vector<std::shared_ptr<Layer>> _sublayers;
};

}  // namespace velmora
