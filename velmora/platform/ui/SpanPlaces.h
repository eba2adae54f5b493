#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace [[gnu::visibility("hidden")]] velmora {

/// Where spans, views seen along one axis, begin and end. Distances between edges are demanded one by one,
/// the most important first. A demand that contradicts those before it, or would make a span's length
/// negative, is dropped. N spans take up to N log N time.
class SpanPlaces {
 public:
  /// An edge by its number; the origin, from which places count, is an edge too.
  using Edge = std::size_t;
  static constexpr Edge origin = 0;
  static Edge startOf(std::size_t span) { return 1 + 2 * span; }
  static Edge endOf(std::size_t span) { return 2 + 2 * span; }

  explicit SpanPlaces(std::size_t spanCount);

  /// Demands that the edge lie that far behind the other one. A distance that is not finite demands nothing.
  void demand(Edge edge, Edge behind, double distance);

  /// The edge's distance from the origin; none while the demands leave it open.
  std::optional<double> place(Edge edge) const;

 private:
  /// Edges whose distances from each other are settled: a group, and the place in it.
  struct Member {
    std::size_t group;
    double place;
  };

  bool wouldTurnASpan(std::size_t joining, std::size_t group, double shift) const;
  void join(std::size_t joining, std::size_t group, double shift);

  std::vector<Member> _members;            // by edge
  std::vector<std::vector<Edge>> _groups;  // the edges of each
};

}  // namespace velmora
