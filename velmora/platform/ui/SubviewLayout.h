#pragma once

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

#include <velmora/platform/ui/Device.h>
#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/platform/ui/SpanPlaces.h>
#include <velmora/platform/ui/View.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Places the subviews of one view. It heeds, the earlier the stronger:
/// 1. the active equalities between the view and its subviews, in order of activation, then those that each
///    subview has with itself;
/// 2. the intrinsic widths and heights of the subviews;
/// 3. the sizes that the subviews have, then the places they have.
/// What contradicts something stronger, or demands a negative size, is dropped, so every list of constraints
/// has one definite layout. A subview that no such equality mentions keeps its frame. Equalities with views
/// further down place nothing. Frames are those without the views' transforms.
class [[gnu::visibility("hidden")]] SubviewLayout {
 public:
  SubviewLayout(View & container, LayoutDirection direction);

  void apply() const;

 private:
  enum class Axis { across, down };

  /// Where a view begins, in the direction of reading, and how long it is.
  struct Span {
    double start, length;
  };

  /// A number for each view that the equalities place.
  using Numbers = std::unordered_map<const View*, std::size_t>;

  void collect(const LayoutConstraint::List& constraints);
  bool isPart(const View* item) const;
  void include(View * item);

  Rect mirrored(Rect frame) const;
  Rect presentFrame(const View& view) const;
  std::vector<Span> spansAlong(Axis axis) const;
  void demandEqualities(SpanPlaces & places, Axis axis) const;
  void demandEquality(SpanPlaces & places, Axis axis, const LayoutConstraint& equality) const;

  View& _container;
  LayoutDirection _direction;
  LayoutConstraint::List _equalities;
  std::vector<View*> _placed;
  Numbers _numbers;  // places in _placed
};

}  // namespace velmora
