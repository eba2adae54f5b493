#include <velmora/platform/ui/SubviewLayout.h>

#include <velmora/platform/ui/Device.h>
#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/platform/ui/View.h>

namespace [[gnu::visibility("hidden")]] velmora {

SubviewLayout::SubviewLayout(View& container)
    : _container(container),
      _isRightToLeft(Device::current().layoutDirection() == LayoutDirection::rightToLeft) {
  collect(container.constraints());
  for (const auto& subview : container.subviews()) collect(subview->constraints());
}

void SubviewLayout::collect(const LayoutConstraint::List& constraints) {
  for (const auto& constraint : constraints) {
    const auto first = constraint->firstItem();
    const auto second = constraint->secondItem();
    if (constraint->relation() != LayoutRelation::equal || !isPart(first.get())) continue;
    if (second != nullptr && !isPart(second.get())) continue;
    _equalities.push_back(constraint);
    include(first.get());
    include(second.get());
  }
}

bool SubviewLayout::isPart(const View* item) const {
  return item == &_container || (item != nullptr && item->superview() == &_container);
}

void SubviewLayout::include(View* item) {
  if (item == nullptr || item == &_container) return;
  if (_numbers.emplace(item, _placed.size()).second) _placed.push_back(item);
}

SubviewLayout::Box SubviewLayout::boxOf(const View& item) const {
  if (&item == &_container) {
    const Rect bounds = item.bounds();
    return {bounds.x, bounds.y, bounds.width, bounds.height};
  }
  const std::size_t first = 4 * _numbers.at(&item);
  return {LinearExpression::variable(first), LinearExpression::variable(first + 1),
          LinearExpression::variable(first + 2), LinearExpression::variable(first + 3)};
}

// The same distance from the container's other edge.
LinearExpression SubviewLayout::mirrored(const LinearExpression& x) const {
  const Rect bounds = _container.bounds();
  return bounds.minX() + bounds.maxX() - x;
}

LinearExpression SubviewLayout::valueOf(const View& item, LayoutAttribute attribute) const {
  const Box box = boxOf(item);
  switch (attribute) {
    case LayoutAttribute::left:
      return box.x;
    case LayoutAttribute::right:
      return box.x + box.width;
    case LayoutAttribute::top:
      return box.y;
    case LayoutAttribute::bottom:
      return box.y + box.height;
    case LayoutAttribute::leading:
      return _isRightToLeft ? mirrored(box.x + box.width) : box.x;
    case LayoutAttribute::trailing:
      return _isRightToLeft ? mirrored(box.x) : box.x + box.width;
    case LayoutAttribute::width:
      return box.width;
    case LayoutAttribute::height:
      return box.height;
    case LayoutAttribute::centerX:
      return box.x + box.width * 0.5;
    case LayoutAttribute::centerY:
      return box.y + box.height * 0.5;
    case LayoutAttribute::none:
      break;
  }
  return 0;
}

void SubviewLayout::addEqualities(ConstraintSolver& solver) const {
  for (const auto& equality : _equalities) {
    LinearExpression zero =
        valueOf(*equality->firstItem(), equality->firstAttribute()) - equality->constant();
    if (const auto second = equality->secondItem()) {
      zero = zero - valueOf(*second, equality->secondAttribute()) * equality->multiplier();
    }
    solver.add(zero);
  }
}

void SubviewLayout::addIntrinsicSizes(ConstraintSolver& solver) const {
  for (const View* view : _placed) {
    const Box box = boxOf(*view);
    const Size size = view->intrinsicContentSize();
    if (size.width != View::noIntrinsicMetric) solver.add(box.width - size.width);
    if (size.height != View::noIntrinsicMetric) solver.add(box.height - size.height);
  }
}

void SubviewLayout::addPresentFrames(ConstraintSolver& solver) const {
  for (const View* view : _placed) {
    solver.add(boxOf(*view).width - view->bounds().width);
    solver.add(boxOf(*view).height - view->bounds().height);
  }
  for (const View* view : _placed) {
    solver.add(boxOf(*view).x - view->layer().untransformedFrame().x);
    solver.add(boxOf(*view).y - view->layer().untransformedFrame().y);
  }
}

void SubviewLayout::apply() const {
  if (_placed.empty()) return;
  ConstraintSolver solver(4 * _placed.size());
  addEqualities(solver);
  addIntrinsicSizes(solver);
  addPresentFrames(solver);
  for (std::size_t i = 0; i < _placed.size(); ++i) {
    const Rect present = _placed[i]->layer().untransformedFrame();
    _placed[i]->place({solver.value(4 * i).value_or(present.x), solver.value(4 * i + 1).value_or(present.y),
                       solver.value(4 * i + 2).value_or(present.width),
                       solver.value(4 * i + 3).value_or(present.height)});
  }
}

}  // namespace velmora
