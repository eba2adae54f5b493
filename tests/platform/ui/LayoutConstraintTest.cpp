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
                                            LayoutAttribute::none, 1, height);
}

std::shared_ptr<LayoutConstraint> below(View& view, View& other, double offset = 0) {
  return std::make_shared<LayoutConstraint>(view, LayoutAttribute::top, LayoutRelation::equal, &other,
                                            LayoutAttribute::bottom, 1, offset);
}

class LayoutConstraintTest : public ::testing::Test {
 protected:
  std::shared_ptr<View> root = std::make_shared<View>();
  std::shared_ptr<View> a = viewIn(*root);
  std::shared_ptr<View> b = viewIn(*root);
};

TEST_F(LayoutConstraintTest, KeepsWhatItWasMadeOf) {
  const LayoutConstraint constraint(*a, LayoutAttribute::width, LayoutRelation::lessThanOrEqual, b.get(),
                                    LayoutAttribute::height, 0.5, 12);
  EXPECT_EQ(constraint.firstItem(), a);
  EXPECT_EQ(constraint.firstAttribute(), LayoutAttribute::width);
  EXPECT_EQ(constraint.relation(), LayoutRelation::lessThanOrEqual);
  EXPECT_EQ(constraint.secondItem(), b);
  EXPECT_EQ(constraint.secondAttribute(), LayoutAttribute::height);
  EXPECT_EQ(constraint.multiplier(), 0.5);
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

TEST_F(LayoutConstraintTest, AFillingFormatGivesALeadingAndATrailingEquality) {
  const auto list = LayoutConstraint::constraintsWithVisualFormat(
      "|-0-[subView]-3-|", LayoutFormatOptions::alignAllTop, {{"subView", a.get()}});
  ASSERT_EQ(list.size(), 2U);
  EXPECT_EQ(list[0]->firstItem(), a);
  EXPECT_EQ(list[0]->firstAttribute(), LayoutAttribute::leading);
  EXPECT_EQ(list[0]->relation(), LayoutRelation::equal);
  EXPECT_EQ(list[0]->secondItem(), root);
  EXPECT_EQ(list[0]->secondAttribute(), LayoutAttribute::leading);
  EXPECT_EQ(list[0]->multiplier(), 1);
  EXPECT_EQ(list[0]->constant(), 0);
  EXPECT_EQ(list[1]->firstItem(), root);
  EXPECT_EQ(list[1]->firstAttribute(), LayoutAttribute::trailing);
  EXPECT_EQ(list[1]->secondItem(), a);
  EXPECT_EQ(list[1]->secondAttribute(), LayoutAttribute::trailing);
  EXPECT_EQ(list[1]->constant(), 3);
  EXPECT_FALSE(list[0]->isActive());
}

TEST_F(LayoutConstraintTest, AVerticalFormatSpeaksOfTopAndBottom) {
  const auto list = LayoutConstraint::constraintsWithVisualFormat(
      "V:|-1-[a]-2-[b]-3-|", LayoutFormatOptions::alignAllTop, {{"a", a.get()}, {"b", b.get()}});
  ASSERT_EQ(list.size(), 3U) << "tops of views above each other are not aligned";
  EXPECT_EQ(list[0]->firstAttribute(), LayoutAttribute::top);
  EXPECT_EQ(list[0]->secondAttribute(), LayoutAttribute::top);
  EXPECT_EQ(list[1]->firstItem(), b);
  EXPECT_EQ(list[1]->firstAttribute(), LayoutAttribute::top);
  EXPECT_EQ(list[1]->secondItem(), a);
  EXPECT_EQ(list[1]->secondAttribute(), LayoutAttribute::bottom);
  EXPECT_EQ(list[1]->constant(), 2);
  EXPECT_EQ(list[2]->firstItem(), root);
  EXPECT_EQ(list[2]->firstAttribute(), LayoutAttribute::bottom);
}

TEST_F(LayoutConstraintTest, ViewsBesideEachOtherShareTheirTopWhereTheOptionSaysSo) {
  const std::map<std::string, View*, std::less<>> views{{"a", a.get()}, {"b", b.get()}};
  const auto plain =
      LayoutConstraint::constraintsWithVisualFormat("[a]-8-[b]", LayoutFormatOptions::none, views);
  ASSERT_EQ(plain.size(), 1U);
  const auto aligned =
      LayoutConstraint::constraintsWithVisualFormat("[a]-8-[b]", LayoutFormatOptions::alignAllTop, views);
  ASSERT_EQ(aligned.size(), 2U);
  EXPECT_EQ(aligned[1]->firstAttribute(), LayoutAttribute::top);
  EXPECT_EQ(aligned[1]->secondAttribute(), LayoutAttribute::top);
  EXPECT_EQ(static_cast<unsigned>(LayoutFormatOptions::alignAllTop), 8U);
}

TEST_F(LayoutConstraintTest, AFormatThatCannotBeMetGivesNone) {
  const auto none = LayoutFormatOptions::none;
  const auto stranger = std::make_shared<View>();
  const std::map<std::string, View*, std::less<>> views{
      {"a", a.get()}, {"stranger", stranger.get()}, {"nothing", nullptr}};
  EXPECT_TRUE(LayoutConstraint::constraintsWithVisualFormat("|-0-[a", none, views).empty());
  EXPECT_TRUE(LayoutConstraint::constraintsWithVisualFormat("|-0-[unknown]", none, views).empty());
  EXPECT_TRUE(LayoutConstraint::constraintsWithVisualFormat("|-0-[nothing]", none, views).empty());
  EXPECT_TRUE(LayoutConstraint::constraintsWithVisualFormat("|-0-[a]-0-[unknown]", none, views).empty());
  EXPECT_TRUE(LayoutConstraint::constraintsWithVisualFormat("|-0-[stranger]-0-|", none, views).empty());
}

}  // namespace
}  // namespace velmora
