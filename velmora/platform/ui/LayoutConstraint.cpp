#include <velmora/platform/ui/LayoutConstraint.h>

#include <velmora/platform/ui/View.h>

namespace velmora {
namespace {

enum class Kind { none, edgeAcross, edgeDown, size };

Kind kindOf(LayoutAttribute attribute) {
  switch (attribute) {
    case LayoutAttribute::leading:
    case LayoutAttribute::trailing:
      return Kind::edgeAcross;
    case LayoutAttribute::top:
    case LayoutAttribute::bottom:
      return Kind::edgeDown;
    case LayoutAttribute::width:
    case LayoutAttribute::height:
      return Kind::size;
    case LayoutAttribute::none:
      break;
  }
  return Kind::none;
}

}  // namespace

LayoutConstraint::LayoutConstraint(View& firstItem, LayoutAttribute firstAttribute, LayoutRelation relation,
                                   View* secondItem, LayoutAttribute secondAttribute, double constant)
    : _firstItem(firstItem.shared_from_this()),
      _firstAttribute(firstAttribute),
      _relation(relation),
      _secondAttribute(secondAttribute),
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

/// An edge goes with an edge of its axis or with nothing, a size with nothing.
bool LayoutConstraint::isMeaningful() const {
  const Kind first = kindOf(_firstAttribute), second = kindOf(_secondAttribute);
  return first != Kind::none && (second == Kind::none || (second == first && first != Kind::size));
}

void LayoutConstraint::activate(const List& constraints) {
  for (const auto& constraint : constraints) {
    View* view = constraint->holder();
    if (view == nullptr || constraint->_isActive || !constraint->isMeaningful()) continue;
    constraint->_isActive = true;
    view->_constraints.push_back(constraint);
    view->constraintsChanged();
  }
}

void LayoutConstraint::deactivate(const List& constraints) {
  for (const auto& constraint : constraints) {
    if (!constraint->_isActive) continue;
    View* view = constraint->holder();
    constraint->_isActive = false;
    std::erase(view->_constraints, constraint);
    view->constraintsChanged();
  }
}

}  // namespace velmora
