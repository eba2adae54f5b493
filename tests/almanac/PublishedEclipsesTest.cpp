#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include <tests/almanac/EclipseTesting.h>

namespace velmora::almanac {
namespace {

using namespace velmora::testing;

double minutesOfDay(Instant instant) {
  return (instant - std::chrono::floor<std::chrono::days>(instant)).count() / 60;
}

/// What a clock shows that hours and minutes are read from, without the seconds.
struct ClockTime {
  int hour, minute;
  double minutes() const { return hour * 60 + minute; }
};

/// A town of the path of totality with its times, local and to the minute.
struct Town {
  const char* name;
  Place place;
  int hoursFromUtc;
  ClockTime first, second, third, fourth;
};

/// The published minute is the one in which the contact falls, or the one that begins next; the town is as
/// wide as the shadow takes for half a minute.
void expectTimes(const Eclipse& eclipse, const Town& town) {
  const LocalEclipse local = localEclipse(eclipse, town.place);
  ASSERT_EQ(local.kind, EclipseKind::total) << town.name;
  const std::array<std::pair<ContactName, ClockTime>, 4> contacts{{{ContactName::C1, town.first},
                                                                   {ContactName::C2, town.second},
                                                                   {ContactName::C3, town.third},
                                                                   {ContactName::C4, town.fourth}}};
  for (const auto& [name, published] : contacts) {
    const double computed = minutesOfDay(momentOf(local, name).at) + 60 * town.hoursFromUtc;
    EXPECT_NEAR(computed, published.minutes() + 0.25, 1.0) << town.name << " C" << static_cast<int>(name) + 1;
  }
}

TEST(PublishedEclipses, Of2017InTheTownsOfItsPath) {
  // NASA, "Eclipse: Who? What? Where? When? and How?", times of ten towns.
  const Eclipse eclipse = eclipseOn(2017, 8, 21, Body::sun);
  for (const Town& town : {
           Town{"Madras", {44.63, -121.13}, -7, {9, 6}, {10, 19}, {10, 21}, {11, 41}},
           Town{"Idaho Falls", {43.49, -112.04}, -6, {10, 15}, {11, 33}, {11, 34}, {12, 58}},
           Town{"Casper", {42.87, -106.31}, -6, {10, 22}, {11, 42}, {11, 45}, {13, 9}},
           Town{"Lincoln", {40.81, -96.70}, -5, {11, 37}, {13, 2}, {13, 4}, {14, 29}},
           Town{"Jefferson City", {38.58, -92.17}, -5, {11, 46}, {13, 13}, {13, 15}, {14, 41}},
           Town{"Carbondale", {37.73, -89.22}, -5, {11, 52}, {13, 20}, {13, 22}, {14, 47}},
           Town{"Paducah", {37.08, -88.60}, -5, {11, 54}, {13, 22}, {13, 24}, {14, 49}},
           Town{"Nashville", {36.17, -86.78}, -5, {11, 58}, {13, 27}, {13, 29}, {14, 54}},
           Town{"Clayton", {34.88, -83.40}, -4, {13, 6}, {14, 35}, {14, 38}, {16, 1}},
           Town{"Columbia", {34.00, -81.03}, -4, {13, 13}, {14, 41}, {14, 44}, {16, 6}},
       }) {
    expectTimes(eclipse, town);
  }
}

TEST(PublishedEclipses, Of2024InTheTownsOfItsPath) {
  // NASA, "2024 Total Solar Eclipse: Where & When".
  const Eclipse eclipse = eclipseOn(2024, 4, 8, Body::sun);
  for (const Town& town : {
           Town{"Dallas", {32.78, -96.80}, -5, {12, 23}, {13, 40}, {13, 44}, {15, 2}},
           Town{"Idabel", {33.90, -94.83}, -5, {12, 28}, {13, 45}, {13, 49}, {15, 6}},
           Town{"Little Rock", {34.75, -92.29}, -5, {12, 33}, {13, 51}, {13, 54}, {15, 11}},
           Town{"Poplar Bluff", {36.76, -90.39}, -5, {12, 39}, {13, 56}, {14, 0}, {15, 15}},
           Town{"Paducah", {37.08, -88.60}, -5, {12, 42}, {14, 0}, {14, 2}, {15, 18}},
           Town{"Carbondale", {37.73, -89.22}, -5, {12, 42}, {13, 59}, {14, 3}, {15, 18}},
           Town{"Evansville", {37.97, -87.57}, -5, {12, 45}, {14, 2}, {14, 5}, {15, 20}},
           Town{"Cleveland", {41.50, -81.69}, -4, {13, 59}, {15, 13}, {15, 17}, {16, 29}},
           Town{"Erie", {42.13, -80.09}, -4, {14, 2}, {15, 16}, {15, 20}, {16, 30}},
           Town{"Buffalo", {42.89, -78.88}, -4, {14, 4}, {15, 18}, {15, 22}, {16, 32}},
           Town{"Burlington", {44.48, -73.21}, -4, {14, 14}, {15, 26}, {15, 29}, {16, 37}},
           Town{"Caribou", {46.86, -68.01}, -4, {14, 22}, {15, 32}, {15, 34}, {16, 40}},
       }) {
    expectTimes(eclipse, town);
  }
}

TEST(PublishedEclipses, WhereTheyAreGreatest) {
  // Espenak and Meeus, "Five Millennium Catalog of Solar Eclipses": Terrestrial Time of greatest eclipse, the
  // place there, the Sun's altitude, the duration of totality or annularity.
  struct Greatest {
    Instant terrestrial;
    Place place;
    double altitude;
    int duration;
    EclipseKind kind;
  };
  constexpr auto total = EclipseKind::total, annular = EclipseKind::annular;
  for (const Greatest& row : {
           Greatest{utc(1991, 7, 11, 19, 7, 1), {22.0, -105.2}, 90, 413, total},
           Greatest{utc(1999, 8, 11, 11, 4, 9), {45.1, 24.3}, 59, 143, total},
           Greatest{utc(2006, 3, 29, 10, 12, 23), {23.15, 16.77}, 67, 247, total},
           Greatest{utc(2009, 7, 22, 2, 36, 25), {24.2, 144.1}, 86, 399, total},
           Greatest{utc(2010, 1, 15, 7, 7, 39), {1.6, 69.3}, 66, 668, annular},
           Greatest{utc(2012, 5, 20, 23, 53, 54), {49.1, 176.3}, 61, 346, annular},
           Greatest{utc(2015, 3, 20, 9, 46, 47), {64.4, -6.6}, 19, 167, total},
           Greatest{utc(2017, 8, 21, 18, 26, 40), {37.0, -87.7}, 64, 160, total},
           Greatest{utc(2019, 7, 2, 19, 24, 8), {-17.4, -109.0}, 50, 273, total},
           Greatest{utc(2023, 10, 14, 18, 0, 41), {11.4, -83.1}, 68, 317, annular},
           Greatest{utc(2024, 4, 8, 18, 18, 29), {25.3, -104.1}, 70, 268, total},
       }) {
    const auto date = std::chrono::floor<std::chrono::days>(row.terrestrial);
    const Eclipse eclipse = eclipses(date, date + std::chrono::days(1)).at(0);
    const std::string where = std::to_string(unixSeconds(row.terrestrial));
    EXPECT_NEAR(terrestrialSeconds(eclipse.maximum), unixSeconds(row.terrestrial), 2) << where;
    const LocalEclipse local = localEclipse(eclipse, row.place);
    EXPECT_EQ(local.kind, row.kind) << where;
    EXPECT_NEAR((local.maximum.at - eclipse.maximum).count(), 0, 20) << where;
    EXPECT_NEAR(local.maximum.altitude, row.altitude, 1) << where;
    const Seconds duration = momentOf(local, ContactName::C3).at - momentOf(local, ContactName::C2).at;
    EXPECT_NEAR(duration.count(), row.duration, 1.5) << where;
  }
}

TEST(PublishedEclipses, OfTheMoonBeginAndEndWhenTheyWereSaidTo) {
  // NASA, Lunar Eclipse Page, figures of the single eclipses: universal time of P1, U1, U2, greatest, U3, U4,
  // P4.
  using Times = std::array<std::array<int, 3>, 7>;
  struct Published {
    int year;
    unsigned month, day;
    Times times;
  };
  constexpr std::array names{ContactName::P1, ContactName::U1, ContactName::U2, ContactName::C1,
                             ContactName::U3, ContactName::U4, ContactName::P4};
  for (const Published& row : {
           Published{2014, 4, 15,
                     Times{{{4, 53, 37},
                            {5, 58, 19},
                            {7, 6, 47},
                            {7, 45, 40},
                            {8, 24, 35},
                            {9, 33, 4},
                            {10, 37, 37}}}},
           Published{
               2015, 9, 28,
               Times{
                   {{0, 11, 47}, {1, 7, 11}, {2, 11, 10}, {2, 47, 7}, {3, 23, 5}, {4, 27, 3}, {5, 22, 27}}}},
           Published{2018, 7, 27,
                     Times{{{17, 14, 49},
                            {18, 24, 27},
                            {19, 30, 15},
                            {20, 21, 44},
                            {21, 13, 12},
                            {22, 19, 0},
                            {23, 28, 37}}}},
           Published{2019, 1, 21,
                     Times{{{2, 36, 30},
                            {3, 33, 54},
                            {4, 41, 17},
                            {5, 12, 16},
                            {5, 43, 16},
                            {6, 50, 39},
                            {7, 48, 0}}}},
           Published{
               2022, 5, 16,
               Times{
                   {{1, 32, 7}, {2, 27, 53}, {3, 29, 3}, {4, 11, 28}, {4, 53, 56}, {5, 55, 7}, {6, 50, 48}}}},
       }) {
    const Eclipse eclipse = eclipseOn(row.year, row.month, row.day, Body::moon);
    const LocalEclipse local = localEclipse(eclipse, {});
    for (std::size_t i = 0; i < names.size(); ++i) {
      const auto& [hour, minute, second] = row.times[i];
      const Instant at = names[i] == ContactName::C1 ? eclipse.maximum : momentOf(local, names[i]).at;
      EXPECT_NEAR((at - utc(row.year, row.month, row.day, hour, minute, second)).count(), 0, 6)
          << row.year << '-' << row.month << " moment " << i;
    }
  }
}

TEST(PublishedEclipses, Of2021RoseEclipsedInNewYork) {
  const LocalEclipse local = localEclipse(eclipseOn(2021, 6, 10, Body::sun), {40.71, -74.01});
  EXPECT_TRUE(local.isVisible);
  EXPECT_FALSE(momentOf(local, ContactName::C1).isUp);
  EXPECT_NEAR(minutesOfDay(local.visibleFrom), 9 * 60 + 25, 1);  // sunrise
  EXPECT_NEAR(minutesOfDay(local.maximum.at), 9 * 60 + 33, 1);
  EXPECT_NEAR(minutesOfDay(local.visibleTo), 10 * 60 + 30, 1);
  EXPECT_EQ(local.best, local.maximum);
  EXPECT_NEAR(local.obscuration, 0.73, 0.01);
}

}  // namespace
}  // namespace velmora::almanac
