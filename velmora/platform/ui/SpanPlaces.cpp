#include <velmora/platform/ui/SpanPlaces.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr double roundingError = 1e-9;

bool isStart(SpanPlaces::Edge edge) { return edge % 2 == 1; }

/// The other edge of the same span; the origin has none.
SpanPlaces::Edge otherEdge(SpanPlaces::Edge edge) { return isStart(edge) ? edge + 1 : edge - 1; }

}  // namespace

SpanPlaces::SpanPlaces(std::size_t spanCount) : _members(1 + 2 * spanCount), _groups(1 + 2 * spanCount) {
  for (Edge edge = 0; edge < _members.size(); ++edge) {
    _members[edge] = {edge, 0};
    _groups[edge] = {edge};
  }
}

void SpanPlaces::demand(Edge edge, Edge behind, double distance) {
  Member joining = _members[edge], staying = _members[behind];
  if (joining.group == staying.group || !std::isfinite(distance)) return;
  double shift = staying.place + distance - joining.place;
  if (_groups[joining.group].size() > _groups[staying.group].size()) {
    std::swap(joining, staying);
    shift = -shift;
  }
  if (!wouldTurnASpan(joining.group, staying.group, shift)) join(joining.group, staying.group, shift);
}

bool SpanPlaces::wouldTurnASpan(std::size_t joining, std::size_t group, double shift) const {
  return std::any_of(_groups[joining].begin(), _groups[joining].end(), [&](Edge edge) {
    if (edge == origin || _members[otherEdge(edge)].group != group) return false;
    const double length = _members[otherEdge(edge)].place - (_members[edge].place + shift);
    return (isStart(edge) ? length : -length) < -roundingError;
  });
}

void SpanPlaces::join(std::size_t joining, std::size_t group, double shift) {
  for (const Edge edge : _groups[joining]) {
    _members[edge] = {group, _members[edge].place + shift};
    _groups[group].push_back(edge);
  }
  _groups[joining].clear();
}

std::optional<double> SpanPlaces::place(Edge edge) const {
  if (_members[edge].group != _members[origin].group) return std::nullopt;
  return _members[edge].place - _members[origin].place;
}

}  // namespace velmora
