#include <velmora/platform/ui/LayoutConstraint.h>

#include <gtest/gtest.h>

#include <velmora/platform/ui/View.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using List = LayoutConstraint::List;

std::shared_ptr<View> viewIn(View& superview) {
  auto view = std::make_shared<View>();
  superview.addSubview(view);
  return view;
}

std::shared_ptr<LayoutConstraint> heightOf(View& view, double height) {
  return std::make_shared<LayoutConstraint>(view, LayoutAttribute::height, LayoutRelation::equal, nullptr,
                                            LayoutAttribute::none, height);
}

std::shared_ptr<LayoutConstraint> below(View& view, View& other, double offset = 0) {
  return std::make_shared<LayoutConstraint>(view, LayoutAttribute::top, LayoutRelation::equal, &other,
                                            LayoutAttribute::bottom, offset);
}

class LayoutConstraintTest : public ::testing::Test {
 protected:
  std::shared_ptr<View> root = std::make_shared<View>();
  std::shared_ptr<View> a = viewIn(*root);
  std::shared_ptr<View> b = viewIn(*root);
};

TEST_F(LayoutConstraintTest, KeepsWhatItWasMadeOf) {
  const LayoutConstraint constraint(*a, LayoutAttribute::leading, LayoutRelation::lessThanOrEqual, b.get(),
                                    LayoutAttribute::trailing, 12);
  EXPECT_EQ(constraint.firstItem(), a);
  EXPECT_EQ(constraint.firstAttribute(), LayoutAttribute::leading);
  EXPECT_EQ(constraint.relation(), LayoutRelation::lessThanOrEqual);
  EXPECT_EQ(constraint.secondItem(), b);
  EXPECT_EQ(constraint.secondAttribute(), LayoutAttribute::trailing);
  EXPECT_EQ(constraint.constant(), 12);
}

TEST_F(LayoutConstraintTest, LivesInTheNearestCommonSuperview) {
  const auto inner = viewIn(*a);
  const auto siblings = below(*a, *b);
  const auto parentAndChild = below(*inner, *a);
  const auto apart = below(*inner, *b);
  const auto alone = heightOf(*inner, 20);
  LayoutConstraint::activate({siblings, parentAndChild, apart, alone});
  EXPECT_EQ(root->constraints(), (List{siblings, apart}));
  EXPECT_EQ(a->constraints(), List{parentAndChild});
  EXPECT_EQ(inner->constraints(), List{alone});
  EXPECT_TRUE(b->constraints().empty());
}

TEST_F(LayoutConstraintTest, IsActiveBetweenActivationAndDeactivation) {
  const auto constraint = below(*a, *b);
  EXPECT_FALSE(constraint->isActive());
  LayoutConstraint::activate({constraint});
  LayoutConstraint::activate({constraint});
  EXPECT_TRUE(constraint->isActive());
  EXPECT_EQ(root->constraints().size(), 1U);
  LayoutConstraint::deactivate({constraint});
  LayoutConstraint::deactivate({constraint});
  EXPECT_FALSE(constraint->isActive());
  EXPECT_TRUE(root->constraints().empty());
}

TEST_F(LayoutConstraintTest, StaysInactiveWithoutACommonSuperview) {
  const auto stranger = std::make_shared<View>();
  const auto constraint = below(*a, *stranger);
  LayoutConstraint::activate({constraint});
  EXPECT_FALSE(constraint->isActive());
}

TEST_F(LayoutConstraintTest, DoesNotKeepItsViewsAlive) {
  const auto constraint = below(*a, *b);
  b->removeFromSuperview();
  b.reset();
  EXPECT_EQ(constraint->secondItem(), nullptr);
  LayoutConstraint::activate({constraint});
  EXPECT_FALSE(constraint->isActive());
  EXPECT_TRUE(root->constraints().empty());
}

TEST_F(LayoutConstraintTest, EndsWhenOneOfItsViewsLeavesTheCommonSuperview) {
  const auto inner = viewIn(*a);
  const auto siblings = below(*a, *b);
  const auto fromWithin = below(*inner, *b);
  const auto own = heightOf(*a, 20);
  const auto inside = below(*inner, *a);
  LayoutConstraint::activate({siblings, fromWithin, own, inside});
  a->removeFromSuperview();
  EXPECT_TRUE(root->constraints().empty());
  EXPECT_EQ(a->constraints(), (List{own, inside})) << "what lies within the view goes with it";
}

TEST_F(LayoutConstraintTest, ActivatingAndDeactivatingAskForDrawing) {
  const auto constraint = heightOf(*a, 20);
  testing::RecordingCanvas canvas;
  root->render(canvas);
  EXPECT_FALSE(root->needsDisplay());
  LayoutConstraint::activate({constraint});
  EXPECT_TRUE(root->needsDisplay());
  root->render(canvas);
  LayoutConstraint::deactivate({constraint});
  EXPECT_TRUE(root->needsDisplay());
}

TEST_F(LayoutConstraintTest, AttributesThatDoNotGoTogetherStayInactive) {
  using enum LayoutAttribute;
  const auto activated = [&](LayoutAttribute first, LayoutAttribute second) {
    const auto constraint =
        std::make_shared<LayoutConstraint>(*a, first, LayoutRelation::equal, b.get(), second, 0);
    LayoutConstraint::activate({constraint});
    return constraint->isActive();
  };
  EXPECT_TRUE(activated(top, bottom));
  EXPECT_TRUE(activated(trailing, leading));
  EXPECT_FALSE(activated(top, leading)) << "of different axes";
  EXPECT_FALSE(activated(width, width)) << "a size is compared with a constant alone";
  EXPECT_FALSE(activated(leading, height));
  EXPECT_FALSE(activated(none, none));
}

TEST_F(LayoutConstraintTest, EndsWithTheViewThatHoldsIt) {
  const auto constraint = below(*a, *b);
  LayoutConstraint::activate({constraint});
  root.reset();
  EXPECT_FALSE(constraint->isActive());
  LayoutConstraint::deactivate({constraint});
}

}  // namespace
}  // namespace velmora
