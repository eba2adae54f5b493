#include <velmora/platform/graphics/Geometry.h>

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <optional>

namespace velmora {
namespace {

constexpr double rightAngle = std::numbers::pi / 2;

void expectNear(Point actual, Point expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-12);
  EXPECT_NEAR(actual.y, expected.y, 1e-12);
}

TEST(Rect, EdgesAndMiddle) {
  const Rect rect = {10, 20, 30, 40};
  EXPECT_EQ(rect.minX(), 10);
  EXPECT_EQ(rect.midX(), 25);
  EXPECT_EQ(rect.maxX(), 40);
  EXPECT_EQ(rect.minY(), 20);
  EXPECT_EQ(rect.midY(), 40);
  EXPECT_EQ(rect.maxY(), 60);
  EXPECT_EQ(rect.center(), (Point{25, 40}));
  EXPECT_EQ(rect.origin(), (Point{10, 20}));
  EXPECT_EQ(rect.size(), (Size{30, 40}));
}

TEST(Rect, NegativeSizesCoverTheAreaBeforeTheOrigin) {
  const Rect rect = {10, 20, -4, -6};
  EXPECT_EQ(rect.standardised(), (Rect{6, 14, 4, 6}));
  EXPECT_EQ(rect.minX(), 6);
  EXPECT_EQ(rect.maxX(), 10);
  EXPECT_EQ(rect.midX(), 8);
  EXPECT_EQ(rect.maxY(), 20);
}

TEST(Rect, InsetMovesEveryEdgeInwards) {
  EXPECT_EQ((Rect{6, 0, 374, 40}.inset(0, 4)), (Rect{6, 4, 374, 32}));
  EXPECT_EQ((Rect{10, 10, 4, 4}.inset(-1, -2)), (Rect{9, 8, 6, 8}));
  EXPECT_EQ((Rect{10, 10, -4, -4}.inset(1, 1)), (Rect{7, 7, 2, 2}));
}

TEST(Rect, AnInsetOfMoreThanTheSizeLeavesTheMiddle) {
  const Rect rest = Rect{0, 0, 10, 4}.inset(1, 3);
  EXPECT_EQ(rest, (Rect{1, 2, 8, 0}));
  EXPECT_TRUE(rest.isEmpty());
}

TEST(Rect, TheIntersectionIsWhatBothCover) {
  const Rect rect = {0, 0, 10, 10};
  EXPECT_EQ(rect.intersection({4, 6, 10, 2}), (Rect{4, 6, 6, 2}));
  EXPECT_EQ(rect.intersection({14, 8, -10, -2}), (Rect{4, 6, 6, 2}));
  EXPECT_EQ(rect.intersection(rect), rect);
  EXPECT_TRUE(rect.intersection({10, 0, 10, 10}).isEmpty()) << "they only touch";
  EXPECT_TRUE(rect.intersection({20, 20, 5, 5}).isEmpty());
}

TEST(Rect, ContainsItsUpperLeftEdgesOnly) {
  const Rect rect = {0, 0, 10, 10};
  EXPECT_TRUE(rect.contains({0, 0}));
  EXPECT_TRUE(rect.contains({9.99, 5}));
  EXPECT_FALSE(rect.contains({10, 5}));
  EXPECT_FALSE(rect.contains({5, 10}));
  EXPECT_FALSE(rect.contains({-0.01, 5}));
}

TEST(AffineTransform, IdentityLeavesPoints) {
  EXPECT_TRUE(AffineTransform::identity().isIdentity());
  expectNear(AffineTransform::identity().apply({3, -4}), {3, -4});
  EXPECT_FALSE(AffineTransform::scaling(1, 2).isIdentity());
}

TEST(AffineTransform, ARightAngleTurnsRightToDown) {
  expectNear(AffineTransform::rotation(rightAngle).apply({1, 0}), {0, 1});
  expectNear(AffineTransform::rotation(rightAngle).apply({0, 1}), {-1, 0});
}

TEST(AffineTransform, AddedStepsComeBeforeTheTransform) {
  const AffineTransform transform = AffineTransform::translation(100, 0).rotated(rightAngle).scaled(2, 3);
  expectNear(transform.apply({1, 0}), {100, 2});
  expectNear(transform.apply({0, 1}), {97, 0});
  expectNear(AffineTransform::scaling(2, 2).translated(1, 1).apply({0, 0}), {2, 2});
}

TEST(AffineTransform, ConcatRunsTheOtherAfterwards) {
  const AffineTransform shift = AffineTransform::translation(1, 1), twice = AffineTransform::scaling(2, 2);
  expectNear(shift.concat(twice).apply({0, 0}), {2, 2});
  expectNear(twice.concat(shift).apply({0, 0}), {1, 1});
}

TEST(AffineTransform, ConcatIsOneTransformAfterTheOther) {
  const AffineTransform first = {1.5, 0.25, -2, 0.75, 3, -7}, second = {0.5, -1, 4, 2, -6, 11};
  for (const Point point : {Point{0, 0}, Point{1, 0}, Point{-3, 8}}) {
    expectNear(first.concat(second).apply(point), second.apply(first.apply(point)));
  }
}

TEST(AffineTransform, ItsInverseUndoesIt) {
  const AffineTransform transform = {1.5, 0.25, -2, 0.75, 3, -7};
  for (const Point point : {Point{0, 0}, Point{1, 0}, Point{-3, 8}}) {
    expectNear(transform.inverted()->apply(transform.apply(point)), point);
  }
}

TEST(AffineTransform, SqueezingToALineHasNoInverse) {
  EXPECT_EQ(AffineTransform::scaling(0, 1).inverted(), std::nullopt);
  EXPECT_EQ((AffineTransform{1, 2, 2, 4, 0, 0}).inverted(), std::nullopt);
  EXPECT_EQ(AffineTransform::scaling(std::numeric_limits<double>::quiet_NaN(), 1).inverted(), std::nullopt);
}

}  // namespace
}  // namespace velmora
