#include <velmora/posters/DarknessPoster.h>

#include <gtest/gtest.h>

#include "tests/posters/PosterTesting.h"
#include "tests/support/GoldenPicture.h"

#include <velmora/platform/time/Locale.h>
#include <velmora/posters/DarknessLayout.h>
#include <velmora/posters/DarknessYear.h>
#include <velmora/posters/Ribbons.h>

namespace velmora {
namespace {

using std::chrono::year;

std::vector<std::chrono::year_month_day> stepsOf(const PosterPlace& place) {
  std::vector<std::chrono::year_month_day> evenings;
  const DarknessYear sky = DarknessYear::of(place, year(2026)).value();
  for (const NightRow& night : sky.nights)
    if (night.isStep) evenings.push_back(night.evening);
  return evenings;
}

TEST(DarknessLayout, KeepsItsRoomsApartAndOffTheEdges) {
  for (const Size size : {Size{595, 842}, Size{612, 792}, Size{1728, 2592}, Size{842, 595}}) {
    const double unit = std::min(size.width, size.height) / 595 * 0.9;
    const DarknessLayout layout = DarknessLayout::of(size, unit);
    const Rect months = {layout.monthsX, layout.carpet.y, layout.monthsWidth, layout.carpet.height};
    const Rect darkest = {layout.darkestX, layout.carpet.y, layout.darkestWidth, layout.carpet.height};
    const std::vector<Rect> rooms = {layout.caption,  layout.title,    layout.place, layout.darkestHeading,
                                     layout.hours,    layout.carpet,   months,       darkest,
                                     layout.dayparts, layout.moonKeys, layout.note};
    for (std::size_t i = 0; i < rooms.size(); ++i) {
      EXPECT_TRUE(
          testing::contains(Rect{0, 0, size.width, size.height}.inset(30 * unit, 30 * unit), rooms[i]));
      for (std::size_t other = 0; other < i; ++other)
        EXPECT_TRUE(rooms[i].intersection(rooms[other]).isEmpty()) << i << " and " << other;
    }
  }
}

TEST(DarknessYear, StepsWhereTheClocksChange) {
  using std::chrono::year_month_day;
  EXPECT_EQ(stepsOf(testing::helsinki()),
            (std::vector<year_month_day>{year(2026) / 3 / 28, year(2026) / 3 / 29, year(2026) / 10 / 24,
                                         year(2026) / 10 / 25}));
  EXPECT_TRUE(stepsOf(testing::quito()).empty());
}

TEST(DarknessYear, KnowsPolarDayAndPolarNight) {
  const auto nights = DarknessYear::of(testing::tromso(), year(2026)).value().nights;
  ASSERT_EQ(nights.size(), 365U);
  const auto isUp = [](double altitude) { return altitude > -50.0 / 60; };
  const auto& summer = nights[170].sun;
  const auto& winter = nights[354].sun;
  EXPECT_TRUE(std::all_of(summer.begin(), summer.end(), isUp));
  EXPECT_TRUE(std::none_of(winter.begin(), winter.end(), isUp));
}

TEST(DarknessYear, HasNoDarkNightInTheSummerOfTheNorth) {
  const auto darkest = DarknessYear::of(testing::helsinki(), year(2026)).value().darkest;
  for (const std::size_t month : {4, 5, 6}) EXPECT_EQ(darkest[month], std::nullopt) << month;
  for (const std::size_t month : {0, 3, 7, 11}) EXPECT_TRUE(darkest[month]) << month;
}

TEST(DarknessYear, MoonlightIsThatOfFullMoonsHighInTheNight) {
  const DarknessYear sky = DarknessYear::of(testing::sydney(), year(2026)).value();
  for (const NightRow& night : sky.nights)
    for (std::size_t i = 0; i < night.moonlight.size(); ++i) {
      EXPECT_GE(night.moonlight[i], 0);
      EXPECT_LE(night.moonlight[i], 1);
      if (night.moon[i] < 0 || night.sun[i] > -6) {
        EXPECT_EQ(night.moonlight[i], 0);
      }
    }
}

TEST(DarknessPoster, TellsTheDarkestNightOfEachMonth) {
  const ScopedLocale german("de_DE");
  const auto labels = testing::labelsOf(DarknessPoster(testing::helsinki(), year(2026)), {595, 842});
  const auto has = [&](const std::string& text) {
    return std::any_of(labels.begin(), labels.end(), [&](const Label& label) { return label.text == text; });
  };
  EXPECT_TRUE(has("13. Jan."));
  EXPECT_TRUE(has("18:25 – 06:31"));
  EXPECT_TRUE(has("12h 6m"));
  EXPECT_TRUE(has("nie ganz dunkel"));
}

TEST(DarknessPoster, IsReadableInEveryLanguage) {
  for (const std::string& locale : testing::posterLocales) {
    const ScopedLocale current(locale);
    for (const Paper paper : {Paper::a4, Paper::letter}) {
      const DarknessPoster poster(testing::helsinki(), year(2026));
      testing::expectReadable(testing::labelsOf(poster, paperSize(paper)), paperSize(paper), 0.7, locale);
    }
  }
}

TEST(DarknessPoster, CoversWhatTheAlmanacDoes) {
  EXPECT_TRUE(DarknessPoster(testing::helsinki(), year(1901)).isCovered());
  EXPECT_FALSE(DarknessPoster(testing::helsinki(), year(2100)).isCovered()) << "its last night ends in 2101";
}

TEST(DarknessPoster, LooksLikeAYear) {
  const ScopedLocale english("en_US");
  CairoCanvas canvas(PictureFormat::png, {298, 421});
  DarknessPoster poster(testing::tromso(), year(2026));
  poster.setFrame({0, 0, 298, 421});
  poster.render(canvas);
  EXPECT_TRUE(testing::looksLikeGolden(canvas, "darkness"));
}

}  // namespace
}  // namespace velmora
