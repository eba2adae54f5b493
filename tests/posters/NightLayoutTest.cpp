#include <velmora/posters/NightLayout.h>

#include <gtest/gtest.h>

#include "tests/posters/PosterTesting.h"

namespace velmora {
namespace {

using testing::contains;

constexpr Size a4 = {842, 595};
constexpr std::array<double, NightLayout::keys> wanted = {40, 90, 100, 130, 70, 90};

std::vector<Rect> roomsOf(const NightLayout& layout) {
  std::vector<Rect> rooms = {layout.caption, layout.title, layout.place,   layout.darkness, layout.phase,
                             layout.light,   layout.chart, layout.heights, layout.hours};
  const double radius = layout.discRadius;
  rooms.push_back({layout.discCenter.x - radius, layout.discCenter.y - radius, 2 * radius, 2 * radius});
  for (const NightLayout::Key& key : layout.legend) {
    rooms.insert(rooms.end(), {key.swatch, key.name});
    rooms.insert(rooms.end(), key.lines.begin(), key.lines.end());
  }
  return rooms;
}

TEST(NightLayout, KeepsItsRoomsApartAndOffTheEdges) {
  for (const Size size : {a4, Size{1191, 842}, Size{792, 612}, Size{2592, 1728}}) {
    const double unit = std::min(size.width / 842, size.height / 595);
    const auto rooms = roomsOf(NightLayout::of(size, unit, 60, wanted));
    const double margin = 40 * unit;
    for (std::size_t i = 0; i < rooms.size(); ++i) {
      EXPECT_TRUE(contains(Rect{0, 0, size.width, size.height}.inset(margin, margin), rooms[i])) << i;
      for (std::size_t other = 0; other < i; ++other)
        EXPECT_TRUE(rooms[i].intersection(rooms[other]).isEmpty()) << i << " and " << other;
    }
  }
}

TEST(NightLayout, HoldsTheHighestBodyWithRoomForItsTime) {
  for (const double highest : {-5.0, 12.0, 47.0, 90.0}) {
    const NightLayout layout = NightLayout::of(a4, 1, highest, wanted);
    EXPECT_GT(layout.y(std::max(highest, 0.0)) - layout.chart.y, 28) << highest;
    EXPECT_DOUBLE_EQ(layout.y(layout.lowestAltitude), layout.chart.maxY());
    EXPECT_EQ(layout.gridAltitudes().front(), 0);
    EXPECT_LT(layout.gridAltitudes().back(), layout.highestAltitude);
  }
}

TEST(NightLayout, SharesTheLegendsWidthByWhatItsTextsWant) {
  const NightLayout layout = NightLayout::of(a4, 1, 60, wanted);
  EXPECT_DOUBLE_EQ(layout.keyShare, 1);
  for (std::size_t i = 0; i < wanted.size(); ++i) EXPECT_DOUBLE_EQ(layout.legend[i].name.width, wanted[i]);
  EXPECT_DOUBLE_EQ(layout.legend.back().name.maxX(), layout.chart.maxX());
}

TEST(NightLayout, GivesEachKeyLessWhereTheyWantTooMuch) {
  std::array<double, NightLayout::keys> wide = wanted;
  for (double& width : wide) width *= 2;
  const NightLayout layout = NightLayout::of(a4, 1, 60, wide);
  EXPECT_LT(layout.keyShare, 1);
  EXPECT_NEAR(layout.legend.back().name.maxX(), layout.chart.maxX(), 1e-9);
}

}  // namespace
}  // namespace velmora
