#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class View;

/// An edge, a size or a centre line of a view. Leading is the side where reading starts: left, or right where
/// the layout runs from right to left; both sides are then measured from the container's right edge.
enum class LayoutAttribute {
  none,
  left,
  right,
  top,
  bottom,
  leading,
  trailing,
  width,
  height,
  centerX,
  centerY
};

enum class LayoutRelation { lessThanOrEqual, equal, greaterThanOrEqual };

/// How the views of a visual format lie beside their own direction.
enum class LayoutFormatOptions : unsigned {
  none = 0,
  alignAllTop = 8,  ///< the views of a horizontal format share their top edge; one view alone is as it was
};

/// A demand on where views lie: first attribute = multiplier × second attribute + constant. Equalities place
/// views while they are active (see SubviewLayout); inequalities are kept and can be looked up, but place
/// nothing. A constraint does not keep its views alive.
class LayoutConstraint {
 public:
  /// Constraints in order.
  using List = std::vector<std::shared_ptr<LayoutConstraint>>;

  /// Without a second item the first attribute equals the constant. The items are held by std::shared_ptr.
  LayoutConstraint(View& firstItem, LayoutAttribute firstAttribute, LayoutRelation relation, View* secondItem,
                   LayoutAttribute secondAttribute, double multiplier, double constant);

  /// The view, or none when it is gone.
  std::shared_ptr<View> firstItem() const { return _firstItem.lock(); }
  LayoutAttribute firstAttribute() const { return _firstAttribute; }
  LayoutRelation relation() const { return _relation; }
  /// The view, or none when there is none or it is gone.
  std::shared_ptr<View> secondItem() const { return _secondItem.lock(); }
  LayoutAttribute secondAttribute() const { return _secondAttribute; }
  double multiplier() const { return _multiplier; }
  double constant() const { return _constant; }

  /// Whether it stands among the constraints of a view.
  bool isActive() const;

  /// Puts each constraint, once, among the constraints of the nearest view that holds both its items, or of
  /// its only item. One whose items lie in no common view stays inactive.
  static void activate(const List& constraints);
  static void deactivate(const List& constraints);

  /// The constraints that a visual format spells out, inactive, in order of reading. A format is
  /// "H:" (or nothing: across, from leading to trailing) or "V:" (down), then views in brackets with a gap
  /// "-N-" between neighbours, N a whole number of points; "|-N-" before the first and "-N-|" after the last
  /// view pin them to the edges of their superview: "V:|-0-[header]-8-[list]-0-|". There are none at all for
  /// a format that is malformed, names a view that is not given or pins a view without a superview.
  static List constraintsWithVisualFormat(std::string_view format, LayoutFormatOptions options,
                                          const std::map<std::string, View*, std::less<>>& views);

 private:
  View* holder() const;

  std::weak_ptr<View> _firstItem;
  LayoutAttribute _firstAttribute;
  LayoutRelation _relation;
  std::weak_ptr<View> _secondItem;
  LayoutAttribute _secondAttribute;
  double _multiplier;
  double _constant;
};

}  // namespace velmora
