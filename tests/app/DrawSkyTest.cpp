#include <velmora/views/VelmoraTheme.h>

#include "PictureTesting.h"

namespace velmora::app {
namespace {

// All at 23:00, when the Moon of 20 June 2024 is up in the south-south-east of Helsinki.
class DrawSkyTest : public PictureTest {
 protected:
  static constexpr Point middle = {195, 195};

  /// The view without a title, seen from the city at the time of 20 June 2024.
  DrawnPicture sky(const std::string& view, const std::string& city, const std::string& time,
                   std::vector<std::string> more = {}) const {
    more.insert(more.begin(), {view, "--no-title", "--background", "none", "--city", city, "--date",
                               "2024-06-20", "--time", time});
    return picture(more);
  }

  static Color moon() { return VelmoraTheme::calendarTheme()->selectedBackgroundColor; }
  /// As it covers a transparent picture.
  static Color way() {
    const Color color = VelmoraTheme::calendarTheme()->moonLightColor;
    return {color.red * color.alpha, color.green * color.alpha, color.blue * color.alpha, color.alpha};
  }

  static Point placeOf(const DrawnPicture& drawn) { return drawn.middle(moon()) - middle; }
};

/// How bright the left and the right half of the picture are.
std::pair<long, long> brightnesses(const DrawnPicture& drawn) {
  std::pair<long, long> sums;
  const auto [width, height] = drawn.size();
  for (std::int64_t y = 0; y < height; ++y)
    for (std::int64_t x = 0; x < width; ++x)
      (x < width / 2 ? sums.first : sums.second) += drawn.pixel(x, y)[1];
  return sums;
}

// On the day of a first quarter: the right half is lit, and from the southern hemisphere the left one.
TEST_F(DrawSkyTest, PictureOfTheDiscIsLitWhereTheMoonIs) {
  const auto moon = [&](const std::string& city, std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"disc", "--picture", "--no-title", "--background", "black", "--city", city,
                               "--date", "2024-04-15", "--time", "21:00"});
    return picture(more);
  };
  const auto [left, right] = brightnesses(moon("Helsinki"));
  EXPECT_GT(right, 4 * left);
  const auto [leftInSydney, rightInSydney] = brightnesses(moon("Sydney"));
  EXPECT_GT(leftInSydney, 4 * rightInSydney);
  const auto [leftTilted, rightTilted] = brightnesses(moon("Helsinki", {"--tilt"}));
  EXPECT_GT(rightTilted, leftTilted);
  EXPECT_LT(rightTilted, right) << "its lit side hangs lower in the west";
}

// The Moon has just risen: it lies at the way's eastern end, in the direction of moonrise.
TEST_F(DrawSkyTest, CompassShowsTheMoonInTheDirectionOfItsRise) {
  const double azimuth = json({"position", "--city", "Helsinki", "--date", "2024-06-20", "--time", "22:27"})
                             .at("azimuth")
                             .get<double>();
  const Point place = placeOf(sky("compass", "Helsinki", "22:27"));
  const double seen = std::atan2(place.x, -place.y) * 180 / std::numbers::pi;
  EXPECT_NEAR(seen, azimuth, 2);
}

TEST_F(DrawSkyTest, ASmallCompassIsALargeOneFromAfar) {
  const DrawnPicture drawn =
      picture({"compass", "--no-title", "--size", "40x40", "--scale", "4", "--background", "none", "--city",
               "Helsinki", "--date", "2024-06-20", "--time", "23:00"});
  const DrawnPicture large = picture({"compass", "--no-title", "--size", "160x160", "--background", "none",
                                      "--city", "Helsinki", "--date", "2024-06-20", "--time", "23:00"});
  const Point small = drawn.middle(moon()), wanted = large.middle(moon());
  EXPECT_NEAR(small.x, wanted.x, 1);
  EXPECT_NEAR(small.y, wanted.y, 1);
}

TEST_F(DrawSkyTest, TheTitleSaysWhereTheMoonStands) {
  const std::vector<std::string> evening = {"--city", "Helsinki", "--date", "2024-06-20",
                                            "--time", "23:00",    "--size", "390x446"};
  const auto placeLine = [&](std::vector<std::string> arguments) {
    arguments.insert(arguments.end(), evening.begin(), evening.end());
    const DrawnPicture drawn = picture(arguments);
    const std::size_t row = 4 * 390;
    return PixelBytes(drawn.pixels().begin() + 34 * row, drawn.pixels().begin() + 54 * row);
  };
  const auto wanted = placeLine({"timeline", "--name", "Helsinki · 1° above the horizon, 164° SSE"});
  EXPECT_EQ(placeLine({"compass"}), wanted);
  EXPECT_EQ(placeLine({"azel"}), wanted);
}

TEST_F(DrawSkyTest, CompassIsTurnedSoThatTheHeadingIsUp) {
  const Point north = placeOf(sky("compass", "Sydney", "17:00"));
  const Point east = placeOf(sky("compass", "Sydney", "17:00", {"--heading", "90"}));
  EXPECT_GT(north.x, 30) << "risen in the east, which is on the right";
  EXPECT_NEAR(east.x, north.y, 1.5);
  EXPECT_NEAR(east.y, -north.x, 1.5) << "and up when one faces it";
}

TEST_F(DrawSkyTest, CompassLeadsTheWayBySouthOrNorth) {
  EXPECT_GT((sky("compass", "Helsinki", "23:00").middle(way()) - middle).y, 30);
  EXPECT_LT((sky("compass", "Sydney", "17:00").middle(way()) - middle).y, 0);
}

TEST_F(DrawSkyTest, CompassHasNoWayWhereTheMoonNeverRises) {
  EXPECT_EQ(sky("compass", "Longyearbyen", "12:00").count(way()), 0);
  EXPECT_GT(sky("compass", "Helsinki", "12:00").count(way()), 100);
}

TEST_F(DrawSkyTest, CompassFadesAMoonBelowTheHorizon) {
  EXPECT_GT(sky("compass", "Helsinki", "23:30").count(moon()), 100);
  EXPECT_EQ(sky("compass", "Helsinki", "12:00").count(moon()), 0);
}

TEST_F(DrawSkyTest, ElevationArcHasTheZenithUp) {
  const DrawnPicture drawn = sky("azel", "Helsinki", "23:30");
  EXPECT_GT(drawn.count(way(), {0, 0, 390, 195}), 1000);
  EXPECT_EQ(drawn.count(way(), {0, 196, 390, 194}), 0);
}

TEST_F(DrawSkyTest, ElevationArcHasTheMoonAsHighAsItIs) {
  const double elevation = json({"position", "--city", "Sydney", "--date", "2024-06-20", "--time", "19:00"})
                               .at("altitude")
                               .get<double>();
  const Point place = placeOf(sky("azel", "Sydney", "19:00"));
  EXPECT_NEAR(std::atan2(-place.y, place.x) * 180 / std::numbers::pi, elevation, 1);
}

TEST_F(DrawSkyTest, ElevationArcHasTheEastOnTheLeftOfWhoFacesSouthAndOnTheRightOfWhoFacesNorth) {
  EXPECT_LT(placeOf(sky("azel", "Helsinki", "23:30")).x, -100);
  EXPECT_GT(placeOf(sky("azel", "Sydney", "17:00")).x, 100);
}

}  // namespace
}  // namespace velmora::app
