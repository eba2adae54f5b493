#include <velmora/posters/Ribbons.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

constexpr Rect room = {100, 0, 10, 4};  // a point a row where there are four

std::vector<Point> pointsOf(const Path& path) {
  std::vector<Point> points;
  for (const Path::Element& element : path.elements()) {
    if (const auto* move = std::get_if<Path::Move>(&element)) points.push_back(move->to);
    if (const auto* line = std::get_if<Path::Line>(&element)) points.push_back(line->to);
  }
  return points;
}

std::size_t figureCount(const Path& path) {
  const auto elements = path.elements();
  return static_cast<std::size_t>(std::count_if(elements.begin(), elements.end(), [](const auto& element) {
    return std::holds_alternative<Path::Move>(element);
  }));
}

Path ribbons(std::vector<std::vector<Stretch>> rows, std::vector<bool> steps = {}) {
  steps.resize(rows.size());
  return ribbonsOf({std::move(rows), steps}, room);
}

TEST(Stretches, LieBetweenThePassagesOfALevel) {
  EXPECT_EQ(stretchesBelow({2, 0, -2, 0, 2}, -1), (std::vector<Stretch>{{0.375, 0.625}}));
  EXPECT_EQ(stretchesBelow({-2, 0, 2, 0, -2}, -1), (std::vector<Stretch>{{0, 0.125}, {0.875, 1}}));
  EXPECT_EQ(stretchesBelow({-2, -3, -2}, -1), (std::vector<Stretch>{{0, 1}}));
  EXPECT_TRUE(stretchesBelow({2, 3, 2}, -1).empty());
  EXPECT_EQ(stretchesAbove({2, 0, -2, 0, 2}, 1), (std::vector<Stretch>{{0, 0.125}, {0.875, 1}}));
}

TEST(Passages, AreUpwardOrDownward) {
  EXPECT_EQ(passages({-1, 1, 1, -1, -1}, true), std::vector{0.125});
  EXPECT_EQ(passages({-1, 1, 1, -1, -1}, false), std::vector{0.625});
}

TEST(Ribbons, RunDownOneSideAndUpTheOther) {
  const auto points = pointsOf(ribbons({{{0.2, 0.8}}, {{0.4, 0.6}}, {{0.4, 0.6}}, {{0.2, 0.8}}}));
  EXPECT_EQ(points, (std::vector<Point>{{102, 0},
                                        {102, 0.5},
                                        {104, 1.5},
                                        {104, 2.5},
                                        {102, 3.5},
                                        {102, 4},
                                        {108, 4},
                                        {108, 3.5},
                                        {106, 2.5},
                                        {106, 1.5},
                                        {108, 0.5},
                                        {108, 0}}));
}

TEST(Ribbons, TaperOffWhereTheNextRowHasNone) {
  const auto points = pointsOf(ribbons({{{0.2, 0.8}}, {}, {{0.4, 0.6}}, {}}));
  EXPECT_EQ(points, (std::vector<Point>{{102, 0},
                                        {102, 0.5},
                                        {105, 1},
                                        {105, 1},
                                        {108, 0.5},
                                        {108, 0},
                                        {105, 2},
                                        {104, 2.5},
                                        {105, 3},
                                        {105, 3},
                                        {106, 2.5},
                                        {105, 2}}));
}

TEST(Ribbons, EndAsWideAsTheyAreAtAStep) {
  const auto points = pointsOf(ribbons({{{0, 0.5}}, {{0.1, 0.6}}}, {false, true}));
  EXPECT_EQ(points, (std::vector<Point>{{100, 0},
                                        {100, 1},
                                        {100, 2},
                                        {105, 2},
                                        {105, 1},
                                        {105, 0},
                                        {101, 2},
                                        {101, 3},
                                        {101, 4},
                                        {106, 4},
                                        {106, 3},
                                        {106, 2}}));
}

TEST(Ribbons, PartWhereTheNextRowHasTwo) {
  EXPECT_EQ(figureCount(ribbons({{{0.1, 0.9}}, {{0.1, 0.4}, {0.6, 0.9}}, {{0.1, 0.4}, {0.6, 0.9}}})), 3U);
  EXPECT_EQ(figureCount(ribbons({{{0.1, 0.4}, {0.6, 0.9}}, {{0.1, 0.4}, {0.6, 0.9}}})), 2U);
}

TEST(Lines, JoinPassagesThatAreNearToEachOther) {
  const auto points = pointsOf(linesOf({{{0.2}, {0.25}, {0.9}}, {false, false, false}}, {0, 0, 10, 3}, 0.1));
  EXPECT_EQ(points, (std::vector<Point>{{2, 0.5}, {2.5, 1.5}}));
  EXPECT_TRUE(linesOf({{{0.2}, {0.25}}, {false, true}}, room, 0.1).isEmpty());
}

}  // namespace
}  // namespace velmora
