#include <velmora/views/LayoutConstraintAdditions.h>

#include <algorithm>
#include <string_view>

#include <velmora/platform/ui/View.h>

namespace velmora {
namespace {

using List = LayoutConstraint::List;

List constraintsWithFormat(std::string_view format, const char* name, View& view) {
  return LayoutConstraint::constraintsWithVisualFormat(format, LayoutFormatOptions::alignAllTop,
                                                       {{name, &view}});
}

void addSizeConstraint(View& view, LayoutAttribute side, double points) {
  LayoutConstraint::activate({std::make_shared<LayoutConstraint>(view, side, LayoutRelation::equal, nullptr,
                                                                 LayoutAttribute::none, 1, points)});
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
  return constraintsWithFormat("|-0-[subView]-0-|", "subView", subView);
}

List LayoutConstraintAdditions::constraintsToFillSubviewVertically(View& subView) {
  return constraintsWithFormat("V:|-0-[subView]-0-|", "subView", subView);
}

List LayoutConstraintAdditions::constraintsToPinSubviewAtTop(View& subView) {
  return constraintsWithFormat("V:|-0-[subView]", "subView", subView);
}

List LayoutConstraintAdditions::constraintsToPinSubviewAtBottom(View& subView) {
  return constraintsWithFormat("V:[subView]-0-|", "subView", subView);
}

List LayoutConstraintAdditions::constraintsToFillSuperViewOfView(View& view) {
  List constraints = constraintsWithFormat("|-0-[view]-0-|", "view", view);
  const List down = constraintsWithFormat("V:|-0-[view]-0-|", "view", view);
  constraints.insert(constraints.end(), down.begin(), down.end());
  return constraints;
}

std::shared_ptr<LayoutConstraint> LayoutConstraintAdditions::constraintToStackView(View& view,
                                                                                   View& belowView,
                                                                                   double withOffset) {
  return std::make_shared<LayoutConstraint>(view, LayoutAttribute::top, LayoutRelation::equal, &belowView,
                                            LayoutAttribute::bottom, 1, withOffset);
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
