#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <velmora/platform/graphics/Canvas.h>
#include <velmora/platform/ui/AccessibilityElement.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/platform/ui/Layer.h>
#include <velmora/platform/ui/Touch.h>

namespace velmora {

class LayoutConstraint;

/// A rectangle of the screen that draws itself, holds further views and is touched.
///
/// A host makes a topmost view, sets its frame, draws it with `render` whenever `needsDisplay` returns true,
/// finds the view under a finger with `hitTest` and hands that view the touches. Views are held by
/// std::shared_ptr: a view by the one it lies in; constraints and `superview` hold nothing. A view of the
/// library that notifies others lives until its own call returns, even if an observer releases it. For the
/// main thread only.
class View : public std::enable_shared_from_this<View> {
 public:
  /// Of an intrinsic size: the content has no width or height of its own.
  static constexpr double noIntrinsicMetric = -1;

  View() = default;
  virtual ~View();
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  /// The place in the superview's coordinates; under a transform, the smallest rectangle around it.
  Rect frame() const { return _layer.frame(); }
  void setFrame(Rect frame);

  /// The view's own coordinates, in which it draws and places its subviews.
  Rect bounds() const { return _layer.bounds(); }

  /// Turns, scales or shifts the view and all it holds around the anchor point of its layer.
  AffineTransform transform() const { return _layer.affineTransform(); }
  void setTransform(const AffineTransform& transform);

  /// 1 is opaque, 0 invisible; holds for the view and all it holds as one.
  double alpha() const { return _layer.opacity(); }
  void setAlpha(double alpha);

  /// Painted behind everything the view draws; clear unless set.
  Color backgroundColor() const { return _backgroundColor; }
  void setBackgroundColor(const Color& color);

  /// Whether nothing behind the view can be seen through it: by default, whether its background is opaque.
  virtual bool isOpaque() const { return alpha() >= 1 && _backgroundColor.alpha >= 1; }

  /// The layer with the view's geometry; its sublayers are drawn above the view and below its subviews. After
  /// a change to a layer the caller says `setNeedsDisplay`.
  Layer& layer() { return _layer; }
  const Layer& layer() const { return _layer; }

  /// Takes the view from where it was and puts it on top of those held. It must not be above this one.
  void addSubview(std::shared_ptr<View> view);
  /// The constraints that join it, or what it holds, to views outside end with it. Does nothing for a view
  /// that no other holds.
  void removeFromSuperview();
  View* superview() const { return _superview; }
  const std::vector<std::shared_ptr<View>>& subviews() const { return _subviews; }
  /// Whether it is the other view or lies in it, however deep.
  bool isDescendantOf(const View& other) const;

  /// Told after the view came to lie in another view or was taken out.
  virtual void didMoveToSuperview() {}

  /// The active constraints whose views have this view as their nearest common superview, and those that say
  /// something of this view alone, in order of activation.
  const std::vector<std::shared_ptr<LayoutConstraint>>& constraints() const { return _constraints; }

  /// The size that the content asks for; holds where no constraint fixes it. After a change of what it
  /// returns the view says `invalidateIntrinsicContentSize`.
  virtual Size intrinsicContentSize() const { return {noIntrinsicMetric, noIntrinsicMetric}; }
  /// Says that the intrinsic size has changed, so that what the view lies in is to be drawn again.
  void invalidateIntrinsicContentSize();

  /// Places the subviews by the active constraints, and theirs in turn, at every depth. Subviews are placed
  /// again only after something that their places depend on has changed.
  void layoutSubviews();

  /// Says that the view has to be drawn again.
  void setNeedsDisplay() { _needsDisplay = true; }
  /// Whether the view or one below it has to be drawn again. A new view has.
  bool needsDisplay() const;

  /// Places the subviews and draws the view where its frame lies: its background; what `drawRect` draws,
  /// gathered on a transparent group of its own and cut at the bounds; its layers; its subviews.
  void render(Canvas& canvas);

  /// Draws the view's own content into the rectangle, its bounds.
  virtual void drawRect(Canvas&, Rect) {}

  /// A finger went down, moved, lifted, or was taken away by something else.
  virtual void touchesBegan(const Touch&) {}
  virtual void touchesMoved(const Touch&) {}
  virtual void touchesEnded(const Touch&) {}
  virtual void touchesCancelled(const Touch&) {}

  /// Whether touches reach the view and those it holds; they do unless it is turned off.
  bool isUserInteractionEnabled() const { return _isUserInteractionEnabled; }
  void setIsUserInteractionEnabled(bool enabled) { _isUserInteractionEnabled = enabled; }

  /// The topmost view that takes touches at the point, given in this view's own coordinates; none outside the
  /// bounds. An invisible view takes none. Between two touches a host holds it weakly, since it may be taken
  /// out meanwhile.
  std::shared_ptr<View> hitTest(Point point);

  /// The same place in the view's own coordinates.
  Point convertFromSuperview(Point point) const { return _layer.convertFromSuperlayer(point); }

  /// The smallest rectangle in the superview's coordinates that holds the rectangle of the view's own.
  Rect convertToSuperview(Rect rect) const { return _layer.convertToSuperlayer(rect); }

  /// Whether a screen reader stops at the view as a whole; where not, at its elements.
  virtual bool isAccessibilityElement() const { return _isAccessibilityElement; }
  void setIsAccessibilityElement(bool isElement) { _isAccessibilityElement = isElement; }

  /// What the view is, for a screen reader.
  AccessibilityTraits accessibilityTraits() const { return _accessibilityTraits; }
  void setAccessibilityTraits(AccessibilityTraits traits) { _accessibilityTraits = traits; }

  /// How its elements belong together.
  virtual AccessibilityContainerType accessibilityContainerType() const {
    return AccessibilityContainerType::none;
  }

  /// The elements that the view offers to a screen reader, in reading order.
  virtual std::vector<AccessibilityElement> accessibilityElements() { return {}; }

 private:
  friend class LayoutConstraint;  // activates itself into _constraints
  friend class SubviewLayout;     // places views whatever their transform is

  std::shared_ptr<View> detach();
  void dropConstraintsOn(const View& leaving);
  void constraintsChanged();
  void layoutIn(LayoutDirection direction);
  bool needsLayout(LayoutDirection direction) const;
  void place(Rect untransformedFrame);
  void draw(Canvas& canvas);
  void drawBackground(Canvas& canvas);
  void drawContent(Canvas& canvas);

  Layer _layer;
  Color _backgroundColor = Color::clear();
  View* _superview = nullptr;
  std::vector<std::shared_ptr<View>> _subviews;
  std::vector<std::shared_ptr<LayoutConstraint>> _constraints;
  /// What the subviews were placed for; none while they have to be placed.
  struct Layout {
    LayoutDirection direction;
    Rect bounds;
  };
  std::optional<Layout> _layout;
  std::optional<Rect> _placedFrame;  // where the superview's layout has put the view, without its transform
  bool _needsDisplay = true;
  bool _isUserInteractionEnabled = true;
  bool _isAccessibilityElement = false;
  AccessibilityTraits _accessibilityTraits = AccessibilityTraits::none;
};

}  // namespace velmora
