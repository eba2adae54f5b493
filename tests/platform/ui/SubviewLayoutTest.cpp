#include <velmora/platform/ui/SubviewLayout.h>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

#include <velmora/platform/time/Locale.h>
#include <velmora/platform/ui/Device.h>
#include <velmora/platform/ui/View.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using enum LayoutAttribute;

class SizedView : public View {
 public:
  explicit SizedView(Size size) : _size(size) {}
  Size intrinsicContentSize() const override { return _size; }

 private:
  Size _size;
};

class SubviewLayoutTest : public ::testing::Test {
 protected:
  SubviewLayoutTest() { root->setFrame({10, 20, 320, 480}); }

  std::shared_ptr<View> viewOf(Size size) {
    auto view = std::make_shared<SizedView>(size);
    root->addSubview(view);
    return view;
  }

  std::shared_ptr<View> viewAt(Rect frame) {
    const auto view = viewOf({View::noIntrinsicMetric, View::noIntrinsicMetric});
    view->setFrame(frame);
    return view;
  }

  void activate(const char* format, View& view) {
    const auto list = LayoutConstraint::constraintsWithVisualFormat(format, LayoutFormatOptions::alignAllTop,
                                                                    {{"view", &view}});
    EXPECT_FALSE(list.empty());
    LayoutConstraint::activate(list);
  }

  void activate(View& first, LayoutAttribute firstAttribute, View* second, LayoutAttribute secondAttribute,
                double constant, double multiplier = 1, LayoutRelation relation = LayoutRelation::equal) {
    LayoutConstraint::activate({std::make_shared<LayoutConstraint>(first, firstAttribute, relation, second,
                                                                   secondAttribute, multiplier, constant)});
  }

  void forceDirection(LayoutDirection direction) {
    Device::setCurrent({.forcedDirection = direction});
    root->layoutSubviews();
  }

  ScopedLocale english{"en_US"};
  ScopedDevice device{Device()};
  std::shared_ptr<View> root = std::make_shared<View>();
};

TEST_F(SubviewLayoutTest, AFilledViewTakesItsSuperviewsBounds) {
  const auto view = viewAt({});
  activate("|-0-[view]-0-|", *view);
  activate("V:|-0-[view]-0-|", *view);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{0, 0, 320, 480}));
}

TEST_F(SubviewLayoutTest, FollowsItsSuperviewsSize) {
  const auto view = viewAt({});
  activate("|-10-[view]-30-|", *view);
  activate("V:|-20-[view]-40-|", *view);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{10, 20, 280, 420}));
  root->setFrame({0, 0, 100, 100});
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{10, 20, 60, 40}));
}

TEST_F(SubviewLayoutTest, RowsOfAMonthAreStackedByTheirIntrinsicHeights) {
  constexpr int kDays = 31;
  std::vector<std::shared_ptr<View>> rows;
  for (int day = 0; day < kDays; ++day) {
    const auto row = viewOf({View::noIntrinsicMetric, 80.0 + day});
    activate("|-0-[view]-0-|", *row);
    if (day == 0) {
      activate("V:|-0-[view]", *row);
    } else {
      activate(*row, top, rows.back().get(), bottom, 0);
    }
    rows.push_back(row);
  }
  root->layoutSubviews();
  double y = 0;
  for (int day = 0; day < kDays; ++day) {
    EXPECT_EQ(rows[static_cast<std::size_t>(day)]->frame(), (Rect{0, y, 320, 80.0 + day}));
    y += 80.0 + day;
  }
}

TEST_F(SubviewLayoutTest, AnIntrinsicHeightGivesWayToAConstraint) {
  const auto filled = viewOf({View::noIntrinsicMetric, 80});
  activate("V:|-0-[view]-0-|", *filled);
  const auto sized = viewOf({View::noIntrinsicMetric, 80});
  activate(*sized, height, nullptr, none, 33);
  root->layoutSubviews();
  EXPECT_EQ(filled->frame().height, 480);
  EXPECT_EQ(sized->frame().height, 33);
}

TEST_F(SubviewLayoutTest, AnIntrinsicWidthHoldsWhereNothingFixesTheWidth) {
  const auto view = viewOf({120, 40});
  activate("[view]-0-|", *view);
  activate("V:[view]-0-|", *view);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{200, 440, 120, 40}));
}

TEST_F(SubviewLayoutTest, AViewPinnedOnOneSideKeepsItsSize) {
  const auto view = viewAt({1, 2, 30, 40});
  activate("[view]-0-|", *view);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{290, 2, 30, 40}));
}

TEST_F(SubviewLayoutTest, AViewThatNoConstraintMentionsKeepsItsFrame) {
  const auto view = viewOf({50, 50});
  view->setFrame({1, 2, 3, 4});
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{1, 2, 3, 4}));
}

TEST_F(SubviewLayoutTest, AnInequalityPlacesNothing) {
  const auto view = viewAt({1, 2, 3, 4});
  activate(*view, height, nullptr, none, 100, 1, LayoutRelation::greaterThanOrEqual);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{1, 2, 3, 4}));
}

TEST_F(SubviewLayoutTest, LeadingAndTrailingChangeSidesFromRightToLeft) {
  const auto view = viewAt({0, 0, 50, 10});
  activate("|-10-[view]", *view);
  activate("V:|-7-[view]", *view);
  forceDirection(LayoutDirection::leftToRight);
  EXPECT_EQ(view->frame(), (Rect{10, 7, 50, 10}));
  forceDirection(LayoutDirection::rightToLeft);
  EXPECT_EQ(view->frame(), (Rect{260, 7, 50, 10})) << "what runs down is not mirrored";
}

TEST_F(SubviewLayoutTest, AChainRunsFromTheRightInArabic) {
  const ScopedLocale arabic("ar_EG");
  const auto first = viewOf({50, 10});
  const auto second = viewOf({60, 10});
  LayoutConstraint::activate(LayoutConstraint::constraintsWithVisualFormat(
      "|-10-[first]-5-[second]", LayoutFormatOptions::alignAllTop,
      {{"first", first.get()}, {"second", second.get()}}));
  first->setFrame({0, 33, 50, 10});
  root->layoutSubviews();
  EXPECT_EQ(first->frame(), (Rect{260, 33, 50, 10}));
  EXPECT_EQ(second->frame(), (Rect{195, 33, 60, 10})) << "tops are aligned, the first view stays";
}

TEST_F(SubviewLayoutTest, LeftAndRightStayWhereTheyAreFromRightToLeft) {
  const auto view = viewAt({0, 0, 50, 10});
  activate(*view, left, root.get(), left, 10);
  forceDirection(LayoutDirection::rightToLeft);
  EXPECT_EQ(view->frame().x, 10);
}

TEST_F(SubviewLayoutTest, EveryAttributePlacesAView) {
  const struct {
    LayoutAttribute attribute;
    Rect expected;
  } cases[] = {
      {left, {70, 20, 30, 40}},    {right, {40, 20, 30, 40}},   {top, {10, 70, 30, 40}},
      {bottom, {10, 30, 30, 40}},  {leading, {70, 20, 30, 40}}, {trailing, {40, 20, 30, 40}},
      {width, {10, 20, 70, 40}},   {height, {10, 20, 30, 70}},  {centerX, {55, 20, 30, 40}},
      {centerY, {10, 50, 30, 40}},
  };
  for (const auto& one : cases) {
    const auto view = viewAt({10, 20, 30, 40});
    activate(*view, one.attribute, nullptr, none, 70);
    root->layoutSubviews();
    EXPECT_EQ(view->frame(), one.expected) << static_cast<int>(one.attribute);
  }
}

TEST_F(SubviewLayoutTest, AMultiplierScalesTheOtherAttribute) {
  const auto view = viewAt({0, 0, 10, 10});
  activate(*view, width, root.get(), width, -20, 0.5);
  activate(*view, height, view.get(), width, 0, 2);
  root->layoutSubviews();
  EXPECT_EQ(view->bounds(), (Rect{0, 0, 140, 280}));
}

TEST_F(SubviewLayoutTest, TheConstraintActivatedFirstHoldsAgainstAContradiction) {
  const auto view = viewAt({});
  activate(*view, top, root.get(), top, 5);
  activate(*view, top, root.get(), top, 50);
  root->layoutSubviews();
  EXPECT_EQ(view->frame().y, 5);
}

TEST_F(SubviewLayoutTest, AConstraintWithAViewFurtherDownPlacesNothing) {
  const auto view = viewAt({1, 2, 3, 4});
  const auto inner = std::make_shared<View>();
  view->addSubview(inner);
  activate(*inner, top, root.get(), top, 50);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{1, 2, 3, 4}));
  EXPECT_EQ(inner->frame(), Rect());
}

TEST_F(SubviewLayoutTest, SubviewsOfSubviewsAreLaidOutInTheirPlacedSuperview) {
  const auto list = viewAt({});
  activate("|-20-[view]-20-|", *list);
  const auto row = std::make_shared<SizedView>(Size{View::noIntrinsicMetric, 44});
  list->addSubview(row);
  activate("|-5-[view]-5-|", *row);
  root->layoutSubviews();
  EXPECT_EQ(row->frame(), (Rect{5, 0, 270, 44}));
}

TEST_F(SubviewLayoutTest, ATurnedViewIsPlacedAsIfItWereNot) {
  const auto view = viewAt({0, 0, 10, 10});
  activate("|-0-[view]-0-|", *view);
  activate(*view, height, nullptr, none, 100);
  view->setTransform(AffineTransform::rotation(0.7));
  for (int i = 0; i < 3; ++i) root->layoutSubviews();
  EXPECT_EQ(view->bounds(), (Rect{0, 0, 320, 100}));
  EXPECT_EQ(view->layer().untransformedFrame(), (Rect{0, 0, 320, 100}));
}

TEST_F(SubviewLayoutTest, BoundsWithAnOriginOfTheirOwnShiftWhatIsPinnedToThem) {
  const auto view = viewAt({0, 0, 50, 10});
  activate("|-10-[view]", *view);
  root->layer().setBounds({100, 0, 320, 480});
  root->layoutSubviews();
  EXPECT_EQ(view->frame().x, 110);
  forceDirection(LayoutDirection::rightToLeft);
  EXPECT_EQ(view->frame().x, 360);
}

TEST_F(SubviewLayoutTest, NumbersThatAreNotFinitePlaceNothing) {
  const auto view = viewAt({1, 2, 3, 4});
  activate(*view, top, nullptr, none, std::numeric_limits<double>::quiet_NaN());
  activate(*view, left, root.get(), right, 0, std::numeric_limits<double>::infinity());
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{1, 2, 3, 4}));
}

TEST_F(SubviewLayoutTest, RenderingLaysOutFirst) {
  const auto view = viewAt({});
  activate("|-0-[view]-0-|", *view);
  testing::RecordingCanvas canvas;
  root->render(canvas);
  EXPECT_EQ(view->frame().width, 320);
}

}  // namespace
}  // namespace velmora
