#include <velmora/posters/SkyDisc.h>

#include <gtest/gtest.h>

#include "tests/posters/PosterTesting.h"
#include "tests/support/RecordingCanvas.h"

namespace velmora {
namespace {

constexpr Instant evening = std::chrono::sys_days(std::chrono::year(2026) / 5 / 19) + std::chrono::hours(18);

std::vector<std::string> drawn(const almanac::Place& place, Instant at) {
  testing::RecordingCanvas canvas;
  SkyDisc disc(place, at, Color::white(), Color::black());
  disc.drawRect(canvas, {0, 0, 101, 101});
  return canvas.lines();
}

TEST(SkyDisc, FillsItsFrame) {
  const auto lines = drawn(testing::helsinki().place, evening);
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[1], "fillEllipse 0.5 0.5 100 100");
  EXPECT_EQ(lines.back(), "strokeEllipse 0.5 0.5 100 100");
}

TEST(SkyDisc, HangsOtherwiseInTheSouth) {
  EXPECT_NE(drawn(testing::helsinki().place, evening)[3], drawn(testing::sydney().place, evening)[3]);
}

TEST(SkyDisc, OutsideTheAlmanacsYearsIsBlank) {
  EXPECT_TRUE(drawn(testing::helsinki().place, instantFromUnixSeconds(1e11)).empty());
}

}  // namespace
}  // namespace velmora
