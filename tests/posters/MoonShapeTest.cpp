#include <velmora/posters/MoonShape.h>

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "tests/support/RecordingCanvas.h"

#include <velmora/posters/Sheet.h>

namespace velmora {
namespace {

constexpr Point center = {30, 40};
constexpr double discRadius = 10;

/// The outline by many points.
std::vector<Point> outline(const Path& path) {
  std::vector<Point> points;
  for (const Path::Element& element : path.elements()) {
    if (const auto* move = std::get_if<Path::Move>(&element)) points.push_back(move->to);
    const auto* curve = std::get_if<Path::Curve>(&element);
    if (!curve) continue;
    const Point from = points.back();
    for (int i = 1; i <= 100; ++i) {
      const double t = i / 100.0, s = 1 - t;
      const auto along = [&](double Point::*axis) {
        return s * s * s * from.*axis + 3 * s * s * t * curve->control1.*axis +
               3 * s * t * t * curve->control2.*axis + t * t * t * curve->to.*axis;
      };
      points.push_back({along(&Point::x), along(&Point::y)});
    }
  }
  return points;
}

struct Area {
  double size = 0;
  Point middle;
};

/// By the trapezoids below its edges.
Area areaOf(const Path& path) {
  const std::vector<Point> points = outline(path);
  Area area;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point a = points[i], b = points[(i + 1) % points.size()];
    const double cross = a.x * b.y - b.x * a.y;
    area.size += cross / 2;
    area.middle = area.middle + Point{(a.x + b.x) * cross / 6, (a.y + b.y) * cross / 6};
  }
  area.middle = {area.middle.x / area.size, area.middle.y / area.size};
  area.size = std::abs(area.size);
  return area;
}

TEST(MoonShape, HasTheLitPartOfTheDiscForItsArea) {
  for (const double fraction : {0.02, 0.1, 0.25, 0.5, 0.75, 0.9, 1.0}) {
    for (const double direction : {0.0, 1.0, -2.5}) {
      const double share = areaOf(litPart(center, discRadius, {fraction, direction})).size /
                           (std::numbers::pi * discRadius * discRadius);
      EXPECT_NEAR(share, fraction, 0.001) << fraction << " from " << direction;
    }
  }
}

TEST(MoonShape, LiesTowardsTheLight) {
  const double quarter = std::numbers::pi / 2;
  const auto offset = [](double direction) {
    return areaOf(litPart(center, discRadius, {0.3, direction})).middle - center;
  };
  EXPECT_LT(offset(0).y, -discRadius / 2) << "lit from above";
  EXPECT_NEAR(offset(0).x, 0, 1e-6);
  EXPECT_GT(offset(quarter).x, discRadius / 2) << "lit from the right";
  EXPECT_GT(offset(2 * quarter).y, discRadius / 2) << "lit from below";
  EXPECT_LT(offset(-quarter).x, -discRadius / 2) << "lit from the left";
}

// The tilt is counted against the clock from straight up, so that a Moon lit from its upper left has one of
// 45°.
TEST(MoonShape, HangsAsTheAlmanacSays) {
  almanac::Illumination moon;
  moon.fraction = 0.3;
  moon.tilt = 45;
  const Point offset = areaOf(litPart(center, discRadius, tilted(moon))).middle - center;
  EXPECT_LT(offset.x, 0);
  EXPECT_LT(offset.y, 0);
  EXPECT_NEAR(offset.x, offset.y, 1e-3);
}

TEST(MoonShape, IsUprightAsCalendarsOfTheHemisphereShowIt) {
  almanac::Illumination moon;
  moon.fraction = 0.3;
  const auto side = [&](bool isWaxing, bool isSouthern) {
    moon.isWaxing = isWaxing;
    return areaOf(litPart(center, discRadius, upright(moon, isSouthern))).middle.x - center.x;
  };
  EXPECT_GT(side(true, false), 0);
  EXPECT_LT(side(false, false), 0);
  EXPECT_LT(side(true, true), 0);
  EXPECT_GT(side(false, true), 0);
}

TEST(MoonShape, IsNeverMirroredWithTheSheet) {
  const auto drawn = [](bool isRightToLeft, Point at) {
    testing::RecordingCanvas canvas;
    Sheet sheet(canvas, {100, 100}, Palette::of(PaperTheme::dark), isRightToLeft);
    drawMoon(sheet, at, discRadius, {0.3, 1.0});
    return canvas.lines();
  };
  EXPECT_EQ(drawn(true, {30, 40}), drawn(false, {70, 40}));
}

}  // namespace
}  // namespace velmora
