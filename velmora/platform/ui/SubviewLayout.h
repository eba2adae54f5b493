#pragma once

#include <cstddef>
#include <map>
#include <vector>

#include <velmora/platform/ui/ConstraintSolver.h>
#include <velmora/platform/ui/LayoutConstraint.h>
#include <velmora/platform/ui/View.h>

namespace [[gnu::visibility("hidden")]] velmora {

/// Places the subviews of one view. It heeds, the earlier the stronger:
/// 1. the active equalities between the view and its subviews, in order of activation, then those that each
///    subview has with itself;
/// 2. the intrinsic widths and heights of the subviews;
/// 3. the sizes that the subviews have, then the places they have.
/// What contradicts something stronger gives way, so every list of constraints has one definite layout. A
/// subview that no such equality mentions keeps its frame. Equalities with views further down place nothing.
/// Frames are those without the views' transforms.
class [[gnu::visibility("hidden")]] SubviewLayout {
 public:
  explicit SubviewLayout(View & container);

  void apply() const;

 private:
  struct Box {
    LinearExpression x, y, width, height;
  };

  void collect(const LayoutConstraint::List& constraints);
  bool isPart(const View* item) const;
  void include(View * item);

  Box boxOf(const View& item) const;
  LinearExpression mirrored(const LinearExpression& x) const;
  LinearExpression valueOf(const View& item, LayoutAttribute attribute) const;

  void addEqualities(ConstraintSolver & solver) const;
  void addIntrinsicSizes(ConstraintSolver & solver) const;
  void addPresentFrames(ConstraintSolver & solver) const;

  View& _container;
  bool _isRightToLeft;
  LayoutConstraint::List _equalities;
  std::vector<View*> _placed;
  std::map<const View*, std::size_t> _numbers;  // places in _placed
};

}  // namespace velmora
