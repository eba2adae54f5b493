#include <velmora/platform/ui/View.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <velmora/platform/ui/ShapeLayer.h>

#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

using testing::RecordingCanvas;

constexpr double rightAngle = 1.5707963267948966;

// Draws one line across its bounds, in its own width.
class LineView : public View {
 public:
  explicit LineView(double lineWidth = 1) : _lineWidth(lineWidth) {}
  void drawRect(Canvas& canvas, Rect rect) override {
    canvas.setLineWidth(_lineWidth);
    canvas.strokeLine(rect.origin(), {rect.maxX(), rect.maxY()});
  }

 private:
  double _lineWidth;
};

// Writes down what it is told.
class ListeningView : public View {
 public:
  void didMoveToSuperview() override { told += superview() == nullptr ? "out " : "in "; }
  void touchesBegan(const Touch& touch) override { tell("began", touch); }
  void touchesMoved(const Touch& touch) override { tell("moved", touch); }
  void touchesEnded(const Touch& touch) override { tell("ended", touch); }
  void touchesCancelled(const Touch& touch) override { tell("cancelled", touch); }

  std::string told;

 private:
  void tell(const std::string& what, const Touch& touch) {
    const Point point = touch.locationIn(*this);
    told += what + " " + testing::numberText(point.x) + "," + testing::numberText(point.y) + " ";
  }
};

std::shared_ptr<View> viewAt(Rect frame) {
  auto view = std::make_shared<View>();
  view->setFrame(frame);
  return view;
}

template <class Subview>
std::shared_ptr<Subview> added(View& superview, std::shared_ptr<Subview> subview, Rect frame) {
  subview->setFrame(frame);
  superview.addSubview(subview);
  return subview;
}

std::string drawing(View& view) {
  RecordingCanvas canvas;
  view.render(canvas);
  EXPECT_TRUE(canvas.isBalanced());
  return canvas.text();
}

TEST(View, StartsPlainAndInteractive) {
  const auto view = std::make_shared<View>();
  EXPECT_EQ(view->frame(), Rect());
  EXPECT_EQ(view->alpha(), 1);
  EXPECT_EQ(view->backgroundColor(), Color::clear());
  EXPECT_TRUE(view->transform().isIdentity());
  EXPECT_TRUE(view->isUserInteractionEnabled());
  EXPECT_FALSE(view->isOpaque());
  EXPECT_EQ(view->intrinsicContentSize(), (Size{View::noIntrinsicMetric, View::noIntrinsicMetric}));
  EXPECT_EQ(View::noIntrinsicMetric, -1);
}

TEST(View, IsOpaqueWithAnOpaqueBackgroundOnly) {
  const auto view = std::make_shared<View>();
  view->setBackgroundColor(Color::black());
  EXPECT_TRUE(view->isOpaque());
  view->setAlpha(0.9);
  EXPECT_FALSE(view->isOpaque());
}

TEST(View, ItsFrameAndLayerAreOneGeometry) {
  const auto view = viewAt({10, 20, 100, 50});
  EXPECT_EQ(view->bounds(), (Rect{0, 0, 100, 50}));
  EXPECT_EQ(view->layer().position(), (Point{60, 45}));
  view->layer().setAnchorPoint({0, 0});
  EXPECT_EQ(view->frame(), (Rect{60, 45, 100, 50}));
}

TEST(View, ChangesOfItsLookAskForDrawing) {
  const auto view = viewAt({0, 0, 10, 10});
  EXPECT_TRUE(view->needsDisplay()) << "a new view has never been drawn";
  const auto asksForDrawing = [&](auto change) {
    drawing(*view);
    EXPECT_FALSE(view->needsDisplay());
    change();
    return view->needsDisplay();
  };
  EXPECT_TRUE(asksForDrawing([&] { view->setNeedsDisplay(); }));
  EXPECT_TRUE(asksForDrawing([&] { view->setFrame({0, 0, 20, 10}); }));
  EXPECT_FALSE(asksForDrawing([&] { view->setFrame({0, 0, 20, 10}); })) << "the frame it has";
  EXPECT_TRUE(asksForDrawing([&] { view->setTransform(AffineTransform::rotation(1)); }));
  EXPECT_TRUE(asksForDrawing([&] { view->setAlpha(0.5); }));
  EXPECT_TRUE(asksForDrawing([&] { view->setBackgroundColor(Color::white()); }));
  EXPECT_TRUE(asksForDrawing([&] { view->invalidateIntrinsicContentSize(); }));
  EXPECT_TRUE(asksForDrawing([&] { view->addSubview(std::make_shared<View>()); }));
  EXPECT_TRUE(asksForDrawing([&] { view->subviews().front()->setNeedsDisplay(); }));
  EXPECT_TRUE(asksForDrawing([&] { view->subviews().front()->invalidateIntrinsicContentSize(); }));
  EXPECT_TRUE(asksForDrawing([&] { view->subviews().front()->removeFromSuperview(); }));
}

TEST(View, DrawingThatAsksForFurtherDrawingIsHeard) {
  class RestlessView : public View {
    void drawRect(Canvas&, Rect) override { setNeedsDisplay(); }
  };
  const auto view = std::make_shared<RestlessView>();
  drawing(*view);
  EXPECT_TRUE(view->needsDisplay());
}

TEST(View, IsDrawnFromItsBackgroundUpToItsSubviews) {
  const auto view = std::make_shared<LineView>();
  view->setFrame({10, 20, 100, 50});
  view->setBackgroundColor(Color::black());
  const auto dot = std::make_shared<ShapeLayer>();
  dot->setPath(Path::ellipse({0, 0, 4, 4}));
  view->layer().addSublayer(dot);
  added(*view, std::make_shared<LineView>(2), {5, 5, 10, 10});
  added(*view, std::make_shared<LineView>(3), {7, 7, 10, 10});
  EXPECT_EQ(drawing(*view),
            "save\n"
            "concat 1 0 0 1 10 20\n"
            "save\n"
            "setFillColor #000000FF\n"
            "fillRect 0 0 100 50\n"
            "restore\n"
            "save\n"
            "clip rect 0 0 100 50\n"
            "beginGroup 1\n"
            "setLineWidth 1\n"
            "strokeLine 0 0 to 100 50\n"
            "endGroup\n"
            "restore\n"
            "save\nconcat 1 0 0 1 0 0\nsetFillColor #000000FF\nfill ellipse 0 0 4 4\nrestore\n"
            "save\nconcat 1 0 0 1 5 5\nsave\nclip rect 0 0 10 10\nbeginGroup 1\n"
            "setLineWidth 2\nstrokeLine 0 0 to 10 10\nendGroup\nrestore\nrestore\n"
            "save\nconcat 1 0 0 1 7 7\nsave\nclip rect 0 0 10 10\nbeginGroup 1\n"
            "setLineWidth 3\nstrokeLine 0 0 to 10 10\nendGroup\nrestore\nrestore\n"
            "restore\n");
}

TEST(View, IsTurnedAndFadedAsOneWithItsSubviews) {
  const auto view = viewAt({0, 0, 20, 10});
  view->setTransform(AffineTransform::rotation(rightAngle));
  view->setAlpha(0.5);
  added(*view, std::make_shared<LineView>(), {1, 1, 2, 2});
  EXPECT_EQ(drawing(*view),
            "save\nconcat 0 1 -1 0 15 -5\nbeginGroup 0.5\n"
            "save\nclip rect 0 0 20 10\nbeginGroup 1\nendGroup\nrestore\n"
            "save\nconcat 1 0 0 1 1 1\nsave\nclip rect 0 0 2 2\nbeginGroup 1\n"
            "setLineWidth 1\nstrokeLine 0 0 to 2 2\nendGroup\nrestore\nrestore\n"
            "endGroup\nrestore\n");
}

TEST(View, SubviewsKnowWhatTheyLieIn) {
  const auto upper = std::make_shared<View>();
  const auto middle = added(*upper, std::make_shared<View>(), {});
  const auto lower = added(*middle, std::make_shared<View>(), {});
  EXPECT_EQ(lower->superview(), middle.get());
  EXPECT_TRUE(lower->isDescendantOf(*upper));
  EXPECT_TRUE(lower->isDescendantOf(*lower));
  EXPECT_FALSE(upper->isDescendantOf(*lower));
  middle->removeFromSuperview();
  EXPECT_EQ(middle->superview(), nullptr);
  EXPECT_FALSE(lower->isDescendantOf(*upper));
  EXPECT_TRUE(upper->subviews().empty());
}

TEST(View, IsToldOnceWhereItMovedTo) {
  const auto first = std::make_shared<View>();
  const auto second = std::make_shared<View>();
  const auto view = std::make_shared<ListeningView>();
  first->addSubview(view);
  EXPECT_EQ(view->told, "in ");
  second->addSubview(view);
  EXPECT_EQ(view->told, "in in ");
  EXPECT_TRUE(first->subviews().empty());
  view->removeFromSuperview();
  view->removeFromSuperview();
  EXPECT_EQ(view->told, "in in out ");
}

TEST(View, ASubviewThatNobodyElseHoldsMayRemoveItself) {
  const auto view = std::make_shared<View>();
  view->addSubview(std::make_shared<ListeningView>());
  const std::weak_ptr<View> subview = view->subviews().front();
  view->subviews().front()->removeFromSuperview();
  EXPECT_TRUE(view->subviews().empty());
  EXPECT_TRUE(subview.expired());
}

TEST(View, ASubviewOutlivesTheViewItLayIn) {
  const auto subview = std::make_shared<View>();
  std::make_shared<View>()->addSubview(subview);
  EXPECT_EQ(subview->superview(), nullptr);
}

TEST(View, TouchesAreReadInTheCoordinatesOfAnyView) {
  const auto root = viewAt({0, 0, 200, 200});
  const auto list = added(*root, viewAt({}), {10, 20, 100, 100});
  const auto row = added(*list, std::make_shared<ListeningView>(), {0, 40, 100, 20});
  const Touch touch({15, 65});
  EXPECT_EQ(touch.locationIn(*root), (Point{15, 65}));
  EXPECT_EQ(touch.locationIn(*list), (Point{5, 45}));
  row->told.clear();
  row->touchesBegan(touch);
  row->touchesMoved(Touch({16, 65}));
  row->touchesEnded(Touch({17, 65}));
  row->touchesCancelled(Touch({18, 65}));
  EXPECT_EQ(row->told, "began 5,5 moved 6,5 ended 7,5 cancelled 8,5 ");
}

TEST(View, TouchesAreReadInATurnedView) {
  const auto root = viewAt({0, 0, 200, 200});
  const auto turned = added(*root, viewAt({}), {0, 0, 100, 100});
  turned->setTransform(AffineTransform::rotation(rightAngle));
  const Point point = Touch({100, 0}).locationIn(*turned);
  EXPECT_NEAR(point.x, 0, 1e-9);
  EXPECT_NEAR(point.y, 0, 1e-9);
}

TEST(View, ATouchReachesTheTopmostViewThatTakesIt) {
  const auto root = viewAt({0, 0, 100, 100});
  const auto below = added(*root, viewAt({}), {0, 0, 60, 60});
  const auto above = added(*root, viewAt({}), {40, 40, 60, 60});
  const auto inner = added(*above, viewAt({}), {50, 50, 10, 10});
  EXPECT_EQ(root->hitTest({10, 10}), below);
  EXPECT_EQ(root->hitTest({50, 50}), above);
  EXPECT_EQ(root->hitTest({95, 95}), inner);
  EXPECT_EQ(root->hitTest({10, 90}), root);
  EXPECT_EQ(root->hitTest({100, 50}), nullptr);
}

TEST(View, TouchesPassThroughWhatTakesNone) {
  const auto root = viewAt({0, 0, 100, 100});
  const auto below = added(*root, viewAt({}), {0, 0, 100, 100});
  const auto above = added(*root, viewAt({}), {0, 0, 100, 100});
  above->setIsUserInteractionEnabled(false);
  EXPECT_EQ(root->hitTest({50, 50}), below);
  above->setIsUserInteractionEnabled(true);
  above->setAlpha(0);
  EXPECT_EQ(root->hitTest({50, 50}), below);
  above->setAlpha(1);
  above->setTransform(AffineTransform::scaling(1, 0));
  EXPECT_EQ(root->hitTest({50, 50}), below) << "a view squeezed to a line";
}

TEST(View, OffersNothingToAScreenReaderUnlessItSaysSo) {
  const auto view = std::make_shared<View>();
  EXPECT_FALSE(view->isAccessibilityElement());
  EXPECT_EQ(view->accessibilityTraits(), AccessibilityTraits::none);
  EXPECT_EQ(view->accessibilityContainerType(), AccessibilityContainerType::none);
  EXPECT_TRUE(view->accessibilityElements().empty());
  view->setIsAccessibilityElement(true);
  view->setAccessibilityTraits(AccessibilityTraits::allowsDirectInteraction);
  EXPECT_TRUE(view->isAccessibilityElement());
  EXPECT_EQ(view->accessibilityTraits(), AccessibilityTraits::allowsDirectInteraction);
}

}  // namespace
}  // namespace velmora
