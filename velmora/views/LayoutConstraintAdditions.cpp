#include <velmora/views/LayoutConstraintAdditions.h>

#include <algorithm>

#include <velmora/platform/ui/View.h>

namespace velmora {
namespace {

using List = LayoutConstraint::List;

std::shared_ptr<LayoutConstraint> equality(View& view, LayoutAttribute edge, View& other,
                                           LayoutAttribute otherEdge, double distance) {
  return std::make_shared<LayoutConstraint>(view, edge, LayoutRelation::equal, &other, otherEdge, distance);
}

/// The view begins where its superview does; none without one.
List pinnedAtStart(View& view, LayoutAttribute start) {
  if (view.superview() == nullptr) return {};
  return {equality(view, start, *view.superview(), start, 0)};
}

/// The view ends where its superview does; none without one.
List pinnedAtEnd(View& view, LayoutAttribute end) {
  if (view.superview() == nullptr) return {};
  return {equality(*view.superview(), end, view, end, 0)};
}

List joined(List first, const List& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

void addSizeConstraint(View& view, LayoutAttribute side, double points) {
  LayoutConstraint::activate({std::make_shared<LayoutConstraint>(view, side, LayoutRelation::equal, nullptr,
                                                                 LayoutAttribute::none, points)});
}

bool isEqualityOf(const LayoutConstraint& constraint, LayoutAttribute edge, const View& view) {
  if (constraint.relation() != LayoutRelation::equal) return false;
  return (constraint.firstItem().get() == &view && constraint.firstAttribute() == edge) ||
         (constraint.secondItem().get() == &view && constraint.secondAttribute() == edge);
}

std::shared_ptr<LayoutConstraint> constraintForEdge(LayoutAttribute edge, const View& view) {
  if (view.superview() == nullptr) return nullptr;
  const List& constraints = view.superview()->constraints();
  const auto found = std::find_if(constraints.begin(), constraints.end(), [&](const auto& constraint) {
    return isEqualityOf(*constraint, edge, view);
  });
  return found == constraints.end() ? nullptr : *found;
}

}  // namespace

List LayoutConstraintAdditions::constraintsToFillSubviewHorizontally(View& subView) {
  return joined(pinnedAtStart(subView, LayoutAttribute::leading),
                pinnedAtEnd(subView, LayoutAttribute::trailing));
}

List LayoutConstraintAdditions::constraintsToFillSubviewVertically(View& subView) {
  return joined(constraintsToPinSubviewAtTop(subView), constraintsToPinSubviewAtBottom(subView));
}

List LayoutConstraintAdditions::constraintsToPinSubviewAtTop(View& subView) {
  return pinnedAtStart(subView, LayoutAttribute::top);
}

List LayoutConstraintAdditions::constraintsToPinSubviewAtBottom(View& subView) {
  return pinnedAtEnd(subView, LayoutAttribute::bottom);
}

List LayoutConstraintAdditions::constraintsToFillSuperViewOfView(View& view) {
  return joined(constraintsToFillSubviewHorizontally(view), constraintsToFillSubviewVertically(view));
}

std::shared_ptr<LayoutConstraint> LayoutConstraintAdditions::constraintToStackView(View& view,
                                                                                   View& belowView,
                                                                                   double withOffset) {
  return equality(view, LayoutAttribute::top, belowView, LayoutAttribute::bottom, withOffset);
}

void LayoutConstraintAdditions::addHeightConstraintToView(View& view, double withHeight) {
  addSizeConstraint(view, LayoutAttribute::height, withHeight);
}

void LayoutConstraintAdditions::addWidthConstraintToView(View& view, double withWidth) {
  addSizeConstraint(view, LayoutAttribute::width, withWidth);
}

std::shared_ptr<LayoutConstraint> LayoutConstraintAdditions::topConstraintForView(const View& view) {
  return constraintForEdge(LayoutAttribute::top, view);
}

std::shared_ptr<LayoutConstraint> LayoutConstraintAdditions::bottomConstraintForView(const View& view) {
  return constraintForEdge(LayoutAttribute::bottom, view);
}

std::shared_ptr<LayoutConstraint> LayoutConstraintAdditions::leadingConstraintForView(const View& view) {
  return constraintForEdge(LayoutAttribute::leading, view);
}

std::shared_ptr<LayoutConstraint> LayoutConstraintAdditions::trailingConstraintForView(const View& view) {
  return constraintForEdge(LayoutAttribute::trailing, view);
}

}  // namespace velmora
