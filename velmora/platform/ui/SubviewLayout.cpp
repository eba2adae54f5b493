#include <velmora/platform/ui/SubviewLayout.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

bool isAcross(LayoutAttribute attribute) {
  return attribute == LayoutAttribute::leading || attribute == LayoutAttribute::trailing ||
         attribute == LayoutAttribute::width;
}

bool isLength(LayoutAttribute attribute) {
  return attribute == LayoutAttribute::width || attribute == LayoutAttribute::height;
}

bool isStart(LayoutAttribute attribute) {
  return attribute == LayoutAttribute::leading || attribute == LayoutAttribute::top;
}

}  // namespace

SubviewLayout::SubviewLayout(View& container, LayoutDirection direction)
    : _container(container), _direction(direction) {
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

/// As far from the container's other edge, where reading begins on the right.
Rect SubviewLayout::mirrored(Rect frame) const {
  if (_direction == LayoutDirection::leftToRight) return frame;
  const Rect bounds = _container.bounds();
  return {bounds.minX() + bounds.maxX() - frame.x - frame.width, frame.y, frame.width, frame.height};
}

Rect SubviewLayout::presentFrame(const View& view) const {
  return mirrored(view.layer().untransformedFrame());
}

void SubviewLayout::demandEquality(SpanPlaces& places, Axis axis, const LayoutConstraint& equality) const {
  const Rect bounds = _container.bounds();
  const Span whole = axis == Axis::across ? Span{bounds.x, bounds.width} : Span{bounds.y, bounds.height};
  /// An edge, and how far the attribute lies behind it.
  struct Place {
    SpanPlaces::Edge edge;
    double distance;
  };
  const auto placeOf = [&](const View* item, LayoutAttribute attribute) -> Place {
    if (attribute == LayoutAttribute::none) return {SpanPlaces::origin, 0};
    const bool begins = isStart(attribute);
    if (item == &_container) return {SpanPlaces::origin, whole.start + (begins ? 0 : whole.length)};
    const std::size_t span = _numbers.at(item);
    return {begins ? SpanPlaces::startOf(span) : SpanPlaces::endOf(span), 0};
  };

  const auto item = equality.firstItem(), other = equality.secondItem();
  if (isLength(equality.firstAttribute())) {
    if (item.get() == &_container) return;
    const std::size_t span = _numbers.at(item.get());
    places.demand(SpanPlaces::endOf(span), SpanPlaces::startOf(span), equality.constant());
  } else {
    const Place place = placeOf(item.get(), equality.firstAttribute());
    const Place behind = placeOf(other.get(), equality.secondAttribute());
    places.demand(place.edge, behind.edge, behind.distance + equality.constant() - place.distance);
  }
}

void SubviewLayout::demandEqualities(SpanPlaces& places, Axis axis) const {
  for (const auto& equality : _equalities) {
    if (isAcross(equality->firstAttribute()) == (axis == Axis::across)) {
      demandEquality(places, axis, *equality);
    }
  }
}

std::vector<SubviewLayout::Span> SubviewLayout::spansAlong(Axis axis) const {
  const bool isAcross = axis == Axis::across;
  const auto demandLength = [](SpanPlaces& places, std::size_t i, double length) {
    places.demand(SpanPlaces::endOf(i), SpanPlaces::startOf(i), length);
  };
  std::vector<Span> present;
  for (const View* view : _placed) {
    const Rect frame = presentFrame(*view);
    present.push_back(isAcross ? Span{frame.x, frame.width} : Span{frame.y, frame.height});
  }

  SpanPlaces places(_placed.size());
  demandEqualities(places, axis);
  for (std::size_t i = 0; i < _placed.size(); ++i) {
    const Size size = _placed[i]->intrinsicContentSize();
    const double length = isAcross ? size.width : size.height;
    if (length != View::noIntrinsicMetric) demandLength(places, i, length);
  }
  for (std::size_t i = 0; i < present.size(); ++i) demandLength(places, i, present[i].length);
  for (std::size_t i = 0; i < present.size(); ++i) {
    places.demand(SpanPlaces::startOf(i), SpanPlaces::origin, present[i].start);
  }

  for (std::size_t i = 0; i < present.size(); ++i) {
    const auto start = places.place(SpanPlaces::startOf(i)), end = places.place(SpanPlaces::endOf(i));
    if (start) present[i].start = *start;
    if (start && end) present[i].length = *end - *start;
  }
  return present;
}

void SubviewLayout::apply() const {
  const std::vector<Span> across = spansAlong(Axis::across), down = spansAlong(Axis::down);
  for (std::size_t i = 0; i < _placed.size(); ++i) {
    _placed[i]->place(mirrored({across[i].start, down[i].start, across[i].length, down[i].length}));
  }
}

}  // namespace velmora
