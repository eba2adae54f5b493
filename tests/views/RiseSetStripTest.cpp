#include <velmora/views/RiseSetStrip.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

// A quarter of a point a minute, so that every number below is exact.
const RiseSetStrip strip({65, 0, 360, 80});

constexpr Size time{30, 12};

struct Hours {
  const char* day;
  std::int64_t rise, set;
  std::int64_t from, until;
  bool isUpAtMidnight;
};

const Hours hoursOfDays[] = {
    {"rises and sets", 600, 1200, 600, 1200, false},
    {"sets and rises again", 1200, 600, 1200, 600, true},
    {"rises and sets in the same minute", 600, 600, 600, 600, false},
    {"only sets", -1, 600, 0, 600, false},
    {"only rises", 600, -1, 600, -1, true},
    {"rises and sets tomorrow", 1200, 1500, 1200, 1500, false},
    {"neither rises nor sets", -1, -1, 0, 1440, false},
    {"rises at midnight", 0, 700, 0, 700, false},
    {"rises in the first minute", 1, 700, 1, 700, false},
    {"rises and sets at midnight", 0, 0, 0, 1440, false},
    {"sets at midnight and rises again", 700, 0, 700, 0, true},
};

TEST(MoonHoursTest, AnEventThatIsMissingOrAtMidnightIsAnEndOfTheDay) {
  for (const Hours& row : hoursOfDays) {
    const MoonHours hours = MoonHours::between(row.rise, row.set);
    EXPECT_EQ(hours.from, row.from) << row.day;
    EXPECT_EQ(hours.until, row.until) << row.day;
    EXPECT_EQ(hours.isUpAtMidnight(), row.isUpAtMidnight) << row.day;
  }
}

TEST(RiseSetStripTest, OnlyTheMinutesOfTheDayLieWithinIt) {
  EXPECT_FALSE(RiseSetStrip::isWithinDay(-1));
  EXPECT_TRUE(RiseSetStrip::isWithinDay(0));
  EXPECT_TRUE(RiseSetStrip::isWithinDay(1440));
  EXPECT_FALSE(RiseSetStrip::isWithinDay(1441));
}

TEST(RiseSetStripTest, TheMoonsBarLastsFromRiseToSetInTheUpperHalf) {
  EXPECT_EQ(strip.moonBar(MoonHours::between(600, 1200)), (Rect{215, 5, 150, 30}));
}

TEST(RiseSetStripTest, AMoonThatIsUpAtMidnightHasABarAtEitherEnd) {
  const MoonHours hours = MoonHours::between(1200, 600);
  EXPECT_EQ(strip.moonBarUntilSet(hours), (Rect{65, 5, 150, 30}));
  EXPECT_EQ(strip.moonBarFromRise(hours), (Rect{365, 5, 60, 30}));
}

TEST(RiseSetStripTest, WithoutMoonriseTheBarBeginsWithTheDay) {
  EXPECT_EQ(strip.moonBar(MoonHours::between(-1, 600)), (Rect{65, 5, 150, 30}));
}

TEST(RiseSetStripTest, WithoutMoonsetTheBarLastsToTheDaysEnd) {
  EXPECT_EQ(strip.moonBarFromRise(MoonHours::between(600, -1)), (Rect{215, 5, 210, 30}));
  EXPECT_EQ(strip.moonBar(MoonHours::between(0, 0)), (Rect{65, 5, 360, 30}));
}

TEST(RiseSetStripTest, WithoutMoonsetTheBarBeforeItIsTheMinuteBeforeMidnight) {
  EXPECT_EQ(strip.moonBarUntilSet(MoonHours::between(600, -1)), (Rect{65, 5, -0.25, 30}));
}

TEST(RiseSetStripTest, AMoonsetOfTomorrowLiesBeyondTheStrip) {
  EXPECT_EQ(strip.moonBar(MoonHours::between(1200, 1500)), (Rect{365, 5, 75, 30}));
}

TEST(RiseSetStripTest, DaylightLiesInTheLowerHalf) {
  EXPECT_EQ(strip.dayBar(360, 720), (Rect{155, 45, 180, 30}));
}

TEST(RiseSetStripTest, DaylightOfAPolarDayFillsTheStripButForTheMinuteOfItsMissingSunrise) {
  EXPECT_EQ(strip.dayBar(-1, 1440), (Rect{64.75, 45, 360, 30}));
}

TEST(RiseSetStripTest, DaylightOfAPolarNightHasNoWidth) {
  EXPECT_EQ(strip.dayBar(-1, 0), (Rect{64.75, 45, 0, 30}));
}

TEST(RiseSetStripTest, TheStripsHeightIsSharedByBothBars) {
  const RiseSetStrip lower({0, 100, 1440, 60});
  EXPECT_EQ(lower.moonBar({0, 1}), (Rect{0, 105, 1, 20}));
  EXPECT_EQ(lower.dayBar(0, 1), (Rect{0, 135, 1, 20}));
}

// The width of a minute has single precision.
TEST(RiseSetStripTest, AWidthThatDoesNotDivideReachesItsEndWithinAThousandthOfAPoint) {
  const RiseSetStrip phone({65, 0, 325, 80});
  EXPECT_NEAR(phone.moonBar(MoonHours::between(-1, -1)).maxX(), 390, 0.001);
  EXPECT_DOUBLE_EQ(phone.moonBar({0, 1}).width, static_cast<double>(325.0F / 1440.0F));
}

TEST(RiseSetStripTest, IconsStandInsideTheBarsEndsMidwayBetweenTopAndBottom) {
  const Rect bar = {215, 5, 150, 30};
  EXPECT_EQ(RiseSetStrip::iconAtStart(bar), (Rect{217, 10, 20, 20}));
  EXPECT_EQ(RiseSetStrip::iconAtEnd(bar), (Rect{343, 10, 20, 20}));
}

TEST(RiseSetStripTest, IconsOfABarNoHigherThanTheyStandAtItsTop) {
  EXPECT_EQ(RiseSetStrip::iconAtStart({0, 5, 100, 20}).y, 5);
  EXPECT_EQ(RiseSetStrip::iconAtStart({0, 5, 100, 12}).y, 5);
  EXPECT_EQ(RiseSetStrip::iconAtStart({0, 5, 100, 22}).y, 6);
}

struct TextPlace {
  const char* what;
  double start, end;  ///< of the bar
  double x;           ///< of the text
};

TEST(RiseSetStripTest, MoonriseStandsBeforeTheBarOrElseBehindItsIcon) {
  const TextPlace rows[] = {
      {"room enough", 215, 365, 180},
      {"just room enough", 100, 365, 65},
      {"less than a point missing", 99.75, 365, 126},
      {"the day's start", 65, 365, 92},
      {"fractions are cut", 215.75, 365, 180},
  };
  for (const TextPlace& row : rows) {
    const Rect text = strip.moonRiseText({row.start, 5, row.end - row.start, 30}, time);
    EXPECT_EQ(text, (Rect{row.x, 18, 30, 12})) << row.what;
  }
}

TEST(RiseSetStripTest, MoonsetStandsBehindTheBarOrElseBeforeItsIcon) {
  const TextPlace rows[] = {
      {"room enough", 215, 365, 370},   {"a fraction of room", 215, 389.75, 394}, {"no room", 215, 391, 334},
      {"the day's end", 215, 425, 368}, {"fractions are cut", 215, 365.75, 370},
  };
  for (const TextPlace& row : rows) {
    const auto text = strip.moonSetText({row.start, 5, row.end - row.start, 30}, time);
    EXPECT_EQ(text, (Rect{row.x, 18, 30, 12})) << row.what;
  }
}

TEST(RiseSetStripTest, MoonsetThatEndsAtTheVeryEdgeIsLeftOut) {
  EXPECT_EQ(strip.moonSetText({215, 5, 175, 30}, time), std::nullopt);
}

TEST(RiseSetStripTest, MoonsetOfAStripWithoutWidthIsLeftOut) {
  const RiseSetStrip none({65, 0, -65, 80});
  EXPECT_EQ(none.moonSetText({65, 5, 0, 30}, time), std::nullopt);
}

TEST(RiseSetStripTest, SunriseEndsBeforeItsBarAndSunsetBeginsBehindIt) {
  const Rect bar = {155.25, 45, 180, 30};
  EXPECT_EQ(RiseSetStrip::sunRiseText(bar, time), (Rect{120.25, 58, 30, 12}));
  EXPECT_EQ(RiseSetStrip::sunSetText(bar, time), (Rect{340.25, 58, 30, 12}));
}

TEST(RiseSetStripTest, TimesOfTheSunStayBesideTheirBarBeyondTheStripsEdges) {
  const Rect bar = {65, 45, 360, 30};
  EXPECT_EQ(RiseSetStrip::sunRiseText(bar, time).x, 30);
  EXPECT_EQ(RiseSetStrip::sunSetText(bar, time).x, 430);
}

}  // namespace
}  // namespace velmora
