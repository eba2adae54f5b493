#pragma once

#include <memory>
#include <vector>

namespace velmora {

class View;

/// An edge or a size of a view. Leading is the side where reading starts: left, or right where the layout
/// runs from right to left; both sides are then measured from the container's right edge.
enum class LayoutAttribute { none, top, bottom, leading, trailing, width, height };

enum class LayoutRelation { lessThanOrEqual, equal, greaterThanOrEqual };

/// A demand on where views lie: an edge equals an edge of the same axis plus a constant, in points, or a size
/// equals a constant. Equalities place views while they are active, the earlier ones first; one that
/// contradicts these, or demands a negative size, is dropped. Inequalities can be looked up, but place
/// nothing. A constraint does not keep its views alive.
class LayoutConstraint {
 public:
  /// Constraints in order.
  using List = std::vector<std::shared_ptr<LayoutConstraint>>;

  /// Without a second item, whose attribute is then none, the first attribute equals the constant. The items
  /// are held by std::shared_ptr.
  LayoutConstraint(View& firstItem, LayoutAttribute firstAttribute, LayoutRelation relation, View* secondItem,
                   LayoutAttribute secondAttribute, double constant);

  /// The view, or none when it is gone.
  std::shared_ptr<View> firstItem() const { return _firstItem.lock(); }
  LayoutAttribute firstAttribute() const { return _firstAttribute; }
  LayoutRelation relation() const { return _relation; }
  /// The view, or none when there is none or it is gone.
  std::shared_ptr<View> secondItem() const { return _secondItem.lock(); }
  LayoutAttribute secondAttribute() const { return _secondAttribute; }
  double constant() const { return _constant; }

  /// Whether it stands among the constraints of a view.
  bool isActive() const { return _isActive; }

  /// Puts each constraint, once, among the constraints of the nearest view that holds both its items, or of
  /// its only item. One whose items lie in no common view, or whose attributes do not go together, stays
  /// inactive.
  static void activate(const List& constraints);
  static void deactivate(const List& constraints);

 private:
  friend class View;  // ends those of a view that leaves

  bool isMeaningful() const;
  View* holder() const;

  std::weak_ptr<View> _firstItem;
  LayoutAttribute _firstAttribute;
  LayoutRelation _relation;
  std::weak_ptr<View> _secondItem;
  LayoutAttribute _secondAttribute;
  double _constant;
  bool _isActive = false;
};

}  // namespace velmora
