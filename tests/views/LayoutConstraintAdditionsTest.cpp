#include <velmora/views/LayoutConstraintAdditions.h>

#include <gtest/gtest.h>

#include <memory>

#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/platform/ui/View.h>

namespace velmora {
namespace {

using Additions = LayoutConstraintAdditions;
using enum LayoutAttribute;

class LayoutConstraintAdditionsTest : public ::testing::Test {
 protected:
  LayoutConstraintAdditionsTest() { root->setFrame({10, 20, 320, 480}); }

  std::shared_ptr<View> addedView(Rect frame = {}) {
    auto view = std::make_shared<View>();
    view->setFrame(frame);
    root->addSubview(view);
    return view;
  }

  /// Whether it says that an edge lies on the same edge of the superview.
  bool pinsToRoot(const LayoutConstraint& constraint, const View& view, LayoutAttribute edge) const {
    const bool isViewFirst = constraint.firstItem().get() == &view && constraint.secondItem() == root;
    const bool isRootFirst = constraint.firstItem() == root && constraint.secondItem().get() == &view;
    return (isViewFirst || isRootFirst) && constraint.firstAttribute() == edge &&
           constraint.secondAttribute() == edge && constraint.relation() == LayoutRelation::equal &&
           constraint.constant() == 0;
  }

  std::shared_ptr<LayoutConstraint> activated(View& first, LayoutAttribute firstAttribute, View* second,
                                              LayoutAttribute secondAttribute,
                                              LayoutRelation relation = LayoutRelation::equal) {
    auto constraint =
        std::make_shared<LayoutConstraint>(first, firstAttribute, relation, second, secondAttribute, 0);
    LayoutConstraint::activate({constraint});
    return constraint;
  }

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
  std::shared_ptr<View> root = std::make_shared<View>();
};

TEST_F(LayoutConstraintAdditionsTest, FillsHorizontally) {
  const auto view = addedView({5, 30, 50, 60});
  const auto list = Additions::constraintsToFillSubviewHorizontally(*view);
  ASSERT_EQ(list.size(), 2U);
  EXPECT_TRUE(pinsToRoot(*list[0], *view, leading));
  EXPECT_TRUE(pinsToRoot(*list[1], *view, trailing));
  LayoutConstraint::activate(list);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{0, 30, 320, 60}));
}

TEST_F(LayoutConstraintAdditionsTest, FillsVertically) {
  const auto view = addedView({5, 30, 50, 60});
  const auto list = Additions::constraintsToFillSubviewVertically(*view);
  ASSERT_EQ(list.size(), 2U);
  EXPECT_TRUE(pinsToRoot(*list[0], *view, top));
  EXPECT_TRUE(pinsToRoot(*list[1], *view, bottom));
  LayoutConstraint::activate(list);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{5, 0, 50, 480}));
}

TEST_F(LayoutConstraintAdditionsTest, PinsAtTheTop) {
  const auto view = addedView({5, 30, 50, 60});
  const auto list = Additions::constraintsToPinSubviewAtTop(*view);
  ASSERT_EQ(list.size(), 1U);
  EXPECT_TRUE(pinsToRoot(*list[0], *view, top));
  LayoutConstraint::activate(list);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{5, 0, 50, 60}));
}

TEST_F(LayoutConstraintAdditionsTest, PinsAtTheBottom) {
  const auto view = addedView({5, 30, 50, 60});
  const auto list = Additions::constraintsToPinSubviewAtBottom(*view);
  ASSERT_EQ(list.size(), 1U);
  EXPECT_TRUE(pinsToRoot(*list[0], *view, bottom));
  LayoutConstraint::activate(list);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{5, 420, 50, 60}));
}

TEST_F(LayoutConstraintAdditionsTest, FillsTheSuperviewAcrossThenDown) {
  const auto view = addedView({5, 30, 50, 60});
  const auto list = Additions::constraintsToFillSuperViewOfView(*view);
  ASSERT_EQ(list.size(), 4U);
  EXPECT_TRUE(pinsToRoot(*list[0], *view, leading));
  EXPECT_TRUE(pinsToRoot(*list[1], *view, trailing));
  EXPECT_TRUE(pinsToRoot(*list[2], *view, top));
  EXPECT_TRUE(pinsToRoot(*list[3], *view, bottom));
  LayoutConstraint::activate(list);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{0, 0, 320, 480}));
}

TEST_F(LayoutConstraintAdditionsTest, WithoutASuperviewThereIsNothingToPinTo) {
  const auto alone = std::make_shared<View>();
  EXPECT_TRUE(Additions::constraintsToFillSuperViewOfView(*alone).empty());
}

TEST_F(LayoutConstraintAdditionsTest, WhatIsReturnedIsInactive) {
  const auto above = addedView(), view = addedView();
  for (const auto& list : {Additions::constraintsToFillSubviewHorizontally(*view),
                           Additions::constraintsToFillSubviewVertically(*view),
                           Additions::constraintsToPinSubviewAtTop(*view),
                           Additions::constraintsToPinSubviewAtBottom(*view),
                           Additions::constraintsToFillSuperViewOfView(*view),
                           {Additions::constraintToStackView(*view, *above, 0)}}) {
    for (const auto& constraint : list) EXPECT_FALSE(constraint->isActive());
  }
  EXPECT_TRUE(root->constraints().empty());
}

TEST_F(LayoutConstraintAdditionsTest, StacksAViewBelowAnother) {
  const auto above = addedView(), view = addedView();
  const auto constraint = Additions::constraintToStackView(*view, *above, 12);
  EXPECT_EQ(constraint->firstItem(), view);
  EXPECT_EQ(constraint->firstAttribute(), top);
  EXPECT_EQ(constraint->relation(), LayoutRelation::equal);
  EXPECT_EQ(constraint->secondItem(), above);
  EXPECT_EQ(constraint->secondAttribute(), bottom);
  EXPECT_EQ(constraint->constant(), 12);
}

TEST_F(LayoutConstraintAdditionsTest, RowsOfTheirOwnHeightsStandOneUnderTheOther) {
  const auto first = addedView(), second = addedView(), third = addedView();
  for (const auto& row : {first, second, third}) {
    LayoutConstraint::activate(Additions::constraintsToFillSubviewHorizontally(*row));
    Additions::addHeightConstraintToView(*row, 80);
  }
  LayoutConstraint::activate(Additions::constraintsToPinSubviewAtTop(*first));
  LayoutConstraint::activate({Additions::constraintToStackView(*second, *first, 0),
                              Additions::constraintToStackView(*third, *second, 5)});
  root->layoutSubviews();
  EXPECT_EQ(first->frame(), (Rect{0, 0, 320, 80}));
  EXPECT_EQ(second->frame(), (Rect{0, 80, 320, 80}));
  EXPECT_EQ(third->frame(), (Rect{0, 165, 320, 80}));
}

TEST_F(LayoutConstraintAdditionsTest, HeightAndWidthAreAddedToTheViewItself) {
  const auto view = addedView({5, 30, 1, 2});
  Additions::addHeightConstraintToView(*view, 44);
  Additions::addWidthConstraintToView(*view, 120);
  EXPECT_TRUE(root->constraints().empty());
  ASSERT_EQ(view->constraints().size(), 2U);
  EXPECT_EQ(view->constraints()[0]->firstAttribute(), height);
  EXPECT_EQ(view->constraints()[1]->firstAttribute(), width);
  for (const auto& constraint : view->constraints()) {
    EXPECT_EQ(constraint->firstItem(), view);
    EXPECT_EQ(constraint->relation(), LayoutRelation::equal);
    EXPECT_EQ(constraint->secondItem(), nullptr);
    EXPECT_EQ(constraint->secondAttribute(), none);
  }
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{5, 30, 120, 44}));
}

struct EdgeSearch {
  const char* name;
  LayoutAttribute edge;
  std::shared_ptr<LayoutConstraint> (*search)(const View&);
};

const EdgeSearch edgeSearches[] = {
    {"top", top, &Additions::topConstraintForView},
    {"bottom", bottom, &Additions::bottomConstraintForView},
    {"leading", leading, &Additions::leadingConstraintForView},
    {"trailing", trailing, &Additions::trailingConstraintForView},
};

TEST_F(LayoutConstraintAdditionsTest, FindsTheConstraintsOfAFilledView) {
  const auto view = addedView();
  const auto list = Additions::constraintsToFillSuperViewOfView(*view);
  LayoutConstraint::activate(list);
  EXPECT_EQ(Additions::leadingConstraintForView(*view), list[0]);
  EXPECT_EQ(Additions::trailingConstraintForView(*view), list[1]);
  EXPECT_EQ(Additions::topConstraintForView(*view), list[2]);
  EXPECT_EQ(Additions::bottomConstraintForView(*view), list[3]);
}

TEST_F(LayoutConstraintAdditionsTest, AnEdgeIsFoundOnEitherSideOfTheEquality) {
  for (const EdgeSearch& row : edgeSearches) {
    SCOPED_TRACE(row.name);
    const auto first = addedView(), second = addedView();
    const auto asFirst = activated(*first, row.edge, root.get(), row.edge);
    const auto asSecond = activated(*root, row.edge, second.get(), row.edge);
    EXPECT_EQ(row.search(*first), asFirst);
    EXPECT_EQ(row.search(*second), asSecond);
  }
}

TEST_F(LayoutConstraintAdditionsTest, TheFirstOfSeveralIsFound) {
  for (const EdgeSearch& row : edgeSearches) {
    SCOPED_TRACE(row.name);
    const auto view = addedView();
    const auto earlier = activated(*view, row.edge, root.get(), row.edge);
    activated(*view, row.edge, root.get(), row.edge);
    EXPECT_EQ(row.search(*view), earlier);
  }
}

TEST_F(LayoutConstraintAdditionsTest, InequalitiesAreIgnored) {
  for (const EdgeSearch& row : edgeSearches) {
    SCOPED_TRACE(row.name);
    const auto view = addedView();
    activated(*view, row.edge, root.get(), row.edge, LayoutRelation::lessThanOrEqual);
    activated(*view, row.edge, root.get(), row.edge, LayoutRelation::greaterThanOrEqual);
    EXPECT_EQ(row.search(*view), nullptr);
    const auto equality = activated(*view, row.edge, root.get(), row.edge);
    EXPECT_EQ(row.search(*view), equality);
  }
}

TEST_F(LayoutConstraintAdditionsTest, OtherEdgesAndOtherViewsAreIgnored) {
  for (const EdgeSearch& row : edgeSearches) {
    SCOPED_TRACE(row.name);
    const auto view = addedView(), neighbour = addedView();
    const bool isAcross = row.edge == leading || row.edge == trailing;
    const LayoutAttribute otherAxis = isAcross ? top : leading;
    activated(*view, otherAxis, root.get(), otherAxis);
    activated(*neighbour, otherAxis, view.get(), otherAxis);
    activated(*neighbour, row.edge, root.get(), row.edge);
    EXPECT_EQ(row.search(*view), nullptr);
  }
}

TEST_F(LayoutConstraintAdditionsTest, OnlyActiveConstraintsAreFound) {
  for (const EdgeSearch& row : edgeSearches) {
    SCOPED_TRACE(row.name);
    const auto view = addedView();
    const auto constraint = activated(*view, row.edge, root.get(), row.edge);
    LayoutConstraint::deactivate({constraint});
    EXPECT_EQ(row.search(*view), nullptr);
  }
}

TEST_F(LayoutConstraintAdditionsTest, AViewWithoutASuperviewHasNone) {
  const auto view = addedView();
  LayoutConstraint::activate(Additions::constraintsToFillSuperViewOfView(*view));
  for (const EdgeSearch& row : edgeSearches) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(row.search(*root), nullptr);
    EXPECT_NE(row.search(*view), nullptr);
  }
  view->removeFromSuperview();
  for (const EdgeSearch& row : edgeSearches) EXPECT_EQ(row.search(*view), nullptr) << row.name;
}

TEST_F(LayoutConstraintAdditionsTest, AStackedRowIsFoundByItsTopAndTheOneAboveByItsBottom) {
  const auto above = addedView(), below = addedView();
  const auto constraint = Additions::constraintToStackView(*below, *above, 0);
  LayoutConstraint::activate({constraint});
  EXPECT_EQ(Additions::topConstraintForView(*below), constraint);
  EXPECT_EQ(Additions::bottomConstraintForView(*above), constraint);
  EXPECT_EQ(Additions::topConstraintForView(*above), nullptr);
  EXPECT_EQ(Additions::bottomConstraintForView(*below), nullptr);
}

}  // namespace
}  // namespace velmora
