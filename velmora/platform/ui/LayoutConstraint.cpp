#include <velmora/platform/ui/LayoutConstraint.h>

#include <algorithm>

#include <velmora/platform/ui/View.h>

namespace velmora {
namespace {

bool contains(const LayoutConstraint::List& list, const LayoutConstraint& constraint) {
  return std::any_of(list.begin(), list.end(), [&](const auto& one) { return one.get() == &constraint; });
}

}  // namespace

LayoutConstraint::LayoutConstraint(View& firstItem, LayoutAttribute firstAttribute, LayoutRelation relation,
                                   View* secondItem, LayoutAttribute secondAttribute, double multiplier,
                                   double constant)
    : _firstItem(firstItem.shared_from_this()),
      _firstAttribute(firstAttribute),
      _relation(relation),
      _secondAttribute(secondAttribute),
      _multiplier(multiplier),
      _constant(constant) {
  if (secondItem != nullptr) _secondItem = secondItem->shared_from_this();
}

// The nearest view that both items lie in; the item itself where there is only one.
View* LayoutConstraint::holder() const {
  const auto first = firstItem();
  const auto second = _secondAttribute == LayoutAttribute::none ? first : secondItem();
  if (first == nullptr || second == nullptr) return nullptr;
  View* view = first.get();
  while (view != nullptr && !second->isDescendantOf(*view)) view = view->superview();
  return view;
}

bool LayoutConstraint::isActive() const {
  const View* view = holder();
  return view != nullptr && contains(view->constraints(), *this);
}

void LayoutConstraint::activate(const List& constraints) {
  for (const auto& constraint : constraints) {
    View* view = constraint->holder();
    if (view == nullptr || contains(view->_constraints, *constraint)) continue;
    view->_constraints.push_back(constraint);
    view->setNeedsDisplay();
  }
}

void LayoutConstraint::deactivate(const List& constraints) {
  for (const auto& constraint : constraints) {
    View* view = constraint->holder();
    if (view == nullptr) continue;
    if (std::erase(view->_constraints, constraint) > 0) view->setNeedsDisplay();
  }
}

}  // namespace velmora
