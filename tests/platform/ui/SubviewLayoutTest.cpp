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
  Size intrinsicContentSize() const override {
    ++timesAsked;
    return _size;
  }
  void setSize(Size size) { _size = size; }

  static inline int timesAsked = 0;

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

  static void activate(View& first, LayoutAttribute firstAttribute, View* second,
                       LayoutAttribute secondAttribute, double constant,
                       LayoutRelation relation = LayoutRelation::equal) {
    LayoutConstraint::activate({std::make_shared<LayoutConstraint>(first, firstAttribute, relation, second,
                                                                   secondAttribute, constant)});
  }

  /// The edge lies that many points inside the superview's.
  static void pin(View& view, LayoutAttribute edge, double points = 0) {
    const bool isStart = edge == leading || edge == top;
    activate(view, edge, view.superview(), edge, isStart ? points : -points);
  }

  void stack(std::vector<std::shared_ptr<View>>& rows, Size size) {
    const auto row = viewOf(size);
    pin(*row, leading);
    pin(*row, trailing);
    if (rows.empty()) {
      pin(*row, top);
    } else {
      activate(*row, top, rows.back().get(), bottom, 0);
    }
    rows.push_back(row);
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
  for (const LayoutAttribute edge : {leading, trailing, top, bottom}) pin(*view, edge);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{0, 0, 320, 480}));
}

TEST_F(SubviewLayoutTest, FollowsItsSuperviewsSize) {
  const auto view = viewAt({});
  pin(*view, leading, 10);
  pin(*view, trailing, 30);
  pin(*view, top, 20);
  pin(*view, bottom, 40);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{10, 20, 280, 420}));
  root->setFrame({0, 0, 100, 100});
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{10, 20, 60, 40}));
}

TEST_F(SubviewLayoutTest, RowsOfAMonthAreStackedByTheirIntrinsicHeights) {
  constexpr int days = 31;
  std::vector<std::shared_ptr<View>> rows;
  for (int day = 0; day < days; ++day) stack(rows, {View::noIntrinsicMetric, 80.0 + day});
  root->layoutSubviews();
  double y = 0;
  for (int day = 0; day < days; ++day) {
    EXPECT_EQ(rows[static_cast<std::size_t>(day)]->frame(), (Rect{0, y, 320, 80.0 + day}));
    y += 80.0 + day;
  }
}

TEST_F(SubviewLayoutTest, AnIntrinsicHeightGivesWayToAConstraint) {
  const auto filled = viewOf({View::noIntrinsicMetric, 80});
  pin(*filled, top);
  pin(*filled, bottom);
  const auto sized = viewOf({View::noIntrinsicMetric, 80});
  activate(*sized, height, nullptr, none, 33);
  root->layoutSubviews();
  EXPECT_EQ(filled->frame().height, 480);
  EXPECT_EQ(sized->frame().height, 33);
}

TEST_F(SubviewLayoutTest, AnIntrinsicWidthHoldsWhereNothingFixesTheWidth) {
  const auto view = viewOf({120, 40});
  pin(*view, trailing);
  pin(*view, bottom);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{200, 440, 120, 40}));
}

TEST_F(SubviewLayoutTest, AViewPinnedOnOneSideKeepsItsSize) {
  const auto view = viewAt({1, 2, 30, 40});
  pin(*view, trailing);
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
  activate(*view, height, nullptr, none, 100, LayoutRelation::greaterThanOrEqual);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{1, 2, 3, 4}));
}

TEST_F(SubviewLayoutTest, LeadingAndTrailingChangeSidesFromRightToLeft) {
  const auto view = viewAt({0, 0, 50, 10});
  pin(*view, leading, 10);
  pin(*view, top, 7);
  forceDirection(LayoutDirection::leftToRight);
  EXPECT_EQ(view->frame(), (Rect{10, 7, 50, 10}));
  forceDirection(LayoutDirection::rightToLeft);
  EXPECT_EQ(view->frame(), (Rect{260, 7, 50, 10})) << "what runs down is not mirrored";
}

TEST_F(SubviewLayoutTest, AChainRunsFromTheRightInArabic) {
  const ScopedLocale arabic("ar_EG");
  const auto first = viewOf({50, 10});
  const auto second = viewOf({60, 10});
  pin(*first, leading, 10);
  activate(*second, leading, first.get(), trailing, 5);
  activate(*second, top, first.get(), top, 0);
  first->setFrame({0, 33, 50, 10});
  root->layoutSubviews();
  EXPECT_EQ(first->frame(), (Rect{260, 33, 50, 10}));
  EXPECT_EQ(second->frame(), (Rect{195, 33, 60, 10})) << "tops are aligned, the first view stays";
}

TEST_F(SubviewLayoutTest, FromRightToLeftAPlaceAcrossCountsFromTheRight) {
  const auto view = viewAt({0, 0, 50, 10});
  activate(*view, leading, nullptr, none, 70);
  forceDirection(LayoutDirection::rightToLeft);
  EXPECT_EQ(view->frame(), (Rect{200, 0, 50, 10}));
}

TEST_F(SubviewLayoutTest, AViewThatIsNotPinnedAcrossKeepsItsPlaceFromRightToLeft) {
  const auto view = viewAt({30, 0, 50, 10});
  pin(*view, top, 5);
  forceDirection(LayoutDirection::rightToLeft);
  EXPECT_EQ(view->frame(), (Rect{30, 5, 50, 10}));
}

TEST_F(SubviewLayoutTest, EveryAttributePlacesAView) {
  const struct {
    LayoutAttribute attribute;
    Rect expected;
  } cases[] = {
      {top, {10, 70, 30, 40}},      {bottom, {10, 30, 30, 40}}, {leading, {70, 20, 30, 40}},
      {trailing, {40, 20, 30, 40}}, {width, {10, 20, 70, 40}},  {height, {10, 20, 30, 70}},
  };
  for (const auto& one : cases) {
    const auto view = viewAt({10, 20, 30, 40});
    activate(*view, one.attribute, nullptr, none, 70);
    root->layoutSubviews();
    EXPECT_EQ(view->frame(), one.expected) << static_cast<int>(one.attribute);
  }
}

TEST_F(SubviewLayoutTest, TheContainersOwnSizePlacesNothing) {
  const auto view = viewAt({1, 2, 3, 4});
  pin(*view, top);
  activate(*root, height, nullptr, none, 10);
  root->layoutSubviews();
  EXPECT_EQ(root->bounds().height, 480);
  EXPECT_EQ(view->frame(), (Rect{1, 0, 3, 4}));
}

TEST_F(SubviewLayoutTest, ANegativeSizeCountsAsContradicted) {
  const auto view = viewAt({0, 0, 7, 7});
  pin(*view, leading, 200);
  pin(*view, trailing, 200);
  activate(*view, height, nullptr, none, -5);
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{200, 0, 7, 7})) << "the leading edge was demanded first";
  root->setFrame({0, 0, 500, 480});
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{200, 0, 100, 7}));
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
  pin(*list, leading, 20);
  pin(*list, trailing, 20);
  const auto row = std::make_shared<SizedView>(Size{View::noIntrinsicMetric, 44});
  list->addSubview(row);
  pin(*row, leading, 5);
  pin(*row, trailing, 5);
  root->layoutSubviews();
  EXPECT_EQ(row->frame(), (Rect{5, 0, 270, 44}));
}

TEST_F(SubviewLayoutTest, ATurnedViewIsPlacedAsIfItWereNot) {
  const auto view = viewAt({0, 0, 10, 10});
  pin(*view, leading);
  pin(*view, trailing);
  activate(*view, height, nullptr, none, 100);
  view->setTransform(AffineTransform::rotation(0.7));
  for (int i = 0; i < 3; ++i) root->layoutSubviews();
  EXPECT_EQ(view->bounds(), (Rect{0, 0, 320, 100}));
  EXPECT_EQ(view->layer().untransformedFrame(), (Rect{0, 0, 320, 100}));
}

TEST_F(SubviewLayoutTest, BoundsWithAnOriginOfTheirOwnShiftWhatIsPinnedToThem) {
  const auto view = viewAt({0, 0, 50, 10});
  pin(*view, leading, 10);
  root->layer().setBounds({100, 0, 320, 480});
  root->layoutSubviews();
  EXPECT_EQ(view->frame().x, 110);
  forceDirection(LayoutDirection::rightToLeft);
  EXPECT_EQ(view->frame().x, 360);
}

TEST_F(SubviewLayoutTest, NumbersThatAreNotFinitePlaceNothing) {
  const auto view = viewAt({1, 2, 3, 4});
  activate(*view, top, nullptr, none, std::numeric_limits<double>::quiet_NaN());
  activate(*view, leading, root.get(), trailing, std::numeric_limits<double>::infinity());
  root->layoutSubviews();
  EXPECT_EQ(view->frame(), (Rect{1, 2, 3, 4}));
}

TEST_F(SubviewLayoutTest, RenderingLaysOutFirst) {
  const auto view = viewAt({});
  pin(*view, leading);
  pin(*view, trailing);
  testing::RecordingCanvas canvas;
  root->render(canvas);
  EXPECT_EQ(view->frame().width, 320);
}

/// Three rows, laid out.
class LaidOutRowsTest : public SubviewLayoutTest {
 protected:
  LaidOutRowsTest() {
    for (int i = 0; i < 3; ++i) stack(rows, {View::noIntrinsicMetric, 80});
    root->layoutSubviews();
  }

  bool isLaidOutAgain() {
    SizedView::timesAsked = 0;
    root->layoutSubviews();
    return SizedView::timesAsked > 0;
  }

  std::vector<std::shared_ptr<View>> rows;
};

TEST_F(LaidOutRowsTest, WithoutAChangeNothingIsSolvedAgain) {
  EXPECT_FALSE(isLaidOutAgain());
  rows[1]->setNeedsDisplay();
  rows[1]->setAlpha(0.5);
  rows[1]->setTransform(AffineTransform::rotation(0.3));
  root->setFrame({77, 88, 320, 480});
  EXPECT_FALSE(isLaidOutAgain()) << "none of these says where rows lie";
}

TEST_F(LaidOutRowsTest, AnotherSizeAnotherFrameAndAnotherDirectionAre) {
  root->setFrame({0, 0, 300, 480});
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_EQ(rows[2]->frame(), (Rect{0, 160, 300, 80}));
  rows[1]->setFrame({5, 5, 5, 5});
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_EQ(rows[1]->frame(), (Rect{0, 80, 300, 80}));
  rows[1]->layer().setPosition({0, 0});
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_EQ(rows[1]->frame(), (Rect{0, 80, 300, 80}));
  Device::setCurrent({.forcedDirection = LayoutDirection::rightToLeft});
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_FALSE(isLaidOutAgain());
}

TEST_F(LaidOutRowsTest, AnotherIntrinsicSizeIsWhenTheViewSaysSo) {
  dynamic_cast<SizedView&>(*rows[0]).setSize({View::noIntrinsicMetric, 100});
  rows[0]->invalidateIntrinsicContentSize();
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_EQ(rows[2]->frame().y, 180);
}

TEST_F(LaidOutRowsTest, ConstraintsThatComeOrGoAre) {
  const auto fixed =
      std::make_shared<LayoutConstraint>(*rows[0], height, LayoutRelation::equal, nullptr, none, 10);
  LayoutConstraint::activate({fixed});
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_EQ(rows[2]->frame().y, 90);
  LayoutConstraint::deactivate({fixed});
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_EQ(rows[2]->frame().y, 160);
  rows[1]->removeFromSuperview();
  EXPECT_TRUE(isLaidOutAgain());
  EXPECT_FALSE(isLaidOutAgain());
}

TEST_F(LaidOutRowsTest, AViewWithoutConstraintsMovesFreely) {
  const auto free = viewAt({1, 2, 3, 4});
  root->layoutSubviews();
  free->setFrame({5, 6, 7, 8});
  EXPECT_FALSE(isLaidOutAgain());
  EXPECT_EQ(free->frame(), (Rect{5, 6, 7, 8}));
}

}  // namespace
}  // namespace velmora
