#pragma once

#include <memory>

#include <velmora/platform/ui/LayoutConstraint.h>

namespace velmora {

class View;

/// The constraints that stack rows in a list and fill a view with another, and how to find them again. What
/// the operations return is inactive until the caller activates it; a view that is to be pinned or filled
/// must already lie in its superview: without one there are no constraints.
class LayoutConstraintAdditions {
 public:
  /// Join the named edges of the subview with those of its superview.
  static LayoutConstraint::List constraintsToFillSubviewHorizontally(View& subView);
  static LayoutConstraint::List constraintsToFillSubviewVertically(View& subView);
  static LayoutConstraint::List constraintsToPinSubviewAtTop(View& subView);
  static LayoutConstraint::List constraintsToPinSubviewAtBottom(View& subView);
  /// Across, then down.
  static LayoutConstraint::List constraintsToFillSuperViewOfView(View& view);

  /// The view begins that many points below the end of the other one.
  static std::shared_ptr<LayoutConstraint> constraintToStackView(View& view, View& belowView,
                                                                 double withOffset);

  /// Fixes a size of the view in points: adds the constraint to the view itself, active at once.
  static void addHeightConstraintToView(View& view, double withHeight);
  static void addWidthConstraintToView(View& view, double withWidth);

  /// The first active equality in the view's superview that says something of that edge of the view, on
  /// either side of it; none if there is none, and for a view without a superview.
  static std::shared_ptr<LayoutConstraint> topConstraintForView(const View& view);
  static std::shared_ptr<LayoutConstraint> bottomConstraintForView(const View& view);
  static std::shared_ptr<LayoutConstraint> leadingConstraintForView(const View& view);
  static std::shared_ptr<LayoutConstraint> trailingConstraintForView(const View& view);
};

}  // namespace velmora
