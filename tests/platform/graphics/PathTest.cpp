#include <velmora/platform/graphics/Path.h>

#include <gtest/gtest.h>

#include <numbers>
#include <tuple>

namespace velmora {
namespace {

constexpr double pi = std::numbers::pi;

std::vector<Point> endPoints(const Path& path) {
  std::vector<Point> points;
  for (const Path::Element& element : path.elements()) {
    if (const auto* move = std::get_if<Path::Move>(&element)) points.push_back(move->to);
    if (const auto* line = std::get_if<Path::Line>(&element)) points.push_back(line->to);
    if (const auto* curve = std::get_if<Path::Curve>(&element)) points.push_back(curve->to);
  }
  return points;
}

std::size_t curveCount(const Path& path) {
  std::size_t count = 0;
  for (const Path::Element& element : path.elements()) count += std::holds_alternative<Path::Curve>(element);
  return count;
}

/// Points along every curve of the path.
std::vector<Point> pointsOnCurves(const Path& path) {
  std::vector<Point> points;
  Point from;
  for (const Path::Element& element : path.elements()) {
    if (const auto* move = std::get_if<Path::Move>(&element)) from = move->to;
    if (const auto* line = std::get_if<Path::Line>(&element)) from = line->to;
    const auto* curve = std::get_if<Path::Curve>(&element);
    if (curve == nullptr) continue;
    for (double t = 0; t <= 1; t += 0.125) {
      const auto at = [t](double a, double b, double c, double d) {
        const double s = 1 - t;
        return s * s * s * a + 3 * s * s * t * b + 3 * s * t * t * c + t * t * t * d;
      };
      points.push_back({at(from.x, curve->control1.x, curve->control2.x, curve->to.x),
                        at(from.y, curve->control1.y, curve->control2.y, curve->to.y)});
    }
    from = curve->to;
  }
  return points;
}

void expectNear(Point actual, Point expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-9);
  EXPECT_NEAR(actual.y, expected.y, 1e-9);
}

TEST(Path, SpellsOutWhatWasDrawn) {
  Path path;
  path.moveTo({1, 2});
  path.lineTo({3, 4});
  path.curveTo({5, 6}, {7, 8}, {9, 10});
  path.close();
  const std::vector<Path::Element> expected = {Path::Move{{1, 2}}, Path::Line{{3, 4}},
                                               Path::Curve{{5, 6}, {7, 8}, {9, 10}}, Path::Close{}};
  EXPECT_EQ(path.elements(), expected);
}

TEST(Path, ALineWithoutAnOpenFigureStartsOne) {
  Path path;
  path.lineTo({3, 4});
  path.close();
  path.close();
  path.lineTo({5, 6});
  const std::vector<Path::Element> expected = {Path::Move{{3, 4}}, Path::Close{}, Path::Move{{5, 6}}};
  EXPECT_EQ(path.elements(), expected);
}

TEST(Path, RectanglesAndEllipsesRunClockwise) {
  EXPECT_EQ(endPoints(Path::rect({0, 0, 4, 2})), (std::vector<Point>{{0, 0}, {4, 0}, {4, 2}, {0, 2}}));
  EXPECT_EQ(endPoints(Path::ellipse({0, 0, 4, 2})),
            (std::vector<Point>{{4, 1}, {2, 2}, {0, 1}, {2, 0}, {4, 1}}));
}

TEST(Path, NegativeSizesAreTakenByTheirAbsoluteValue) {
  EXPECT_EQ(Path::rect({4, 2, -4, -2}).elements(), Path::rect({0, 0, 4, 2}).elements());
  EXPECT_EQ(Path::ellipse({4, 0, -4, 2}).elements(), Path::ellipse({0, 0, 4, 2}).elements());
  EXPECT_EQ(Path::roundedRect({4, 2, -4, -2}, 1).elements(), Path::roundedRect({0, 0, 4, 2}, 1).elements());
  EXPECT_EQ(Path::roundedRect({0, 0, 4, 2}, -1).elements(), Path::roundedRect({0, 0, 4, 2}, 1).elements());
}

TEST(Path, ZeroSizesKeepTheirPlace) {
  EXPECT_EQ(Path::ellipse({3, 1, 0, 8}).boundingBox(), (Rect{3, 1, 0, 8}));
  EXPECT_EQ(Path::ellipse({3, 1, 0, 0}).boundingBox(), (Rect{3, 1, 0, 0}));
  EXPECT_EQ(Path::roundedRect({3, 1, 0, 8}, 8).boundingBox(), (Rect{3, 1, 0, 8}));
  EXPECT_EQ(Path::arc({5, 6}, 0, 0, pi, true).boundingBox(), (Rect{5, 6, 0, 0}));
}

TEST(Path, AnEllipseStaysWithinAThousandthOfItsRadius) {
  for (const Point point : pointsOnCurves(Path::ellipse({-1, -1, 2, 2}))) {
    EXPECT_NEAR(std::hypot(point.x, point.y), 1, 3e-4);
  }
}

TEST(Path, AnArcRunsClockwiseFromItsStartToItsEnd) {
  const std::vector<Point> points = endPoints(Path::arc({10, 10}, 5, pi / 2, 1.5 * pi, true));
  ASSERT_EQ(points.size(), 3U);
  expectNear(points[0], {10, 15});
  expectNear(points[1], {5, 10});
  expectNear(points[2], {10, 5});
}

TEST(Path, AnArcAgainstTheClockTakesTheOtherWay) {
  const std::vector<Point> points = endPoints(Path::arc({10, 10}, 5, pi / 2, 1.5 * pi, false));
  ASSERT_EQ(points.size(), 3U);
  expectNear(points[1], {15, 10});
  expectNear(points[2], {10, 5});
}

TEST(Path, AnArcStaysOnItsCircle) {
  for (const auto& [start, end, clockwise] : {std::tuple{0.0, 2 * pi, true},
                                              {0.3, 5.0, true},
                                              {3.0, 1.0, true},
                                              {0.3, 5.0, false},
                                              {1.0, 3.0, false}}) {
    const Path arc = Path::arc({0, 0}, 1, start, end, clockwise);
    for (const Point point : pointsOnCurves(arc)) EXPECT_NEAR(std::hypot(point.x, point.y), 1, 3e-4);
    expectNear(endPoints(arc).back(), {std::cos(end), std::sin(end)});
  }
}

TEST(Path, AnArcGoesRoundAtMostOnce) {
  EXPECT_EQ(curveCount(Path::arc({0, 0}, 1, 0, 2 * pi, true)), 4U);
  EXPECT_EQ(curveCount(Path::arc({0, 0}, 1, 0, 20 * pi, true)), 4U);
  EXPECT_EQ(curveCount(Path::arc({0, 0}, 1, 0.5, 0.25, true)), 4U);
}

TEST(Path, AnArcWithoutAnglesIsLeftOut) {
  EXPECT_TRUE(Path::arc({0, 0}, 1, 0, std::nan(""), true).elements().empty());
}

TEST(Path, ALineLeadsFromAnOpenFigureToAnArc) {
  Path path;
  path.moveTo({0, 0});
  path.addArc({10, 0}, 5, 0, pi, true);
  EXPECT_EQ(path.elements()[1], Path::Element(Path::Line{{15, 0}}));
}

TEST(Path, ARoundedRectangleHasARadiusOfAtMostHalfTheShorterSide) {
  EXPECT_EQ(Path::roundedRect({0, 0, 100, 10}, 8), Path::roundedRect({0, 0, 100, 10}, 5));
  EXPECT_EQ(endPoints(Path::roundedRect({0, 0, 100, 20}, 8))[0], (Point{8, 0}));
  EXPECT_EQ(curveCount(Path::roundedRect({0, 0, 100, 20}, 8)), 4U);
}

TEST(Path, OnlyTheCornersOfTheMaskAreRounded) {
  const Path topCorners = Path::roundedRect({0, 0, 100, 20}, Corners::topLeft | Corners::topRight, {4, 2});
  const std::vector<Point> points = endPoints(topCorners);
  EXPECT_EQ(points.front(), (Point{4, 0}));
  EXPECT_NE(std::find(points.begin(), points.end(), Point{100, 2}), points.end());
  EXPECT_NE(std::find(points.begin(), points.end(), Point{100, 20}), points.end());
  EXPECT_NE(std::find(points.begin(), points.end(), Point{0, 20}), points.end());
  EXPECT_EQ(curveCount(topCorners), 2U);
}

TEST(Path, ACornerWithOneRadiusOfZeroIsSquare) {
  const Path path = Path::roundedRect({0, 0, 100, 20}, 3, {4, 0});
  EXPECT_EQ(curveCount(path), 0U);
  EXPECT_EQ(path.boundingBox(), (Rect{0, 0, 100, 20}));
}

TEST(Path, EachRadiusIsAtMostHalfOfItsSide) {
  EXPECT_EQ(endPoints(Path::roundedRect({0, 0, 2, 40}, Corners::all, {8, 8}))[0], (Point{1, 0}));
  EXPECT_EQ(endPoints(Path::roundedRect({0, 0, 2, 40}, Corners::all, {8, 8}))[2], (Point{2, 8}));
}

TEST(Path, AppendedFiguresFollow) {
  Path path = Path::rect({0, 0, 1, 1});
  path.append(Path::ellipse({10, 10, 2, 2}));
  EXPECT_EQ(path.figures().size(), 2U);
  EXPECT_EQ(path.boundingBox(), (Rect{0, 0, 12, 12}));
  path.append(path);
  EXPECT_EQ(path.figures().size(), 4U);
}

TEST(Path, AnEmptyPathHasNoBoundingBox) {
  EXPECT_TRUE(Path().isEmpty());
  EXPECT_EQ(Path().boundingBox(), std::nullopt);
}

}  // namespace
}  // namespace velmora
